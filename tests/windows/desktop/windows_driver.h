#pragma once

#include <deque>
#include <gtest/gtest.h>

#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/desktop/windows_desktop.h"
#include "tests/base/controls/control_driver.h"

namespace counter {

/// The desktop of real windows with a queue of what the person does in each form that opens. The hands work from inside the
/// form's own message loop, as a person's messages do.
class DrivenDesktop : public windows::WindowsDesktop {
 public:
  DrivenDesktop();
  ~DrivenDesktop() override;

  std::deque<std::function<void(controls::Form&)>> hands;
  std::deque<controls::Answer> answers;
  std::vector<std::string> messages;
  std::vector<HWND> messageOwners;
  std::vector<RECT> menus;  ///< where pop-up menus opened; they are let go of at once

 protected:
  void Opened(controls::Form& form) override;

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  void Work();
  void AnswerMessageBox();
  void LeaveMenu();

  HWND window_ = nullptr;
};

/// A person at the windows: posts keys and mouse buttons as the system does, and reads what the windows say.
class WindowsDriver : public ControlDriver {
 public:
  ~WindowsDriver() override { EXPECT_TRUE(desktop_.hands.empty()) << "a form that somebody waited for never opened"; }
  DrivenDesktop& Desktop() override { return desktop_; }
  void Work(controls::Form& form, std::function<void()> hands) override;
  void WorkInNext(std::function<void(controls::Form&)> hands) override { desktop_.hands.push_back(std::move(hands)); }
  void Answer(controls::Answer answer) override { desktop_.answers.push_back(answer); }
  std::string LastMessage() const override { return desktop_.messages.empty() ? "" : desktop_.messages.back(); }
  void Type(controls::Control& control, std::string_view text) override;
  void Paste(controls::Control& control, std::string_view text) override;
  void Press(std::string_view key) override;
  /// A key that gives this character together with the key for further characters (AltGr) on somebody's keyboard.
  void PressFurther(char key, wchar_t character);
  void Click(controls::Control& control) override;
  void Pick(controls::ComboBox& combo, int entry) override;
  void ClickLine(controls::ListView& list, int line) override;
  void CheckLine(controls::ListView& list, int line, bool checked) override;
  void ClickCell(controls::FlexGrid& grid, long row, long col) override;
  void ClickHeading(controls::FlexGrid& grid, long col) override;
  /// Fails when the window shows another text than the model holds.
  std::string Read(controls::Control& control, std::string_view property) override;
  std::string Focus(const controls::Form& form) const override;

 private:
  void ClickAt(HWND window, int x, int y);

  DrivenDesktop desktop_;
};

}  // namespace counter
