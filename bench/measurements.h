#pragma once

#include <string>

namespace bench {

/// The keys for forty lines, by each way to enter them, and the pasting of a thousand.
void MeasureCounter();

/// What the program's live terminal costs, in an application folder.
void MeasureTerminal(const std::string& program, const std::string& folder);

}  // namespace bench
