#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/late/value.h"

namespace suite {

/// A stored procedure's work: from its arguments (defaults filled in, converted to the declared types) the select that gives its
/// rows.
using Procedure = std::string (*)(const std::vector<late::Value>& arguments);

/// The function registered for a stored procedure's name, or null. The procedure itself is created by the schema script; the
/// engine runs the registered function in place of the procedure's body.
Procedure FindProcedure(std::string_view name);

}  // namespace suite
