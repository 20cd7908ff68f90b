#include "suite/engine/language/parser.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/vb/text.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

/// Words that can be neither a name nor an alias.
constexpr auto kReserved = std::to_array<std::string_view>(
    {"add",      "all",       "alter",       "and",      "as",      "asc",     "begin",     "between",
     "by",       "case",      "coalesce",    "commit",   "convert", "create",  "cross",     "current_timestamp",
     "default",  "delete",    "desc",        "distinct", "drop",    "else",    "end",       "escape",
     "except",   "intersect", "exec",        "execute",  "exists",  "for",     "from",      "full",
     "function", "group",     "having",      "if",       "in",      "index",   "inner",     "insert",
     "into",     "is",        "join",        "key",      "left",    "like",    "not",       "null",
     "nullif",   "on",        "or",          "order",    "outer",   "primary", "procedure", "proc",
     "right",    "rollback",  "select",      "set",      "table",   "then",    "top",       "union",
     "unique",   "update",    "values",      "view",     "when",    "where",   "with",      "go",
     "option",   "tran",      "transaction", "while"});

}  // namespace

bool IsReserved(std::string_view word) {
  return std::any_of(kReserved.begin(), kReserved.end(), [&](std::string_view reserved) { return EqualWord(word, reserved); });
}

const Token& Parser::Peek(std::size_t ahead) const {
  return tokenList_.tokens[std::min(position_ + ahead, tokenList_.tokens.size() - 1)];
}

bool Parser::PeekWord(std::string_view word, std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return token.kind == TokenKind::Word && EqualWord(tokenList_.TextOf(token), word);
}

bool Parser::PeekSymbol(char symbol, std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return token.kind == TokenKind::Symbol && token.symbol == symbol;
}

bool Parser::TakeWord(std::string_view word) {
  if (!PeekWord(word)) return false;
  ++position_;
  return true;
}

bool Parser::TakeSymbol(char symbol) {
  if (!PeekSymbol(symbol)) return false;
  ++position_;
  return true;
}

void Parser::ExpectWord(std::string_view word) {
  if (!TakeWord(word)) Unexpected();
}

void Parser::ExpectSymbol(char symbol) {
  if (!TakeSymbol(symbol)) Unexpected();
}

void Parser::Unexpected() const {
  UnexpectedAt(static_cast<std::uint32_t>(std::min(position_, tokenList_.tokens.size() - 1)));
}

void Parser::UnexpectedAt(std::uint32_t token) const {
  const Token& at = tokenList_.tokens[token];
  if (at.kind == TokenKind::End) {
    const std::size_t last = tokenList_.text.size() > 20 ? tokenList_.text.size() - 20 : 0;
    RaiseServer(kSyntaxNear, "Incorrect syntax near the end of '" + std::string(tokenList_.text.substr(last)) + "'.");
  }
  const std::string text(tokenList_.TextOf(at));
  if (at.kind == TokenKind::Word && IsReserved(text))
    RaiseServer(kSyntaxNearKeyword, "Incorrect syntax near the keyword '" + text + "'.");
  RaiseServer(kSyntaxNear, "Incorrect syntax near '" + text + "'.");
}

bool Parser::NameFollows() const {
  const Token& token = Peek();
  return token.kind == TokenKind::Quoted || (token.kind == TokenKind::Word && !IsReserved(tokenList_.TextOf(token)));
}

std::string Parser::Name() {
  if (!NameFollows()) Unexpected();
  return tokenList_.ValueOf(tokenList_.tokens[position_++]);
}

std::string Parser::ObjectName() {
  std::string name = Name();
  if (!PeekSymbol('.')) return name;
  if (!vb::EqualNoCase(name, "dbo")) UnexpectedAt(static_cast<std::uint32_t>(position_ - 1));
  ++position_;
  return Name();
}

int Parser::StructuralNumber(int max) {
  const Token& token = Peek();
  if (token.kind != TokenKind::Integer) Unexpected();
  const std::string_view digits = tokenList_.TextOf(token);
  int number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || number > max) Unexpected();
  MarkStructural(token);
  ++position_;
  return number;
}

void Parser::MarkStructural(const Token& token) {
  if (token.literal >= 0) structural_.push_back(token.literal);
}

Type Parser::TypeNamed(int lengthWhenNone) {
  const std::uint32_t token = static_cast<std::uint32_t>(position_);
  const std::string name = Name();
  const auto is = [&](std::string_view word) { return EqualWord(name, word); };
  if (is("int") || is("integer")) return Type::Of(Kind::Int);
  if (is("smallint")) return Type::Of(Kind::SmallInt);
  if (is("tinyint")) return Type::Of(Kind::TinyInt);
  if (is("bigint")) return Type::Of(Kind::BigInt);
  if (is("bit")) return Type::Of(Kind::Bit);
  if (is("datetime") || is("smalldatetime")) return Type::Of(Kind::DateTime);
  if (is("float") || is("real")) return Type::Of(Kind::Float);
  if (is("uniqueidentifier")) return Type::Of(Kind::Guid);
  if (is("money") || is("smallmoney")) return Type::DecimalOf(kMaxDigits, 4);
  if (is("text") || is("ntext")) return Type::TextOf(0);
  if (is("decimal") || is("numeric") || is("dec")) {
    int precision = kMaxDigits, scale = 0;
    if (TakeSymbol('(')) {
      precision = StructuralNumber(38);
      if (TakeSymbol(',')) scale = StructuralNumber(kMaxDigits);
      ExpectSymbol(')');
    }
    if (precision < 1 || scale > precision)
      RaiseServer(kScaleAbovePrecision, "The scale must be less than or equal to the precision.");
    return Type::DecimalOf(precision, scale);
  }
  const bool fixed = is("char") || is("nchar");
  if (!fixed && !is("varchar") && !is("nvarchar")) {
    RaiseServer(kUnknownType,
                "Type " + std::string(tokenList_.TextOf(tokenList_.tokens[token])) + " is not a defined system type.");
  }
  Type type = Type::TextOf(lengthWhenNone);
  type.fixed = fixed;
  if (TakeSymbol('(')) {
    type.length = PeekWord("max") ? (++position_, 0) : StructuralNumber(8000);
    ExpectSymbol(')');
  }
  return type;
}

std::vector<std::string> Parser::NameList() {
  std::vector<std::string> names;
  ExpectSymbol('(');
  do {
    names.push_back(Name());
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return names;
}

Parser::Nesting::Nesting(Parser& parser) : parser_(parser) {
  constexpr int kMaxDepth = 200;
  if (++parser_.depth_ <= kMaxDepth) return;
  --parser_.depth_;
  RaiseServer(kNestedTooDeeply,
              "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up into smaller queries.");
}

void Parser::SkipSeparators() {
  while (TakeSymbol(';')) {
  }
}

}  // namespace suite
