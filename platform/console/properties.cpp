#include "platform/console/properties.h"

#include <array>
#include <vector>

#include "base/controls/list_view.h"
#include "base/vb/text.h"
#include "platform/console/command_line.h"
#include "platform/console/escape.h"

namespace console {
namespace {

using controls::ListView;
using late::Value;

/// What a person sees of a list and its late-bound members do not say: they give the selected line as an object, and no tool tip
/// of a single cell.
struct SeenOfList {
  std::string_view name;
  std::size_t indexCount;
  Value (*read)(const ListView& list, std::span<const long> indexes);
};
constexpr std::array<SeenOfList, 3> kSeenOfLists = {{
    {"SelectedItem", 0, [](const ListView& list, std::span<const long>) { return Value(list.SelectedItem()); }},
    {"ToolTipText", 0, [](const ListView& list, std::span<const long>) { return Value(list.ToolTipUnderMouse()); }},
    {"SubItemToolTip", 2,
     [](const ListView& list, std::span<const long> indexes) {
       return Value(list.Item(static_cast<int>(indexes[0])).SubItemToolTip(static_cast<int>(indexes[1])));
     }},
}};

Value ReadLate(late::Object& object, const std::string& owner, std::string_view property, std::span<const long> indexes) {
  if (!object.Has(property)) throw CommandError(owner + " has no property " + Quote(property));
  std::vector<Value> arguments;
  for (const long index : indexes) arguments.emplace_back(static_cast<std::int64_t>(index));
  return object.Invoke(property, late::Access::Get, arguments);
}

}  // namespace

late::Value ReadProperty(controls::Control& control, std::string_view property, std::span<const long> indexes) {
  if (const auto* list = controls::As<ListView>(&control)) {
    for (const SeenOfList& seen : kSeenOfLists) {
      if (vb::EqualNoCase(seen.name, property) && seen.indexCount == indexes.size()) return seen.read(*list, indexes);
    }
  }
  return ReadLate(control, control.Name(), property, indexes);
}

late::Value ReadProperty(controls::Form& form, std::string_view property, std::span<const long> indexes) {
  if (form.FindControl(property)) throw CommandError("a property of " + std::string(property) + " is missing");
  return ReadLate(form, form.Name(), property, indexes);
}

}  // namespace console
