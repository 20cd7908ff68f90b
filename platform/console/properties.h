#pragma once

#include <span>
#include <string_view>

#include "base/controls/form.h"

namespace console {

/// A property by its classic name, with the console's own for list lines and tabs (`SubItem(n,c)`, `TabVisible(n)`). Colours are
/// unsigned numbers. A CommandError for an unknown property or a wrong number of indexes; the model's own error for a wrong
/// index.
late::Value ReadProperty(controls::Control& control, std::string_view property, std::span<const long> indexes);
/// The same for a form: its classic properties and its published fields.
late::Value ReadProperty(controls::Form& form, std::string_view property, std::span<const long> indexes);

}  // namespace console
