#pragma once

#include <string>

#include "tests/windows/products/person/eyes.h"
#include "tests/windows/products/person/patience.h"
#include "tests/windows/products/person/program.h"

namespace person {

/// A form of another process, worked as a person does: keys come from the system's keyboard, clicks as the mouse's own
/// messages to the window under it. Everything waits until it can be done or seen, and throws std::runtime_error with what is on
/// the screen when that never comes.
class FormOnScreen {
 public:
  FormOnScreen(DWORD process, HWND form) : process_(process), form_(form) {}

  /// The button, option, check box or label with this caption (access key marks left out).
  void Click(const std::string& caption);
  void DoubleClickRow(int row);
  void ClickRow(int row);
  void RightClickList();
  /// Puts the focus on the list, by a click on the row that is selected, or after a label.
  void GoToList();
  void GoBehind(const std::string& label);
  /// A click on the text of a cell, on a row's check box, on a heading.
  void ClickCell(int row, const std::string& heading);
  void ClickBox(int row);
  void ClickHeading(const std::string& heading);
  /// Pulls the right edge of a column, by pixels.
  void PullColumn(const std::string& heading, int right);
  /// Checks or unchecks a row's box by the keyboard.
  void TickRow(int row);
  /// Brings a tab's page to the front by its caption.
  void TurnTo(const std::string& page);
  /// A key on whatever has the focus: "Enter", "Esc", "Tab", "Space", "Delete", "Down", "F3", "Menu" or one letter or digit, with
  /// "Ctrl+", "Alt+" or "Shift+" before it.
  void Press(const std::string& key);
  /// Characters for whatever has the focus.
  void Type(const std::string& text);
  /// Replaces what is in the field behind a label and waits until it stands there.
  void Write(const std::string& label, const std::string& text);
  /// Chooses an entry of the drop-down list behind a label by its text.
  void Choose(const std::string& label, const std::string& entry);
  void CloseByTitleBar();
  /// Pulls the window's lower right corner, by pixels.
  void Pull(int right, int down);
  void Maximize();

  /// What there is to read; each waits until it is so.
  void Shows(const std::string& label, const std::string& text);
  void HasFocusBehind(const std::string& label);
  void HasFocusOn(const std::string& caption);
  void HasFocusOnList();
  /// What the box that has the focus holds.
  void Holds(const std::string& text);
  void HasInFront(const std::string& page);
  void HasRows(int count);
  void HasRow(int row, const Texts& cells);
  void HasSelected(int row);
  void HasSelectedRow(const Texts& cells);
  void HasSelectedCell(const std::string& cell);
  void HasTicked(int row, bool ticked);
  /// The list's size in pixels.
  void HasListOf(SIZE size);
  /// A column's width in pixels.
  void HasWidth(const std::string& heading, int least, int most);
  void HasInSight(const std::string& heading);
  void HasWholeFrame(const std::string& caption);
  void IsUsable(const std::string& caption, bool usable);

  Texts Headings() const { return ListOnScreen(List()).Headings(); }
  SIZE ListSize() const;
  int WidthOf(const std::string& heading) const;
  /// What is read now behind a label.
  std::string Read(const std::string& label) const { return TextOf(Behind(label)); }
  /// Waits until the window is gone.
  void Goes();

 private:
  template <class Condition>
  void Wait(const Condition& holds, const std::string& what) const {
    WaitUntil(holds, [&] { return "waited in vain: " + what + "; on the screen:" + Describe(process_); });
  }
  void ComeToFront();
  void ClickAt(HWND window);
  HWND Captioned(const std::string& caption) const;
  /// The box on the right of a label, or right below it.
  HWND Behind(const std::string& label) const;
  HWND Below(const RECT& label, const std::string& caption) const;
  /// The form's list: the widest that is shown. Looked for anew each time, for pages change.
  HWND List() const;

  DWORD process_;
  HWND form_;
};

/// Somebody in front of a program's windows.
class Person {
 public:
  explicit Person(const Program& program);

  /// Waits until the form with this title is there to be worked with.
  FormOnScreen Meets(const std::string& title);
  /// Waits for a message, answers it by the caption of a button and gives its text, line ends as blanks.
  std::string Answers(const std::string& caption);
  /// Waits for a menu; then leaves it with Esc, or picks by access key.
  void MeetsMenu();
  void LeavesMenu();
  void Picks(char accessKey);

 private:
  const Program& program_;
};

}  // namespace person
