#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/alignment.h"

namespace console {

/// A sheet of character cells that grows as it is written on. Columns and rows count from 0.
class Canvas {
 public:
  void Put(int column, int row, std::string_view text);
  /// Lays another sheet on this one; its blanks cover nothing.
  void Paste(int column, int row, const Canvas& sheet);
  /// A frame with a title in its upper and a note in its lower edge; at least 2 by 2.
  void Box(int column, int row, int width, int height, std::string_view title, std::string_view note = {});

  int Width() const;
  int Height() const { return static_cast<int>(rows_.size()); }
  /// The rows without their trailing blanks.
  std::vector<std::string> Lines() const;

 private:
  std::vector<std::u32string> rows_;
};

using Align = controls::Alignment;

/// The text in exactly `width` characters: padded, or cut with an ellipsis. Line breaks and tabs become blanks.
std::string Fit(std::string_view text, int width, Align align = Align::Left);
/// Breaks at blanks and line ends so that no line is longer than `width`, long words excepted.
std::vector<std::string> Wrapped(std::string_view text, int width);
/// Characters of the text.
int Length(std::string_view text);

}  // namespace console
