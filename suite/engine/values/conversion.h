#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/late/value.h"
#include "suite/engine/values/types.h"

struct sqlite3_stmt;

namespace suite {

/// A value in the store's form. It does not own its text.
struct Cell {
  enum class Form : std::uint8_t { Null, Integer, Real, Text };

  Form form = Form::Null;
  std::int64_t integer = 0;
  double real = 0;
  std::string_view text;

  static Cell Of(std::int64_t value) { return {Form::Integer, value, 0, {}}; }
  static Cell Of(double value) { return {Form::Real, 0, value, {}}; }
  static Cell Of(std::string_view value) { return {Form::Text, 0, 0, value}; }
};

/// Converts a stored value from one server type to another; `style` is the server's number for date texts, `order` how they are
/// read. New text is put into `buffer`. Errors 241, 242, 245, 248, 8114, 8115, 8152 as the server raises them.
Cell Convert(const Cell& value, const Type& from, const Type& to, std::string& buffer, int style = 0,
             DateOrder order = DateOrder::MonthDayYear);

/// What a recordset's user sets, as a stored value of the column's type. Error 3421 for a value that cannot become one.
Cell FromValue(const late::Value& value, const Type& to, std::string& buffer);

/// A result column of the statement's current row.
late::Value ToValue(sqlite3_stmt* statement, int column, const Type& type);

/// Binds at the 1-based index. The text must stay in place until the statement has run when `keep` is false.
void BindCell(sqlite3_stmt* statement, int index, const Cell& cell, bool keep);

// Decimals: units of the old scale as units of the new one, half away from zero; error 8115 when it has more digits than
// `precision`.
std::int64_t Rescale(std::int64_t units, int oldScale, int newScale, int precision);
std::int64_t DoubleToUnits(double value, int scale);

// Dates
std::int64_t ToMilliseconds(vb::Date date);
/// Error 517 outside the years 100 to 9999.
vb::Date FromMilliseconds(std::int64_t milliseconds);
/// Reads the server's date texts: yyyymmdd, yyyy/mm/dd, yyyy-mm-dd, mm/dd/yyyy, each with an optional time; a time alone; the
/// empty text is 1 January 1900. Where the day comes first, it also comes right after a leading year (yyyy/dd/mm), but not before
/// a "T" (yyyy-mm-ddThh:nn:ss). Errors 241 and 242.
std::int64_t ParseServerDate(std::string_view text, DateOrder order);
/// The server's date text of a style (0, 1, 3, 8, 10x, 11x, 120, 121, 126); error 281 for another style.
std::string ServerDateText(std::int64_t milliseconds, int style);

}  // namespace suite
