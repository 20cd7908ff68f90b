#pragma once

#include "base/controls/list_view.h"
#include "platform/windows/desktop/control_view.h"

namespace windows {

/// Copies a text into the buffer that the window offers, cut to its size.
void CopyText(const std::string& text, LVITEMW& item);
/// The lower left corner of the line that the keys are on; the list's own corner when that line is not in view.
POINT BelowFocusedLine(HWND list);

/// A list view model as a virtual list: the window asks for the lines it shows.
class LinesView : public ControlView {
 public:
  LinesView(FormWindow& window, controls::ListView& list) : ControlView(window, list), list_(list) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  std::string ToolTipAt(POINT point) const override;

 protected:
  void RightButtonAt(POINT point) override;
  POINT MenuPlace() const override { return BelowFocusedLine(Handle()); }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void ShowColumns();
  void ShowLines();
  void Describe(LVITEMW& item) const;
  /// What lies under a point of the window.
  struct Place {
    int line = 0;        ///< counts from 1; 0 where there is none
    int column = 0;      ///< counts from 0
    bool isBox = false;  ///< the line's check box
  };
  Place PlaceAt(POINT point) const;
  void Clicked(POINT point);
  void DoubleClicked(POINT point);

  controls::ListView& list_;
  bool updating_ = false;
  bool showingColumns_ = false;
};

}  // namespace windows
