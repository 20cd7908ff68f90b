#include "base/controls/desktop.h"

#include <algorithm>

#include "base/controls/form.h"

namespace controls {

void Desktop::Drop(Form& form) {
  const auto place = std::find(stack_.begin(), stack_.end(), &form);
  if (place == stack_.end()) return;
  stack_.erase(place);
  form.SetShown(false);
  Closed(form);
}

void Desktop::ShowModal(Form& form, Form* owner) {
  const auto keep = form.weak_from_this().lock();
  stack_.push_back(&form);
  try {
    Opening(form, owner);
    form.SetShown(true);
    form.BecomeActive();
    if (form.IsShown()) {
      Opened(form);
      RunModal(form);
    }
  } catch (...) {
    if (form.IsLoaded()) form.Abandon();
    Drop(form);
    throw;
  }
  if (form.IsShown()) form.Abandon();
  Drop(form);
  if (!stack_.empty()) stack_.back()->BecomeActive();
}

void Desktop::Unloaded(Form& form) {
  Drop(form);
}

}  // namespace controls
