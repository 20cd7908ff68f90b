#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/alignment.h"

namespace controls {
class Control;
}

namespace text {

/// Attributes of a cell, added up. Marks in the picture repeat them for output that has only characters.
enum Look : unsigned char { kPlain = 0, kDim = 1, kChosen = 2, kRed = 4, kUnderlined = 8 };
using Looks = unsigned char;

struct Cell {
  char32_t character = U' ';
  Looks looks = kPlain;
  bool operator==(const Cell&) const = default;
};
/// The cell right of a wide character, which covers it.
inline constexpr char32_t kCovered = U'\0';

/// What a part of a picture shows, for a mouse that points at it.
struct Spot {
  enum class Part { Whole, Text, DropDown, Heading, Row, Box, Page, Answer, Entry };
  controls::Control* control = nullptr;
  Part part = Part::Whole;
  /// Of rows the row's number in its control, of a line of text the number of its first character, else of the page or answer.
  long index = 0;
  long column = 0;  ///< of headings, as the control counts them
  int x = 0, y = 0, width = 0, height = 1;
  bool Holds(int atX, int atY) const { return atX >= x && atX < x + width && atY >= y && atY < y + height; }
};

struct Point {
  int x = 0, y = 0;
};

/// A sheet of character cells that grows as it is written on, and the spots on it. Columns and rows count from 0; a wide
/// character takes two columns, a combining one none.
class Canvas {
 public:
  void Put(int column, int row, std::string_view text, Looks looks = kPlain);
  /// The text without its "&" marks; the character of the access key is underlined.
  void PutCaption(int column, int row, std::string_view caption, Looks looks = kPlain);
  /// Lays another sheet on this one; its blanks cover nothing.
  void Paste(int column, int row, const Canvas& sheet);
  /// The same, but all of its rectangle is covered.
  void Cover(int column, int row, const Canvas& sheet);
  /// A rectangle of the sheet, with what of its spots is inside.
  Canvas Part(int column, int row, int width, int height) const;
  /// A frame with a title in its upper and a note in its lower edge; at least 2 by 2.
  void Box(int column, int row, int width, int height, std::string_view title, std::string_view note = {});
  void AddLooks(int column, int row, int width, Looks looks);

  void Mark(Spot spot) { spots_.push_back(spot); }
  const std::vector<Spot>& Spots() const { return spots_; }
  /// The topmost spot there; null where there is none.
  const Spot* SpotAt(int column, int row) const;
  /// Where the next typed character goes, or what has the focus; nothing when that is elsewhere.
  const std::optional<Point>& Caret() const { return caret_; }
  void SetCaret(Point caret) { caret_ = caret; }

  int Width() const;
  int Height() const { return static_cast<int>(rows_.size()); }
  /// A blank where nothing was written.
  Cell At(int column, int row) const;
  /// The rows without their trailing blanks.
  std::vector<std::string> Lines() const;

 private:
  std::vector<Cell>& Row(int row, int width);
  void TakeSpots(int column, int row, const Canvas& sheet);

  std::vector<std::vector<Cell>> rows_;
  std::vector<Spot> spots_;
  std::optional<Point> caret_;
};

using Align = controls::Alignment;

/// A caption as it reads: "&New" is New, "&&" an ampersand.
std::string PlainCaption(std::string_view caption);
/// The text in exactly `width` columns: padded, or cut with an ellipsis. Line breaks and tabs become blanks.
std::string Fit(std::string_view text, int width, Align align = Align::Left);
/// Breaks at blanks and line ends so that no line is longer than `width`, long words excepted.
std::vector<std::string> Wrapped(std::string_view text, int width);
/// Columns that the character takes: 0, 1 or 2.
int ColumnsOf(char32_t character);
/// Columns of the text.
int Length(std::string_view text);

}  // namespace text
