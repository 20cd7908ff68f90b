#include <algorithm>

#include "base/vb/text.h"
#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Expr;
using ast::Overloaded;

std::string Quoted(std::string_view name) {
  return "\"" + vb::Replace(name, "\"", "\"\"") + "\"";
}

std::string Translator::Near(std::uint32_t token) const {
  return std::string(tokenList_.TextOf(tokenList_.tokens[token]));
}

void Translator::Unknown(const Expr& expr, const std::string& what) const {
  RaiseServer(kSyntaxNear, "Incorrect syntax near '" + Near(expr.token) + "': " + what);
}

Translator::SqlValue Translator::Value(const Expr& expr, Scope& scope) {
  if (scope.grouped && !scope.inAggregate && scope.group) {
    for (const ast::ExprPtr& grouped : *scope.group) {
      if (!Same(expr, *grouped, scope)) continue;
      scope.inAggregate = true;
      SqlValue value = ValueUngrouped(expr, scope);
      scope.inAggregate = false;
      return value;
    }
  }
  return ValueUngrouped(expr, scope);
}

Translator::SqlValue Translator::ValueUngrouped(const Expr& expr, Scope& scope) {
  return std::visit(Overloaded{
                        [&](const ast::Literal& node) { return Literal(node); },
                        [](const ast::Null&) {
                          return SqlValue{"NULL", Type{}};
                        },
                        [&](const ast::ColumnName& node) { return Column(node, scope); },
                        [&](const ast::Unary& node) { return Unary(expr, node, scope); },
                        [&](const ast::Binary& node) { return Binary(expr, node, scope); },
                        [&](const ast::Case& node) { return Case(node, scope); },
                        [&](const ast::Function& node) { return Function(expr, node, scope); },
                        [&](const ast::CountAll& node) { return CountAll(node, scope); },
                        [&](const ast::DateFunction& node) { return DateFunction(node, scope); },
                        [&](const ast::Cast& node) { return CastTo(Value(*node.value, scope), node.type, node.style); },
                        [&](const ast::Scalar& node) { return Scalar(node, scope); },
                        [&](const auto&) -> SqlValue { Unknown(expr, "a value is expected"); },
                    },
                    expr.node);
}

Translator::SqlValue Translator::Literal(const ast::Literal& literal) {
  const Token& token = tokenList_.tokens[literal.token];
  SqlValue value;
  value.type = LiteralType(token);
  value.parameter = static_cast<int>(parameters_.size());
  value.nullable = false;
  parameters_.push_back(Parameter{token.literal, value.type});
  value.sql = inline_ ? LiteralText(tokenList_, parameters_.back()) : "?" + std::to_string(parameters_.size());
  return value;
}

Translator::Place Translator::Resolve(const ast::ColumnName& name, Scope& scope) const {
  bool qualifierFound = false;
  for (Scope* at = &scope; at; at = at->outer) {
    Place place;
    for (std::size_t s = 0; s < at->sources.size(); ++s) {
      const SourceInfo& source = at->sources[s];
      if (!name.qualifier.empty()) {
        if (!vb::EqualNoCase(source.alias, name.qualifier)) continue;
        qualifierFound = true;
      }
      for (std::size_t c = 0; c < source.columns.size(); ++c) {
        if (!vb::EqualNoCase(source.columns[c].name, name.name)) continue;
        if (place.scope) RaiseServer(kAmbiguousColumn, "Ambiguous column name '" + name.name + "'.");
        place = Place{at, s, c};
        break;
      }
    }
    if (place.scope) return place;
  }
  if (!name.qualifier.empty() && !qualifierFound) {
    RaiseServer(kUnknownPrefix,
                "The column prefix '" + name.qualifier + "' does not match with a table name or alias name used in the query.");
  }
  RaiseServer(kInvalidColumn, "Invalid column name '" + name.name + "'.");
}

Translator::SqlValue Translator::Column(const ast::ColumnName& name, Scope& scope) {
  const Place place = Resolve(name, scope);
  const SourceInfo& source = place.scope->sources[place.source];
  const ColumnDef& column = source.columns[place.column];
  if (place.scope->grouped && !place.scope->inAggregate) {
    RaiseServer(kColumnNotGrouped,
                "Column '" + source.alias + "." + column.name +
                    "' is invalid in the select list because it is not contained in either an aggregate function or the "
                    "GROUP BY clause.");
  }
  SqlValue value;
  value.sql = Quoted(source.alias) + "." + Quoted(column.name);
  value.type = column.type;
  value.collated = true;
  value.nullable = column.nullable;
  value.tableColumn = static_cast<int>(place.column);
  return value;
}

Translator::SqlValue Translator::Unary(const Expr& expr, const ast::Unary& sign, Scope& scope) {
  SqlValue value = Value(*sign.operand, scope);
  if (sign.op == ast::UnaryOperator::BitNot) {
    if (!value.type.IsInteger()) Unknown(expr, "~ needs a whole number");
    value.sql = value.type.kind == Kind::Bit ? "(1 - " + value.sql + ")" : "(~" + value.sql + ")";
  } else {
    if (value.type.IsText()) value = Coerce(std::move(value), Type::Of(Kind::Int));
    if (!value.type.IsNumber() && value.type.kind != Kind::Null) Unknown(expr, "a number is expected");
    if (sign.op == ast::UnaryOperator::Minus) value.sql = "(-" + value.sql + ")";
  }
  value.parameter = -1;
  value.tableColumn = -1;
  value.collated = false;
  value.chain = false;
  return value;
}

