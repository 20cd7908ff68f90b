#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/desktop.h"
#include "base/controls/flex_grid.h"
#include "base/controls/form.h"
#include "base/controls/keyboard.h"
#include "base/controls/list_view.h"
#include "base/controls/text_box.h"

namespace support {

/// A desktop worked by a script: what the test expects to open, in order, and what the user does then. Anything else that opens,
/// and anything expected that does not, fails the test by name.
class ScriptedDesktop : public controls::Desktop {
 public:
  ~ScriptedDesktop() override;

  /// A message box with exactly this text; with `style` also its buttons, icon and default.
  void ExpectMessage(std::string text, controls::Answer answer = controls::Answer::Ok, int style = -1);
  /// A modal form of this name; `work` is what the user does in it. Where `work` leaves it open, it is closed by its title bar.
  void ExpectForm(std::string name, std::function<void(controls::Form&)> work = {});
  /// A pop-up menu; `pick` is the entry's name, "" for none. The visible entries' names with their states are kept in lastMenu.
  void ExpectMenu(std::string pick);
  /// Whether everything expected has happened; what has not is reported as failures and forgotten.
  void Verify();

  /// Text, style and title of every message box so far.
  std::vector<controls::Message> messages;
  std::vector<std::string> lastMenu;  ///< "mnuAdd", "(mnuEdit)" for a disabled one
  std::vector<std::string> opened;    ///< names of forms in the order they opened
  int alarms = 0;                     ///< how often the alarm sounded
  int hourglasses = 0;                ///< pointers that are an hourglass now
  bool sawHourglass = false;

  controls::Answer MsgBox(controls::Form* owner, const controls::Message& message) override;
  controls::Menu* PopupMenu(controls::Form& form, controls::Menu& menu) override;
  void Beep() override { ++alarms; }
  void PointerChanged(controls::Form&, bool hourglass) override;

 protected:
  void RunModal(controls::Form& form) override;

 private:
  struct Step {
    enum class Kind { Message, Form, Menu } kind;
    std::string name;
    controls::Answer answer = controls::Answer::Ok;
    int style = -1;
    std::function<void(controls::Form&)> work;
  };
  /// The next step when it is of this kind and name; otherwise a failure that names both, and nothing.
  bool Next(Step::Kind kind, const std::string& name, Step& step);

  std::deque<Step> steps_;
};

// What a user does, through the classic key and mouse order. Each fails the test when a person could not do it (hidden,
// disabled).
void Type(controls::Control& control, std::string_view text);  ///< at the end of the text
void Enter(controls::TextBox& box, std::string_view text);     ///< over the whole text
void Press(controls::Control& control, std::string_view key);  ///< "Enter", "F3", "Ctrl+Enter", ...
void Click(controls::Control& control);
void Choose(controls::Control& combo, std::string_view text);
void CheckLine(controls::ListView& list, int line, bool checked = true);
void DoubleClick(controls::Control& control);
void RightClick(controls::Control& control);
void GoToRow(controls::FlexGrid& grid, long row, long col = 1);

}  // namespace support
