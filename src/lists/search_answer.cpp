#include "src/lists/search_answer.h"

#include "base/controls/form.h"

namespace goods {

void SearchAnswer::Tell(bool found) {
  const bool wasRed = !missed_.empty();
  if (found) {
    if (wasRed) box_.SetForeColor(ownColor_);
    missed_.clear();
    return;
  }
  if (missed_ == box_.Text()) return;
  missed_ = box_.Text();
  if (!wasRed) ownColor_ = box_.ForeColor();
  box_.SetForeColor(controls::kRed);
  box_.Owner().Desktop().Beep();
}

void SearchAnswer::Forget() {
  missed_.clear();
}

}  // namespace goods
