#include "base/controls/form.h"

#include <algorithm>

#include "base/controls/buttons.h"
#include "base/controls/menu.h"
#include "base/vb/text.h"

namespace controls {

namespace {

/// The classic runtime's number for showing a modal form twice.
constexpr long kAlreadyShown = 400;

}  // namespace

Form::Form(controls::Desktop& desktop, std::string name) : desktop_(desktop), name_(std::move(name)) {}

Form::~Form() = default;

void Form::Register(Control& control) {
  control.defaultTabIndex_ = control.tabIndex_ = static_cast<int>(controls_.size());
  controls_.push_back(&control);
}

void Form::Forget(Control& control) {
  std::erase(controls_, &control);
  if (activeControl_ == &control) activeControl_ = nullptr;
  if (requestedFocus_ == &control) requestedFocus_ = nullptr;
}

void Form::EnsureLoaded() const {
  // An object that no shared_ptr owns is being made or destroyed: nothing to load then.
  if (state_ != State::Unloaded || weak_from_this().expired()) return;
  const_cast<Form*>(this)->Load();
}

void Form::Load() {
  if (state_ != State::Unloaded) return;
  const auto keep = weak_from_this().lock();
  state_ = State::Designing;
  try {
    caption_.clear();
    tag_.clear();
    backColor_ = kButtonFace;
    for (Control* control : controls_) control->Reset();
    Design();
  } catch (...) {
    state_ = State::Unloaded;
    throw;
  }
  state_ = State::Loaded;
  Loading.Fire();
}

void Form::Show(Form* owner) {
  const auto& stack = desktop_.Stack();
  if (std::find(stack.begin(), stack.end(), this) != stack.end()) {
    vb::Raise(kAlreadyShown);
  }
  const auto keep = weak_from_this().lock();
  if (abandoned_) BecomeUnloaded();
  Load();
  if (IsLoaded()) desktop_.ShowModal(*this, owner);
}

bool Form::Unload() {
  return CloseWith(kClosedByCode);
}

bool Form::CloseByUser() {
  return CloseWith(kClosedByUser);
}

bool Form::CloseWith(UnloadMode mode) {
  if (!IsLoaded()) return true;
  if (closing_) return false;
  const auto keep = weak_from_this().lock();
  {
    const ScopedFlag closing(closing_);
    bool stay = false;
    QueryUnload.Fire(stay, mode);
    if (stay) return false;
    Unloading.Fire();
  }
  BecomeUnloaded();
  desktop_.Unloaded(*this);
  shown_ = false;
  return true;
}

void Form::BecomeUnloaded() {
  state_ = State::Unloaded;
  abandoned_ = false;
  activeControl_ = nullptr;
  requestedFocus_ = nullptr;
  pendingTab_ = false;
  ++focusMoves_;
}

const std::string& Form::Caption() const {
  EnsureLoaded();
  return caption_;
}

void Form::SetCaption(std::string_view caption) {
  EnsureLoaded();
  if (caption_ == caption) return;
  caption_ = caption;
  if (shown_) desktop_.FormChanged(*this);
}

void Form::SetSize(int width, int height) {
  width_ = width;
  height_ = height;
  if (shown_) desktop_.FormChanged(*this);
}

Color Form::BackColor() const {
  EnsureLoaded();
  return backColor_;
}

void Form::SetBackColor(Color color) {
  EnsureLoaded();
  if (backColor_ == color) return;
  backColor_ = color;
  if (shown_) desktop_.FormChanged(*this);
}

void Form::SetMousePointer(int pointer) {
  constexpr int kHourglass = 11;
  const bool changes = (pointer == kHourglass) != (mousePointer_ == kHourglass);
  mousePointer_ = pointer;
  if (changes) desktop_.PointerChanged(*this, pointer == kHourglass);
}

Control* Form::FindControl(std::string_view name) const {
  for (Control* control : controls_) {
    if (vb::EqualNoCase(control->Name(), name)) return control;
  }
  return nullptr;
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order = controls_;
  std::stable_sort(order.begin(), order.end(), [](const Control* a, const Control* b) { return a->TabIndex() < b->TabIndex(); });
  return order;
}

CommandButton* Form::DefaultButton() const {
  for (Control* control : controls_) {
    auto* button = As<CommandButton>(control);
    if (button && button->IsDefault() && button->CanFocus()) return button;
  }
  return nullptr;
}

CommandButton* Form::CancelButton() const {
  for (Control* control : controls_) {
    auto* button = As<CommandButton>(control);
    if (button && button->IsCancel() && button->CanFocus()) return button;
  }
  return nullptr;
}

Answer Form::MsgBox(std::string_view text, int style, std::string_view title) {
  return desktop_.MsgBox(this, Message{std::string(text), style, std::string(title)});
}

Menu* Form::PopupMenu(Menu& menu) {
  Menu* chosen = desktop_.PopupMenu(*this, menu);
  if (chosen) chosen->Click.Fire();
  return chosen;
}

void Form::PublishField(std::string name, FieldReader reader) {
  fields_.emplace_back(std::move(name), std::move(reader));
}

bool Form::Trap(std::string_view routine, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const vb::RunTimeError& error) {
    ReportError(routine, error);
    return false;
  } catch (const std::exception& error) {
    ReportError(routine, vb::RunTimeError(vb::kInternalError, error.what()));
    return false;
  }
}

Hourglass::Hourglass(Form& form) : keep_(form.weak_from_this().lock()), form_(form), before_(form.MousePointer()) {
  form_.SetMousePointer(11);
}

Hourglass::~Hourglass() {
  form_.SetMousePointer(before_);
}

}  // namespace controls
