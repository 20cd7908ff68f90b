#pragma once

namespace controls {

/// How a text is put into its room.
enum class Alignment { Left, Center, Right };

// The numbers that the lists' own properties have for it.
enum class ColumnAlignment { Left = 0, Right = 1, Center = 2 };
enum class GridAlignment { Left = 1, Center = 4, Right = 7 };

/// Numbers without a meaning of their own are Left.
constexpr Alignment AlignmentOf(ColumnAlignment alignment) {
  return alignment == ColumnAlignment::Right    ? Alignment::Right
         : alignment == ColumnAlignment::Center ? Alignment::Center
                                                : Alignment::Left;
}
constexpr Alignment AlignmentOf(GridAlignment alignment) {
  return alignment == GridAlignment::Right    ? Alignment::Right
         : alignment == GridAlignment::Center ? Alignment::Center
                                              : Alignment::Left;
}

}  // namespace controls
