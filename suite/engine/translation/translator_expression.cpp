#include "base/vb/text.h"
#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Expr;
using ast::ExprKind;

std::string Quoted(std::string_view name) {
  return "\"" + vb::Replace(name, "\"", "\"\"") + "\"";
}

std::string Translator::Near(std::uint32_t token) const {
  return std::string(lexed_.TextOf(lexed_.tokens[token]));
}

void Translator::Unknown(const Expr& expr, const std::string& what) const {
  RaiseServer(kSyntaxNear, "Incorrect syntax near '" + Near(expr.token) + "': " + what);
}

Translator::Emitted Translator::Value(const Expr& expr, Scope& scope) {
  if (scope.grouped && !scope.inAggregate && scope.group) {
    for (const ast::ExprPtr& grouped : *scope.group) {
      if (!Same(expr, *grouped, scope)) continue;
      scope.inAggregate = true;
      Emitted value = ValueUngrouped(expr, scope);
      scope.inAggregate = false;
      return value;
    }
  }
  return ValueUngrouped(expr, scope);
}

Translator::Emitted Translator::ValueUngrouped(const Expr& expr, Scope& scope) {
  switch (expr.kind) {
    case ExprKind::Literal:
      return Literal(expr);
    case ExprKind::Null:
      return Emitted{"NULL", Type{}};
    case ExprKind::Column:
      return Column(expr, scope);
    case ExprKind::Unary:
      return Unary(expr, scope);
    case ExprKind::Binary:
      return Binary(expr, scope);
    case ExprKind::Case:
      return Case(expr, scope);
    case ExprKind::Function:
      return Function(expr, scope);
    case ExprKind::Cast:
      return CastTo(Value(*expr.children[0], scope), expr.type, expr.op);
    case ExprKind::Scalar:
      return Scalar(expr, scope);
    default:
      Unknown(expr, "a value is expected");
  }
}

Translator::Emitted Translator::Literal(const Expr& expr) {
  const Token& token = lexed_.tokens[expr.token];
  Emitted value;
  value.type = LiteralType(token);
  value.parameter = static_cast<int>(parameters_.size());
  value.nullable = false;
  parameters_.push_back(Parameter{token.literal, value.type});
  value.sql = inline_ ? LiteralText(lexed_, parameters_.back()) : "?" + std::to_string(parameters_.size());
  return value;
}

Translator::Place Translator::Resolve(const Expr& expr, Scope& scope) const {
  bool qualifierFound = false;
  for (Scope* at = &scope; at; at = at->outer) {
    Place place;
    for (std::size_t s = 0; s < at->sources.size(); ++s) {
      const SourceInfo& source = at->sources[s];
      if (!expr.qualifier.empty()) {
        if (!vb::EqualNoCase(source.alias, expr.qualifier)) continue;
        qualifierFound = true;
      }
      for (std::size_t c = 0; c < source.columns.size(); ++c) {
        if (!vb::EqualNoCase(source.columns[c].name, expr.name)) continue;
        if (place.scope) RaiseServer(kAmbiguousColumn, "Ambiguous column name '" + expr.name + "'.");
        place = Place{at, s, c};
        break;
      }
    }
    if (place.scope) return place;
  }
  if (!expr.qualifier.empty() && !qualifierFound) {
    RaiseServer(kUnknownPrefix,
                "The column prefix '" + expr.qualifier + "' does not match with a table name or alias name used in the query.");
  }
  RaiseServer(kInvalidColumn, "Invalid column name '" + expr.name + "'.");
}

Translator::Emitted Translator::Column(const Expr& expr, Scope& scope) {
  const Place place = Resolve(expr, scope);
  const SourceInfo& source = place.scope->sources[place.source];
  const ColumnDef& column = source.columns[place.column];
  if (place.scope->grouped && !place.scope->inAggregate) {
    RaiseServer(kColumnNotGrouped,
                "Column '" + source.alias + "." + column.name +
                    "' is invalid in the select list because it is not contained in either an aggregate function or the "
                    "GROUP BY clause.");
  }
  Emitted value;
  value.sql = Quoted(source.alias) + "." + Quoted(column.name);
  value.type = column.type;
  value.collated = true;
  value.nullable = column.nullable;
  value.tableColumn = static_cast<int>(place.column);
  return value;
}

