#include "suite/helpers/grid_setting_stand_in.h"

#include <cstdint>

#include "base/vb/error.h"
#include "suite/helpers/own_tables.h"

namespace suite {

using late::Arguments;
using late::Value;

namespace {

constexpr OwnTable kTable = {"smpGridSettings", "userid smallint,companyid int,interfaceid int,colno int,colwidth int"};

}  // namespace

const late::MemberTable<GridSettingStandIn>& GridSettingStandIn::Members() {
  static const late::MemberTable<GridSettingStandIn> table{
      {"fnGridSettings",
       [](GridSettingStandIn& self, Arguments& arguments) {
         self.fnGridSettings(OwnerOf(arguments), *arguments[3].ToObject());
         return Value(true);
       },
       nullptr, 4, 4},
      {"fnSaveGridSettings",
       [](GridSettingStandIn& self, Arguments& arguments) {
         self.fnSaveGridSettings(OwnerOf(arguments), *arguments[3].ToObject());
         return Value(true);
       },
       nullptr, 4, 4},
  };
  return table;
}

std::string GridSettingStandIn::Owner::Condition() const {
  return " where userid=" + std::to_string(userId) + " and companyid=" + std::to_string(companyId) +
         " and interfaceid=" + std::to_string(interfaceId);
}

GridSettingStandIn::Owner GridSettingStandIn::OwnerOf(Arguments& arguments) {
  return {arguments[0].ToInt16(), arguments[1].ToInt32(), arguments[2].ToInt32()};
}

ado::Connection GridSettingStandIn::Connection() const {
  const late::ObjectPtr connection = surroundings_->lastConnection.lock();
  if (!connection) vb::Raise(vb::kObjectNotSet);
  return ado::Connection(connection);
}

void GridSettingStandIn::fnGridSettings(const Owner& owner, late::Object& grid) const {
  ado::Connection connection = Connection();
  if (FindOrMake(surroundings_, connection, kTable) != OwnTableState::Found) return;
  ado::Recordset widths = connection.Execute("select colno,colwidth from smpGridSettings" + owner.Condition());
  const std::int32_t columns = grid.Get("Cols").ToInt32();
  ado::ForEachRow(widths, [&](const late::Array& block, std::size_t record) {
    const std::int32_t column = block.At(0, record).ToInt32();
    if (column >= 0 && column < columns) grid.Put("ColWidth", {column}, block.At(1, record).ToInt32());
  });
  widths.Close();
}

void GridSettingStandIn::fnSaveGridSettings(const Owner& owner, late::Object& grid) const {
  ado::Connection connection = Connection();
  if (FindOrMake(surroundings_, connection, kTable) == OwnTableState::Refused) return;
  connection.ExecuteNoRecords("delete from smpGridSettings" + owner.Condition());
  const std::int32_t columns = grid.Get("Cols").ToInt32();
  for (std::int32_t column = 0; column < columns; ++column) {
    connection.ExecuteNoRecords("insert into smpGridSettings (userid,companyid,interfaceid,colno,colwidth) values (" +
                                std::to_string(owner.userId) + "," + std::to_string(owner.companyId) + "," +
                                std::to_string(owner.interfaceId) + "," + std::to_string(column) + "," +
                                grid.Get("ColWidth", {column}).ToText() + ")");
  }
}

}  // namespace suite
