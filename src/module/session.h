#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/ado/connection.h"
#include "base/controls/desktop.h"
#include "base/late/object.h"
#include "base/workstation/workstation.h"
#include "src/faces/form_color.h"
#include "src/faces/user_auditing.h"

namespace goods {

/// What the component needs from its surroundings; they outlive the session.
struct Services {
  controls::Desktop& desktop;
  workstation::Workstation& workstation;
  late::Factory& factory;
};

/// The one session object: the module-wide values that every form is given by reference. Plain data; includes none of the forms.
struct basGoodsRequest {
  explicit basGoodsRequest(Services surroundings) : services(surroundings) {}

  Services services;

  // Set by Show.
  ado::Connection gAdoCon;
  std::int32_t gIntCompanyID = 0;
  std::int32_t gIntUserID = 0;
  std::int32_t gIntShopID = 0;
  std::string gStrMsgboxCaption;
  vb::Date gDtProcessDate;
  std::int32_t gLngInterfaceID = 0;

  // Set by the register's load.
  std::string gStrUserName;
  vb::Date gDtFromDate;
  bool gBlnIntegerQuantity = false;
  bool gBlnRequestForNonShopItem = false;
  bool gBlnPreserveItemDetails = false;
  std::string gStrStockView;
  std::string gStrUserRights;
  FormColor gObjFormColor;
  UserAuditing gObjUserAuditing;

  double lineLimit = 0;  ///< how many lines a request may have, as it was read last; below 1 for any number, or not yet read

  bool isScanning = false;  ///< item entry takes every scanned code as a line at once

  // Handed from form to form.
  std::string gStrEntryMode;  ///< "N" new request, "E" existing one
  std::int32_t gLngRequestID = 0;
  std::string gStrCancelReason;
  std::string gStrDetailMode;  ///< "N" add lines, "E" change them

  // Owned by item entry; they live as long as the session.
  std::string gStrFetchMode;  ///< "QUERY1" to "QUERY4"
  ado::Recordset gRsFetchItems;
  std::string gStrItemTypeFilter;
  bool gBlnAliasEnabled = false;
  std::string gStrGodownAlias;
  std::string gStrShopAlias;

  /// A global by its name, without regard to case, for tools that look into a session; a Missing value when there is none.
  late::Value Global(std::string_view name) const;
};

/// Creates the auditing component into gObjUserAuditing and opens it for the session; error 429 when it is not registered.
void OpenUserAuditing(basGoodsRequest& session);

}  // namespace goods
