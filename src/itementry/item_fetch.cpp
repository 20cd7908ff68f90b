#include "src/itementry/item_fetch.h"

#include "base/vb/error.h"

namespace goods {
namespace {

/// One property of every column as an array, in their order.
template <class Property>
late::Value ListOf(const std::vector<FetchColumn>& columns, Property property) {
  std::vector<late::Value> items;
  items.reserve(columns.size());
  for (const FetchColumn& column : columns) items.emplace_back(property(column));
  return late::Array::List(std::move(items));
}

}  // namespace

ItemFetch::ItemFetch(basGoodsRequest& session) : helper_(session.services.factory.Create("Lookup.clsFetch")) {}

late::Object& ItemFetch::Helper() const {
  if (!helper_) vb::Raise(vb::kObjectNotSet);
  return *helper_;
}

void ItemFetch::adocon(const ado::Connection& connection) {
  Helper().PutRef("adocon", connection.Object());
}

void ItemFetch::strMsgboxTitle(std::string_view title) {
  Helper().Put("strMsgboxTitle", title);
}

void ItemFetch::lngUserID(std::int32_t userId) {
  Helper().Put("lngUserID", userId);
}

void ItemFetch::strQuery(std::string_view query) {
  Helper().Put("strQuery", query);
}

void ItemFetch::setRecordSet(late::Value& recordset) {
  Helper().Call("setRecordSet", {late::Value::ByRef(recordset)});
}

void ItemFetch::setFieldNames(const std::vector<FetchColumn>& columns) {
  Helper().Call("setFieldNames", {ListOf(columns, [](const FetchColumn& column) { return column.name; })});
}

void ItemFetch::setFieldCaptions(const std::vector<FetchColumn>& columns) {
  Helper().Call("setFieldCaptions", {ListOf(columns, [](const FetchColumn& column) { return column.caption; })});
}

void ItemFetch::setFieldWidths(const std::vector<FetchColumn>& columns) {
  Helper().Call("setFieldWidths",
                {ListOf(columns, [](const FetchColumn& column) { return static_cast<std::int32_t>(column.width); })});
}

void ItemFetch::setDefaultFetchField(std::int32_t index) {
  Helper().Call("setDefaultFetchField", {index});
}

void ItemFetch::setInterfaceCaption(std::string_view caption) {
  Helper().Call("setInterfaceCaption", {caption});
}

void ItemFetch::setShopId(std::int32_t shopId) {
  Helper().Call("setShopId", {shopId});
}

void ItemFetch::setFetchType(std::string_view type) {
  Helper().Call("setFetchType", {type});
}

void ItemFetch::setLocationType(std::string_view type) {
  Helper().Call("setLocationType", {type});
}

void ItemFetch::PreserveData(bool preserve) {
  Helper().Put("PreserveData", preserve);
}

void ItemFetch::InterfaceId(std::int32_t interfaceId) {
  Helper().Put("InterfaceId", interfaceId);
}

void ItemFetch::DataIdentifier(std::string_view identifier) {
  Helper().Put("DataIdentifier", identifier);
}

void ItemFetch::ForcedRefresh(bool forced) {
  Helper().Put("ForcedRefresh", forced);
}

void ItemFetch::Show() {
  Helper().Call("Show");
}

bool ItemFetch::getCancelledStatus() {
  return Helper().Call("getCancelledStatus").ToBool();
}

}  // namespace goods
