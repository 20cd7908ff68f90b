#include "base/vb/date.h"

#include <cmath>
#include <cstdint>

#include "base/vb/error.h"
#include "base/vb/letter_case.h"

namespace vb {
namespace {

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

/// Days from 30 December 1899 to a day of the proleptic Gregorian calendar.
std::int64_t DayNumber(std::int64_t year, int month, int day) {
  if (month <= 2) --year;  // years that begin in March have their leap day at the end
  const int monthFromMarch = (month + 9) % 12;
  const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + day - 1;
  const std::int64_t zeroDay = 1899 * 365 + 1899 / 4 - 1899 / 100 + 1899 / 400 + (153 * 9 + 2) / 5 + 30 - 1;
  return year * 365 + year / 4 - year / 100 + year / 400 + dayOfYear - zeroDay;
}

bool IsLeap(int year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysOfMonth(int year, int month) {
  if (month == 2) return IsLeap(year) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// Before the zero date the day is negative while its time of day still counts forward from midnight, as magnitude.
Date Compose(std::int64_t day, std::int64_t seconds) {
  const double fraction = static_cast<double>(seconds) / static_cast<double>(kSecondsPerDay);
  const auto whole = static_cast<double>(day);
  return Date{day < 0 ? whole - fraction : whole + fraction};
}

void SplitDay(std::int64_t dayNumber, DateParts& parts) {
  // The guess is never more than a year off.
  int year = static_cast<int>(1899 + std::floor(static_cast<double>(dayNumber) / 365.2425));
  while (DayNumber(year, 1, 1) > dayNumber) --year;
  while (DayNumber(year + 1, 1, 1) <= dayNumber) ++year;
  int rest = static_cast<int>(dayNumber - DayNumber(year, 1, 1));
  int month = 1;
  for (; rest >= DaysOfMonth(year, month); ++month) rest -= DaysOfMonth(year, month);
  parts.year = year;
  parts.month = month;
  parts.day = rest + 1;
}

void AppendNumber(std::string& text, int value, std::size_t width) {
  const std::string digits = std::to_string(value);
  if (digits.size() < width) text.append(width - digits.size(), '0');
  text.append(digits);
}

/// Reads date text from left to right.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return text_.empty(); }
  bool Take(char c) {
    if (text_.empty() || text_.front() != c) return false;
    text_.remove_prefix(1);
    return true;
  }
  bool SkipBlanks() {
    bool any = false;
    while (Take(' ')) any = true;
    return any;
  }
  /// A run of `least` to `most` digits; false when the run is shorter or longer.
  bool Number(std::size_t least, std::size_t most, int& value, std::size_t* width = nullptr) {
    std::size_t count = 0;
    value = 0;
    while (count < text_.size() && text_[count] >= '0' && text_[count] <= '9') {
      if (count == most) return false;
      value = value * 10 + (text_[count++] - '0');
    }
    if (count < least) return false;
    if (width) *width = count;
    text_.remove_prefix(count);
    return true;
  }

 private:
  std::string_view text_;
};

bool ReadDay(Reader& reader, DateParts& parts) {
  int first = 0;
  std::size_t width = 0;
  if (!reader.Number(1, 8, first, &width)) return false;
  if (width == 8) {
    parts.year = first / 10000;
    parts.month = first / 100 % 100;
    parts.day = first % 100;
    return true;
  }
  if (width == 4) {
    parts.year = first;
    const char separator = reader.Take('/') ? '/' : '-';
    if (separator == '-' && !reader.Take('-')) return false;
    return reader.Number(1, 2, parts.month) && reader.Take(separator) && reader.Number(1, 2, parts.day);
  }
  parts.day = first;
  return width <= 2 && reader.Take('/') && reader.Number(1, 2, parts.month) && reader.Take('/') &&
         reader.Number(4, 4, parts.year);
}

bool ReadTime(Reader& reader, DateParts& parts) {
  if (!reader.Number(1, 2, parts.hour) || !reader.Take(':') || !reader.Number(2, 2, parts.minute)) return false;
  return !reader.Take(':') || reader.Number(2, 2, parts.second);
}

bool IsReal(const DateParts& parts) {
  return parts.year >= kFirstYear && parts.year <= kLastYear && parts.month >= 1 && parts.month <= 12 && parts.day >= 1 &&
         parts.day <= DaysOfMonth(parts.year, parts.month) && parts.hour < 24 && parts.minute < 60 && parts.second < 60;
}

}  // namespace

Date MakeDate(int year, int month, int day, int hour, int minute, int second) {
  // Parts beyond their range carry over, as month 13 or day 0 do in the classic runtime.
  const std::int64_t months = std::int64_t{year} * 12 + month - 1;
  const auto carriedYear = static_cast<std::int64_t>(std::floor(static_cast<double>(months) / 12));
  if (carriedYear < kFirstYear || carriedYear > kLastYear) Raise(kInvalidCall);
  const int carriedMonth = static_cast<int>(months - carriedYear * 12) + 1;
  std::int64_t dayNumber = DayNumber(carriedYear, carriedMonth, 1) + day - 1;
  std::int64_t seconds = std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second;
  const auto carriedDays =
      static_cast<std::int64_t>(std::floor(static_cast<double>(seconds) / static_cast<double>(kSecondsPerDay)));
  dayNumber += carriedDays;
  seconds -= carriedDays * kSecondsPerDay;
  if (dayNumber < DayNumber(kFirstYear, 1, 1) || dayNumber > DayNumber(kLastYear, 12, 31)) Raise(kInvalidCall);
  return Compose(dayNumber, seconds);
}

DateParts PartsOf(Date date) {
  if (!(std::fabs(date.days) < 3e6)) Raise(kOverflow);  // far outside the calendar, or no number at all
  const double whole = std::trunc(date.days);
  auto dayNumber = static_cast<std::int64_t>(whole);
  auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(date.days - whole) * static_cast<double>(kSecondsPerDay)));
  if (seconds == kSecondsPerDay) {
    seconds = 0;
    ++dayNumber;
  }
  DateParts parts;
  SplitDay(dayNumber, parts);
  parts.hour = static_cast<int>(seconds / 3600);
  parts.minute = static_cast<int>(seconds / 60 % 60);
  parts.second = static_cast<int>(seconds % 60);
  return parts;
}

