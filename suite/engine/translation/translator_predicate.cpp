#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Expr;
using ast::ExprKind;

namespace {

std::string OperatorText(char op) {
  switch (op) {
    case kLessOrEqual:
      return " <= ";
    case kGreaterOrEqual:
      return " >= ";
    case kNotEqual:
      return " <> ";
    default:
      return std::string(" ") + op + " ";
  }
}

}  // namespace

std::string Translator::Predicate(const Expr& expr, Scope& scope) {
  switch (expr.kind) {
    case ExprKind::And:
    case ExprKind::Or:
      return "(" + Predicate(*expr.children[0], scope) + (expr.kind == ExprKind::And ? " AND " : " OR ") +
             Predicate(*expr.children[1], scope) + ")";
    case ExprKind::Not:
      return "(NOT " + Predicate(*expr.children[0], scope) + ")";
    case ExprKind::Compare:
      return Compare(expr, scope);
    case ExprKind::Like:
      return Like(expr, scope);
    case ExprKind::In:
    case ExprKind::InQuery:
      return In(expr, scope);
    case ExprKind::Between:
      return Between(expr, scope);
    case ExprKind::IsNull:
      return Value(*expr.children[0], scope).sql + (expr.negated ? " IS NOT NULL" : " IS NULL");
    case ExprKind::Exists: {
      std::vector<ResultColumn> columns;
      return "EXISTS (" + QueryText(*expr.query, &scope, columns) + ")";
    }
    default:
      Unknown(expr, "a condition is expected");
  }
}

std::string Translator::Compare(const Expr& expr, Scope& scope) {
  Emitted left = Value(*expr.children[0], scope);
  Emitted right = Value(*expr.children[1], scope);
  const Type common = CommonType(left.type, right.type);
  left = Coerce(std::move(left), common);
  right = Coerce(std::move(right), common);
  // One side's collation serves both; a column brings its own, which lets an index be used.
  const std::string leftText = common.IsText() && !right.collated ? Collated(left) : left.sql;
  return "(" + leftText + OperatorText(expr.op) + right.sql + ")";
}

std::string Translator::Like(const Expr& expr, Scope& scope) {
  std::string text = "srv_like(";
  for (std::size_t i = 0; i < expr.children.size(); ++i) {
    if (i) text += ", ";
    text += Coerce(Value(*expr.children[i], scope), Type::TextOf(0)).sql;
  }
  return (expr.negated ? "(NOT " : "(") + text + "))";
}

std::string Translator::In(const Expr& expr, Scope& scope) {
  Emitted value = Value(*expr.children[0], scope);
  const std::string word = expr.negated ? " NOT IN (" : " IN (";
  if (expr.kind == ExprKind::InQuery) {
    std::vector<ResultColumn> columns;
    std::vector<ResultColumn> settled;
    QueryText(*expr.query, &scope, columns);
    if (columns.size() != 1) {
      RaiseServer(kSubqueryOfManyColumns,
                  "Only one expression can be specified in the select list when the subquery is not introduced with EXISTS.");
    }
    const Type common = CommonType(value.type, columns[0].type);
    const std::vector<Type> targets{common};
    const std::string query = QueryText(*expr.query, &scope, settled, &targets);
    return "(" + Collated(Coerce(std::move(value), common)) + word + query + "))";
  }
  Type common = value.type;
  std::vector<Emitted> candidates;
  for (std::size_t i = 1; i < expr.children.size(); ++i) {
    candidates.push_back(Value(*expr.children[i], scope));
    common = CommonType(common, candidates.back().type);
  }
  std::string text = "(" + Collated(Coerce(std::move(value), common)) + word;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    if (i) text += ", ";
    text += Coerce(std::move(candidates[i]), common).sql;
  }
  return text + "))";
}

std::string Translator::Between(const Expr& expr, Scope& scope) {
  Emitted value = Value(*expr.children[0], scope);
  Emitted low = Value(*expr.children[1], scope);
  Emitted high = Value(*expr.children[2], scope);
  const Type common = CommonType(CommonType(value.type, low.type), high.type);
  const std::string text = Collated(Coerce(std::move(value), common)) + (expr.negated ? " NOT BETWEEN " : " BETWEEN ") +
                           Coerce(std::move(low), common).sql + " AND " + Coerce(std::move(high), common).sql;
  return "(" + text + ")";
}

}  // namespace suite
