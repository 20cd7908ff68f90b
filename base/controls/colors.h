#pragma once

#include <cstdint>

namespace controls {

/// A colour: red in the lowest byte, or &H80000000 + the index of a system colour.
using Color = std::uint32_t;

inline constexpr Color kDefaultColor = 0;  ///< in grid cells: the grid's own colour
inline constexpr Color kRed = 255;
inline constexpr Color kCyan = 0xFFFF00;
inline constexpr Color kWindowBackground = 0x80000005;
inline constexpr Color kWindowText = 0x80000008;
inline constexpr Color kHighlight = 0x8000000D;
inline constexpr Color kHighlightText = 0x8000000E;
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kButtonText = 0x80000012;

}  // namespace controls
