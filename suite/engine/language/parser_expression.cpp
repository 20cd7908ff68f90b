#include <array>
#include <utility>

#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::ExprPtr;

namespace {

constexpr int kCastLength = 30;  // of a character type named without a length
constexpr int kMaxStyle = 127;

std::string LowerWord(std::string_view word) {
  std::string lower(word);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

template <class Operator, std::size_t N>
const Operator* OperatorOf(const Token& token, const std::array<std::pair<char, Operator>, N>& operators) {
  if (token.kind != TokenKind::Symbol) return nullptr;
  for (const auto& [symbol, op] : operators) {
    if (symbol == token.symbol) return &op;
  }
  return nullptr;
}

using ast::BinaryOperator;
using ast::Comparison;
using ast::UnaryOperator;

constexpr std::array<std::pair<char, Comparison>, 6> kComparisons = {{{'=', Comparison::Equal},
                                                                      {'<', Comparison::Less},
                                                                      {'>', Comparison::Greater},
                                                                      {kLessOrEqual, Comparison::LessOrEqual},
                                                                      {kGreaterOrEqual, Comparison::GreaterOrEqual},
                                                                      {kNotEqual, Comparison::NotEqual}}};
constexpr std::array<std::pair<char, BinaryOperator>, 5> kSums = {{{'+', BinaryOperator::Add},
                                                                   {'-', BinaryOperator::Subtract},
                                                                   {'&', BinaryOperator::BitAnd},
                                                                   {'|', BinaryOperator::BitOr},
                                                                   {'^', BinaryOperator::BitXor}}};
constexpr std::array<std::pair<char, BinaryOperator>, 3> kProducts = {
    {{'*', BinaryOperator::Multiply}, {'/', BinaryOperator::Divide}, {'%', BinaryOperator::Remainder}}};
constexpr std::array<std::pair<char, UnaryOperator>, 3> kSigns = {
    {{'+', UnaryOperator::Plus}, {'-', UnaryOperator::Minus}, {'~', UnaryOperator::BitNot}}};

bool TakesDatePart(std::string_view function) {
  return function == "datepart" || function == "dateadd" || function == "datediff" || function == "datename";
}

}  // namespace

ExprPtr Parser::Value() {
  const std::uint32_t begin = Here();
  ExprPtr value = Or();
  if (value->IsPredicate()) UnexpectedAt(begin);
  return value;
}

ExprPtr Parser::Predicate() {
  ExprPtr predicate = Or();
  RequirePredicate(*predicate);  // a value where a condition belongs
  return predicate;
}

void Parser::RequirePredicate(const ast::Expr& expr) const {
  if (!expr.IsPredicate()) Unexpected();
}

/// The terms of a chain of conditions, joined by `word`; a single one is itself.
template <class Chain>
ExprPtr Parser::Joined(std::string_view word, ExprPtr (Parser::*term)()) {
  ExprPtr first = (this->*term)();
  if (!PeekWord(word)) return first;
  const std::uint32_t token = Here();
  Chain chain;
  chain.terms.push_back(std::move(first));
  while (PeekWord(word)) {
    RequirePredicate(*chain.terms.back());
    ++position_;
    chain.terms.push_back((this->*term)());
    RequirePredicate(*chain.terms.back());
  }
  return Node(token, std::move(chain));
}

ExprPtr Parser::Or() {
  return Joined<ast::Or>("or", &Parser::And);
}

ExprPtr Parser::And() {
  return Joined<ast::And>("and", &Parser::NotTerm);
}

ExprPtr Parser::NotTerm() {
  if (!PeekWord("not")) return Comparison();
  const Nesting nesting(*this);
  const std::uint32_t token = Here();
  ++position_;
  ExprPtr term = NotTerm();
  RequirePredicate(*term);
  return Node(token, ast::Not{std::move(term)});
}

ExprPtr Parser::Comparison() {
  ExprPtr left = Sum();
  if (left->IsPredicate()) return left;
  const ast::Comparison* op = OperatorOf(Peek(), kComparisons);
  if (!op) return ComparisonTail(std::move(left));
  const std::uint32_t token = Here();
  ++position_;
  ExprPtr right = Sum();
  if (right->IsPredicate()) Unexpected();
  return Node(token, ast::Compare{*op, std::move(left), std::move(right)});
}

ExprPtr Parser::ComparisonTail(ExprPtr left) {
  const std::uint32_t token = Here();
  if (TakeWord("is")) {
    const bool negated = TakeWord("not");
    ExpectWord("null");
    return Node(token, ast::IsNull{negated, std::move(left)});
  }
  const bool negated = PeekWord("not") && (PeekWord("like", 1) || PeekWord("in", 1) || PeekWord("between", 1));
  if (negated) ++position_;
  if (TakeWord("like")) {
    ExprPtr pattern = Sum();
    ExprPtr escape = TakeWord("escape") ? Sum() : nullptr;
    return Node(token, ast::Like{negated, std::move(left), std::move(pattern), std::move(escape)});
  }
  if (TakeWord("between")) {
    ExprPtr low = Sum();
    ExpectWord("and");
    ExprPtr high = Sum();
    return Node(token, ast::Between{negated, std::move(left), std::move(low), std::move(high)});
  }
  if (!TakeWord("in")) return left;
  return InTail(token, negated, std::move(left));
}

ExprPtr Parser::InTail(std::uint32_t token, bool negated, ExprPtr value) {
  ExpectSymbol('(');
  if (PeekWord("select")) {
    ast::InQuery in{negated, std::move(value), Query()};
    ExpectSymbol(')');
    return Node(token, std::move(in));
  }
  ast::In in{negated, std::move(value), {}};
  do {
    in.candidates.push_back(Value());
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return Node(token, std::move(in));
}

/// Operands joined by operators of one rank, from left to right.
template <std::size_t N>
ExprPtr Parser::LeftToRight(const std::array<std::pair<char, BinaryOperator>, N>& operators, ExprPtr (Parser::*operand)()) {
  constexpr int kMaxOperators = 900;  // the tree leans to the left: each is a level more
  ExprPtr left = (this->*operand)();
  for (int count = 0; const BinaryOperator* op = OperatorOf(Peek(), operators); ++count) {
    if (left->IsPredicate()) Unexpected();
    if (count == kMaxOperators) RaiseServer(kNestedTooDeeply, "Some part of your SQL statement is nested too deeply.");
    const std::uint32_t token = Here();
    ++position_;
    left = Node(token, ast::Binary{*op, std::move(left), (this->*operand)()});
  }
  return left;
}

ExprPtr Parser::Sum() {
  return LeftToRight(kSums, &Parser::Product);
}

ExprPtr Parser::Product() {
  return LeftToRight(kProducts, &Parser::Sign);
}

ExprPtr Parser::Sign() {
  const UnaryOperator* op = OperatorOf(Peek(), kSigns);
  if (!op) return Primary();
  const Nesting nesting(*this);
  const std::uint32_t token = Here();
  ++position_;
  return Node(token, ast::Unary{*op, Sign()});
}

ExprPtr Parser::Primary() {
  const Nesting nesting(*this);
  const std::uint32_t token = Here();
  switch (Peek().kind) {
    case TokenKind::Integer:
    case TokenKind::Decimal:
    case TokenKind::Float:
    case TokenKind::Text:
      ++position_;
      return Node(token, ast::Literal{token});
    case TokenKind::Symbol: {
      ExpectSymbol('(');
      ExprPtr inner = PeekWord("select") ? Node(token + 1, ast::Scalar{Query()}) : Or();
      ExpectSymbol(')');
      return inner;
    }
    case TokenKind::Word:
      return WordPrimary();
    case TokenKind::Quoted:
      return ColumnReference();
    default:
      Unexpected();
  }
}

ExprPtr Parser::WordPrimary() {
  const std::uint32_t token = Here();
  const std::string word = LowerWord(tokenList_.TextOf(Peek()));
  if (word == "null") {
    ++position_;
    return Node(token, ast::Null{});
  }
  if (word == "exists") {
    ++position_;
    ExpectSymbol('(');
    ast::Exists exists{Query()};
    ExpectSymbol(')');
    return Node(token, std::move(exists));
  }
  if (word == "case") return CaseExpression();
  if (word == "current_timestamp") {
    ++position_;
    return Node(token, ast::Function{"getdate", false, {}});
  }
  if (PeekSymbol('(', 1)) {
    if (word == "cast" || word == "convert") return CastExpression(word == "convert");
    if (TakesDatePart(word)) return DateFunction(word);
    const bool functionWord = word == "left" || word == "right" || word == "coalesce" || word == "nullif";
    if (functionWord || !IsReserved(word)) return Function(word);
  }
  return ColumnReference();
}

std::vector<ExprPtr> Parser::Arguments() {
  std::vector<ExprPtr> arguments;
  do {
    arguments.push_back(Value());
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return arguments;
}

ExprPtr Parser::Function(std::string name) {
  const std::uint32_t token = Here();
  position_ += 2;
  const bool big = name == "count_big";
  if ((big || name == "count") && TakeSymbol('*')) {
    ExpectSymbol(')');
    return Node(token, ast::CountAll{big});
  }
  ast::Function function{std::move(name), false, {}};
  if (TakeSymbol(')')) return Node(token, std::move(function));
  function.distinct = TakeWord("distinct");
  if (!function.distinct) TakeWord("all");
  function.arguments = Arguments();
  return Node(token, std::move(function));
}

ExprPtr Parser::DateFunction(std::string name) {
  const std::uint32_t token = Here();
  position_ += 2;
  ast::DateFunction function{std::move(name), LowerWord(Name()), {}};
  ExpectSymbol(',');
  function.arguments = Arguments();
  return Node(token, std::move(function));
}

ExprPtr Parser::CaseExpression() {
  const std::uint32_t token = Here();
  ExpectWord("case");
  ast::Case node;
  if (!PeekWord("when")) node.operand = Value();
  if (!PeekWord("when")) Unexpected();
  while (TakeWord("when")) {
    ExprPtr when = node.operand ? Value() : Predicate();
    ExpectWord("then");
    node.branches.push_back({std::move(when), Value()});
  }
  if (TakeWord("else")) node.otherwise = Value();
  ExpectWord("end");
  return Node(token, std::move(node));
}

ExprPtr Parser::CastExpression(bool convert) {
  const std::uint32_t token = Here();
  ast::Cast cast;
  ++position_;
  ExpectSymbol('(');
  if (convert) {
    cast.type = TypeNamed(kCastLength);
    ExpectSymbol(',');
    cast.value = Value();
    if (TakeSymbol(',')) cast.style = StructuralNumber(kMaxStyle);
  } else {
    cast.value = Value();
    ExpectWord("as");
    cast.type = TypeNamed(kCastLength);
  }
  ExpectSymbol(')');
  return Node(token, std::move(cast));
}

ExprPtr Parser::ColumnReference() {
  const std::uint32_t token = Here();
  ast::ColumnName column{{}, Name()};
  while (TakeSymbol('.')) {
    column.qualifier = std::move(column.name);
    column.name = Name();
  }
  return Node(token, std::move(column));
}

}  // namespace suite
