#pragma once

#include <string>
#include <vector>

#include "platform/windows/windows_gate.h"

namespace person {

using Texts = std::vector<std::string>;

/// A window's answer to a message; 0 when it gives none in time.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// What a window of any process shows; empty when it does not answer.
std::string TextOf(HWND window);
/// A button's or label's text without the mark of its access key.
std::string CaptionOf(HWND window);
std::string KindOf(HWND window);

/// The program's visible windows that are no child of another, and a window's visible children at any depth.
std::vector<HWND> WindowsOf(DWORD process);
std::vector<HWND> ChildrenOf(HWND window);

/// The window that keys of this window's thread go to; null for none.
HWND FocusOf(HWND window);

/// The program's windows with what is written on them, for a complaint.
std::string Describe(DWORD process);

/// A list of another process, whatever stands behind it: the system asks the list's owner for each text.
class ListOnScreen {
 public:
  explicit ListOnScreen(HWND list);
  ListOnScreen(const ListOnScreen&) = delete;
  ListOnScreen& operator=(const ListOnScreen&) = delete;
  ~ListOnScreen();

  int Rows() const;
  Texts Headings() const;
  /// The texts of a row's cells, from 0; columns without width are left out, as nobody sees them.
  Texts Row(int row) const;
  /// The selected row, -1 for none.
  int SelectedRow() const;
  /// Brings a row into view and gives a point on its first visible cell, in the list's own coordinates.
  POINT PlaceOf(int row) const;

 private:
  int Columns() const;
  bool IsSeen(int column) const;
  std::string TextAt(int row, int column) const;

  HWND list_;
  HWND header_;
  HANDLE process_ = nullptr;
  void* memory_ = nullptr;  // in the list's process
};

}  // namespace person
