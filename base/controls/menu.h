#pragma once

#include "base/controls/control.h"

namespace controls {

/// A menu or one entry of it; the caption "-" is a separator. Entries list themselves with their parent in the order they are
/// made.
class Menu : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::Menu;
  Menu(Form& form, std::string name, Menu* parent = nullptr);

  const std::string& Caption() const;
  void SetCaption(std::string_view caption);
  std::string CaptionText() const override { return caption_; }
  bool IsSeparator() const { return caption_ == "-"; }
  const std::vector<Menu*>& Entries() const { return entries_; }
  Menu* Parent() const { return parent_; }

  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "Menu"; }

 protected:
  bool TakesFocus() const override { return false; }
  const Control* Holder() const override { return parent_; }
  const LateMember* FindMember(std::string_view name) const override;

 private:
  std::string caption_;
  Menu* parent_;
  std::vector<Menu*> entries_;
};

}  // namespace controls
