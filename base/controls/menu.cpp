#include "base/controls/menu.h"

#include "base/controls/control_members.h"

namespace controls {

Menu::Menu(Form& form, std::string name, Menu* parent) : Control(form, ControlKind::Menu, std::move(name)), parent_(parent) {
  if (parent_) parent_->entries_.push_back(this);
}

const std::string& Menu::Caption() const {
  EnsureLoaded();
  return caption_;
}

void Menu::SetCaption(std::string_view caption) {
  EnsureLoaded();
  caption_ = caption;
  Changed(Aspect::Text);
}

void Menu::Reset() {
  Control::Reset();
  caption_.clear();
}

const Control::LateMember* Menu::FindMember(std::string_view name) const {
  static const members::MemberList<Menu, LateMember> list = {
      members::Property<Menu>("Caption", &Menu::Caption, &Menu::SetCaption),
      members::Property<Menu>("", &Menu::Caption, &Menu::SetCaption),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
