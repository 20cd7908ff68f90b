#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vb {

/// Days since 30 December 1899, the time of day as fraction. The zero date is 30 December 1899.
struct Date {
  double days = 0;

  friend bool operator==(Date a, Date b) { return a.days == b.days; }
  friend bool operator<(Date a, Date b) { return a.days < b.days; }
  friend bool operator>(Date a, Date b) { return b < a; }
};

struct DateParts {
  int year = 1899, month = 12, day = 30, hour = 0, minute = 0, second = 0;
};

/// Parts beyond their range carry over (month 13, day 0); error 5 outside the years 100 to 9999.
Date MakeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
/// Rounded to the whole second; error 6 for a number of days far outside the calendar.
DateParts PartsOf(Date date);

/// dd/mm/yyyy, followed by " HH:MM:SS" when the date has a time of day.
std::string DateText(Date date);

/// Reads dd/mm/yyyy, yyyy/mm/dd and yyyy-mm-dd (one or two digits for day and month), each with an optional time HH:MM or
/// HH:MM:SS; also yyyymmdd. Years 100 to 9999. Surrounding blanks are allowed. Nothing when the text is no date: never a silent
/// other date.
std::optional<Date> TryParseDate(std::string_view text);
/// The same; error 13 when the text is no date.
Date ParseDate(std::string_view text);

/// Format with date pictures: d dd m mm yy yyyy h hh n nn s ss, "mm" right after an hour meaning minutes; other characters stand
/// for themselves. Letters without regard to case.
std::string FormatDate(Date date, std::string_view picture);

}  // namespace vb
