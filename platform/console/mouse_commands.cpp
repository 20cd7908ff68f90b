#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/keyboard.h"
#include "base/controls/list_view.h"
#include "base/controls/tab_control.h"
#include "base/vb/text.h"
#include "platform/console/acting_commands.h"
#include "platform/console/control_finder.h"
#include "platform/console/escape.h"

namespace console {
namespace {

using controls::Control;
using controls::FlexGrid;
using controls::ListView;

/// The focus comes with a click; false when a handler keeps it elsewhere or closes the form.
bool TakeFocus(Control& control) {
  controls::Form& form = control.Owner();
  return control.HasFocus() || (form.MoveFocus(&control) && controls::CanGoOnTyping(form, control));
}

void CheckRow(const FlexGrid& grid, long row) {
  if (row < 0 || row >= grid.Rows()) {
    throw CommandError(grid.Name() + " has the rows 0 to " + std::to_string(grid.Rows() - 1));
  }
}

void CheckColumn(const FlexGrid& grid, long col) {
  if (col < 0 || col >= grid.Cols()) {
    throw CommandError(grid.Name() + " has the columns 0 to " + std::to_string(grid.Cols() - 1));
  }
}

int CheckLine(const ListView& list, long line) {
  if (line < 1 || line > list.Count()) throw CommandError(list.Name() + " has the lines 1 to " + std::to_string(list.Count()));
  return static_cast<int>(line);
}

void ClickCurrent(FlexGrid& grid) {
  if (grid.Row() >= 0 && grid.Row() < grid.Rows() && grid.Col() >= 0 && grid.Col() < grid.Cols()) {
    grid.ClickCell(grid.Row(), grid.Col());
  } else {
    grid.Click.Fire();
  }
}

void ClickCurrent(ListView& list) {
  if (list.SelectedItem() > 0) {
    list.ClickItem(list.SelectedItem());
  } else {
    list.Click.Fire();
  }
}

void Click(TextDesktop& desktop, Words& words) {
  Control& control = ControlToActOn(desktop, words.Need("a control"));
  words.End();
  switch (control.Kind()) {
    case controls::ControlKind::CommandButton:
    case controls::ControlKind::OptionButton:
    case controls::ControlKind::CheckBox:
      controls::ClickControl(control);
      break;
    case controls::ControlKind::FlexGrid:
      if (TakeFocus(control)) ClickCurrent(As<FlexGrid>(control, "grid"));
      break;
    case controls::ControlKind::ListView:
      if (TakeFocus(control)) ClickCurrent(As<ListView>(control, "list"));
      break;
    case controls::ControlKind::Menu:
      control.Click.Fire();
      break;
    default:
      if (!control.CanFocus() || TakeFocus(control)) control.Click.Fire();
  }
}

void DoubleClick(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  words.End();
  if (!TakeFocus(control)) return;
  if (auto* grid = controls::As<FlexGrid>(&control)) {
    ClickCurrent(*grid);
  } else if (auto* list = controls::As<ListView>(&control)) {
    ClickCurrent(*list);
  }
  if (controls::CanGoOnTyping(control.Owner(), control)) control.DblClick.Fire();
}

void RightClick(TextDesktop& desktop, Words& words) {
  Control& control = ControlToActOn(desktop, words.Need("a control"));
  words.End();
  controls::RightClickControl(control);
}

void Hover(TextDesktop& desktop, Words& words) {
  Control& control = ControlToActOn(desktop, words.Need("a control"));
  auto* grid = controls::As<FlexGrid>(&control);
  auto* list = controls::As<ListView>(&control);
  if (words.AtEnd() || (!grid && !list)) {
    words.End();
    control.MouseMove.Fire();
    return;
  }
  const long row = words.NeedNumber("the row");
  const long col = words.NeedNumber("the column");
  words.End();
  if (list) {
    const int line = CheckLine(*list, row);
    if (col < 1 || col > list->ColumnCount()) {
      throw CommandError(list->Name() + " has the columns 1 to " + std::to_string(list->ColumnCount()));
    }
    list->MoveMouse(line, static_cast<int>(col));
    return;
  }
  CheckRow(*grid, row);
  CheckColumn(*grid, col);
  grid->MoveMouse(row, col);
}

int EntryWithText(const std::vector<std::string>& entries, const std::string& text, const std::string& where) {
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i] == text) return static_cast<int>(i);
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (vb::EqualNoCase(entries[i], text)) return static_cast<int>(i);
  }
  throw CommandError(where + " has no entry " + Quote(text));
}

std::vector<std::string> EntriesOf(const Control& control) {
  std::vector<std::string> entries;
  if (const auto* combo = controls::As<controls::ComboBox>(&control)) {
    for (int i = 0; i < combo->ListCount(); ++i) entries.push_back(combo->List(i));
  } else if (const auto* list = controls::As<ListView>(&control)) {
    for (int i = 1; i <= list->Count(); ++i) entries.push_back(list->Item(i).Text());
  } else {
    throw CommandError(control.Name() + " is no combo box or list");
  }
  return entries;
}

