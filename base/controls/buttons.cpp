#include "base/controls/buttons.h"

#include "base/controls/control_members.h"
#include "base/controls/form.h"

namespace controls {

using members::MemberList;
using members::Property;

const std::string& Captioned::Caption() const {
  Touch();
  return caption_;
}

void Captioned::SetCaption(std::string_view caption) {
  Touch();
  if (caption_ == caption) return;
  caption_ = caption;
  Changed(Aspect::Text);
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
  Touch();
  return value_;
}

void OptionButton::SetValue(bool value) {
  Touch();
  if (value_ == value) return;
  value_ = value;
  if (value) {
    for (Control* control : Owner().Controls()) {
      auto* other = dynamic_cast<OptionButton*>(control);
      if (!other || other == this || !other->value_ || !other->SharesGroupWith(*this)) continue;
      other->value_ = false;
      other->Changed(Aspect::Selection);
    }
  }
  Changed(Aspect::Selection);
  if (value) Click.Fire();
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
  Touch();
  return value_;
}

void CheckBox::SetValue(int value) {
  Touch();
  if (value != 0 && value != 1) vb::Raise(vb::kInvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  Changed(Aspect::Selection);
  Click.Fire();
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
