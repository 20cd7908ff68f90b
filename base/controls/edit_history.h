#pragma once

#include <string>

namespace controls {

/// One step back for a box that is typed into: what it held before the last run of edits. A run ends where the kind of edit
/// changes, the caret is moved or something is selected. Positions in characters, from 0.
class EditHistory {
 public:
  struct State {
    std::string text;
    int selStart = 0;
    int selLength = 0;
  };
  enum class Edit { Typing, EraseBack, EraseForward };

  /// An edit is about to change this text.
  void Before(Edit edit, const std::string& text, int selStart, int selLength);
  /// The edit has left the caret here.
  void After(int caret) { caret_ = caret; }
  /// The next edit begins a run of its own.
  void EndRun() { caret_ = -1; }
  void Forget();
  bool CanUndo() const { return canUndo_; }
  /// Hands out the state before the last run and keeps this one for the next undo, which so takes the undo back. Only where
  /// CanUndo.
  State Exchange(State current);

 private:
  State before_;
  Edit edit_ = Edit::Typing;
  int caret_ = -1;
  bool canUndo_ = false;
};

}  // namespace controls
