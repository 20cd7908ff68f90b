#include "src/faces/common_db.h"

#include "base/vb/error.h"

namespace goods {

CommonDb::CommonDb(basGoodsRequest& session, std::string_view progId) : helper_(session.services.factory.Create(progId)) {
  helper_->PutRef("adocon", session.gAdoCon.Object());
}

late::Object& CommonDb::Helper() const {
  if (!helper_) vb::Raise(vb::kObjectNotSet);
  return *helper_;
}

void CommonDb::strTableName(std::string_view table) {
  Helper().Put("strTableName", table);
}

late::Value CommonDb::fnReturnField(std::string_view field) {
  return Helper().Call("fnReturnField", {field});
}

late::Value CommonDb::fnReturnField(std::string_view field, std::string_view condition) {
  return Helper().Call("fnReturnField", {field, condition});
}

std::int32_t CommonDb::fnGetNextMaxNo(std::string_view column) {
  return Helper().Call("fnGetNextMaxNo", {column}).ToInt32();
}

void CommonDb::fnUpdateSelectedRecord(std::string_view condition, std::string_view column, std::int16_t value) {
  Helper().Call("fnUpdateSelectedRecord", {condition, column, value});
}

void CommonDb::PopulateListview(controls::ListView& list, std::string_view tables, std::string_view condition,
                                std::string_view keyColumn, std::string_view textColumn, std::string_view option) {
  Helper().Call("PopulateListview", {list.AsObject(), tables, condition, keyColumn, textColumn, option});
}

void CommonDb::fnDeleteListview(controls::ListView& list, std::int32_t index, std::int32_t count) {
  Helper().Call("fnDeleteListview", {list.AsObject(), index, count});
}

}  // namespace goods
