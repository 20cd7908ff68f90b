#include "src/entry/session.h"

#include <functional>
#include <utility>

#include "base/vb/text.h"

namespace goods {

late::Value basGoodsRequest::Global(std::string_view name) const {
  const std::pair<std::string_view, std::function<late::Value()>> globals[] = {
      {"gAdoCon", [&] { return late::Value(gAdoCon.Object()); }},
      {"gIntCompanyID", [&] { return late::Value(gIntCompanyID); }},
      {"gIntUserID", [&] { return late::Value(gIntUserID); }},
      {"gIntShopID", [&] { return late::Value(gIntShopID); }},
      {"gStrMsgboxCaption", [&] { return late::Value(gStrMsgboxCaption); }},
      {"gDtProcessDate", [&] { return late::Value(gDtProcessDate); }},
      {"gLngInterfaceID", [&] { return late::Value(gLngInterfaceID); }},
      {"gStrUserName", [&] { return late::Value(gStrUserName); }},
      {"gDtFromDate", [&] { return late::Value(gDtFromDate); }},
      {"gBlnIntegerQuantity", [&] { return late::Value(gBlnIntegerQuantity); }},
      {"gBlnRequestForNonShopItem", [&] { return late::Value(gBlnRequestForNonShopItem); }},
      {"gBlnPreserveItemDetails", [&] { return late::Value(gBlnPreserveItemDetails); }},
      {"gStrStockView", [&] { return late::Value(gStrStockView); }},
      {"gStrUserRights", [&] { return late::Value(gStrUserRights); }},
      {"gObjFormColor", [&] { return late::Value(gObjFormColor); }},
      {"gObjUserAuditing", [&] { return late::Value(gObjUserAuditing); }},
      {"gStrEntryMode", [&] { return late::Value(gStrEntryMode); }},
      {"gLngRequestID", [&] { return late::Value(gLngRequestID); }},
      {"gStrCancelReason", [&] { return late::Value(gStrCancelReason); }},
      {"gStrDetailMode", [&] { return late::Value(gStrDetailMode); }},
      {"gStrFetchMode", [&] { return late::Value(gStrFetchMode); }},
      {"gRsFetchItems", [&] { return late::Value(gRsFetchItems.Object()); }},
      {"gStrItemTypeFilter", [&] { return late::Value(gStrItemTypeFilter); }},
      {"gBlnAliasEnabled", [&] { return late::Value(gBlnAliasEnabled); }},
      {"gStrGodownAlias", [&] { return late::Value(gStrGodownAlias); }},
      {"gStrShopAlias", [&] { return late::Value(gStrShopAlias); }},
  };
  for (const auto& [global, read] : globals) {
    if (vb::EqualNoCase(global, name)) return read();
  }
  return late::Missing{};
}

}  // namespace goods
