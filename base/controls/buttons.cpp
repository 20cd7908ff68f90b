#include "base/controls/buttons.h"

#include <algorithm>

#include "base/controls/control_members.h"
#include "base/controls/form.h"
#include "base/controls/keys.h"
#include "base/vb/text.h"

namespace controls {

using members::MemberList;
using members::Property;

const std::string& Captioned::Caption() const {
  EnsureLoaded();
  return caption_;
}

void Captioned::SetCaption(std::string_view caption) {
  EnsureLoaded();
  if (caption_ == caption) return;
  caption_ = caption;
  Changed(Aspect::Text);
}

void Captioned::SetPlainCaption(std::string_view text) {
  SetCaption(vb::Replace(text, "&", "&&"));
}

void Captioned::Reset() {
  Control::Reset();
  caption_.clear();
}

const Control::LateMember* Captioned::FindMember(std::string_view name) const {
  static const MemberList<Captioned, LateMember> list = {
      Property<Captioned>("Caption", &Captioned::Caption, &Captioned::SetCaption),
      Property<Captioned>("", &Captioned::Caption, &Captioned::SetCaption),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

void CommandButton::OnCharacter(int character) {
  if (character == kKeySpace || character == kCharReturn) Click.Fire();
}

void CommandButton::Reset() {
  Captioned::Reset();
  default_ = false;
  cancel_ = false;
}

const Control::LateMember* CommandButton::FindMember(std::string_view name) const {
  static const MemberList<CommandButton, LateMember> list = {
      Property<CommandButton>("Default", &CommandButton::IsDefault, &CommandButton::SetDefault),
      Property<CommandButton>("Cancel", &CommandButton::IsCancel, &CommandButton::SetCancel),
      // Setting the value of a push button clicks it; it always reads false.
      {"Value", [](CommandButton&, late::Arguments&) { return late::Value(false); },
       [](CommandButton& self, late::Arguments& arguments) {
         if (arguments[0].ToBool()) self.Click.Fire();
       }},
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Captioned::FindMember(name);
}

bool OptionButton::Value() const {
  EnsureLoaded();
  return value_;
}

void OptionButton::SetValue(bool value) {
  EnsureLoaded();
  if (value_ == value) return;
  value_ = value;
  if (value) {
    for (Control* control : Owner().Controls()) {
      auto* other = As<OptionButton>(control);
      if (!other || other == this || !other->value_ || !other->SharesGroupWith(*this)) continue;
      other->value_ = false;
      other->Changed(Aspect::Selection);
    }
  }
  Changed(Aspect::Selection);
  if (value) Click.Fire();
}

/// Arrows move through the options of the group and select.
void OptionButton::OnKey(int keyCode, int) {
  const bool back = keyCode == kKeyUp || keyCode == kKeyLeft;
  if (!back && keyCode != kKeyDown && keyCode != kKeyRight) return;
  std::vector<OptionButton*> group;
  for (Control* control : Owner().TabOrder()) {
    auto* other = As<OptionButton>(control);
    if (other && other->SharesGroupWith(*this) && other->CanFocus()) group.push_back(other);
  }
  if (back) std::reverse(group.begin(), group.end());
  const auto here = std::find(group.begin(), group.end(), this);
  if (here == group.end()) return;
  OptionButton* next = here + 1 == group.end() ? group.front() : *(here + 1);
  if (Owner().MoveFocus(next)) next->SetValue(true);
}

void OptionButton::OnCharacter(int character) {
  if (character == kKeySpace) SetValue(true);
}

void OptionButton::Reset() {
  Captioned::Reset();
  value_ = false;
}

const Control::LateMember* OptionButton::FindMember(std::string_view name) const {
  static const MemberList<OptionButton, LateMember> list = {
      Property<OptionButton>("Value", &OptionButton::Value, &OptionButton::SetValue),
      Property<OptionButton>("", &OptionButton::Value, &OptionButton::SetValue),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Captioned::FindMember(name);
}

int CheckBox::Value() const {
  EnsureLoaded();
  return value_;
}

void CheckBox::SetValue(int value) {
  EnsureLoaded();
  if (value != 0 && value != 1) vb::Raise(vb::kInvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  Changed(Aspect::Selection);
  Click.Fire();
}

void CheckBox::OnCharacter(int character) {
  if (character == kKeySpace) SetValue(1 - Value());
}

void CheckBox::Reset() {
  Captioned::Reset();
  value_ = 0;
}

const Control::LateMember* CheckBox::FindMember(std::string_view name) const {
  static const MemberList<CheckBox, LateMember> list = {
      Property<CheckBox>("Value", &CheckBox::Value, &CheckBox::SetValue),
      Property<CheckBox>("", &CheckBox::Value, &CheckBox::SetValue),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Captioned::FindMember(name);
}

}  // namespace controls
