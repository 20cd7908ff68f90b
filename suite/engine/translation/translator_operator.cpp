#include <algorithm>

#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::BinaryOperator;

namespace {

constexpr int kQuotientScale = 6;  // the fewest digits after the point of a decimal quotient
constexpr const char* kDayText = "86400000";

std::string Symbol(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Add:
      return "+";
    case BinaryOperator::Subtract:
      return "-";
    case BinaryOperator::Multiply:
      return "*";
    case BinaryOperator::Divide:
      return "/";
    case BinaryOperator::Remainder:
      return "%";
    case BinaryOperator::BitAnd:
      return "&";
    case BinaryOperator::BitOr:
      return "|";
    case BinaryOperator::BitXor:
      return "^";
  }
  return {};
}

std::string TextOf(BinaryOperator op) {
  return " " + Symbol(op) + " ";
}

/// One pair of brackets for the whole chain: the store's parser bounds how deep they nest.
template <class Value>
std::string Chained(const Value& left, bool continues, const std::string& op, const std::string& right) {
  return (continues ? left.sql.substr(0, left.sql.size() - 1) : "(" + left.sql) + op + right + ")";
}

std::string Power(int exponent) {
  return std::to_string(PowerOfTen(exponent));
}

}  // namespace

std::string Translator::Collated(const SqlValue& value) {
  return value.collated || !value.type.IsText() ? value.sql : "(" + value.sql + " COLLATE server)";
}

Translator::SqlValue Translator::Coerce(SqlValue value, const Type& target, int style) {
  const Type from = value.type;
  if (target.kind == Kind::Null) return value;
  if (from.kind == Kind::Null) {
    value.type = target;
    return value;
  }
  if (value.parameter >= 0) {
    // A bare literal takes the type when it is bound.
    Parameter& parameter = parameters_[static_cast<std::size_t>(value.parameter)];
    parameter.type = target;
    parameter.style = style;
    if (inline_) value.sql = LiteralText(tokenList_, parameter);
    value.type = target;
    return value;
  }
  const bool sameText = from.IsText() && target.IsText() && !target.fixed &&
                        (target.length == 0 || (from.length > 0 && from.length <= target.length));
  const bool wider = from.IsInteger() && target.IsInteger() && from.kind <= target.kind;
  const bool sameDecimal = from.kind == Kind::Decimal && target.kind == Kind::Decimal && from.scale == target.scale &&
                           from.precision <= target.precision;
  const bool same = from.kind == target.kind && (from.kind == Kind::Float || from.kind == Kind::DateTime);
  value.type = target;
  if (sameText || wider || sameDecimal || same) return value;
  value.collated = false;
  value.chain = false;
  value.tableColumn = -1;
  const int fromScale = from.kind == Kind::Decimal ? from.scale : 0;
  // The smallest bigint has no decimal of 18 digits.
  const bool everyValueFits = from.kind != Kind::BigInt || target.precision > kMaxDigits;
  if (target.kind == Kind::Decimal && !target.assign && everyValueFits && (from.IsInteger() || from.kind == Kind::Decimal) &&
      target.scale >= fromScale && (target.precision - target.scale >= from.precision - fromScale)) {
    if (target.scale > fromScale) value.sql = "(" + value.sql + " * " + Power(target.scale - fromScale) + ")";
    return value;
  }
  if (target.kind == Kind::Float && (from.IsInteger() || from.kind == Kind::Decimal)) {
    value.sql = "(" + value.sql + " / " + Power(fromScale) + ".0)";
    return value;
  }
  value.sql = "srv_convert(" + value.sql + ", " + std::to_string(from.Pack()) + ", " + std::to_string(target.Pack()) + ", " +
              std::to_string(style) + ")";
  return value;
}

Translator::SqlValue Translator::CoerceAssigned(SqlValue value, const Type& target) {
  Type strict = target;
  strict.assign = true;
  return Coerce(std::move(value), strict);
}

Translator::SqlValue Translator::CastTo(SqlValue value, const Type& target, int style) {
  // A literal's own value first takes part in the statement: cast(1.005 as decimal(9,2)) rounds, it does not reinterpret.
  value = Coerce(std::move(value), target, style);
  value.parameter = -1;
  return value;
}

Translator::SqlValue Translator::Binary(const ast::Expr& expr, const ast::Binary& binary, Scope& scope) {
  SqlValue left = Value(*binary.left, scope);
  SqlValue right = Value(*binary.right, scope);
  SqlValue value;
  const bool anyNumber = left.type.kind > Kind::Guid || right.type.kind > Kind::Guid;
  if (binary.op == BinaryOperator::Add && !anyNumber && (left.type.IsText() || right.type.IsText())) {
    const int length = left.type.length && right.type.length ? left.type.length + right.type.length : 0;
    value.type = Type::TextOf(length);
    value.sql = Chained(left, left.chain, " || ", right.sql);
    value.chain = true;
    return value;
  }
  if (left.type.kind == Kind::DateTime || right.type.kind == Kind::DateTime) {
    if (binary.op != BinaryOperator::Add && binary.op != BinaryOperator::Subtract) {
      Unknown(expr, "dates can only be added to and subtracted from");
    }
    return DateArithmetic(binary.op, left, right);
  }
  if (left.type.IsText()) left = Coerce(std::move(left), right.type.IsNumber() ? right.type : Type::Of(Kind::Int));
  if (right.type.IsText()) right = Coerce(std::move(right), left.type.IsNumber() ? left.type : Type::Of(Kind::Int));
  if (left.type.kind == Kind::Null) left.type = right.type;
  if (right.type.kind == Kind::Null) right.type = left.type;
  if (left.type.kind == Kind::Null) left.type = right.type = Type::Of(Kind::Int);
  return Arithmetic(binary.op, std::move(left), std::move(right));
}

