#pragma once

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/controls/text_box.h"
#include "platform/console/drawing/canvas.h"

namespace console {

/// What an 8-point line of text takes on the screen.
inline constexpr int kTwipsPerRow = 240;

/// In front of a control: the focus, or that it is disabled; a blank otherwise.
std::string_view MarkOf(const controls::Control& control);
/// A caption as it reads: "&New" is New, "&&" an ampersand.
std::string PlainCaption(std::string_view caption);

// The pictures of single controls. `columns` is the room that the form gives them; what must be readable takes more.
Canvas DrawLabel(const controls::Label& label, int columns);
Canvas DrawTextBox(const controls::TextBox& box, int columns);
Canvas DrawComboBox(const controls::ComboBox& combo, int columns);
Canvas DrawButton(const controls::CommandButton& button);
Canvas DrawOption(const controls::OptionButton& option);
Canvas DrawCheckBox(const controls::CheckBox& box);
Canvas DrawGrid(const controls::FlexGrid& grid, int columns, int twipsPerColumn);
bool HasRedRows(const controls::FlexGrid& grid);
bool HasRedLines(const controls::ListView& list);
Canvas DrawList(const controls::ListView& list, int columns, int twipsPerColumn);

}  // namespace console
