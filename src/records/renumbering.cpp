#include "src/records/renumbering.h"

#include <string>

namespace goods {

void RenumberLines(controls::ListView& lines) {
  for (int line = 1; line <= lines.Count(); ++line) lines.Item(line).SetText(std::to_string(line));
}

}  // namespace goods
