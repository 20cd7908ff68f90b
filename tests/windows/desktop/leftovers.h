#pragma once

#include <cstddef>

namespace counter {

/// Pens, brushes, fonts, bitmaps and device contexts of this process.
std::size_t GraphicsObjects();

/// All windows of this thread: hidden ones, children and those that only take messages included.
std::size_t Windows();

}  // namespace counter
