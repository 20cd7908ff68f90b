#include "src/records/query_rows.h"

namespace goods {

ado::Recordset OpenQuery(basGoodsRequest& session, std::string_view query, ado::CursorType cursor, ado::LockType lock) {
  ado::Recordset rows = ado::Recordset::Create(session.services.factory);
  rows.Open(query, session.gAdoCon, cursor, lock);
  return rows;
}

late::ArrayPtr ReadRows(basGoodsRequest& session, std::string_view query) {
  constexpr int kToTheEnd = -1;
  return ReadQuery(session, query,
                   [](ado::Recordset& rows) { return rows.Eof() ? late::Array::Table(0, 0) : rows.GetRows(kToTheEnd); });
}

std::vector<late::Value> FirstRow(basGoodsRequest& session, std::string_view query) {
  return ReadQuery(session, query, [](ado::Recordset& rows) {
    return rows.Eof() ? std::vector<late::Value>() : std::move(rows.GetRows(1)->items);
  });
}

late::Value FirstValue(basGoodsRequest& session, std::string_view query) {
  return ReadQuery(session, query, [](ado::Recordset& rows) { return rows.Eof() ? late::Value(late::Null{}) : rows.Field(0); });
}

late::Value ExecuteForValue(basGoodsRequest& session, std::string_view statement) {
  ado::Recordset rows = session.gAdoCon.Execute(statement);
  late::Value value = rows.Field(0);
  rows.Close();
  return value;
}

}  // namespace goods
