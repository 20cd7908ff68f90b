#include "src/records/request.h"

#include <algorithm>
#include <cmath>

#include "base/vb/date.h"
#include "base/vb/number.h"

namespace goods {

std::string UpdateTimeText(const late::Value& updateTime) {
  if (!updateTime.IsDate()) return updateTime.TextOrEmpty();
  constexpr double kPerDay = 86'400'000;
  const long long time = std::llround(updateTime.ToDate().days * kPerDay);
  const std::string milliseconds = std::to_string(time % 1000);
  const vb::Date seconds{static_cast<double>(time - time % 1000) / kPerDay};
  return vb::FormatDate(seconds, "yyyy-mm-dd hh:nn:ss") + "." + std::string(3 - milliseconds.size(), '0') + milliseconds;
}

double RequestLine::Quantity() const {
  return vb::Val(quantity);
}

bool Request::HasLineWithQuantity() const {
  return std::any_of(lines.begin(), lines.end(), [](const RequestLine& line) { return line.Quantity() > 0; });
}

}  // namespace goods
