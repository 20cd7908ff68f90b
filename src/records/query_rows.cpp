#include "src/records/query_rows.h"

namespace goods {

late::ArrayPtr ReadRows(basGoodsRequest& session, std::string_view query) {
  constexpr int kToTheEnd = -1;
  ado::Recordset rows = ado::Recordset::Create(session.services.factory);
  rows.Open(query, session.gAdoCon, ado::kForwardOnly, ado::kReadOnly);
  late::ArrayPtr records = rows.Eof() ? late::Array::Table(0, 0) : rows.GetRows(kToTheEnd);
  rows.Close();
  return records;
}

}  // namespace goods
