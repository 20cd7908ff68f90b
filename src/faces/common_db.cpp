#include "src/faces/common_db.h"

#include "base/ado/connection.h"
#include "base/controls/list_view.h"

namespace goods {

CommonDb::CommonDb(late::Factory& factory, const ado::Connection& connection, std::string_view progId)
    : Face(factory.Create(progId)) {
  Component().PutRef("adocon", connection.Object());
}

void CommonDb::strTableName(std::string_view table) {
  Component().Put("strTableName", table);
}

late::Value CommonDb::fnReturnField(std::string_view field) {
  return Component().Call("fnReturnField", {field});
}

late::Value CommonDb::fnReturnField(std::string_view field, std::string_view condition) {
  return Component().Call("fnReturnField", {field, condition});
}

std::int32_t CommonDb::fnGetNextMaxNo(std::string_view column) {
  return Component().Call("fnGetNextMaxNo", {column}).ToInt32();
}

void CommonDb::fnUpdateSelectedRecord(std::string_view condition, std::string_view column, std::int16_t value) {
  Component().Call("fnUpdateSelectedRecord", {condition, column, value});
}

void CommonDb::PopulateListview(controls::ListView& list, std::string_view tables, std::string_view condition,
                                std::string_view keyColumn, std::string_view textColumn, std::string_view option) {
  Component().Call("PopulateListview", {list.AsObject(), tables, condition, keyColumn, textColumn, option});
}

void CommonDb::fnDeleteListview(controls::ListView& list, std::int32_t index, std::int32_t count) {
  Component().Call("fnDeleteListview", {list.AsObject(), index, count});
}

}  // namespace goods
