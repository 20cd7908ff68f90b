#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/controls/desktop.h"
#include "base/controls/form.h"
#include "platform/terminal/screen.h"
#include "platform/text/drawing/canvas.h"
#include "platform/text/drawing/surface.h"

namespace controls {
class ComboBox;
class TextEntry;
}  // namespace controls

namespace terminal {

/// Forms as pictures one above the other on a terminal, worked by keys and mouse like real windows. Once the terminal has hung up
/// or the program is to end, every form is closed and every message answered unasked.
class TerminalDesktop : public controls::Desktop {
 public:
  explicit TerminalDesktop(Screen& screen) : screen_(screen) {}

  controls::Answer MsgBox(controls::Form* owner, const controls::Message& message) override;
  controls::Menu* PopupMenu(controls::Form& form, controls::Menu& menu) override;
  void Beep() override { screen_.Alarm(); }
  void PutOnClipboard(const std::string& text) override;
  long RowsShown(const controls::Control& list) const override;
  void EnteredByKey(controls::Control& control) override;
  void PointerChanged(controls::Form& form, bool hourglass) override;

  /// Shows a text over everything until Esc; for what another program would show.
  void ShowText(const std::string& title, const std::string& text);

 protected:
  void RunModal(controls::Form& form) override;
  void Closed(controls::Form& form) override;

 private:
  struct Popup {
    text::Canvas picture;
    std::optional<text::Point> place;  ///< the middle of the screen without one
    std::string hint;
  };
  struct Choice {
    std::string caption;
    bool isEnabled = true;
  };

  // What is on the screen.
  /// How a form's picture fits on the screen; computed again when the screen or the picture changes its size.
  struct Fitting {
    int columns = 0, rows = 0;  ///< of the screen
    int width = 0, height = 0;  ///< of the picture then
    int twipsPerColumn = text::Surface().twipsPerColumn;
    int wrapAt = 0;
    int extraRows = 0;
  };
  text::Surface SurfaceOf(const controls::Form& form) const;
  text::Canvas FittedPicture(const controls::Form& form, text::Surface& surface) const;
  text::Canvas PictureOf(const controls::Form& form);
  text::Canvas InSight(const text::Canvas& picture) const;
  void Compose();
  void Paint();
  std::string StatusText() const;
  /// The screen without the line that tells keys.
  int Rows() const { return screen_.Height() - 1; }

  // What a person does.
  std::optional<Event> NextEvent();
  void HandleKey(controls::Form& form, const Event& event);
  bool HandleOwnKey(controls::Form& form, const controls::KeyStroke& key);
  bool EditByKey(controls::TextEntry& entry, const controls::KeyStroke& key);
  bool MoveByRow(controls::TextEntry& entry, int rows);
  void HandlePaste(controls::Form& form, const std::string& text);
  void HandleMouse(controls::Form& form, const Event& event);
  void ClickRow(const text::Spot& spot, const Event& event);
  long ColumnAt(const text::Spot& row, int x) const;
  void ScrollList(const text::Spot& spot, int rows);
  void LookAtCurrentCell(controls::Form& form);
  void DropDown(controls::ComboBox& combo);
  enum class Choosing { GoesOn, Taken, Left };
  text::Canvas DrawChoices(const std::vector<Choice>& entries, int current, int rows) const;
  Choosing ChooseByMouse(const std::vector<Choice>& entries, const Event& event, int& current) const;
  static Choosing ChooseByKey(const std::vector<Choice>& entries, const controls::KeyStroke& key, int rows, int& current);
  /// The number of the entry picked; -1 for none. Opens at a point, downwards or upwards as there is room.
  int Choose(const std::vector<Choice>& entries, int current, text::Point at);

  Screen& screen_;
  text::Canvas composed_;
  std::vector<Popup*> popups_;
  std::map<const controls::Control*, long> scrolled_;
  std::map<const controls::Form*, Fitting> fittings_;
  struct CellLookedAt {
    const controls::Control* control = nullptr;
    long row = 0, column = 0;
    bool operator==(const CellLookedAt&) const = default;
  } lookedAt_;
  bool hasEnded_ = false;
  int hourglasses_ = 0;
};

}  // namespace terminal
