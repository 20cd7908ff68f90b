#pragma once

#include <deque>
#include <gtest/gtest.h>

#include "tests/base/controls/control_driver.h"

namespace counter {

/// A desktop without a screen: a queue of what the person does in each form that opens.
class ModelDesktop : public controls::Desktop {
 public:
  std::deque<std::function<void(controls::Form&)>> hands;
  std::deque<controls::Answer> answers;
  std::vector<std::string> messages;
  std::vector<std::string> life;  ///< forms opened and closed
  std::string pick;               ///< the entry to take from the next pop-up menu
  std::size_t changes = 0;        ///< notes about controls
  bool hourglass = false;

  controls::Answer MsgBox(controls::Form* owner, const controls::Message& message) override;
  controls::Menu* PopupMenu(controls::Form& form, controls::Menu& menu) override;
  void Changed(controls::Control&, controls::Aspect) override { ++changes; }
  void PointerChanged(controls::Form&, bool shown) override { hourglass = shown; }

 protected:
  void Opened(controls::Form& form) override { life.push_back("open " + form.Name()); }
  void Closed(controls::Form& form) override { life.push_back("closed " + form.Name()); }
  void RunModal(controls::Form& form) override;
};

/// The person as far as the models know one.
class ModelDriver : public ControlDriver {
 public:
  ~ModelDriver() override { EXPECT_TRUE(desktop_.hands.empty()) << "a form that somebody waited for never opened"; }
  ModelDesktop& Desktop() override { return desktop_; }
  void Work(controls::Form& form, std::function<void()> hands) override;
  void WorkInNext(std::function<void(controls::Form&)> hands) override { desktop_.hands.push_back(std::move(hands)); }
  void Answer(controls::Answer answer) override { desktop_.answers.push_back(answer); }
  std::string LastMessage() const override { return desktop_.messages.empty() ? "" : desktop_.messages.back(); }
  void Type(controls::Control& control, std::string_view text) override;
  void Paste(controls::Control& control, std::string_view text) override;
  void Press(std::string_view key) override;
  void Click(controls::Control& control) override;
  void Pick(controls::ComboBox& combo, int entry) override;
  void ClickLine(controls::ListView& list, int line) override;
  void CheckLine(controls::ListView& list, int line, bool checked) override;
  void ClickCell(controls::FlexGrid& grid, long row, long col) override;
  void ClickHeading(controls::FlexGrid& grid, long col) override;
  std::string Read(controls::Control& control, std::string_view property) override;
  std::string Focus(const controls::Form& form) const override;

 private:
  ModelDesktop desktop_;
};

}  // namespace counter
