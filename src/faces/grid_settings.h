#pragma once

#include "base/controls/flex_grid.h"
#include "src/module/session.h"

namespace goods {

/// Applies the user's stored column settings to a grid through the suite's grid settings. Error 429 when they are not registered,
/// error 6 for a user id beyond 16 bits.
void fnGridSettings(basGoodsRequest& session, controls::FlexGrid& grid);

/// Stores the grid's column settings as the user's through the suite's grid settings. Does nothing where those cannot store;
/// errors as for fnGridSettings.
void fnSaveGridSettings(basGoodsRequest& session, controls::FlexGrid& grid);

}  // namespace goods