std::string DateText(Date date) {
  const DateParts parts = PartsOf(date);
  std::string text;
  AppendNumber(text, parts.day, 2);
  text.push_back('/');
  AppendNumber(text, parts.month, 2);
  text.push_back('/');
  AppendNumber(text, parts.year, 4);
  if (parts.hour == 0 && parts.minute == 0 && parts.second == 0) return text;
  text.push_back(' ');
  AppendNumber(text, parts.hour, 2);
  text.push_back(':');
  AppendNumber(text, parts.minute, 2);
  text.push_back(':');
  AppendNumber(text, parts.second, 2);
  return text;
}

std::optional<Date> TryParseDate(std::string_view text) {
  Reader reader(text);
  DateParts parts;
  reader.SkipBlanks();
  if (!ReadDay(reader, parts)) return std::nullopt;
  const bool blanks = reader.SkipBlanks();
  if (!reader.AtEnd()) {
    if (!blanks || !ReadTime(reader, parts)) return std::nullopt;
    reader.SkipBlanks();
  }
  if (!reader.AtEnd() || !IsReal(parts)) return std::nullopt;
  return MakeDate(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second);
}

Date ParseDate(std::string_view text) {
  const auto date = TryParseDate(text);
  if (!date) Raise(kTypeMismatch);
  return *date;
}

std::string FormatDate(Date date, std::string_view picture) {
  const DateParts parts = PartsOf(date);
  std::string text;
  bool afterHour = false;
  for (std::size_t i = 0; i < picture.size();) {
    const char letter = LowerAscii(picture[i]);
    std::size_t end = i + 1;
    if (std::string_view("dmyhns").find(letter) == std::string_view::npos) {
      text.push_back(picture[i]);
      i = end;
      continue;
    }
    while (end < picture.size() && LowerAscii(picture[end]) == letter) ++end;
    const std::size_t width = end - i >= 2 ? 2 : 1;
    switch (letter) {
      case 'd':
        AppendNumber(text, parts.day, width);
        break;
      case 'm':
        AppendNumber(text, afterHour ? parts.minute : parts.month, width);
        break;
      case 'y':
        if (end - i > 2) {
          AppendNumber(text, parts.year, 4);
        } else {
          AppendNumber(text, parts.year % 100, 2);
        }
        break;
      case 'h':
        AppendNumber(text, parts.hour, width);
        break;
      case 'n':
        AppendNumber(text, parts.minute, width);
        break;
      default:
        AppendNumber(text, parts.second, width);
        break;
    }
    afterHour = letter == 'h';
    i = end;
  }
  return text;
}

}  // namespace vb
