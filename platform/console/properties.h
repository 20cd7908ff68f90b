#pragma once

#include <span>
#include <string_view>

#include "base/controls/form.h"

namespace console {

/// A property by its late-bound name; of a list also `SubItemToolTip(n,c)`, and as a person sees them `SelectedItem`, a number,
/// and `ToolTipText`, that under the mouse. A CommandError for an unknown property; the model's own error for wrong indexes.
late::Value ReadProperty(controls::Control& control, std::string_view property, std::span<const long> indexes);
/// The same for a form: its classic properties and its published fields.
late::Value ReadProperty(controls::Form& form, std::string_view property, std::span<const long> indexes);

}  // namespace console
