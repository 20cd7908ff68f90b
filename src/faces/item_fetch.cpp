#include "src/faces/item_fetch.h"

#include "base/ado/connection.h"

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

ItemFetch::ItemFetch(late::Factory& factory) : Face(factory.Create("Lookup.clsFetch")) {}

void ItemFetch::adocon(const ado::Connection& connection) {
  Component().PutRef("adocon", connection.Object());
}

void ItemFetch::strMsgboxTitle(std::string_view title) {
  Component().Put("strMsgboxTitle", title);
}

void ItemFetch::lngUserID(std::int32_t userId) {
  Component().Put("lngUserID", userId);
}

void ItemFetch::strQuery(std::string_view query) {
  Component().Put("strQuery", query);
}

void ItemFetch::setRecordSet(late::Value& recordset) {
  Component().Call("setRecordSet", {late::Value::ByRef(recordset)});
}

void ItemFetch::setFieldNames(const std::vector<FetchColumn>& columns) {
  Component().Call("setFieldNames", {ListOf(columns, [](const FetchColumn& column) { return column.name; })});
}

void ItemFetch::setFieldCaptions(const std::vector<FetchColumn>& columns) {
  Component().Call("setFieldCaptions", {ListOf(columns, [](const FetchColumn& column) { return column.caption; })});
}

void ItemFetch::setFieldWidths(const std::vector<FetchColumn>& columns) {
  Component().Call("setFieldWidths",
                   {ListOf(columns, [](const FetchColumn& column) { return static_cast<std::int32_t>(column.width); })});
}

void ItemFetch::setDefaultFetchField(std::int32_t index) {
  Component().Call("setDefaultFetchField", {index});
}

void ItemFetch::setInterfaceCaption(std::string_view caption) {
  Component().Call("setInterfaceCaption", {caption});
}

void ItemFetch::setShopId(std::int32_t shopId) {
  Component().Call("setShopId", {shopId});
}

void ItemFetch::setFetchType(std::string_view type) {
  Component().Call("setFetchType", {type});
}

void ItemFetch::setLocationType(std::string_view type) {
  Component().Call("setLocationType", {type});
}

void ItemFetch::PreserveData(bool preserve) {
  Component().Put("PreserveData", preserve);
}

void ItemFetch::InterfaceId(std::int32_t interfaceId) {
  Component().Put("InterfaceId", interfaceId);
}

void ItemFetch::DataIdentifier(std::string_view identifier) {
  Component().Put("DataIdentifier", identifier);
}

void ItemFetch::ForcedRefresh(bool forced) {
  Component().Put("ForcedRefresh", forced);
}

void ItemFetch::Show() {
  Component().Call("Show");
}

bool ItemFetch::getCancelledStatus() {
  return Component().Call("getCancelledStatus").ToBool();
}

}  // namespace goods
