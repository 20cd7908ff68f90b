#include "src/faces/grid_settings.h"

#include "base/vb/number.h"

namespace goods {
namespace {

/// Calls a routine of the suite's grid settings, which all take the user, what identifies the grid, and the grid. An optional one
/// may be missing.
void CallFor(basGoodsRequest& session, std::string_view routine, bool optional, controls::FlexGrid& grid) {
  const std::int16_t userId = vb::CInt(static_cast<double>(session.gIntUserID));
  late::Value theGrid(grid.AsObject());
  const late::ObjectPtr settings = session.services.factory.Create("GridPrefs.clsMasterGridSetting");
  if (optional && !settings->Has(routine)) return;
  settings->Call(routine, {userId, session.gIntCompanyID, session.gLngInterfaceID, late::Value::ByRef(theGrid)});
}

}  // namespace

void fnGridSettings(basGoodsRequest& session, controls::FlexGrid& grid) {
  CallFor(session, "fnGridSettings", false, grid);
}

void fnSaveGridSettings(basGoodsRequest& session, controls::FlexGrid& grid) {
  CallFor(session, "fnSaveGridSettings", true, grid);
}

}  // namespace goods
