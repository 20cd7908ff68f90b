#pragma once

#include "platform/windows/desktop/control_view.h"
#include "platform/windows/desktop/list_window.h"

namespace windows {

/// What the views of list views and flex grids have in common: a list that asks for what it shows, and columns that a person
/// can resize.
class VirtualListView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  /// `style` in addition to what every list has.
  void CreateList(HWND parent, int id, DWORD style);
  ListWindow List() const { return ListWindow(Handle()); }
  void ShowColumns();
  /// The item that the mouse has just selected, from LVN_ITEMCHANGED; nothing for changes that this view makes.
  std::optional<int> ItemSelected(const NMHDR& header) const;
  /// A right click focuses the control first; false when the focus stays elsewhere.
  bool TakeFocus();

  POINT MenuPlace() const override { return List().BelowFocusedItem(); }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

  // Columns count from 0, widths are in twips; 0 is a hidden column.
  virtual int ColumnCount() const = 0;
  virtual int ColumnWidth(int column) const = 0;
  virtual std::string ColumnHeading(int column) const = 0;
  /// LVCFMT_*.
  virtual int ColumnFormat(int column) const = 0;
  /// A person has given the column this width.
  virtual void ResizeColumn(int column, int width) = 0;

  bool updating_ = false;  ///< the window is being changed by this view

 private:
  bool showingColumns_ = false;
};

/// LVCFMT_* for an alignment of the model.
template <class Alignment>
int ColumnFormatOf(Alignment alignment) {
  return alignment == Alignment::Right ? LVCFMT_RIGHT : alignment == Alignment::Center ? LVCFMT_CENTER : LVCFMT_LEFT;
}

}  // namespace windows
