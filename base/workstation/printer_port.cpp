#include "base/workstation/printer_port.h"

#include "base/vb/text.h"

namespace workstation {

std::string PrinterPort(std::string_view path) {
  if (path.ends_with(':')) path.remove_suffix(1);
  const std::string name = vb::UCase(path);
  const bool isNumbered =
      name.size() == 4 && name[3] >= '1' && name[3] <= '9' && (name.starts_with("LPT") || name.starts_with("COM"));
  return isNumbered || name == "PRN" ? name : "";
}

}  // namespace workstation
