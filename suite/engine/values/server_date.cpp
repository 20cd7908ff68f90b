#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "base/vb/date.h"
#include "base/vb/text.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::int64_t kDay = 86400000;
constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// Reads numbers and separators off the front of a text.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return text_.empty(); }
  bool Take(char c) {
    if (text_.empty() || text_.front() != c) return false;
    text_.remove_prefix(1);
    return true;
  }
  bool TakeWord(std::string_view word) {
    if (!vb::EqualNoCase(text_.substr(0, word.size()), word)) return false;
    text_.remove_prefix(word.size());
    return true;
  }
  void SkipBlanks() {
    while (Take(' ')) {
    }
  }
  /// The digits at the front; returns how many.
  int Digits(int& value) {
    int count = 0;
    value = 0;
    while (!text_.empty() && text_.front() >= '0' && text_.front() <= '9' && count < 9) {
      value = value * 10 + (text_.front() - '0');
      text_.remove_prefix(1);
      ++count;
    }
    return count;
  }
  bool IsAt(char character) const { return !text_.empty() && text_.front() == character; }
  bool ColonFollowsDigits() const {
    const std::size_t end = text_.find_first_not_of("0123456789");
    return end != std::string_view::npos && text_[end] == ':';
  }

 private:
  std::string_view text_;
};

struct Parts {
  int year = 1900, month = 1, day = 1, hour = 0, minute = 0, second = 0, millisecond = 0;
};

void ReadDay(Reader& reader, Parts& parts, DateOrder order) {
  int first = 0;
  const int digits = reader.Digits(first);
  if (digits == 8) {
    parts.year = first / 10000;
    parts.month = first / 100 % 100;
    parts.day = first % 100;
    return;
  }
  const char separator = reader.Take('/') ? '/' : reader.Take('-') ? '-' : reader.Take('.') ? '.' : '\0';
  int second = 0, third = 0;
  if (digits == 0 || !separator || reader.Digits(second) == 0 || !reader.Take(separator)) RaiseDateConversion();
  const int lastDigits = reader.Digits(third);
  if (digits == 4) {
    if (lastDigits < 1 || lastDigits > 2) RaiseDateConversion();
    parts.year = first;
    parts.month = second;
    parts.day = third;
    if (order == DateOrder::DayMonthYear && !reader.IsAt('T')) std::swap(parts.month, parts.day);
  } else {
    if (digits > 2 || lastDigits != 4) RaiseDateConversion();
    parts.year = third;
    parts.month = first;
    parts.day = second;
    if (order == DateOrder::DayMonthYear) std::swap(parts.month, parts.day);
  }
}

void ReadTime(Reader& reader, Parts& parts) {
  if (!reader.Digits(parts.hour) || !reader.Take(':') || !reader.Digits(parts.minute)) RaiseDateConversion();
  if (reader.Take(':')) {
    if (!reader.Digits(parts.second)) RaiseDateConversion();
    if (reader.Take('.') || reader.Take(':')) {
      int fraction = 0;
      const int digits = reader.Digits(fraction);
      if (digits < 1 || digits > 3) RaiseDateConversion();
      parts.millisecond = fraction * (digits == 1 ? 100 : digits == 2 ? 10 : 1);
    }
  }
  reader.SkipBlanks();
  const bool afternoon = reader.TakeWord("PM");
  if (afternoon || reader.TakeWord("AM")) {
    if (parts.hour < 1 || parts.hour > 12) RaiseDateConversion();
    parts.hour = parts.hour % 12 + (afternoon ? 12 : 0);
  }
}

[[noreturn]] void RaiseOutOfRange() {
  RaiseServer(kDateOutOfRange,
              "The conversion of a char data type to a datetime data type resulted in an out-of-range datetime value.");
}

std::string Print(const char* format, int a, int b, int c) {
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), format, a, b, c);
  return text.data();
}

}  // namespace

std::int64_t ToMilliseconds(vb::Date date) {
  // Before the zero date the time of day still counts forward from midnight.
  const double whole = std::trunc(date.days);
  return static_cast<std::int64_t>(whole) * kDay + std::llround(std::fabs(date.days - whole) * static_cast<double>(kDay));
}

