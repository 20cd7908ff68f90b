#pragma once

#include "base/controls/list_view.h"
#include "platform/windows/desktop/virtual_list_view.h"

namespace windows {

/// A list view.
class ListViewView : public VirtualListView {
 public:
  ListViewView(FormWindow& window, controls::ListView& list) : VirtualListView(window, list), list_(list) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  std::string ToolTipAt(POINT point) const override;

 protected:
  void RightButtonAt(POINT point) override;
  int ColumnCount() const override { return list_.ColumnCount(); }
  int ColumnWidth(int column) const override { return list_.Column(column + 1).width; }
  std::string ColumnHeading(int column) const override { return list_.Column(column + 1).text; }
  int ColumnFormat(int column) const override { return ColumnFormatOf(list_.Column(column + 1).alignment); }
  void ResizeColumn(int column, int width) override { list_.PullColumn(column + 1, width); }

 private:
  void ShowLayout();
  void ShowLines();
  void Describe(LVITEMW& item) const;
  LRESULT Paint(NMLVCUSTOMDRAW& draw) const;
  /// What is under a point of the window.
  struct Place {
    int line = 0;        ///< counts from 1; 0 where there is none
    int column = 0;      ///< counts from 0
    bool isBox = false;  ///< the line's check box
  };
  Place PlaceAt(POINT point) const;
  void Clicked(POINT point);
  void DoubleClicked(POINT point);

  controls::ListView& list_;
};

}  // namespace windows
