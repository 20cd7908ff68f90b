#include "suite/engine/language/literal.h"

#include <charconv>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

std::int64_t IntegerOf(std::string_view digits) {
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc())
    RaiseServer(kNumberOutOfRange, "The number '" + std::string(digits) + "' is out of the range for numeric representation.");
  return value;
}

/// The literal's own value; decimals in units of their scale.
Cell OwnCell(const TokenList& tokenList, const Token& token, std::string& buffer) {
  const std::string_view text = tokenList.TextOf(token);
  switch (token.kind) {
    case TokenKind::Integer:
      return Cell::Of(IntegerOf(text));
    case TokenKind::Decimal: {
      const std::size_t point = text.find('.');
      std::string digits(text.substr(0, point));
      digits += text.substr(point + 1);
      return Cell::Of(digits.empty() ? std::int64_t{0} : IntegerOf(digits));
    }
    case TokenKind::Float: {
      double value = 0;
      std::from_chars(text.data(), text.data() + text.size(), value);
      return Cell::Of(value);
    }
    default:
      if (!token.escaped) return Cell::Of(text);
      buffer = tokenList.ValueOf(token);
      return Cell::Of(std::string_view(buffer));
  }
}

}  // namespace

Type LiteralType(const Token& token) {
  switch (token.kind) {
    case TokenKind::Integer:
      return Type::Of(Kind::Int);
    case TokenKind::Decimal:
      if (token.scale > kMaxDigits) RaiseOverflow("numeric");
      return Type::DecimalOf(kMaxDigits, token.scale);
    case TokenKind::Float:
      return Type::Of(Kind::Float);
    default:
      return Type::TextOf(0);
  }
}

Cell LiteralCell(const TokenList& tokenList, const Parameter& parameter, std::string& buffer, DateOrder order) {
  const Token& token = tokenList.tokens[tokenList.literals[static_cast<std::size_t>(parameter.literal)]];
  const Cell own = OwnCell(tokenList, token, buffer);
  const Type from = LiteralType(token);
  const Type& to = parameter.type;
  if (from.kind == to.kind && from.scale == to.scale && (to.length == 0 || from.kind != Kind::Text)) return own;
  if (own.form != Cell::Form::Text) return Convert(own, from, to, buffer, parameter.style, order);
  std::string converted;
  const Cell cell = Convert(own, from, to, converted, parameter.style, order);
  if (cell.form != Cell::Form::Text || cell.text.data() != converted.data()) return cell;
  buffer = std::move(converted);
  return Cell::Of(std::string_view(buffer));
}

std::string LiteralText(const TokenList& tokenList, const Parameter& parameter) {
  std::string buffer;
  const Cell cell = LiteralCell(tokenList, parameter, buffer, DateOrder::MonthDayYear);
  switch (cell.form) {
    case Cell::Form::Null:
      return "NULL";
    case Cell::Form::Integer:
      return std::to_string(cell.integer);
    case Cell::Form::Real: {
      std::string text = vb::NumberText(cell.real);
      return text.find_first_of(".E") == std::string::npos ? text + ".0" : text;
    }
    case Cell::Form::Text:
      return "'" + vb::DoubleApostrophes(cell.text) + "'";
  }
  return {};
}

late::Value ArgumentValue(const TokenList& tokenList, const ast::Expr* argument) {
  if (!argument) return late::Missing{};
  if (argument->If<ast::Null>()) return late::Null{};
  if (const auto* sign = argument->If<ast::Unary>()) {
    const late::Value value = ArgumentValue(tokenList, sign->operand.get());
    if (sign->op != ast::UnaryOperator::Minus || value.IsText()) {
      RaiseServer(kSyntaxNear,
                  "Incorrect syntax near '" + std::string(tokenList.TextOf(tokenList.tokens[argument->token])) + "'.");
    }
    if (const auto* whole = value.If<std::int32_t>()) return -*whole;
    if (const auto* exact = value.If<vb::Decimal>()) return vb::Decimal{-exact->units, exact->scale};
    return -value.ToDouble();
  }
  const Token& token = tokenList.tokens[argument->token];
  if (token.literal < 0) RaiseServer(kSyntaxNear, "Incorrect syntax near '" + std::string(tokenList.TextOf(token)) + "'.");
  std::string buffer;
  const Cell cell = OwnCell(tokenList, token, buffer);
  if (cell.form == Cell::Form::Text) return cell.text;
  if (cell.form == Cell::Form::Real) return cell.real;
  if (token.kind == TokenKind::Decimal && token.scale > kMaxDigits) RaiseOverflow("numeric");
  if (token.kind == TokenKind::Decimal) return vb::Decimal{cell.integer, token.scale};
  const auto narrow = static_cast<std::int32_t>(cell.integer);
  return narrow == cell.integer ? late::Value(narrow) : late::Value(cell.integer);
}

}  // namespace suite
