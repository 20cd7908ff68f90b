#include "src/module/session.h"

#include "base/vb/text.h"

namespace goods {

namespace {

struct GlobalEntry {
  std::string_view name;
  late::Value (*read)(const basGoodsRequest& session);
};

using Session = const basGoodsRequest&;

constexpr GlobalEntry kGlobals[] = {
    {"gAdoCon", [](Session session) { return late::Value(session.gAdoCon.Object()); }},
    {"gIntCompanyID", [](Session session) { return late::Value(session.gIntCompanyID); }},
    {"gIntUserID", [](Session session) { return late::Value(session.gIntUserID); }},
    {"gIntShopID", [](Session session) { return late::Value(session.gIntShopID); }},
    {"gStrMsgboxCaption", [](Session session) { return late::Value(session.gStrMsgboxCaption); }},
    {"gDtProcessDate", [](Session session) { return late::Value(session.gDtProcessDate); }},
    {"gLngInterfaceID", [](Session session) { return late::Value(session.gLngInterfaceID); }},
    {"gStrUserName", [](Session session) { return late::Value(session.gStrUserName); }},
    {"gDtFromDate", [](Session session) { return late::Value(session.gDtFromDate); }},
    {"gBlnIntegerQuantity", [](Session session) { return late::Value(session.gBlnIntegerQuantity); }},
    {"gBlnRequestForNonShopItem", [](Session session) { return late::Value(session.gBlnRequestForNonShopItem); }},
    {"gBlnPreserveItemDetails", [](Session session) { return late::Value(session.gBlnPreserveItemDetails); }},
    {"gStrStockView", [](Session session) { return late::Value(session.gStrStockView); }},
    {"gStrUserRights", [](Session session) { return late::Value(session.gStrUserRights); }},
    {"gObjFormColor", [](Session session) { return late::Value(session.gObjFormColor.Object()); }},
    {"gObjUserAuditing", [](Session session) { return late::Value(session.gObjUserAuditing.Object()); }},
    {"gStrEntryMode", [](Session session) { return late::Value(session.gStrEntryMode); }},
    {"gLngRequestID", [](Session session) { return late::Value(session.gLngRequestID); }},
    {"gStrCancelReason", [](Session session) { return late::Value(session.gStrCancelReason); }},
    {"gStrDetailMode", [](Session session) { return late::Value(session.gStrDetailMode); }},
    {"gStrFetchMode", [](Session session) { return late::Value(session.gStrFetchMode); }},
    {"gRsFetchItems", [](Session session) { return late::Value(session.gRsFetchItems.Object()); }},
    {"gStrItemTypeFilter", [](Session session) { return late::Value(session.gStrItemTypeFilter); }},
    {"gBlnAliasEnabled", [](Session session) { return late::Value(session.gBlnAliasEnabled); }},
    {"gStrGodownAlias", [](Session session) { return late::Value(session.gStrGodownAlias); }},
    {"gStrShopAlias", [](Session session) { return late::Value(session.gStrShopAlias); }},
};

}  // namespace

late::Value basGoodsRequest::Global(std::string_view name) const {
  for (const GlobalEntry& global : kGlobals) {
    if (vb::EqualNoCase(global.name, name)) return global.read(*this);
  }
  return late::Missing{};
}

void OpenUserAuditing(basGoodsRequest& session) {
  session.gObjUserAuditing = UserAuditing(session.services.factory);
  session.gObjUserAuditing.OpenObject(session.gAdoCon, session.gIntCompanyID, session.gIntShopID, session.gIntUserID,
                                      session.gLngInterfaceID, session.services.workstation.Now());
}

}  // namespace goods
