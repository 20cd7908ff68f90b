#include "src/records/request.h"

#include <algorithm>

#include "base/vb/number.h"

namespace goods {

double RequestLine::Quantity() const {
  return vb::Val(quantity);
}

bool Request::HasLineWithQuantity() const {
  return std::any_of(lines.begin(), lines.end(), [](const RequestLine& line) { return line.Quantity() > 0; });
}

}  // namespace goods
