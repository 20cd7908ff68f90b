#include "platform/console/looking_commands.h"

#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/vb/text.h"
#include "platform/console/control_finder.h"
#include "platform/console/escape.h"
#include "platform/console/properties.h"
#include "platform/console/value_text.h"
#include "platform/text/drawing/form_picture.h"

namespace console {
namespace {

std::string FocusName(const TextDesktop& desktop) {
  const controls::Form* form = desktop.ActiveForm();
  return form && form->ActiveControl() ? form->Name() + '.' + form->ActiveControl()->Name() : "";
}

/// `focus`, `form`, `clipboard`, `control.property`, `form.property` or `form.control.property`.
late::Value Read(const TextDesktop& desktop, std::string_view what) {
  if (vb::EqualNoCase(what, "focus")) return FocusName(desktop);
  if (vb::EqualNoCase(what, "form")) return desktop.ActiveForm() ? desktop.ActiveForm()->Name() : std::string();
  if (vb::EqualNoCase(what, "clipboard")) return desktop.ClipboardText();
  const PropertyPath path = ParsePropertyPath(what);
  if (path.names.size() < 2 || path.names.size() > 3) throw CommandError("NAME.PROPERTY is expected, not " + Quote(what));
  const std::string& property = path.names.back();
  if (path.names.size() == 3) {
    return ReadProperty(ControlToRead(desktop, path.names[0] + '.' + path.names[1]), property, path.indexes);
  }
  if (const controls::Form* active = desktop.ActiveForm()) {
    if (controls::Control* control = active->FindControl(path.names[0])) return ReadProperty(*control, property, path.indexes);
  }
  if (controls::Form* form = desktop.FindLoaded(path.names[0])) return ReadProperty(*form, property, path.indexes);
  throw CommandError("no control or loaded form " + Quote(path.names[0]));
}

void DumpGrid(const controls::FlexGrid& grid, Output& output) {
  for (long row = 0; row < grid.Rows(); ++row) {
    std::string line;
    for (long col = 0; col < grid.Cols(); ++col) {
      if (col > 0) line += '\t';
      line += Escape(grid.TextMatrix(row, col));
    }
    output.Line("row", line);
  }
}

void DumpList(const controls::ListView& list, Output& output) {
  std::string headings;
  for (int column = 1; column <= list.ColumnCount(); ++column) {
    if (column > 1) headings += '\t';
    headings += Escape(list.Column(column).text);
  }
  output.Line("row", headings);
  for (int line = 1; line <= list.Count(); ++line) {
    const controls::ListItem& item = list.Item(line);
    std::string cells = Escape(item.Text());
    for (int sub = 1; sub < list.ColumnCount(); ++sub) cells += '\t' + Escape(item.SubItem(sub));
    output.Line("row", cells);
  }
}

void Dump(const controls::Control& control, Output& output) {
  if (const auto* grid = controls::As<controls::FlexGrid>(&control)) {
    DumpGrid(*grid, output);
  } else if (const auto* list = controls::As<controls::ListView>(&control)) {
    DumpList(*list, output);
  } else if (const auto* combo = controls::As<controls::ComboBox>(&control)) {
    for (int i = 0; i < combo->ListCount(); ++i) output.Line("row", Escape(combo->List(i)));
  } else {
    throw CommandError(control.Name() + " is no grid, list or combo box");
  }
}

void Show(const TextDesktop& desktop, Output& output) {
  // A message may come before there is any form.
  if (desktop.ActiveForm() || !desktop.HasMessage()) {
    for (const std::string& line : text::DrawForm(ActiveForm(desktop))) output.Text(line);
  }
  for (const std::string& line : desktop.MessagePicture()) output.Text(line);
}

void Global(const GlobalReader& globals, std::string_view name, Output& output) {
  const late::Value value = globals(name);
  if (value.IsMissing()) throw CommandError("no global " + Quote(name));
  output.Line("value", ValueText(value));
}

}  // namespace

CommandGroup LookingCommands(const TextDesktop& desktop, Output& output, GlobalReader globals) {
  CommandGroup group{"Looking", {}};
  group.commands.push_back({"show", "", "the active form as a picture", Moment::Always, [&](Words& words) {
                              words.End();
                              Show(desktop, output);
                            }});
  group.commands.push_back(
      {"get", "NAME.PROPERTY | focus | form", "a property, e.g. get txtRemarks.Text", Moment::Always, [&](Words& words) {
         if (words.AtEnd()) throw CommandError("NAME.PROPERTY is missing");
         output.Line("value", ValueText(Read(desktop, vb::Trim(words.Raw()))));
       }});
  group.commands.push_back({"dump", "NAME", "every line of a grid, list or combo box", Moment::Always, [&](Words& words) {
                              const std::string_view name = words.Need("a control");
                              words.End();
                              Dump(ControlToRead(desktop, name), output);
                            }});
  group.commands.push_back(
      {"global", "NAME", "a value of the session", Moment::Always, [&output, globals = std::move(globals)](Words& words) {
         const std::string_view name = words.Need("a global");
         words.End();
         Global(globals, name, output);
       }});
  return group;
}

}  // namespace console
