#include "src/shared/grid_settings.h"

#include "base/vb/number.h"

namespace goods {

void fnGridSettings(basGoodsRequest& session, controls::FlexGrid& grid) {
  const std::int16_t userId = vb::CInt(static_cast<double>(session.gIntUserID));
  late::Value theGrid(grid.AsObject());
  session.services.factory.Create("GridPrefs.clsMasterGridSetting")
      ->Call("fnGridSettings", {userId, session.gIntCompanyID, session.gLngInterfaceID, late::Value::ByRef(theGrid)});
}

}  // namespace goods
