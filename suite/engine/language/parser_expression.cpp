#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::ExprKind;
using ast::ExprPtr;

namespace {

constexpr int kCastLength = 30;  // of a character type named without a length

std::string LowerWord(std::string_view word) {
  std::string lower(word);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace

ExprPtr Parser::Value() {
  const auto begin = static_cast<std::uint32_t>(position_);
  ExprPtr value = Or();
  if (value->IsPredicate()) UnexpectedAt(begin);
  return value;
}

ExprPtr Parser::Predicate() {
  ExprPtr predicate = Or();
  if (!predicate->IsPredicate()) Unexpected();  // a value where a condition belongs
  return predicate;
}

ExprPtr Parser::Or() {
  ExprPtr left = And();
  while (PeekWord("or")) {
    ExprPtr node = Node(ExprKind::Or);
    if (!left->IsPredicate()) Unexpected();
    ++position_;
    node->children.push_back(std::move(left));
    node->children.push_back(And());
    if (!node->children.back()->IsPredicate()) Unexpected();
    left = std::move(node);
  }
  return left;
}

ExprPtr Parser::And() {
  ExprPtr left = NotTerm();
  while (PeekWord("and")) {
    ExprPtr node = Node(ExprKind::And);
    if (!left->IsPredicate()) Unexpected();
    ++position_;
    node->children.push_back(std::move(left));
    node->children.push_back(NotTerm());
    if (!node->children.back()->IsPredicate()) Unexpected();
    left = std::move(node);
  }
  return left;
}

ExprPtr Parser::NotTerm() {
  if (!PeekWord("not")) return Comparison();
  ExprPtr node = Node(ExprKind::Not);
  ++position_;
  node->children.push_back(NotTerm());
  if (!node->children.back()->IsPredicate()) Unexpected();
  return node;
}

ExprPtr Parser::Comparison() {
  ExprPtr left = Sum();
  if (left->IsPredicate()) return left;
  const Token& token = Peek();
  constexpr std::string_view kComparisons = "=<>LGN";
  if (token.kind == TokenKind::Symbol && kComparisons.find(token.symbol) != std::string_view::npos) {
    ExprPtr node = Node(ExprKind::Compare);
    node->op = token.symbol;
    ++position_;
    node->children.push_back(std::move(left));
    node->children.push_back(Sum());
    if (node->children.back()->IsPredicate()) Unexpected();
    return node;
  }
  return ComparisonTail(std::move(left));
}

ExprPtr Parser::ComparisonTail(ExprPtr left) {
  if (PeekWord("is")) {
    ExprPtr node = Node(ExprKind::IsNull);
    ++position_;
    node->negated = TakeWord("not");
    ExpectWord("null");
    node->children.push_back(std::move(left));
    return node;
  }
  const bool negated = PeekWord("not") && (PeekWord("like", 1) || PeekWord("in", 1) || PeekWord("between", 1));
  if (negated) ++position_;
  ExprPtr node = Node(ExprKind::Like);
  node->negated = negated;
  node->children.push_back(std::move(left));
  if (TakeWord("like")) {
    node->children.push_back(Sum());
    if (TakeWord("escape")) node->children.push_back(Sum());
    return node;
  }
  if (TakeWord("between")) {
    node->kind = ExprKind::Between;
    node->children.push_back(Sum());
    ExpectWord("and");
    node->children.push_back(Sum());
    return node;
  }
  if (!TakeWord("in")) return std::move(node->children.front());
  ExpectSymbol('(');
  node->kind = PeekWord("select") ? ExprKind::InQuery : ExprKind::In;
  if (node->kind == ExprKind::InQuery) {
    node->query = Query();
  } else {
    do {
      node->children.push_back(Value());
    } while (TakeSymbol(','));
  }
  ExpectSymbol(')');
  return node;
}

ExprPtr Parser::Sum() {
  ExprPtr left = Product();
  for (;;) {
    const Token& token = Peek();
    constexpr std::string_view kOperators = "+-&|^";
    if (token.kind != TokenKind::Symbol || kOperators.find(token.symbol) == std::string_view::npos) return left;
    ExprPtr node = Node(ExprKind::Binary);
    if (left->IsPredicate()) Unexpected();
    node->op = token.symbol;
    ++position_;
    node->children.push_back(std::move(left));
    node->children.push_back(Product());
    left = std::move(node);
  }
}

ExprPtr Parser::Product() {
  ExprPtr left = Sign();
  while (PeekSymbol('*') || PeekSymbol('/') || PeekSymbol('%')) {
    ExprPtr node = Node(ExprKind::Binary);
    if (left->IsPredicate()) Unexpected();
    node->op = Peek().symbol;
    ++position_;
    node->children.push_back(std::move(left));
    node->children.push_back(Sign());
    left = std::move(node);
  }
  return left;
}

ExprPtr Parser::Sign() {
  if (!PeekSymbol('-') && !PeekSymbol('+') && !PeekSymbol('~')) return Primary();
  ExprPtr node = Node(ExprKind::Unary);
  node->op = Peek().symbol;
  ++position_;
  node->children.push_back(Sign());
  return node;
}

ExprPtr Parser::Primary() {
  const Token& token = Peek();
  switch (token.kind) {
    case TokenKind::Integer:
    case TokenKind::Decimal:
    case TokenKind::Float:
    case TokenKind::Text: {
      ExprPtr node = Node(ExprKind::Literal);
      ++position_;
      return node;
    }
    case TokenKind::Symbol: {
      ExpectSymbol('(');
      ExprPtr inner;
      if (PeekWord("select")) {
        inner = Node(ExprKind::Scalar);
        inner->query = Query();
      } else {
        inner = Or();
      }
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
  const std::string word = LowerWord(lexed_.TextOf(Peek()));
  if (word == "null") {
    ExprPtr node = Node(ExprKind::Null);
    ++position_;
    return node;
  }
  if (word == "exists") {
    ExprPtr node = Node(ExprKind::Exists);
    ++position_;
    ExpectSymbol('(');
    node->query = Query();
    ExpectSymbol(')');
    return node;
  }
  if (word == "case") return CaseExpression();
  if (word == "current_timestamp") {
    ExprPtr node = Node(ExprKind::Function);
    ++position_;
    node->name = "getdate";
    return node;
  }
  if (PeekSymbol('(', 1)) {
    if (word == "cast" || word == "convert") return CastExpression(word == "convert");
    const bool functionWord = word == "left" || word == "right" || word == "coalesce" || word == "nullif";
    if (functionWord || !IsReserved(word)) return Function(word);
  }
  return ColumnReference();
}

ExprPtr Parser::Function(std::string name) {
  ExprPtr node = Node(ExprKind::Function);
  node->name = std::move(name);
  ++position_;
  ExpectSymbol('(');
  if (TakeSymbol(')')) return node;
  node->flag = TakeWord("distinct");
  if (!node->flag) TakeWord("all");
  const bool part = node->name == "datepart" || node->name == "dateadd" || node->name == "datediff" || node->name == "datename";
  do {
    if (PeekSymbol('*') && node->name == "count") {
      node->children.push_back(Node(ExprKind::Star));
      ++position_;
    } else if (part && node->children.empty()) {
      ExprPtr word = Node(ExprKind::Column);  // the name of a part of a date
      word->name = LowerWord(Name());
      node->children.push_back(std::move(word));
    } else {
      node->children.push_back(Value());
    }
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return node;
}

ExprPtr Parser::CaseExpression() {
  ExprPtr node = Node(ExprKind::Case);
  ExpectWord("case");
  node->flag = !PeekWord("when");
  if (node->flag) node->children.push_back(Value());
  if (!PeekWord("when")) Unexpected();
  while (TakeWord("when")) {
    node->children.push_back(node->flag ? Value() : Predicate());
    ExpectWord("then");
    node->children.push_back(Value());
  }
  node->hasElse = TakeWord("else");
  if (node->hasElse) node->children.push_back(Value());
  ExpectWord("end");
  return node;
}

ExprPtr Parser::CastExpression(bool convert) {
  ExprPtr node = Node(ExprKind::Cast);
  ++position_;
  ExpectSymbol('(');
  if (convert) {
    node->type = TypeNamed(kCastLength);
    ExpectSymbol(',');
    node->children.push_back(Value());
    if (TakeSymbol(',')) node->op = static_cast<char>(StructuralNumber(127));
  } else {
    node->children.push_back(Value());
    ExpectWord("as");
    node->type = TypeNamed(kCastLength);
  }
  ExpectSymbol(')');
  return node;
}

ExprPtr Parser::ColumnReference() {
  ExprPtr node = Node(ExprKind::Column);
  node->name = Name();
  while (TakeSymbol('.')) {
    node->qualifier = std::move(node->name);
    node->name = Name();
  }
  return node;
}

}  // namespace suite
