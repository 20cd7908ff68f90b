#include "suite/helpers/common_db_stand_in.h"

#include "base/vb/number.h"
#include "base/vb/text.h"

namespace suite {

using late::Arguments;
using late::Value;

namespace {

/// These are called once a line of a request: the text is allocated once.
std::string Joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

}  // namespace

const late::MemberTable<CommonDbStandIn>& CommonDbStandIn::Members() {
  static const late::MemberTable<CommonDbStandIn> table{
      {"adocon", [](CommonDbStandIn& self, Arguments&) { return Value(self.connection_.Object()); },
       [](CommonDbStandIn& self, Arguments& arguments) { self.SetConnection(arguments[0]); }},
      {"strTableName", [](CommonDbStandIn& self, Arguments&) { return Value(self.strTableName_); },
       [](CommonDbStandIn& self, Arguments& arguments) { self.strTableName_ = arguments[0].ToText(); }},
      {"fnReturnField",
       [](CommonDbStandIn& self, Arguments& arguments) {
         return self.fnReturnField(arguments[0].ToText(), arguments.Or(1, "").ToText());
       },
       nullptr, 1, 2},
      {"fnGetNextMaxNo",
       [](CommonDbStandIn& self, Arguments& arguments) { return Value(self.fnGetNextMaxNo(arguments[0].ToText())); }, nullptr, 1,
       1},
      {"fnUpdateSelectedRecord",
       [](CommonDbStandIn& self, Arguments& arguments) {
         self.fnUpdateSelectedRecord(arguments[0].ToText(), arguments[1].ToText(), arguments[2].ToInt16());
         return Value();
       },
       nullptr, 3, 3},
      {"PopulateListview",
       [](CommonDbStandIn& self, Arguments& arguments) {
         self.PopulateListview(*arguments[0].ToObject(), arguments[1].ToText(), arguments[2].ToText(), arguments[3].ToText(),
                               arguments[4].ToText(), arguments[5].ToText());
         return Value();
       },
       nullptr, 6, 6},
      {"fnDeleteListview",
       [](CommonDbStandIn& self, Arguments& arguments) {
         self.fnDeleteListview(*arguments[0].ToObject(), arguments[1].ToInt32());
         return Value();
       },
       nullptr, 3, 3},
  };
  return table;
}

void CommonDbStandIn::SetConnection(const Value& connection) {
  connection_ = ado::Connection(connection.ToObject());
  surroundings_->lastConnection = connection_.Object();
}

Value CommonDbStandIn::fnReturnField(std::string_view field, std::string_view condition) {
  const bool all = vb::Trim(condition).empty();
  ado::Recordset row =
      connection_.Execute(Joined({"select ", field, " from ", strTableName_, all ? "" : " where ", all ? "" : condition}));
  Value value = row.Eof() ? Value(late::Null{}) : row.Field(0);
  row.Close();
  return value;
}

std::int32_t CommonDbStandIn::fnGetNextMaxNo(std::string_view column) {
  ado::Recordset row = connection_.Execute("select max(" + std::string(column) + ") from " + strTableName_);
  const Value greatest = row.Eof() ? Value(late::Null{}) : row.Field(0);
  row.Close();
  return greatest.IsNull() ? 1 : vb::CLng(greatest.ToDouble() + 1);
}

void CommonDbStandIn::fnUpdateSelectedRecord(std::string_view condition, std::string_view column, std::int16_t value) {
  connection_.ExecuteNoRecords(
      Joined({"update ", strTableName_, " set ", column, "=", std::to_string(value), " where ", condition}));
}

void CommonDbStandIn::PopulateListview(late::Object& list, std::string_view tables, std::string_view condition,
                                       std::string_view keyColumn, std::string_view textColumn, std::string_view option) {
  ado::Recordset rows = connection_.Execute("select " + std::string(keyColumn) + "," + std::string(textColumn) + " from " +
                                            std::string(tables) + " where " + std::string(condition));
  const late::ObjectPtr items = list.Get("ListItems").ToObject();
  items->Call("Clear");
  const bool onlyText = vb::EqualNoCase(vb::Trim(option), "skip");
  ado::ForEachRow(rows, [&](const late::Array& block, std::size_t record) {
    const late::ObjectPtr item =
        items->Call("Add", {late::Missing{}, late::Missing{}, block.At(0, record).TextOrEmpty()}).ToObject();
    const std::size_t filled = onlyText ? 2 : block.rows;
    for (std::size_t field = 1; field < filled; ++field) {
      item->Put("SubItems", {static_cast<std::int32_t>(field)}, block.At(field, record).TextOrEmpty());
    }
  });
  rows.Close();
}

void CommonDbStandIn::fnDeleteListview(late::Object& list, std::int32_t index) {
  const late::ObjectPtr items = list.Get("ListItems").ToObject();
  const std::int32_t count = items->Get("Count").ToInt32();
  if (index >= 1 && index <= count) {
    items->Call("Remove", {index});
    return;
  }
  for (std::int32_t line = 1; line <= count; ++line) {
    if (items->Get("Item", {line}).ToObject()->Get("Selected").TrueOrFalse()) {
      items->Call("Remove", {line});
      return;
    }
  }
}

}  // namespace suite
