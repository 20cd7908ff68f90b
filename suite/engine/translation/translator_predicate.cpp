#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Comparison;
using ast::Expr;
using ast::Overloaded;

namespace {

std::string TextOf(Comparison op) {
  switch (op) {
    case Comparison::Equal:
      return " = ";
    case Comparison::NotEqual:
      return " <> ";
    case Comparison::Less:
      return " < ";
    case Comparison::LessOrEqual:
      return " <= ";
    case Comparison::Greater:
      return " > ";
    case Comparison::GreaterOrEqual:
      return " >= ";
  }
  return {};
}

}  // namespace

std::string Translator::Predicate(const Expr& expr, Scope& scope) {
  return std::visit(
      Overloaded{
          [&](const ast::And& node) { return Chain(node.terms, " AND ", scope); },
          [&](const ast::Or& node) { return Chain(node.terms, " OR ", scope); },
          [&](const ast::Not& node) { return "(NOT " + Predicate(*node.term, scope) + ")"; },
          [&](const ast::Compare& node) { return Compare(node, scope); },
          [&](const ast::Like& node) { return Like(node, scope); },
          [&](const ast::In& node) { return In(node, scope); },
          [&](const ast::InQuery& node) { return InQuery(node, scope); },
          [&](const ast::Between& node) { return Between(node, scope); },
          [&](const ast::IsNull& node) { return Value(*node.value, scope).sql + (node.negated ? " IS NOT NULL" : " IS NULL"); },
          [&](const ast::Exists& node) {
            std::vector<ResultColumn> columns;
            return "EXISTS (" + QueryText(*node.query, &scope, columns) + ")";
          },
          [&](const auto&) -> std::string { Unknown(expr, "a condition is expected"); },
      },
      expr.node);
}

/// In one pair of brackets: the store's parser bounds how deep they nest.
std::string Translator::Chain(const std::vector<ast::ExprPtr>& terms, const char* word, Scope& scope) {
  std::string text;
  for (const ast::ExprPtr& term : terms) text += (text.empty() ? "(" : word) + Predicate(*term, scope);
  return text + ")";
}

std::string Translator::Compare(const ast::Compare& comparison, Scope& scope) {
  SqlValue left = Value(*comparison.left, scope);
  SqlValue right = Value(*comparison.right, scope);
  const Type common = CommonType(left.type, right.type);
  left = Coerce(std::move(left), common);
  right = Coerce(std::move(right), common);
  // One side's collation serves both; a column brings its own, which lets an index be used.
  const std::string leftText = common.IsText() && !right.collated ? Collated(left) : left.sql;
  return "(" + leftText + TextOf(comparison.op) + right.sql + ")";
}

std::string Translator::Like(const ast::Like& like, Scope& scope) {
  const auto text = [&](const Expr& expr) { return Coerce(Value(expr, scope), Type::TextOf(0)).sql; };
  std::string call = "srv_like(" + text(*like.text);
  call += ", " + text(*like.pattern);
  if (like.escape) call += ", " + text(*like.escape);
  return (like.negated ? "(NOT " : "(") + call + "))";
}

std::string Translator::In(const ast::In& in, Scope& scope) {
  SqlValue value = Value(*in.value, scope);
  Type common = value.type;
  std::vector<SqlValue> candidates;
  for (const ast::ExprPtr& candidate : in.candidates) {
    candidates.push_back(Value(*candidate, scope));
    common = CommonType(common, candidates.back().type);
  }
  std::string text = "(" + Collated(Coerce(std::move(value), common)) + (in.negated ? " NOT IN (" : " IN (");
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    if (i) text += ", ";
    text += Coerce(std::move(candidates[i]), common).sql;
  }
  return text + "))";
}

std::string Translator::InQuery(const ast::InQuery& in, Scope& scope) {
  SqlValue value = Value(*in.value, scope);
  std::vector<ResultColumn> columns;
  QueryText(*in.query, &scope, columns);
  if (columns.size() != 1) {
    RaiseServer(kSubqueryOfManyColumns,
                "Only one expression can be specified in the select list when the subquery is not introduced with EXISTS.");
  }
  const Type common = CommonType(value.type, columns[0].type);
  const std::vector<Type> targets{common};
  std::vector<ResultColumn> converted;
  const std::string query = QueryText(*in.query, &scope, converted, &targets);
  return "(" + Collated(Coerce(std::move(value), common)) + (in.negated ? " NOT IN (" : " IN (") + query + "))";
}

std::string Translator::Between(const ast::Between& between, Scope& scope) {
  SqlValue value = Value(*between.value, scope);
  SqlValue low = Value(*between.low, scope);
  SqlValue high = Value(*between.high, scope);
  const Type common = CommonType(CommonType(value.type, low.type), high.type);
  const std::string text = Collated(Coerce(std::move(value), common)) + (between.negated ? " NOT BETWEEN " : " BETWEEN ") +
                           Coerce(std::move(low), common).sql + " AND " + Coerce(std::move(high), common).sql;
  return "(" + text + ")";
}

}  // namespace suite
