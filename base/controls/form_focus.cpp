// Where the focus of a form is and how it moves.

#include <algorithm>

#include "base/controls/buttons.h"
#include "base/controls/form.h"
#include "base/controls/tab_control.h"
#include "base/vb/text.h"

namespace controls {

namespace {

bool IsStop(const Control& control) {
  return control.TabStop() && control.CanFocus();
}

/// The option of its group that Tab reaches: the chosen one, else the first.
bool IsStopOfGroup(const OptionButton& option, const std::vector<Control*>& order) {
  const OptionButton* stop = nullptr;
  for (const Control* control : order) {
    const auto* other = As<OptionButton>(control);
    if (!other || !IsStop(*other) || !other->SharesGroupWith(option)) continue;
    if (!stop || other->Value()) stop = other;
  }
  return stop == &option;
}

}  // namespace

bool Form::IsActive() const {
  return shown_ && desktop_.ActiveForm() == this;
}

bool Form::Leave(Control& left, Control* entered, unsigned move) {
  leaving_ = &left;
  struct Done {
    Control*& leaving;
    ~Done() { leaving = nullptr; }
  } done{leaving_};

  if (entered && entered->CausesValidation()) {
    bool keep = false;
    left.Validate.Fire(keep);
    if (keep || focusMoves_ != move || !IsLoaded()) return false;
    if (!entered->CanFocus()) return false;
  }
  left.LostFocus.Fire();
  return focusMoves_ == move && IsLoaded() && (!entered || entered->CanFocus());
}

void Form::Enter(Control* control) {
  activeControl_ = control;
  requestedFocus_ = nullptr;
  desktop_.FocusMoved(*this, control);
  if (control) control->GotFocus.Fire();
}

bool Form::MoveFocus(Control* control) {
  const unsigned move = ++focusMoves_;
  if (activeControl_ == control) return true;
  // A handler that runs because a control is being left moves the focus itself: no second validation, no second lost-focus.
  if (activeControl_ && leaving_ != activeControl_ && !Leave(*activeControl_, control, move)) {
    LeaveUnreachable();
    return IsLoaded() && activeControl_ == control;
  }
  Enter(control);
  return IsLoaded() && activeControl_ == control;
}

void Form::RequestFocus(Control& control) {
  if (IsActive()) {
    MoveFocus(&control);
  } else {
    requestedFocus_ = &control;
  }
}

void Form::LeaveUnreachable() {
  if (!activeControl_ || !IsActive() || activeControl_->CanFocus()) return;
  Control* left = activeControl_;
  if (leaving_ == left) return;  // the move that leaves it is under way
  const unsigned move = ++focusMoves_;
  if (!Leave(*left, nullptr, move)) return;
  Enter(NextInTabOrder(left));
}

Control* Form::NextInTabOrder(const Control* from, bool backwards) const {
  return FirstAfter(from, backwards, IsStop);
}

Control* Form::NextTabStop(const Control* from, bool backwards) const {
  const auto* left = As<OptionButton>(from);
  return FirstAfter(from, backwards, [&](const Control& control) {
    const auto* option = As<OptionButton>(&control);
    if (!option || !IsStop(control)) return IsStop(control);
    return !(left && left->SharesGroupWith(*option)) && IsStopOfGroup(*option, TabOrder());
  });
}

Control* Form::FirstAfter(const Control* from, bool backwards, const std::function<bool(const Control&)>& suits) const {
  std::vector<Control*> order = TabOrder();
  if (backwards) std::reverse(order.begin(), order.end());
  const auto start = std::find(order.begin(), order.end(), from);
  if (start != order.end()) std::rotate(order.begin(), start + 1, order.end());
  const auto next = std::find_if(order.begin(), order.end(), [&](const Control* control) { return suits(*control); });
  return next == order.end() ? nullptr : *next;
}

void Form::FocusNext() {
  GoByKey(NextInTabOrder(activeControl_));
}

void Form::TabOn(bool backwards) {
  GoByKey(NextTabStop(activeControl_, backwards));
}

void Form::GoByKey(Control* control) {
  if (control && MoveFocus(control)) desktop_.EnteredByKey(*control);
}

void Form::SendTab() {
  if (handlingKey_) {
    pendingTab_ = true;
  } else if (IsActive()) {
    FocusNext();
  }
}

bool Form::TakePendingTab() {
  return std::exchange(pendingTab_, false);
}

Control* Form::FindAccessKey(char32_t upperCaseKey) const {
  std::vector<Control*> order = TabOrder();
  // The search starts after the focus, so that a key that several controls share goes round among them.
  const auto start = std::find(order.begin(), order.end(), activeControl_);
  if (start != order.end()) std::rotate(order.begin(), start + 1, order.end());
  for (Control* control : order) {
    if (control->AccessKey() != upperCaseKey || !control->Enabled() || !control->IsShown()) continue;
    if (control->Kind() == ControlKind::Menu) continue;
    if (control->Kind() == ControlKind::Label || control->Kind() == ControlKind::Frame) return NextInTabOrder(control);
    if (control->CanFocus()) return control;
  }
  return nullptr;
}

void Form::BecomeActive() {
  if (!shown_) return;
  const auto keep = weak_from_this().lock();
  Activated.Fire();
  if (!IsActive()) return;
  if (Control* requested = std::exchange(requestedFocus_, nullptr); requested && requested->CanFocus()) {
    MoveFocus(requested);
  } else if (!activeControl_) {
    if (Control* first = NextInTabOrder(nullptr)) MoveFocus(first);
  } else {
    LeaveUnreachable();
  }
}

}  // namespace controls
