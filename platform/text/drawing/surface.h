#pragma once

#include <map>

namespace controls {
class Control;
}

namespace text {

/// What a picture is drawn for: a printed page, whose size is the form's own, or a screen that a person works on.
struct Surface {
  int twipsPerColumn = 80;
  /// On a screen a box with the focus shows the part around its caret, and lists keep their height whatever they hold.
  bool isScreen = false;
  int columns = 0;    ///< inside the form, which controls that stick to both its edges fill; 0 leaves them as they are
  int wrapAt = 0;     ///< columns at which what is alone in its height goes to the next line; 0 wraps nothing
  int extraRows = 0;  ///< given to each list beyond its own height; taken from it when negative
  /// The first row of lists that were scrolled away from their current row; null for none.
  const std::map<const controls::Control*, long>* scrolled = nullptr;
};

}  // namespace text