/// `#N` or the text of an entry, as its index from 0.
int ChosenEntry(const Control& control, const Words& words) {
  const std::vector<std::string> entries = EntriesOf(control);
  const std::string text = words.Text();
  long number = 0;
  if (text.starts_with('#') && ReadNumber(vb::Trim(std::string_view(text).substr(1)), number)) {
    if (number < 0 || number >= static_cast<long>(entries.size())) {
      throw CommandError(control.Name() + " has " + std::to_string(entries.size()) + " entries, counted from 0");
    }
    return static_cast<int>(number);
  }
  return EntryWithText(entries, text, control.Name());
}

void Choose(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  ChosenEntry(control, words);
  if (!TakeFocus(control)) return;
  const int index = ChosenEntry(control, words);  // a got-focus handler may have filled the list again
  if (auto* combo = controls::As<controls::ComboBox>(&control)) {
    combo->Pick(index);
  } else {
    As<ListView>(control, "list").ClickItem(index + 1);
  }
}

void Check(TextDesktop& desktop, Words& words, bool wanted) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  if (words.AtEnd()) {
    auto& box = As<controls::CheckBox>(control, "check box");
    if (box.IsChecked() != wanted) controls::ClickControl(box);
    return;
  }
  auto& list = As<ListView>(control, "list");
  const int line = CheckLine(list, words.NeedNumber("the line"));
  words.End();
  if (!list.CheckBoxes()) throw CommandError(list.Name() + " has no check boxes");
  if (TakeFocus(list) && list.Item(line).Checked() != wanted) list.CheckItem(line, wanted);
}

void Row(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  const long row = words.NeedNumber("the row");
  if (auto* grid = controls::As<FlexGrid>(&control)) {
    CheckRow(*grid, row);
    const long col = words.AtEnd() ? grid->Col() : words.NeedNumber("the column");
    words.End();
    CheckColumn(*grid, col);
    if (TakeFocus(control)) grid->ClickCell(row, col);
    return;
  }
  words.End();
  auto& list = As<ListView>(control, "grid or list");
  const int line = CheckLine(list, row);
  if (TakeFocus(control)) list.ClickItem(line);
}

/// Unlike `row NAME 0`, which makes the heading row current, as code could.
void Heading(TextDesktop& desktop, Words& words) {
  auto& grid = As<FlexGrid>(ControlToFocus(desktop, words.Need("a grid")), "grid");
  const long col = words.NeedNumber("the column");
  words.End();
  CheckColumn(grid, col);
  if (grid.FixedRows() == 0) throw CommandError(grid.Name() + " has no headings");
  if (TakeFocus(grid)) grid.ClickHeading(col);
}

void Select(TextDesktop& desktop, Words& words) {
  auto& grid = As<FlexGrid>(ControlToFocus(desktop, words.Need("a grid")), "grid");
  const long first = words.NeedNumber("the first row");
  const long last = words.NeedNumber("the last row");
  words.End();
  CheckRow(grid, first);
  CheckRow(grid, last);
  if (TakeFocus(grid)) grid.SelectRange(first, last);
}

void Tab(TextDesktop& desktop, Words& words) {
  auto& tab = As<controls::TabControl>(ControlToActOn(desktop, words.Need("a tabbed control")), "tabbed control");
  const long page = words.NeedNumber("the page");
  words.End();
  if (page < 0 || page >= tab.Tabs()) throw CommandError(tab.Name() + " has the pages 0 to " + std::to_string(tab.Tabs() - 1));
  if (!tab.TabVisible(static_cast<int>(page))) throw CommandError("page " + std::to_string(page) + " is hidden");
  if (!tab.CanFocus() || TakeFocus(tab)) tab.SetTab(static_cast<int>(page));
}

}  // namespace

CommandGroup MouseCommands(TextDesktop& desktop) {
  using Run = void (*)(TextDesktop&, Words&);
  const auto on = [&desktop](Run run) { return [&desktop, run](Words& words) { run(desktop, words); }; };
  CommandGroup group{"With the mouse", {}};
  const auto add = [&](std::string_view verb, std::string_view arguments, std::string_view purpose, auto run) {
    group.commands.push_back({verb, arguments, purpose, Moment::FormActive, std::move(run)});
  };
  add("click", "NAME", "a button, option, check box or menu entry", on(Click));
  add("dblclick", "NAME", "the current line of a grid or list", on(DoubleClick));
  add("rightclick", "NAME", "its pop-up menu", on(RightClick));
  add("hover", "NAME [ROW COL]", "move the mouse over it", on(Hover));
  add("choose", "NAME #N | TEXT", "an entry of a combo box or list, N from 0", on(Choose));
  add("check", "NAME [N]", "a check box, or line N of a list", [&desktop](Words& words) { Check(desktop, words, true); });
  add("uncheck", "NAME [N]", "the same, cleared", [&desktop](Words& words) { Check(desktop, words, false); });
  add("row", "NAME N [COL]", "row N of a grid (0 is the heading), line N of a list (from 1)", on(Row));
  add("heading", "NAME COL", "the heading of a grid's column, which may sort", on(Heading));
  add("select", "NAME FIRST LAST", "several rows of a grid", on(Select));
  add("tab", "NAME N", "page N of a tabbed control, from 0", on(Tab));
  add("close", "", "the form, by its title bar", [&desktop](Words& words) {
    words.End();
    ActiveForm(desktop).CloseByUser();
  });
  return group;
}

}  // namespace console
