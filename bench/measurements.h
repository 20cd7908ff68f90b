#pragma once

namespace bench {

/// The keys for forty lines, by each way to enter them, and the pasting of a thousand.
void MeasureCounter();

}  // namespace bench
