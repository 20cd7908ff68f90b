#include "base/controls/edit_history.h"

#include <utility>

namespace controls {

void EditHistory::Before(Edit edit, const std::string& text, int selStart, int selLength) {
  const bool goesOn = canUndo_ && edit == edit_ && selStart == caret_ && selLength == 0;
  edit_ = edit;
  if (goesOn) return;
  before_ = {text, selStart, selLength};
  canUndo_ = true;
}

void EditHistory::Forget() {
  before_ = {};
  canUndo_ = false;
  EndRun();
}

EditHistory::State EditHistory::Exchange(State current) {
  EndRun();
  return std::exchange(before_, std::move(current));
}

}  // namespace controls
