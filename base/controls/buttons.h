#pragma once

#include "base/controls/control.h"

namespace controls {

/// What push button, option, check box, label and frame share: a caption with an access key.
class Captioned : public Control {
 public:
  using Control::Control;
  const std::string& Caption() const;
  void SetCaption(std::string_view caption);
  /// A caption that reads like the text: its ampersands mark no access key.
  void SetPlainCaption(std::string_view text);
  std::string CaptionText() const override { return caption_; }
  void Reset() override;

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  std::string caption_;
};

class CommandButton : public Captioned {
 public:
  static constexpr ControlKind kKind = ControlKind::CommandButton;
  CommandButton(Form& form, std::string name) : Captioned(form, kKind, std::move(name)) {}
  /// Enter anywhere on the form clicks the default button, Esc the cancel button.
  bool IsDefault() const { return default_; }
  void SetDefault(bool isDefault) { default_ = isDefault; }
  bool IsCancel() const { return cancel_; }
  void SetCancel(bool isCancel) { cancel_ = isCancel; }
  void OnCharacter(int character) override;
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "CommandButton"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  bool default_ = false;
  bool cancel_ = false;
};

/// One of a group (the options of the same container). Setting it true, by code or by a person, clears the others and fires Click
/// when it was false.
class OptionButton : public Captioned {
 public:
  static constexpr ControlKind kKind = ControlKind::OptionButton;
  OptionButton(Form& form, std::string name) : Captioned(form, kKind, std::move(name)) {}
  bool Value() const;
  void SetValue(bool value);
  bool SharesGroupWith(const OptionButton& other) const { return other.Container() == Container() && other.Page() == Page(); }
  void OnKey(int keyCode, int shift) override;
  void OnCharacter(int character) override;
  void ClickedByPerson() override { SetValue(true); }
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "OptionButton"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  bool value_ = false;
};

/// Setting a different value, by code or by a person, fires Click.
class CheckBox : public Captioned {
 public:
  static constexpr ControlKind kKind = ControlKind::CheckBox;
  CheckBox(Form& form, std::string name) : Captioned(form, kKind, std::move(name)) {}
  /// 0 unchecked, 1 checked; other values are error 380.
  int Value() const;
  void SetValue(int value);
  bool IsChecked() const { return Value() == 1; }
  void OnCharacter(int character) override;
  void ClickedByPerson() override { SetValue(1 - Value()); }
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "CheckBox"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  int value_ = 0;
};

/// Takes no focus itself: its access key moves the focus to the next control in tab order.
class Label : public Captioned {
 public:
  static constexpr ControlKind kKind = ControlKind::Label;
  Label(Form& form, std::string name) : Captioned(form, kKind, std::move(name)) {}
  void Accept(ControlVisitor& visitor) override;
  std::string TypeName() const override { return "Label"; }

 protected:
  bool TakesFocus() const override { return false; }
};

class Frame : public Captioned {
 public:
  static constexpr ControlKind kKind = ControlKind::Frame;
  Frame(Form& form, std::string name) : Captioned(form, kKind, std::move(name)) {}
  void Accept(ControlVisitor& visitor) override;
  std::string TypeName() const override { return "Frame"; }

 protected:
  bool TakesFocus() const override { return false; }
};

/// A container without a caption.
class PictureBox : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::PictureBox;
  PictureBox(Form& form, std::string name) : Control(form, kKind, std::move(name)) {}
  void Accept(ControlVisitor& visitor) override;
  std::string TypeName() const override { return "PictureBox"; }

 protected:
  bool TakesFocus() const override { return false; }
};

}  // namespace controls
