#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/windows/windows_gate.h"

namespace person {

using Texts = std::vector<std::string>;

/// A window's answer to a message; 0 when it gives none in time.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

std::string Quoted(const std::string& text);

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

/// Whether the four lines of a group's frame are on the screen, by its pixels.
bool IsFrameWhole(HWND frame);

/// Memory in the process of a window, for messages that carry texts and places.
class Elsewhere {
 public:
  Elsewhere(HWND window, std::size_t bytes);
  Elsewhere(const Elsewhere&) = delete;
  Elsewhere& operator=(const Elsewhere&) = delete;
  ~Elsewhere();

  void* Memory() const { return memory_; }
  void Write(const void* data, std::size_t bytes) const;
  /// From a place in it.
  void Read(const void* place, void* data, std::size_t bytes) const;

 private:
  HANDLE process_;
  void* memory_;
};

/// The tabs of a tab control of another process, by their captions.
class TabsOnScreen {
 public:
  explicit TabsOnScreen(HWND tabs);
  std::string InFront() const;
  /// A point on the tab, in the control's own coordinates; nothing when there is no such tab.
  std::optional<POINT> PlaceOf(const std::string& caption) const;

 private:
  std::string CaptionAt(LRESULT tab) const;

  HWND tabs_;
  Elsewhere there_;
};

/// A list of another process, whatever stands behind it: the system asks the list's owner for each text.
class ListOnScreen {
 public:
  explicit ListOnScreen(HWND list);

  int Rows() const;
  Texts Headings() const;
  /// The texts of a row's cells, from 0; columns without width are left out, as nobody sees them.
  Texts Row(int row) const;
  /// The selected row, -1 for none.
  int SelectedRow() const;
  bool IsTicked(int row) const;
  /// Brings a row into view and gives a point on its first visible cell, in the list's own coordinates.
  POINT PlaceOf(int row) const;
  /// The same on the cell below a heading.
  POINT PlaceOf(int row, const std::string& heading) const;
  /// A point on the row's check box.
  POINT BoxOf(int row) const;
  HWND Header() const { return header_; }
  /// Where a heading is, in the coordinates of the heading's window. Throws std::runtime_error when there is none.
  RECT HeadingPlace(const std::string& heading) const;

 private:
  std::string HeadingAt(int column) const;
  int Columns() const;
  bool IsSeen(int column) const;
  std::string TextAt(int row, int column) const;

  HWND list_;
  HWND header_;
  Elsewhere there_;
};

}  // namespace person
