#include "src/faces/grid_settings.h"

#include "base/controls/flex_grid.h"

namespace goods {

GridSettings::GridSettings(late::Factory& factory) : Face(factory.Create("GridPrefs.clsMasterGridSetting")) {}

void GridSettings::fnGridSettings(const GridOwner& owner, controls::FlexGrid& grid) {
  Call("fnGridSettings", owner, grid);
}

void GridSettings::fnSaveGridSettings(const GridOwner& owner, controls::FlexGrid& grid) {
  if (Component().Has("fnSaveGridSettings")) Call("fnSaveGridSettings", owner, grid);
}

void GridSettings::Call(std::string_view member, const GridOwner& owner, controls::FlexGrid& grid) {
  late::Value theGrid(grid.AsObject());
  Component().Call(member, {owner.userId, owner.companyId, owner.interfaceId, late::Value::ByRef(theGrid)});
}

}  // namespace goods
