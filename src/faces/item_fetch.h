#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "src/faces/face.h"

namespace ado {
class Connection;
}

namespace goods {

/// A column that the lookup offers.
struct FetchColumn {
  std::string_view name;
  std::string_view caption;
  int width;  ///< twips; 0 hides it
};

/// The suite's item lookup dialog. Members carry their classic names.
class ItemFetch : public Face {
 public:
  ItemFetch() = default;
  /// Error 429 when it is not registered.
  explicit ItemFetch(late::Factory& factory);

  void adocon(const ado::Connection& connection);
  void strMsgboxTitle(std::string_view title);
  void lngUserID(std::int32_t userId);
  void strQuery(std::string_view query);
  /// By reference: the lookup may put a recordset of its own into `recordset`.
  void setRecordSet(late::Value& recordset);
  void setFieldNames(const std::vector<FetchColumn>& columns);
  void setFieldCaptions(const std::vector<FetchColumn>& columns);
  void setFieldWidths(const std::vector<FetchColumn>& columns);
  /// Index into the columns, from 0.
  void setDefaultFetchField(std::int32_t index);
  void setInterfaceCaption(std::string_view caption);
  void setShopId(std::int32_t shopId);
  void setFetchType(std::string_view type);
  void setLocationType(std::string_view type);
  void PreserveData(bool preserve);
  void InterfaceId(std::int32_t interfaceId);
  void DataIdentifier(std::string_view identifier);
  void ForcedRefresh(bool forced);
  /// Shows the lookup modally.
  void Show();
  /// True when the user closed the lookup without choosing.
  bool getCancelledStatus();
};

}  // namespace goods
