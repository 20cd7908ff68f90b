#pragma once

#include "base/controls/control.h"

namespace controls {

/// Tabbed dialog. Controls are put on a page by Control::SetContainer(tab, page).
class TabControl : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::TabControl;
  TabControl(Form& form, std::string name) : Control(form, kKind, std::move(name)) {}

  int Tabs() const;
  void SetTabs(int count);
  /// The current page, from 0. Setting it fires Switched with the previous page; error 380 outside the pages.
  int Tab() const;
  void SetTab(int page);
  std::string TabCaption(int page) const;
  void SetTabCaption(int page, std::string_view caption);
  /// Hiding the current page moves to the nearest visible one.
  bool TabVisible(int page) const;
  void SetTabVisible(int page, bool visible);

  Event<int> Switched;

  void OnKey(int keyCode, int shift) override;
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "SSTab"; }

 protected:
  bool ShowsPage(int page) const override { return page == Tab() && TabVisible(page); }
  const LateMember* FindMember(std::string_view name) const override;

 private:
  struct PageState {
    std::string caption;
    bool visible = true;
  };
  const PageState& PageAt(int page) const;
  void SwitchTo(int page);

  std::vector<PageState> pages_ = std::vector<PageState>(3);
  int tab_ = 0;
};

}  // namespace controls
