#include <cmath>
#include <cstdlib>
#include <limits>
#include <sqlite3.h>

#include "suite/engine/functions/server_functions.h"
#include "suite/engine/values/conversion.h"

namespace suite {
namespace {

[[noreturn]] void RaiseDivisionByZero() {
  RaiseServer(kDivisionByZero, "Divide by zero error encountered.");
}

Cell CellOf(const FunctionCall& call, int index) {
  switch (sqlite3_value_type(call.Raw(index))) {
    case SQLITE_INTEGER:
      return Cell::Of(call.Integer(index));
    case SQLITE_FLOAT:
      return Cell::Of(call.Real(index));
    case SQLITE_TEXT:
      return Cell::Of(call.Text(index));
    default:
      return {};
  }
}

void Return(const FunctionCall& call, const Cell& cell) {
  switch (cell.form) {
    case Cell::Form::Null:
      return call.ReturnNull();
    case Cell::Form::Integer:
      return call.Return(cell.integer);
    case Cell::Form::Real:
      return call.Return(cell.real);
    case Cell::Form::Text:
      return call.Return(cell.text);
  }
}

/// srv_convert(value, packed type from, packed type to, style)
void ConvertValue(const FunctionCall& call) {
  std::string buffer;
  const Type from = Type::Unpack(call.Integer(1)), to = Type::Unpack(call.Integer(2));
  Cell cell = CellOf(call, 0);
  if (cell.form == Cell::Form::Real && from.kind != Kind::Float) RaiseOverflow(TypeName(from));
  Return(call, Convert(cell, from, to, buffer, static_cast<int>(call.Integer(3)), call.Functions().dateOrder));
}

void Divide(const FunctionCall& call) {
  if (sqlite3_value_type(call.Raw(0)) == SQLITE_FLOAT) {
    if (call.Real(1) == 0) RaiseDivisionByZero();
    return call.Return(call.Real(0) / call.Real(1));
  }
  if (call.Integer(1) == 0) RaiseDivisionByZero();
  if (call.Integer(1) == -1 && call.Integer(0) == std::numeric_limits<std::int64_t>::min()) RaiseOverflow("bigint");
  call.Return(call.Integer(0) / call.Integer(1));
}

void Remainder(const FunctionCall& call) {
  if (sqlite3_value_type(call.Raw(0)) == SQLITE_FLOAT) {
    if (call.Real(1) == 0) RaiseDivisionByZero();
    return call.Return(std::fmod(call.Real(0), call.Real(1)));
  }
  if (call.Integer(1) == 0) RaiseDivisionByZero();
  call.Return(call.Integer(1) == -1 ? std::int64_t{0} : call.Integer(0) % call.Integer(1));
}

/// srv_quotient(units, units, digits): the first shifted by the digits, divided and cut, as the server divides decimals. Worked
/// digit by digit: the shifted number itself may be longer than 64 bits.
void Quotient(const FunctionCall& call) {
  constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
  const std::int64_t divisor = call.Integer(1);
  if (divisor == 0) RaiseDivisionByZero();
  if (divisor > kMax / 10 || divisor < -(kMax / 10)) RaiseOverflow("decimal");
  std::int64_t quotient = call.Integer(0) / divisor;
  std::int64_t rest = call.Integer(0) % divisor;
  for (std::int64_t digits = call.Integer(2); digits > 0; --digits) {
    if (quotient > kMax / 10 - 1 || quotient < -(kMax / 10 - 1)) RaiseOverflow("decimal");
    quotient = quotient * 10 + rest * 10 / divisor;
    rest = rest * 10 % divisor;
  }
  call.Return(quotient);
}

/// srv_round(units, scale, digits)
void Round(const FunctionCall& call) {
  const auto scale = static_cast<int>(call.Integer(1));
  const std::int64_t digits = call.Integer(2);
  if (digits >= scale) return call.Return(call.Integer(0));
  const std::int64_t cut = scale - digits;
  if (cut > kMaxDigits) return call.Return(std::int64_t{0});
  const std::int64_t rounded = Rescale(call.Integer(0), static_cast<int>(cut), 0, 38);
  call.Return(Rescale(rounded, 0, static_cast<int>(cut), 38));
}

void RoundFloat(const FunctionCall& call) {
  const double power = std::pow(10.0, static_cast<double>(call.Integer(2)));
  call.Return(std::round(call.Real(0) * power) / power);
}

void Floor(const FunctionCall& call) {
  const std::int64_t power = PowerOfTen(static_cast<int>(call.Integer(1)));
  const std::int64_t rest = call.Integer(0) % power;
  call.Return(call.Integer(0) - (rest < 0 ? rest + power : rest));
}

void Ceiling(const FunctionCall& call) {
  const std::int64_t power = PowerOfTen(static_cast<int>(call.Integer(1)));
  const std::int64_t rest = call.Integer(0) % power;
  call.Return(call.Integer(0) + (rest > 0 ? power - rest : -rest));
}

void FloorFloat(const FunctionCall& call) {
  call.Return(std::floor(call.Real(0)));
}
void CeilingFloat(const FunctionCall& call) {
  call.Return(std::ceil(call.Real(0)));
}

void SquareRoot(const FunctionCall& call) {
  if (call.Real(0) < 0) RaiseServer(kInvalidFloatOperation, "An invalid floating point operation occurred.");
  call.Return(std::sqrt(call.Real(0)));
}

}  // namespace

std::vector<detail::FunctionEntry> detail::NumberFunctions() {
  return {{"srv_convert", 4, ConvertValue}, {"srv_divide", 2, Divide},
          {"srv_remainder", 2, Remainder},  {"srv_quotient", 3, Quotient},
          {"srv_round", 3, Round},          {"srv_round_float", 3, RoundFloat},
          {"srv_floor", 2, Floor},          {"srv_floor_float", 2, FloorFloat},
          {"srv_ceiling", 2, Ceiling},      {"srv_ceiling_float", 2, CeilingFloat},
          {"srv_sqrt", 1, SquareRoot}};
}

}  // namespace suite
