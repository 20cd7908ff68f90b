#pragma once

#include "base/controls/message_box.h"
#include "platform/text/drawing/canvas.h"

namespace text {

/// A message box whose text takes `columns` at most, with its buttons, the n-th one (1-based) marked, the default one for 0. Each
/// button is a spot with its number.
Canvas DrawMessage(const controls::Message& message, int marked = 0, int columns = 90);

}  // namespace text
