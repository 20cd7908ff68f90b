#pragma once

#include <string>
#include <vector>

#include "base/controls/text_entry.h"
#include "platform/text/drawing/canvas.h"

namespace text {

/// A line of a text that is broken to fit a box.
struct TextRow {
  int start = 0;  ///< of the line's first character in the text, from 0
  std::u32string text;
};
/// Breaks after blanks and at line ends; a longer word is cut. The rows hold every character but the line ends.
std::vector<TextRow> RowsOf(std::string_view text, int width);

/// The edit field of a line, without caret and selection; `tail` is drawn inside it after the text.
std::string EditField(std::string_view text, int columns, std::string_view tail = {}, Align align = Align::Left);

/// The box as a person works in it: `rows` lines of it around the caret, the selected text chosen.
Canvas DrawEditing(controls::TextEntry& entry, int columns, int rows, std::string_view tail = {});

}  // namespace text
