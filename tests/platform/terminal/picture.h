#pragma once

#include <optional>
#include <string>
#include <vector>

namespace live {

/// What a person reads of the form in front.
class Picture {
 public:
  struct Place {
    int x = 0, y = 0;
  };
  /// The form or message with this title; nothing when its frame is not whole on the screen.
  static std::optional<Picture> Find(const std::vector<std::string>& screen, const std::string& title);

  /// Whether the mark of the focus is at "list", the label of a box or the caption of a button.
  bool HasFocusAt(const std::string& place) const;
  /// What the box that has the focus holds, or the one after a label.
  std::optional<std::string> Focused() const;
  std::optional<std::string> After(const std::string& label) const;
  bool HasSelected(const std::string& cell) const;
  int RowCount() const;
  bool HasInFront(const std::string& page) const;
  /// The lines of a message above its buttons, with a blank between them.
  std::string Message() const;

  /// Where to click, on the whole screen: the box after a label; the chosen row of the list, or where it would be.
  std::optional<Place> PlaceAfter(const std::string& label) const;
  std::optional<Place> PlaceOfList() const;
  std::optional<Place> PlaceOf(const std::string& text) const;
  bool IsDropDown(const Place& place) const;

 private:
  using Line = std::u32string;
  std::optional<std::size_t> HeadingLine() const;
  std::optional<std::string> FieldAt(std::size_t line, std::size_t from) const;

  std::vector<Line> lines_;  ///< inside the frame
  int x_ = 0, y_ = 0;
};

}  // namespace live
