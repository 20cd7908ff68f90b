#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::JoinKind;

std::unique_ptr<ast::Query> Parser::Query() {
  auto query = std::make_unique<ast::Query>();
  query->token = static_cast<std::uint32_t>(position_);
  for (;;) {
    query->parts.push_back(Select());
    if (PeekWord("intersect") || PeekWord("except")) Unexpected();
    if (!TakeWord("union")) break;
    query->all.push_back(TakeWord("all"));
  }
  query->order = OrderBy();
  return query;
}

ast::Select Parser::Select() {
  ast::Select select;
  ExpectWord("select");
  select.distinct = TakeWord("distinct");
  if (!select.distinct) TakeWord("all");
  if (TakeWord("top")) {
    const std::uint32_t count = Here();
    select.top = Primary();
    if (!select.top->If<ast::Literal>()) UnexpectedAt(count);
    if (PeekWord("percent")) Unexpected();
  }
  do {
    select.items.push_back(Item());
  } while (TakeSymbol(','));
  if (PeekWord("into")) Unexpected();
  if (TakeWord("from")) {
    do {
      select.from.push_back(JoinTree());
    } while (TakeSymbol(','));
  }
  if (TakeWord("where")) select.where = Predicate();
  if (TakeWord("group")) {
    ExpectWord("by");
    do {
      select.group.push_back(Value());
    } while (TakeSymbol(','));
  }
  if (TakeWord("having")) select.having = Predicate();
  return select;
}

ast::SelectItem Parser::Item() {
  ast::SelectItem item;
  if (TakeSymbol('*')) return item;
  const bool named = Peek().kind == TokenKind::Quoted || Peek().kind == TokenKind::Word;
  if (named && PeekSymbol('.', 1) && PeekSymbol('*', 2)) {
    item.qualifier = Name();
    position_ += 2;
    return item;
  }
  if (named && PeekSymbol('=', 1)) {
    item.alias = Name();
    ++position_;
    item.value = Value();
    return item;
  }
  item.value = Value();
  const bool as = TakeWord("as");
  if (Peek().kind == TokenKind::Text) {
    // An alias in quotation marks is a name, not a literal: it belongs to the statement's shape.
    MarkStructural(Peek());
    item.alias = tokenList_.ValueOf(tokenList_.tokens[position_++]);
  } else if (as || NameFollows()) {
    item.alias = Name();
  }
  return item;
}

std::string Parser::OptionalAlias() {
  const bool as = TakeWord("as");
  return as || NameFollows() ? Name() : std::string();
}

void Parser::Hints() {
  // Locking hints change nothing here: readers never wait.
  const bool with = PeekWord("with") && PeekSymbol('(', 1);
  const bool bare = PeekSymbol('(') && (PeekWord("nolock", 1) || PeekWord("updlock", 1) || PeekWord("holdlock", 1));
  if (!with && !bare) return;
  if (with) ++position_;
  ExpectSymbol('(');
  do {
    if (!TakeWord("nolock") && !TakeWord("updlock") && !TakeWord("holdlock") && !TakeWord("rowlock")) Unexpected();
  } while (TakeSymbol(','));
  ExpectSymbol(')');
}

std::unique_ptr<ast::Source> Parser::SourceItem() {
  const Nesting nesting(*this);
  auto source = std::make_unique<ast::Source>();
  source->token = static_cast<std::uint32_t>(position_);
  if (TakeSymbol('(')) {
    if (!PeekWord("select")) {
      source = JoinTree();
      ExpectSymbol(')');
      return source;
    }
    source->query = Query();
    ExpectSymbol(')');
    TakeWord("as");
    source->alias = Name();
    return source;
  }
  source->name = ObjectName();
  Hints();
  source->alias = OptionalAlias();
  Hints();
  if (source->alias.empty()) source->alias = source->name;
  return source;
}

std::unique_ptr<ast::Source> Parser::JoinTree() {
  std::unique_ptr<ast::Source> left = SourceItem();
  for (;;) {
    JoinKind kind = JoinKind::Inner;
    const bool outer = PeekWord("left") || PeekWord("right") || PeekWord("full");
    if (outer) {
      kind = PeekWord("left") ? JoinKind::Left : PeekWord("right") ? JoinKind::Right : JoinKind::Full;
      ++position_;
      TakeWord("outer");
    } else if (TakeWord("cross")) {
      kind = JoinKind::Cross;
    } else if (!TakeWord("inner") && !PeekWord("join")) {
      return left;
    }
    ExpectWord("join");
    auto join = std::make_unique<ast::Source>();
    join->token = static_cast<std::uint32_t>(position_);
    join->join = kind;
    join->left = std::move(left);
    join->right = SourceItem();
    if (kind != JoinKind::Cross) {
      ExpectWord("on");
      join->on = Predicate();
    }
    left = std::move(join);
  }
}

std::vector<ast::OrderItem> Parser::OrderBy() {
  std::vector<ast::OrderItem> order;
  if (!TakeWord("order")) return order;
  ExpectWord("by");
  do {
    ast::OrderItem item;
    if (Peek().kind == TokenKind::Integer) MarkStructural(Peek());  // an ordinal
    item.value = Value();
    item.descending = TakeWord("desc");
    if (!item.descending) TakeWord("asc");
    order.push_back(std::move(item));
  } while (TakeSymbol(','));
  return order;
}

}  // namespace suite