std::string Translator::CaseCondition(const ast::Case& choice, const Expr& when, Scope& scope) {
  if (!choice.operand) return Predicate(when, scope);
  // Each comparison is written out, so that every pair is brought to its own common type.
  SqlValue operand = Value(*choice.operand, scope);
  SqlValue value = Value(when, scope);
  const Type common = CommonType(operand.type, value.type);
  operand = Coerce(std::move(operand), common);
  value = Coerce(std::move(value), common);
  const bool text = common.IsText() && !value.collated;
  return (text ? Collated(operand) : operand.sql) + " = " + value.sql;
}

Translator::SqlValue Translator::Case(const ast::Case& choice, Scope& scope) {
  std::vector<std::string> conditions;
  std::vector<SqlValue> results;
  Type type;
  for (const ast::Case::Branch& branch : choice.branches) {
    conditions.push_back(CaseCondition(choice, *branch.when, scope));
    results.push_back(Value(*branch.then, scope));
    type = CommonType(type, results.back().type);
  }
  if (choice.otherwise) {
    results.push_back(Value(*choice.otherwise, scope));
    type = CommonType(type, results.back().type);
  }
  SqlValue value;
  value.type = type;
  value.sql = "CASE";
  for (std::size_t i = 0; i < conditions.size(); ++i) {
    value.sql += " WHEN " + conditions[i] + " THEN " + Coerce(results[i], type).sql;
  }
  if (choice.otherwise) value.sql += " ELSE " + Coerce(results.back(), type).sql;
  value.sql = "(" + value.sql + " END)";
  return value;
}

Translator::SqlValue Translator::Scalar(const ast::Scalar& subquery, Scope& scope) {
  std::vector<ResultColumn> columns;
  SqlValue value;
  value.sql = "(" + QueryText(*subquery.query, &scope, columns) + ")";
  if (columns.size() != 1) {
    RaiseServer(kSubqueryOfManyColumns,
                "Only one expression can be specified in the select list when the subquery is not introduced with EXISTS.");
  }
  value.type = columns[0].type;
  return value;
}

bool Translator::SameLiteral(const ast::Literal& a, const ast::Literal& b) {
  const Token &left = tokenList_.tokens[a.token], &right = tokenList_.tokens[b.token];
  // Which literals are equal shapes the statement.
  structural_.push_back(left.literal);
  structural_.push_back(right.literal);
  return left.kind == right.kind && tokenList_.TextOf(left) == tokenList_.TextOf(right);
}

bool Translator::Same(const Expr& a, const Expr& b, Scope& scope) {
  if (a.node.index() != b.node.index()) return false;
  const auto both = [&](const ast::ExprPtr& left, const ast::ExprPtr& right) {
    return left && right ? Same(*left, *right, scope) : !left && !right;
  };
  const auto all = [&](const std::vector<ast::ExprPtr>& left, const std::vector<ast::ExprPtr>& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), both);
  };
  const auto branches = [&](const ast::Case::Branch& left, const ast::Case::Branch& right) {
    return both(left.when, right.when) && both(left.then, right.then);
  };
  const Overloaded same{
      [](const ast::Null&, const ast::Null&) { return true; },
      [](const ast::CountAll& x, const ast::CountAll& y) { return x.big == y.big; },
      [&](const ast::Literal& x, const ast::Literal& y) { return SameLiteral(x, y); },
      [&](const ast::ColumnName& x, const ast::ColumnName& y) {
        if (!vb::EqualNoCase(x.name, y.name)) return false;
        const Place left = Resolve(x, scope), right = Resolve(y, scope);
        return left.scope == right.scope && left.source == right.source && left.column == right.column;
      },
      [&](const ast::Unary& x, const ast::Unary& y) { return x.op == y.op && both(x.operand, y.operand); },
      [&](const ast::Binary& x, const ast::Binary& y) { return x.op == y.op && both(x.left, y.left) && both(x.right, y.right); },
      [&](const ast::Case& x, const ast::Case& y) {
        return both(x.operand, y.operand) && both(x.otherwise, y.otherwise) &&
               std::equal(x.branches.begin(), x.branches.end(), y.branches.begin(), y.branches.end(), branches);
      },
      [&](const ast::Function& x, const ast::Function& y) {
        return x.name == y.name && x.distinct == y.distinct && all(x.arguments, y.arguments);
      },
      [&](const ast::DateFunction& x, const ast::DateFunction& y) {
        return x.name == y.name && x.part == y.part && all(x.arguments, y.arguments);
      },
      [&](const ast::Cast& x, const ast::Cast& y) {
        return x.style == y.style && TypeName(x.type) == TypeName(y.type) && both(x.value, y.value);
      },
      [&](const ast::Compare& x, const ast::Compare& y) {
        return x.op == y.op && both(x.left, y.left) && both(x.right, y.right);
      },
      [&](const ast::And& x, const ast::And& y) { return all(x.terms, y.terms); },
      [&](const ast::Or& x, const ast::Or& y) { return all(x.terms, y.terms); },
      [&](const ast::Not& x, const ast::Not& y) { return both(x.term, y.term); },
      [&](const ast::Like& x, const ast::Like& y) {
        return x.negated == y.negated && both(x.text, y.text) && both(x.pattern, y.pattern) && both(x.escape, y.escape);
      },
      [&](const ast::In& x, const ast::In& y) {
        return x.negated == y.negated && both(x.value, y.value) && all(x.candidates, y.candidates);
      },
      [&](const ast::Between& x, const ast::Between& y) {
        return x.negated == y.negated && both(x.value, y.value) && both(x.low, y.low) && both(x.high, y.high);
      },
      [&](const ast::IsNull& x, const ast::IsNull& y) { return x.negated == y.negated && both(x.value, y.value); },
      [](const auto&, const auto&) { return false; },
  };
  return std::visit([&](const auto& left) { return same(left, std::get<std::decay_t<decltype(left)>>(b.node)); }, a.node);
}

}  // namespace suite
