#include "base/controls/control.h"

#include "base/controls/control_members.h"
#include "base/controls/form.h"
#include "base/vb/text.h"

namespace controls {

using members::Property;
using members::ReadOnly;

Control::Control(Form& form, ControlKind kind, std::string name) : form_(form), kind_(kind), name_(std::move(name)) {
  form_.Register(*this);
}

Control::~Control() {
  form_.Forget(*this);
}

late::ObjectPtr Control::AsObject() {
  return {form_.shared_from_this(), this};
}

void Control::EnsureLoaded() const {
  form_.EnsureLoaded();
}

void Control::Changed(Aspect aspect) {
  if (form_.IsShown()) form_.Desktop().Changed(*this, aspect);
}

void Control::ReachChanged(Aspect aspect) {
  Changed(aspect);
  form_.LeaveUnreachable();
}

void Control::SetEnabled(bool enabled) {
  EnsureLoaded();
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  ReachChanged(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
  EnsureLoaded();
  if (visible_ == visible) return;
  visible_ = visible;
  ReachChanged(Aspect::Visible);
}

bool Control::IsShown() const {
  EnsureLoaded();
  for (const Control* control = this; control; control = control->Holder()) {
    if (!control->visible_ || (control->container_ && !control->container_->ShowsPage(control->page_))) return false;
  }
  return true;
}

bool Control::AcceptsInput() const {
  EnsureLoaded();
  for (const Control* control = this; control; control = control->Holder()) {
    if (!control->enabled_) return false;
  }
  return true;
}

bool Control::CanFocus() const {
  return TakesFocus() && AcceptsInput() && IsShown();
}

void Control::SetTag(std::string tag) {
  EnsureLoaded();
  tag_ = std::move(tag);
}

void Control::SetToolTipText(std::string text) {
  EnsureLoaded();
  if (toolTip_ == text) return;
  toolTip_ = std::move(text);
  Changed(Aspect::ToolTip);
}

void Control::Move(int left, int top, int width, int height) {
  EnsureLoaded();
  place_ = {left, top, width, height};
  Changed(Aspect::Position);
}

void Control::SetLeft(int left) {
  Move(left, Place().top, Place().width, Place().height);
}
void Control::SetTop(int top) {
  Move(Place().left, top, Place().width, Place().height);
}
void Control::SetWidth(int width) {
  Move(Place().left, Place().top, width, Place().height);
}
void Control::SetHeight(int height) {
  Move(Place().left, Place().top, Place().width, height);
}

void Control::SetForeColor(Color color) {
  EnsureLoaded();
  if (foreColor_ == color) return;
  foreColor_ = color;
  Changed(Aspect::Colors);
}

void Control::SetBackColor(Color color) {
  EnsureLoaded();
  if (backColor_ == color) return;
  backColor_ = color;
  Changed(Aspect::Colors);
}

void Control::SetMousePointer(int pointer) {
  EnsureLoaded();
  mousePointer_ = pointer;
}

void Control::SetContainer(Control* container, int page) {
  container_ = container;
  page_ = page;
  ReachChanged(Aspect::Layout);
}

char32_t Control::AccessKey() const {
  const std::string caption = CaptionText();
  for (std::size_t mark = caption.find('&'); mark != std::string::npos && mark + 1 < caption.size();
       mark = caption.find('&', mark)) {
    ++mark;
    if (caption[mark] == '&') {
      ++mark;
      continue;
    }
    const std::string upper = vb::UCase(vb::Mid(std::string_view(caption).substr(mark), 1, 1));
    std::size_t offset = 0;
    return vb::NextCharacter(upper, offset);
  }
  return 0;
}

void Control::SetFocus() {
  EnsureLoaded();
  if (!CanFocus()) vb::Raise(vb::kInvalidCall);
  form_.RequestFocus(*this);
}

bool Control::HasFocus() const {
  return form_.ActiveControl() == this;
}

std::string Control::TypeName() const {
  return "Control";
}

void Control::Reset() {
  enabled_ = true;
  visible_ = true;
  tag_.clear();
  toolTip_.clear();
  place_ = {};
  anchors_ = kAnchorLeft | kAnchorTop;
  tabIndex_ = defaultTabIndex_;
  tabStop_ = true;
  const bool surface = kind_ == ControlKind::Label || kind_ == ControlKind::Frame || kind_ == ControlKind::OptionButton ||
                       kind_ == ControlKind::CheckBox || kind_ == ControlKind::CommandButton ||
                       kind_ == ControlKind::PictureBox || kind_ == ControlKind::TabControl;
  foreColor_ = surface ? kButtonText : kWindowText;
  backColor_ = surface ? kButtonFace : kWindowBackground;
  mousePointer_ = 0;
  causesValidation_ = true;
  container_ = nullptr;
  page_ = 0;
}

late::Value Control::Invoke(std::string_view member, late::Access access, std::span<late::Value> values) {
  const LateMember* found = FindMember(member);
  const bool put = access == late::Access::Put || access == late::Access::PutRef;
  if (!found || (put ? !found->put : !found->get)) late::detail::RaiseUnknownMember(TypeName(), member);
  late::detail::CheckArgumentCount(TypeName(), member, values.size() - (put && !values.empty() ? 1 : 0), found->minArguments,
                                   found->maxArguments);
  late::Arguments arguments(values);
  if (!put) return found->get(*this, arguments);
  found->put(*this, arguments);
  return {};
}

bool Control::Has(std::string_view member) const {
  return FindMember(member) != nullptr;
}

namespace {

using Rows = std::initializer_list<late::Member<Control>>;

late::Member<Control> PlaceMember(std::string_view name, int Position::*part, void (Control::*put)(int)) {
  return {name, [part](Control& self, late::Arguments&) { return members::Out(self.Place().*part); },
          [put](Control& self, late::Arguments& arguments) { (self.*put)(arguments[0].ToInt32()); }};
}

late::Value MoveByName(Control& self, late::Arguments& arguments) {
  const Position place = self.Place();
  self.Move(arguments[0].ToInt32(), arguments.Or(1, place.top).ToInt32(), arguments.Or(2, place.width).ToInt32(),
            arguments.Or(3, place.height).ToInt32());
  return {};
}

late::Value ContainerOf(Control& self, late::Arguments&) {
  return self.Container() ? self.Container()->AsObject() : self.Owner().shared_from_this();
}

}  // namespace

const Control::LateMember* Control::FindMember(std::string_view name) const {
  using C = Control;
  static const members::MemberList<Control, LateMember> list = {
      ReadOnly<C>("Name", &C::Name),
      Property<C>("Enabled", &C::Enabled, &C::SetEnabled),
      Property<C>("Visible", &C::Visible, &C::SetVisible),
      Property<C>("Tag", &C::Tag, &C::SetTag),
      Property<C>("ToolTipText", &C::ToolTipText, &C::SetToolTipText),
      PlaceMember("Left", &Position::left, &C::SetLeft),
      PlaceMember("Top", &Position::top, &C::SetTop),
      PlaceMember("Width", &Position::width, &C::SetWidth),
      PlaceMember("Height", &Position::height, &C::SetHeight),
      {"Move", MoveByName, {}, 1, 4},
      Property<C>("TabIndex", &C::TabIndex, &C::SetTabIndex),
      Property<C>("TabStop", &C::TabStop, &C::SetTabStop),
      Property<C>("ForeColor", &C::ForeColor, &C::SetForeColor),
      Property<C>("BackColor", &C::BackColor, &C::SetBackColor),
      Property<C>("MousePointer", &C::MousePointer, &C::SetMousePointer),
      Property<C>("CausesValidation", &C::CausesValidation, &C::SetCausesValidation),
      {"Container", ContainerOf, {}},
      {"Parent", [](C& self, late::Arguments&) -> late::Value { return self.Owner().shared_from_this(); }, {}},
      members::Method<C>("SetFocus", &C::SetFocus),
      // The desktop draws by itself when something changes.
      {"Refresh", [](C&, late::Arguments&) { return late::Value(); }, {}},
      {"hWnd", [](C&, late::Arguments&) { return late::Value(std::int32_t{0}); }, {}},
  };
  return list.Find(name);
}

}  // namespace controls
