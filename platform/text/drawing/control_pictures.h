#pragma once

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/controls/text_box.h"
#include "platform/text/drawing/canvas.h"
#include "platform/text/drawing/surface.h"

namespace text {

/// What an 8-point line of text takes on the screen.
inline constexpr int kTwipsPerRow = 240;

/// In front of a control: the focus, or that it is disabled; a blank otherwise.
std::string_view MarkOf(const controls::Control& control);

// The pictures of single controls. `columns` is the room that the form gives them; what must be readable takes more.
Canvas DrawLabel(const controls::Label& label, int columns);
Canvas DrawTextBox(controls::TextBox& box, int columns, const Surface& surface);
Canvas DrawComboBox(controls::ComboBox& combo, int columns, const Surface& surface);
Canvas DrawButton(const controls::CommandButton& button);
Canvas DrawOption(const controls::OptionButton& option);
Canvas DrawCheckBox(const controls::CheckBox& box);
Canvas DrawGrid(controls::FlexGrid& grid, int columns, const Surface& surface);
Canvas DrawList(controls::ListView& list, int columns, const Surface& surface);

/// Whether a row in sight is red.
bool HasRedRows(const controls::FlexGrid& grid, const Surface& surface);
bool HasRedLines(const controls::ListView& list, const Surface& surface);

/// Rows that a list shows at once on that surface, headings not counted.
long RowsShown(const controls::Control& list, const Surface& surface);

}  // namespace text
