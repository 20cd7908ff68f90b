#include "platform/console/properties.h"

#include <functional>
#include <optional>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"
#include "base/vb/text.h"
#include "platform/console/command_line.h"
#include "platform/console/escape.h"

namespace console {
namespace {

using late::Value;

template <class Kind>
struct Property {
  std::string_view name;
  std::size_t indexCount;
  std::function<Value(const Kind&, std::span<const long>)> read;
};

Value ColorValue(controls::Color color) {
  return Value(static_cast<std::int64_t>(color));
}
Value Number(long number) {
  return Value(static_cast<std::int64_t>(number));
}
int Index(std::span<const long> indexes, std::size_t which = 0) {
  return static_cast<int>(indexes[which]);
}

/// An empty answer when the kind has no such property.
template <class Kind>
std::optional<Value> ReadFrom(const std::vector<Property<Kind>>& properties, const Kind& object, std::string_view name,
                              std::span<const long> indexes) {
  for (const Property<Kind>& property : properties) {
    if (!vb::EqualNoCase(property.name, name)) continue;
    if (property.indexCount != indexes.size()) {
      throw CommandError(std::string(property.name) + " takes " + std::to_string(property.indexCount) + " indexes");
    }
    return property.read(object, indexes);
  }
  return std::nullopt;
}

using controls::Control;
const std::vector<Property<Control>>& CommonProperties() {
  static const std::vector<Property<Control>> properties = {
      {"Enabled", 0, [](const Control& c, auto) { return Value(c.Enabled()); }},
      {"Visible", 0, [](const Control& c, auto) { return Value(c.Visible()); }},
      {"Tag", 0, [](const Control& c, auto) { return Value(c.Tag()); }},
      {"ToolTipText", 0, [](const Control& c, auto) { return Value(c.ToolTipText()); }},
      {"Left", 0, [](const Control& c, auto) { return Value(c.Place().left); }},
      {"Top", 0, [](const Control& c, auto) { return Value(c.Place().top); }},
      {"Width", 0, [](const Control& c, auto) { return Value(c.Place().width); }},
      {"Height", 0, [](const Control& c, auto) { return Value(c.Place().height); }},
      {"ForeColor", 0, [](const Control& c, auto) { return ColorValue(c.ForeColor()); }},
      {"BackColor", 0, [](const Control& c, auto) { return ColorValue(c.BackColor()); }},
      {"Name", 0, [](const Control& c, auto) { return Value(c.Name()); }},
  };
  return properties;
}

using controls::ComboBox;
const std::vector<Property<ComboBox>>& ComboProperties() {
  static const std::vector<Property<ComboBox>> properties = {
      {"Text", 0, [](const ComboBox& c, auto) { return Value(c.Text()); }},
      {"ListIndex", 0, [](const ComboBox& c, auto) { return Value(c.ListIndex()); }},
      {"ListCount", 0, [](const ComboBox& c, auto) { return Value(c.ListCount()); }},
      {"List", 1, [](const ComboBox& c, auto i) { return Value(c.List(Index(i))); }},
      {"ItemData", 1, [](const ComboBox& c, auto i) { return Value(c.ItemData(Index(i))); }},
      {"NewIndex", 0, [](const ComboBox& c, auto) { return Value(c.NewIndex()); }},
      {"SelStart", 0, [](const ComboBox& c, auto) { return Value(c.SelStart()); }},
      {"SelLength", 0, [](const ComboBox& c, auto) { return Value(c.SelLength()); }},
  };
  return properties;
}

using controls::TextBox;
const std::vector<Property<TextBox>>& TextBoxProperties() {
  static const std::vector<Property<TextBox>> properties = {
      {"Text", 0, [](const TextBox& t, auto) { return Value(t.Text()); }},
      {"SelStart", 0, [](const TextBox& t, auto) { return Value(t.SelStart()); }},
      {"SelLength", 0, [](const TextBox& t, auto) { return Value(t.SelLength()); }},
      {"SelText", 0, [](const TextBox& t, auto) { return Value(t.SelText()); }},
      {"MaxLength", 0, [](const TextBox& t, auto) { return Value(t.MaxLength()); }},
      {"Locked", 0, [](const TextBox& t, auto) { return Value(t.Locked()); }},
  };
  return properties;
}

using controls::FlexGrid;
const std::vector<Property<FlexGrid>>& GridProperties() {
  static const std::vector<Property<FlexGrid>> properties = {
      {"Rows", 0, [](const FlexGrid& g, auto) { return Number(g.Rows()); }},
      {"Cols", 0, [](const FlexGrid& g, auto) { return Number(g.Cols()); }},
      {"FixedRows", 0, [](const FlexGrid& g, auto) { return Number(g.FixedRows()); }},
      {"FixedCols", 0, [](const FlexGrid& g, auto) { return Number(g.FixedCols()); }},
      {"Row", 0, [](const FlexGrid& g, auto) { return Number(g.Row()); }},
      {"Col", 0, [](const FlexGrid& g, auto) { return Number(g.Col()); }},
      {"RowSel", 0, [](const FlexGrid& g, auto) { return Number(g.RowSel()); }},
      {"ColSel", 0, [](const FlexGrid& g, auto) { return Number(g.ColSel()); }},
      {"TopRow", 0, [](const FlexGrid& g, auto) { return Number(g.TopRow()); }},
      {"MouseRow", 0, [](const FlexGrid& g, auto) { return Number(g.MouseRow()); }},
      {"MouseCol", 0, [](const FlexGrid& g, auto) { return Number(g.MouseCol()); }},
      {"Text", 0, [](const FlexGrid& g, auto) { return Value(g.Text()); }},
      {"TextMatrix", 2, [](const FlexGrid& g, auto i) { return Value(g.TextMatrix(i[0], i[1])); }},
      {"CellForeColor", 2, [](const FlexGrid& g, auto i) { return ColorValue(g.CellForeColor(i[0], i[1])); }},
      {"CellBackColor", 2, [](const FlexGrid& g, auto i) { return ColorValue(g.CellBackColor(i[0], i[1])); }},
      {"BackColorSel", 0, [](const FlexGrid& g, auto) { return ColorValue(g.BackColorSel()); }},
      {"ForeColorSel", 0, [](const FlexGrid& g, auto) { return ColorValue(g.ForeColorSel()); }},
      {"ColWidth", 1, [](const FlexGrid& g, auto i) { return Value(g.ColWidth(i[0])); }},
      {"ColAlignment", 1, [](const FlexGrid& g, auto i) { return Value(static_cast<int>(g.ColAlignment(i[0]))); }},
  };
  return properties;
}

using controls::ListView;
const std::vector<Property<ListView>>& ListProperties() {
  static const std::vector<Property<ListView>> properties = {
      {"Count", 0, [](const ListView& l, auto) { return Value(l.Count()); }},
      {"SelectedItem", 0, [](const ListView& l, auto) { return Value(l.SelectedItem()); }},
      {"ColumnCount", 0, [](const ListView& l, auto) { return Value(l.ColumnCount()); }},
      {"ToolTipText", 0, [](const ListView& l, auto) { return Value(l.ToolTipUnderMouse()); }},
      {"CheckBoxes", 0, [](const ListView& l, auto) { return Value(l.CheckBoxes()); }},
      {"Checked", 1, [](const ListView& l, auto i) { return Value(l.Item(Index(i)).Checked()); }},
      {"SubItem", 2,
       [](const ListView& l, auto i) {
         const controls::ListItem& line = l.Item(Index(i));
         return Value(i[1] == 0 ? line.Text() : line.SubItem(Index(i, 1)));
       }},
      {"SubItemToolTip", 2, [](const ListView& l, auto i) { return Value(l.Item(Index(i)).SubItemToolTip(Index(i, 1))); }},
      {"ColumnHeader", 1, [](const ListView& l, auto i) { return Value(l.Column(Index(i)).text); }},
      {"ColumnWidth", 1, [](const ListView& l, auto i) { return Value(l.Column(Index(i)).width); }},
      {"Alignment", 1, [](const ListView& l, auto i) { return Value(static_cast<int>(l.Column(Index(i)).alignment)); }},
  };
  return properties;
}

using controls::TabControl;
const std::vector<Property<TabControl>>& TabProperties() {
  static const std::vector<Property<TabControl>> properties = {
      {"Tab", 0, [](const TabControl& t, auto) { return Value(t.Tab()); }},
      {"Tabs", 0, [](const TabControl& t, auto) { return Value(t.Tabs()); }},
      {"TabVisible", 1, [](const TabControl& t, auto i) { return Value(t.TabVisible(Index(i))); }},
      {"TabCaption", 1, [](const TabControl& t, auto i) { return Value(t.TabCaption(Index(i))); }},
  };
  return properties;
}

std::optional<Value> ReadOwn(const Control& control, std::string_view name, std::span<const long> indexes) {
  const auto from = [&]<class Kind>(const std::vector<Property<Kind>>& properties) {
    return ReadFrom(properties, dynamic_cast<const Kind&>(control), name, indexes);
  };
  switch (control.Kind()) {
    case controls::ControlKind::ComboBox:
      return from(ComboProperties());
    case controls::ControlKind::TextBox:
      return from(TextBoxProperties());
    case controls::ControlKind::FlexGrid:
      return from(GridProperties());
    case controls::ControlKind::ListView:
      return from(ListProperties());
    case controls::ControlKind::TabControl:
      return from(TabProperties());
    case controls::ControlKind::OptionButton:
      if (vb::EqualNoCase(name, "Value")) return Value(dynamic_cast<const controls::OptionButton&>(control).Value());
      break;
    case controls::ControlKind::CheckBox:
      if (vb::EqualNoCase(name, "Value")) return Value(dynamic_cast<const controls::CheckBox&>(control).Value());
      break;
    default:
      break;
  }
  return std::nullopt;
}

const std::vector<Property<controls::Form>>& FormProperties() {
  using controls::Form;
  static const std::vector<Property<Form>> properties = {
      {"Caption", 0, [](const Form& f, auto) { return Value(f.Caption()); }},
      {"Width", 0, [](const Form& f, auto) { return Value(f.Width()); }},
      {"Height", 0, [](const Form& f, auto) { return Value(f.Height()); }},
      {"Visible", 0, [](const Form& f, auto) { return Value(f.IsShown()); }},
      {"Tag", 0, [](const Form& f, auto) { return Value(f.Tag()); }},
      {"BackColor", 0, [](const Form& f, auto) { return ColorValue(f.BackColor()); }},
      {"MousePointer", 0, [](const Form& f, auto) { return Value(f.MousePointer()); }},
      {"Name", 0, [](const Form& f, auto) { return Value(f.Name()); }},
  };
  return properties;
}

/// What the tables do not list is asked of the object itself.
Value ReadLate(late::Object& object, const std::string& owner, std::string_view property, std::span<const long> indexes) {
  if (!object.Has(property)) throw CommandError(owner + " has no property " + Quote(property));
  std::vector<Value> arguments;
  for (const long index : indexes) arguments.push_back(Number(index));
  return object.Invoke(property, late::Access::Get, arguments);
}

}  // namespace

late::Value ReadProperty(controls::Control& control, std::string_view property, std::span<const long> indexes) {
  if (auto value = ReadOwn(control, property, indexes)) return *value;
  if (auto value = ReadFrom(CommonProperties(), static_cast<const Control&>(control), property, indexes)) return *value;
  return ReadLate(control, control.Name(), property, indexes);
}

late::Value ReadProperty(controls::Form& form, std::string_view property, std::span<const long> indexes) {
  if (auto value = ReadFrom(FormProperties(), static_cast<const controls::Form&>(form), property, indexes)) return *value;
  if (form.FindControl(property)) throw CommandError("a property of " + std::string(property) + " is missing");
  return ReadLate(form, form.Name(), property, indexes);
}

}  // namespace console
