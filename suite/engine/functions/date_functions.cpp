#include <algorithm>

#include "base/vb/date.h"
#include "suite/engine/functions/server_functions.h"
#include "suite/engine/values/conversion.h"

namespace suite {
namespace {

constexpr std::int64_t kSecond = 1000, kMinute = 60 * kSecond, kHour = 60 * kMinute, kDay = 24 * kHour;

std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
  return a / b - (a % b < 0 ? 1 : 0);
}

/// Integer days since the zero date, and the milliseconds after them.
std::int64_t DayOf(std::int64_t date) {
  return FloorDivide(date, kDay);
}
std::int64_t TimeOf(std::int64_t date) {
  return date - DayOf(date) * kDay;
}

vb::DateParts PartsOfDay(std::int64_t date) {
  return vb::PartsOf(FromMilliseconds(DayOf(date) * kDay));
}

/// The number of units of the part before the date: differences of these are what datediff counts.
std::int64_t Ordinal(std::string_view part, std::int64_t date) {
  const vb::DateParts p = PartsOfDay(date);
  if (part == "year") return p.year;
  if (part == "quarter") return p.year * 4 + (p.month - 1) / 3;
  if (part == "month") return p.year * 12 + p.month - 1;
  if (part == "week") return FloorDivide(DayOf(date) - 1, 7);  // weeks begin on Sunday; day 1 of the count was one
  if (part == "day") return DayOf(date);
  if (part == "hour") return FloorDivide(date, kHour);
  if (part == "minute") return FloorDivide(date, kMinute);
  if (part == "second") return FloorDivide(date, kSecond);
  return date;
}

void DatePart(const FunctionCall& call) {
  const std::string_view part = call.Text(0);
  const std::int64_t date = call.Integer(1), time = TimeOf(date);
  const vb::DateParts p = PartsOfDay(date);
  if (part == "year") return call.Return(std::int64_t{p.year});
  if (part == "quarter") return call.Return(std::int64_t{(p.month - 1) / 3 + 1});
  if (part == "month") return call.Return(std::int64_t{p.month});
  if (part == "day") return call.Return(std::int64_t{p.day});
  if (part == "week") {
    const std::int64_t newYear = ToMilliseconds(vb::MakeDate(p.year, 1, 1));
    return call.Return(Ordinal("week", date) - Ordinal("week", newYear) + 1);
  }
  if (part == "hour") return call.Return(time / kHour);
  if (part == "minute") return call.Return(time / kMinute % 60);
  if (part == "second") return call.Return(time / kSecond % 60);
  call.Return(time % kSecond);
}

std::int64_t AddMonths(std::int64_t date, std::int64_t months) {
  const vb::DateParts p = PartsOfDay(date);
  const std::int64_t total = p.year * 12LL + p.month - 1 + months;
  const auto year = static_cast<int>(FloorDivide(total, 12));
  const auto month = static_cast<int>(total - FloorDivide(total, 12) * 12 + 1);
  if (year < 1753 || year > 9999) RaiseServer(kDateOverflow, "Adding a value to a 'datetime' column caused overflow.");
  const std::int64_t first = ToMilliseconds(vb::MakeDate(year, month, 1));
  // The 31st moves to the last day of a shorter month.
  for (std::int64_t day = p.day - 1;; --day) {
    const std::int64_t moved = first + day * kDay;
    if (PartsOfDay(moved).month == month) return moved + TimeOf(date);
  }
}

void DateAdd(const FunctionCall& call) {
  const std::string_view part = call.Text(0);
  const std::int64_t count = call.Integer(1), date = call.Integer(2);
  if (part == "year") return call.Return(AddMonths(date, count * 12));
  if (part == "quarter") return call.Return(AddMonths(date, count * 3));
  if (part == "month") return call.Return(AddMonths(date, count));
  const std::int64_t unit = part == "week"     ? 7 * kDay
                            : part == "day"    ? kDay
                            : part == "hour"   ? kHour
                            : part == "minute" ? kMinute
                            : part == "second" ? kSecond
                                               : 1;
  call.Return(date + count * unit);
}

void DateDiff(const FunctionCall& call) {
  call.Return(Ordinal(call.Text(0), call.Integer(2)) - Ordinal(call.Text(0), call.Integer(1)));
}

void Year(const FunctionCall& call) {
  call.Return(std::int64_t{PartsOfDay(call.Integer(0)).year});
}
void Month(const FunctionCall& call) {
  call.Return(std::int64_t{PartsOfDay(call.Integer(0)).month});
}
void Day(const FunctionCall& call) {
  call.Return(std::int64_t{PartsOfDay(call.Integer(0)).day});
}

/// One time for the whole statement, as on the server.
void GetDate(const FunctionCall& call) {
  FunctionContext& functions = call.Functions();
  if (!functions.now) functions.now = ToMilliseconds(functions.clock());
  call.Return(*functions.now);
}

}  // namespace

std::vector<detail::FunctionEntry> detail::DateFunctions() {
  return {{"srv_datepart", 2, DatePart}, {"srv_dateadd", 3, DateAdd}, {"srv_datediff", 3, DateDiff},     {"srv_year", 1, Year},
          {"srv_month", 1, Month},       {"srv_day", 1, Day},         {"srv_getdate", 0, GetDate, false}};
}

}  // namespace suite
