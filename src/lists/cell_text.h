#pragma once

#include <string>

#include "base/late/value.h"

namespace goods {

/// A field's value as the text of a grid cell: trimmed; null is empty. Takes the value's text over where it can.
std::string CellText(late::Value&& value);

}  // namespace goods
