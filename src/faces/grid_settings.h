#pragma once

#include <cstdint>
#include <string_view>

#include "src/faces/face.h"

namespace controls {
class FlexGrid;
}

namespace goods {

/// Whose column settings, and of which grid.
struct GridOwner {
  std::int16_t userId;
  std::int32_t companyId;
  std::int32_t interfaceId;
};

/// The suite's grid settings: each user's column widths. Members carry their classic names.
class GridSettings : public Face {
 public:
  /// Error 429 when it is not registered.
  explicit GridSettings(late::Factory& factory);

  /// Applies the stored column settings to the grid.
  void fnGridSettings(const GridOwner& owner, controls::FlexGrid& grid);
  /// Stores the grid's column settings; does nothing where the component has no such member.
  void fnSaveGridSettings(const GridOwner& owner, controls::FlexGrid& grid);

 private:
  void Call(std::string_view member, const GridOwner& owner, controls::FlexGrid& grid);
};

}  // namespace goods
