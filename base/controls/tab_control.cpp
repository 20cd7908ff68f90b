#include "base/controls/tab_control.h"

#include <cstdlib>

#include "base/controls/control_members.h"
#include "base/vb/error.h"

namespace controls {

int TabControl::Tabs() const {
  EnsureLoaded();
  return static_cast<int>(pages_.size());
}

void TabControl::SetTabs(int count) {
  EnsureLoaded();
  if (count < 1) vb::Raise(vb::kInvalidPropertyValue);
  pages_.resize(static_cast<std::size_t>(count));
  if (tab_ >= count) SwitchTo(count - 1);
  Changed(Aspect::Layout);
}

int TabControl::Tab() const {
  EnsureLoaded();
  return tab_;
}

void TabControl::SetTab(int page) {
  PageAt(page);
  if (page != tab_) SwitchTo(page);
}

void TabControl::SwitchTo(int page) {
  const int before = tab_;
  tab_ = page;
  ReachChanged(Aspect::Selection);
  Switched.Fire(before);
}

const TabControl::PageState& TabControl::PageAt(int page) const {
  if (page < 0 || page >= Tabs()) vb::Raise(vb::kInvalidPropertyValue);
  return pages_[static_cast<std::size_t>(page)];
}

std::string TabControl::TabCaption(int page) const {
  return PageAt(page).caption;
}

void TabControl::SetTabCaption(int page, std::string_view caption) {
  PageAt(page);
  pages_[static_cast<std::size_t>(page)].caption = caption;
  Changed(Aspect::Layout);
}

bool TabControl::TabVisible(int page) const {
  return PageAt(page).visible;
}

void TabControl::SetTabVisible(int page, bool visible) {
  if (PageAt(page).visible == visible) return;
  pages_[static_cast<std::size_t>(page)].visible = visible;
  Changed(Aspect::Layout);
  if (visible || page != tab_) return;
  int nearest = -1;
  for (int other = 0; other < Tabs(); ++other) {
    if (!TabVisible(other)) continue;
    if (nearest < 0 || std::abs(other - page) < std::abs(nearest - page)) nearest = other;
  }
  if (nearest >= 0) SwitchTo(nearest);
}

/// Left and Right turn to the next page that can be seen.
void TabControl::OnKey(int keyCode, int) {
  const int step = keyCode == kKeyLeft ? -1 : keyCode == kKeyRight ? 1 : 0;
  for (int page = Tab() + step; step != 0 && page >= 0 && page < Tabs(); page += step) {
    if (TabVisible(page)) return SetTab(page);
  }
}

void TabControl::Reset() {
  Control::Reset();
  pages_.assign(3, PageState());
  tab_ = 0;
}

const Control::LateMember* TabControl::FindMember(std::string_view name) const {
  using members::Indexed;
  using members::Property;
  using T = TabControl;
  static const members::MemberList<T, LateMember> list = {
      Property<T>("Tab", &T::Tab, &T::SetTab),
      Property<T>("", &T::Tab, &T::SetTab),
      Property<T>("Tabs", &T::Tabs, &T::SetTabs),
      Indexed<T>("TabCaption", &T::TabCaption, &T::SetTabCaption),
      Indexed<T>("TabVisible", &T::TabVisible, &T::SetTabVisible),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
