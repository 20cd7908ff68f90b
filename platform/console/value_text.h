#pragma once

#include <string>

#include "base/late/value.h"

namespace console {

/// A value as `value:` and `call:` write it: text in quotes, plain numbers, true, false, null, empty, dates as
/// yyyy-mm-dd hh:mm:ss; a form or control its name, any other object `<object>`.
std::string ValueText(const late::Value& value);

/// A value as a cell of `row:` writes it: escaped but without quotes, null as \N, flags as 0 and 1.
std::string CellText(const late::Value& value);

}  // namespace console
