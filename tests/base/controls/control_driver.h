#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/controls/combo_box.h"
#include "base/controls/desktop.h"
#include "base/controls/flex_grid.h"
#include "base/controls/form.h"
#include "base/controls/list_view.h"

namespace counter {

/// A person in front of a form. The rules of the controls are told against this face, so that the same stories can be played on
/// the models and on real windows.
class ControlDriver {
 public:
  virtual ~ControlDriver() = default;

  virtual controls::Desktop& Desktop() = 0;
  /// Shows the form and lets the person work in it; a form left open is closed by its title bar.
  virtual void Work(controls::Form& form, std::function<void()> hands) = 0;
  /// What the person does in the next form that opens by itself.
  virtual void WorkInNext(std::function<void(controls::Form&)> hands) = 0;
  /// The answer to the next message box; its text is kept.
  virtual void Answer(controls::Answer answer) = 0;
  virtual std::string LastMessage() const = 0;

  /// Puts the focus into the control and types; stops where the focus is taken away.
  virtual void Type(controls::Control& control, std::string_view text) = 0;
  virtual void Paste(controls::Control& control, std::string_view text) = 0;
  /// A key by its name, on whatever has the focus.
  virtual void Press(std::string_view key) = 0;
  virtual void Click(controls::Control& control) = 0;
  virtual void Pick(controls::ComboBox& combo, int entry) = 0;
  virtual void ClickLine(controls::ListView& list, int line) = 0;
  virtual void CheckLine(controls::ListView& list, int line, bool checked) = 0;
  virtual void ClickCell(controls::FlexGrid& grid, long row, long col) = 0;
  virtual void ClickHeading(controls::FlexGrid& grid, long col) = 0;

  /// A property as the person sees it.
  virtual std::string Read(controls::Control& control, std::string_view property) = 0;
  /// Name of the control that has the focus, "" for none.
  virtual std::string Focus(const controls::Form& form) const = 0;
};

using DriverMaker = std::unique_ptr<ControlDriver> (*)();

/// The driver that this program plays the stories with: the models', or that of real windows.
std::unique_ptr<ControlDriver> MakeDriver();

}  // namespace counter