Translator::Emitted Translator::Unary(const Expr& expr, Scope& scope) {
  Emitted value = Value(*expr.children[0], scope);
  if (expr.op == '~') {
    if (!value.type.IsWhole()) Unknown(expr, "~ needs a whole number");
    value.sql = value.type.kind == Kind::Bit ? "(1 - " + value.sql + ")" : "(~" + value.sql + ")";
  } else {
    if (value.type.IsText()) value = Coerce(std::move(value), Type::Of(Kind::Int));
    if (!value.type.IsNumber() && value.type.kind != Kind::Null) Unknown(expr, "a number is expected");
    if (expr.op == '-') value.sql = "(-" + value.sql + ")";
  }
  value.parameter = -1;
  value.tableColumn = -1;
  value.collated = false;
  return value;
}

Translator::Emitted Translator::Case(const Expr& expr, Scope& scope) {
  std::size_t next = expr.flag ? 1 : 0;
  const std::size_t pairsEnd = expr.children.size() - (expr.hasElse ? 1 : 0);
  std::vector<std::string> conditions;
  std::vector<Emitted> results;
  Type type;
  for (; next + 1 < pairsEnd; next += 2) {
    if (expr.flag) {
      // Each comparison is written out, so that every pair is brought to its own common type.
      Emitted operand = Value(*expr.children[0], scope);
      Emitted when = Value(*expr.children[next], scope);
      const Type common = CommonType(operand.type, when.type);
      operand = Coerce(std::move(operand), common);
      when = Coerce(std::move(when), common);
      const bool text = common.IsText() && !when.collated;
      conditions.push_back((text ? Collated(operand) : operand.sql) + " = " + when.sql);
    } else {
      conditions.push_back(Predicate(*expr.children[next], scope));
    }
    results.push_back(Value(*expr.children[next + 1], scope));
    type = CommonType(type, results.back().type);
  }
  if (expr.hasElse) {
    results.push_back(Value(*expr.children.back(), scope));
    type = CommonType(type, results.back().type);
  }
  Emitted value;
  value.type = type;
  value.sql = "CASE";
  for (std::size_t i = 0; i < conditions.size(); ++i) {
    value.sql += " WHEN " + conditions[i] + " THEN " + Coerce(results[i], type).sql;
  }
  if (expr.hasElse) value.sql += " ELSE " + Coerce(results.back(), type).sql;
  value.sql = "(" + value.sql + " END)";
  return value;
}

Translator::Emitted Translator::Scalar(const Expr& expr, Scope& scope) {
  std::vector<ResultColumn> columns;
  Emitted value;
  value.sql = "(" + QueryText(*expr.query, &scope, columns) + ")";
  if (columns.size() != 1) {
    RaiseServer(kSubqueryOfManyColumns,
                "Only one expression can be specified in the select list when the subquery is not introduced with EXISTS.");
  }
  value.type = columns[0].type;
  return value;
}

bool Translator::Same(const Expr& a, const Expr& b, Scope& scope) {
  if (a.kind != b.kind || a.op != b.op || a.negated != b.negated || a.flag != b.flag || a.children.size() != b.children.size()) {
    return false;
  }
  if (a.kind == ExprKind::Column) {
    if (!vb::EqualNoCase(a.name, b.name)) return false;
    const Place left = Resolve(a, scope), right = Resolve(b, scope);
    return left.scope == right.scope && left.source == right.source && left.column == right.column;
  }
  if (a.kind == ExprKind::Literal) {
    const Token &left = lexed_.tokens[a.token], &right = lexed_.tokens[b.token];
    // Which literals are equal shapes the statement.
    structural_.push_back(left.literal);
    structural_.push_back(right.literal);
    return left.kind == right.kind && lexed_.TextOf(left) == lexed_.TextOf(right);
  }
  if (a.name != b.name || a.query || b.query || TypeName(a.type) != TypeName(b.type)) return false;
  for (std::size_t i = 0; i < a.children.size(); ++i) {
    if (!Same(*a.children[i], *b.children[i], scope)) return false;
  }
  return true;
}

}  // namespace suite