vb::Date FromMilliseconds(std::int64_t milliseconds) {
  constexpr std::int64_t kFirstDay = -657434, kLastDay = 2958465;  // 1 January 100 and 31 December 9999
  if (milliseconds < kFirstDay * kDay || milliseconds >= (kLastDay + 1) * kDay) {
    RaiseServer(kDateOverflow, "Adding a value to a 'datetime' column caused overflow.");
  }
  if (milliseconds >= 0) return vb::Date{static_cast<double>(milliseconds) / static_cast<double>(kDay)};
  const std::int64_t day = -((-milliseconds + kDay - 1) / kDay);
  const double fraction = static_cast<double>(milliseconds - day * kDay) / static_cast<double>(kDay);
  return vb::Date{static_cast<double>(day) - fraction};
}

std::int64_t ParseServerDate(std::string_view text, DateOrder order) {
  Reader reader(vb::Trim(text));
  Parts parts;
  if (!reader.AtEnd()) {
    if (!reader.ColonFollowsDigits()) {
      ReadDay(reader, parts, order);
      if (!reader.Take('T')) reader.SkipBlanks();
    }
    if (!reader.AtEnd()) ReadTime(reader, parts);
    if (!reader.AtEnd()) RaiseDateConversion();
  }
  if (parts.year < 1753 || parts.month < 1 || parts.month > 12 || parts.day < 1 || parts.hour > 23 || parts.minute > 59 ||
      parts.second > 59) {
    RaiseOutOfRange();
  }
  const vb::Date day = vb::MakeDate(parts.year, parts.month, 1);
  const vb::Date next = parts.month == 12 ? vb::MakeDate(parts.year, 12, 31) : vb::MakeDate(parts.year, parts.month + 1, 1);
  const double days = parts.month == 12 ? 31 : next.days - day.days;
  if (parts.day > days) RaiseOutOfRange();
  return ToMilliseconds(vb::Date{day.days + parts.day - 1}) +
         (((parts.hour * 60LL + parts.minute) * 60 + parts.second) * 1000 + parts.millisecond);
}

std::string ServerDateText(std::int64_t milliseconds, int style) {
  const std::int64_t inSecond = (milliseconds % 1000 + 1000) % 1000;
  const vb::DateParts p = vb::PartsOf(FromMilliseconds(milliseconds - inSecond));
  const int hour12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
  const std::string month = kMonths[static_cast<std::size_t>(p.month - 1)];
  std::string time = Print("%02d:%02d:%02d", p.hour, p.minute, p.second);
  switch (style) {
    case 0:
    case 100:
      return month + Print(" %2d %04d %2d", p.day, p.year, hour12) + Print(":%02d", p.minute, 0, 0) + (p.hour < 12 ? "AM" : "PM");
    case 1:
      return Print("%02d/%02d/%02d", p.month, p.day, p.year % 100);
    case 3:
      return Print("%02d/%02d/%02d", p.day, p.month, p.year % 100);
    case 8:
    case 108:
      return time;
    case 12:
      return Print("%02d%02d%02d", p.year % 100, p.month, p.day);
    case 101:
      return Print("%02d/%02d/%04d", p.month, p.day, p.year);
    case 102:
      return Print("%04d.%02d.%02d", p.year, p.month, p.day);
    case 103:
      return Print("%02d/%02d/%04d", p.day, p.month, p.year);
    case 104:
      return Print("%02d.%02d.%04d", p.day, p.month, p.year);
    case 105:
      return Print("%02d-%02d-%04d", p.day, p.month, p.year);
    case 106:
      return Print("%02d ", p.day, 0, 0) + month + Print(" %04d", p.year, 0, 0);
    case 110:
      return Print("%02d-%02d-%04d", p.month, p.day, p.year);
    case 111:
      return Print("%04d/%02d/%02d", p.year, p.month, p.day);
    case 112:
      return Print("%04d%02d%02d", p.year, p.month, p.day);
    case 20:
    case 120:
      return Print("%04d-%02d-%02d ", p.year, p.month, p.day) + time;
    case 21:
    case 121:
      return Print("%04d-%02d-%02d ", p.year, p.month, p.day) + time + Print(".%03d", static_cast<int>(inSecond), 0, 0);
    case 126:
      return Print("%04d-%02d-%02dT", p.year, p.month, p.day) + time + Print(".%03d", static_cast<int>(inSecond), 0, 0);
    default:
      RaiseServer(kInvalidDateStyle,
                  std::to_string(style) + " is not a valid style number when converting from datetime to a character string.");
  }
}

}  // namespace suite