Translator::SqlValue Translator::DateArithmetic(BinaryOperator op, const SqlValue& left, const SqlValue& right) {
  const auto days = [&](const SqlValue& number) {
    if (number.type.kind == Kind::Float) return "CAST(round(" + number.sql + " * " + kDayText + ") AS INTEGER)";
    const std::string units = "(" + number.sql + " * " + kDayText + ")";
    return number.type.kind == Kind::Decimal && number.type.scale ? "(" + units + " / " + Power(number.type.scale) + ")" : units;
  };
  SqlValue value;
  value.type = Type::Of(Kind::DateTime);
  const bool bothDates = left.type.kind == Kind::DateTime && right.type.kind == Kind::DateTime;
  if (bothDates || left.type.IsText() || right.type.IsText()) {
    RaiseServer(kIncompatibleTypes, "The data types " + TypeName(left.type) + " and " + TypeName(right.type) +
                                        " are incompatible in the operator; use datediff.");
  }
  const bool dateFirst = left.type.kind == Kind::DateTime;
  value.sql = "(" + (dateFirst ? left.sql : days(left)) + TextOf(op) + (dateFirst ? days(right) : right.sql) + ")";
  return value;
}

Translator::SqlValue Translator::Bitwise(BinaryOperator op, const SqlValue& left, const SqlValue& right) {
  if (!left.type.IsInteger() || !right.type.IsInteger()) {
    RaiseServer(kIncompatibleTypes, "The data types " + TypeName(left.type) + " and " + TypeName(right.type) +
                                        " are incompatible in the operator '" + Symbol(op) + "'.");
  }
  SqlValue value;
  value.type = CommonType(left.type, right.type);
  const std::string both = left.sql + " & " + right.sql;
  value.sql = op == BinaryOperator::BitXor ? "((" + left.sql + " | " + right.sql + ") - (" + both + "))"
                                           : "(" + left.sql + TextOf(op) + right.sql + ")";
  return value;
}

Translator::SqlValue Translator::Arithmetic(BinaryOperator op, SqlValue left, SqlValue right) {
  switch (op) {
    case BinaryOperator::BitAnd:
    case BinaryOperator::BitOr:
    case BinaryOperator::BitXor:
      return Bitwise(op, left, right);
    case BinaryOperator::Divide:
    case BinaryOperator::Remainder:
      return Divide(op, std::move(left), std::move(right));
    default:
      break;
  }
  SqlValue value;
  const Type common = CommonType(left.type, right.type);
  if (common.kind == Kind::Decimal && op == BinaryOperator::Multiply) {
    const int scale =
        (left.type.kind == Kind::Decimal ? left.type.scale : 0) + (right.type.kind == Kind::Decimal ? right.type.scale : 0);
    if (scale > kMaxDigits) RaiseOverflow("decimal");
    value.type = Type::DecimalOf(38, scale);
    value.sql = "(" + left.sql + " * " + right.sql + ")";
    return value;
  }
  value.type = common.IsInteger() ? Type::Of(std::max(common.kind, Kind::Int)) : common;
  if (common.kind == Kind::Decimal) value.type = Type::DecimalOf(std::min<int>(common.precision + 1, 38), common.scale);
  if (op != BinaryOperator::Add && op != BinaryOperator::Subtract) {
    value.sql = "(" + Coerce(std::move(left), common).sql + TextOf(op) + Coerce(std::move(right), common).sql + ")";
    return value;
  }
  const std::string before = left.sql;
  const bool chain = left.chain;
  left = Coerce(std::move(left), common);
  value.sql = Chained(left, chain && left.sql == before, TextOf(op), Coerce(std::move(right), common).sql);
  value.chain = true;
  return value;
}

Translator::SqlValue Translator::Divide(BinaryOperator op, SqlValue left, SqlValue right) {
  SqlValue value;
  const Type common = CommonType(left.type, right.type);
  if (common.kind == Kind::Decimal && op == BinaryOperator::Divide) {
    const int leftScale = left.type.kind == Kind::Decimal ? left.type.scale : 0;
    const int rightScale = right.type.kind == Kind::Decimal ? right.type.scale : 0;
    const int scale = std::max(kQuotientScale, leftScale + 1);
    value.type = Type::DecimalOf(38, scale);
    value.sql = "srv_quotient(" + left.sql + ", " + right.sql + ", " + std::to_string(scale - leftScale + rightScale) + ")";
    return value;
  }
  value.type = common.IsInteger() ? Type::Of(std::max(common.kind, Kind::Int)) : common;
  value.sql = std::string(op == BinaryOperator::Divide ? "srv_divide(" : "srv_remainder(") + Coerce(std::move(left), common).sql +
              ", " + Coerce(std::move(right), common).sql + ")";
  return value;
}

}  // namespace suite
