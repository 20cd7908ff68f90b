// Between the store's values and the late-bound ones of a recordset's fields.
#include <sqlite3.h>
#include <variant>

#include "base/ado/constants.h"
#include "base/vb/error.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

[[noreturn]] void RaiseWrongType() {
  RaiseAdo(ado::kDataConversion, "ADODB.Recordset");
}

/// The value in the store's form, with the server type that it has by itself.
Cell NaturalCell(const late::Value& value, Type& type) {
  return std::visit(
      [&](const auto& alternative) -> Cell {
        using T = std::decay_t<decltype(alternative)>;
        if constexpr (std::is_same_v<T, bool>) {
          type = Type::Of(Kind::Bit);
          return Cell::Of(std::int64_t{alternative});
        } else if constexpr (std::is_same_v<T, std::int16_t> || std::is_same_v<T, std::int32_t>) {
          type = Type::Of(Kind::Int);
          return Cell::Of(std::int64_t{alternative});
        } else if constexpr (std::is_same_v<T, double>) {
          type = Type::Of(Kind::Float);
          return Cell::Of(alternative);
        } else if constexpr (std::is_same_v<T, late::Currency>) {
          type = Type::DecimalOf(kMaxDigits + 1, 4);
          return Cell::Of(alternative.units);
        } else if constexpr (std::is_same_v<T, vb::Decimal>) {
          type = Type::DecimalOf(kMaxDigits + 1, alternative.scale);
          return Cell::Of(alternative.units);
        } else if constexpr (std::is_same_v<T, vb::Date>) {
          type = Type::Of(Kind::DateTime);
          return Cell::Of(ToMilliseconds(alternative));
        } else if constexpr (std::is_same_v<T, std::string>) {
          type = Type::Of(Kind::Text);
          return Cell::Of(std::string_view(alternative));
        } else if constexpr (std::is_same_v<T, late::Null> || std::is_same_v<T, late::Empty>) {
          return Cell{};
        } else {
          RaiseWrongType();
        }
      },
      value.Alternatives());
}

/// What client code puts into a field follows the client's rules (its date form, rounding to even), not the server's.
Cell ByClientRules(const late::Value& value, const Type& to) {
  switch (to.kind) {
    case Kind::DateTime:
      return Cell::Of(ToMilliseconds(value.ToDate()));
    case Kind::Bit:
      return Cell::Of(std::int64_t{value.ToBool()});
    case Kind::TinyInt: {
      const std::int16_t number = value.ToInt16();
      if (number < 0 || number > 255) vb::Raise(vb::kOverflow);
      return Cell::Of(std::int64_t{number});
    }
    case Kind::SmallInt:
      return Cell::Of(std::int64_t{value.ToInt16()});
    case Kind::Int:
      return Cell::Of(std::int64_t{value.ToInt32()});
    default:
      return Cell::Of(value.ToDouble());
  }
}

}  // namespace

Cell FromValue(const late::Value& value, const Type& to, std::string& buffer) {
  Type from;
  const Cell cell = NaturalCell(value, from);
  if (cell.form == Cell::Form::Null || (from.kind == Kind::Int && to.kind == Kind::Int)) return cell;
  Type target = to;
  target.assign = true;
  const bool client = to.kind == Kind::DateTime ? from.kind != Kind::DateTime
                      : to.kind == Kind::BigInt ? false
                      : to.IsInteger()          ? from.kind != Kind::Bit
                                                : from.kind == Kind::Text && to.kind == Kind::Float;
  try {
    if (client) return ByClientRules(value, to);
    // A date's own text is the client's too.
    if (to.kind == Kind::Text && from.kind == Kind::DateTime) {
      const std::string text = value.ToText();
      return Convert(Cell::Of(std::string_view(text)), Type::Of(Kind::Text), target, buffer).text.data() == text.data()
                 ? (buffer = text, Cell::Of(std::string_view(buffer)))
                 : Cell::Of(std::string_view(buffer));
    }
    if (to.kind == Kind::Text && from.kind == Kind::Bit) {
      buffer = value.ToText();
      return Cell::Of(std::string_view(buffer));
    }
    return Convert(cell, from, target, buffer);
  } catch (const ServerError& error) {
    if (error.NativeError() == 8114 || error.NativeError() == 245) RaiseWrongType();
    throw;
  } catch (const vb::RunTimeError& error) {
    if (error.Number() == vb::kOverflow) RaiseOverflow(TypeName(to));
    RaiseWrongType();
  }
}

late::Value ToValue(sqlite3_stmt* statement, int column, const Type& type) {
  // Nobody else uses the connection meanwhile, so that the value needs no lock and is looked up once.
  sqlite3_value* value = sqlite3_column_value(statement, column);
  const int form = sqlite3_value_type(value);
  if (form == SQLITE_NULL) return late::Null{};
  if (form == SQLITE_TEXT) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
  }
  // An integer that grew beyond 64 bits turns into a real in the store: the server would have called it an overflow.
  if (form == SQLITE_FLOAT && type.kind != Kind::Float) RaiseOverflow(TypeName(type));
  switch (type.kind) {
    case Kind::Bit:
      return sqlite3_value_int64(value) != 0;
    case Kind::TinyInt:
    case Kind::SmallInt:
      return static_cast<std::int16_t>(sqlite3_value_int64(value));
    case Kind::Decimal:
      return vb::Decimal{sqlite3_value_int64(value), type.scale};
    case Kind::Float:
      return sqlite3_value_double(value);
    case Kind::DateTime:
      return FromMilliseconds(sqlite3_value_int64(value));
    default: {
      const std::int64_t number = sqlite3_value_int64(value);
      const auto narrow = static_cast<std::int32_t>(number);
      if (narrow == number) return narrow;
      if (type.kind == Kind::Int) RaiseOverflow("int");
      return number;
    }
  }
}

}  // namespace suite
