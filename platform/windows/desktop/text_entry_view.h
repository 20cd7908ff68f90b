#pragma once

#include <string>

#include "base/controls/text_entry.h"
#include "platform/windows/desktop/control_view.h"

namespace windows {

/// What the windows of text box and combo box share: the clipboard, and text and selection to and from the window. Positions of
/// the window are UTF-16 units, those of the model characters.
class TextEntryView : public ControlView {
 public:
  TextEntryView(FormWindow& window, controls::TextEntry& entry) : ControlView(window, entry), entry_(entry) {}

  bool Copy() override;
  bool Cut() override;
  bool Paste() override;

 protected:
  struct Selection {
    int start = 0;
    int end = 0;
  };

  /// Whether the window has text that can be selected, not a list alone.
  virtual bool HasEdit() const { return true; }
  bool IsPasting() const { return pasting_; }
  /// Puts the model's text into the window; returns the model's selection in units.
  Selection ShowEntry() const;
  /// The window's selection in characters of its text; `message` asks for it (EM_GETSEL or CB_GETEDITSEL).
  Selection SelectionIn(const std::wstring& text, UINT message) const;

 private:
  controls::TextEntry& entry_;
  bool pasting_ = false;
};

}  // namespace windows
