#pragma once

#include <algorithm>

namespace controls {

/// The width in twips that a column has after a person pulled it: never so narrow that its edge could not be taken hold of again.
/// The system leaves headings without an edge up to a width of 20 pixels.
inline int PulledWidth(int width) {
  constexpr int kMinWidth = 360;
  return std::max(width, kMinWidth);
}

}  // namespace controls
