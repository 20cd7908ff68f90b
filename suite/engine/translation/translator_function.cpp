#include <algorithm>
#include <array>

#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Expr;
using ast::ExprKind;

/// A function whose arguments and result have fixed kinds. `arguments`: t text, i int, d datetime, f float; lower case is
/// required, behind the bar optional. `store` is what computes it.
struct Translator::FunctionEntry {
  std::string_view name;
  std::string_view arguments;
  Kind result;
  std::string_view store;
  bool keepsLength = false;  ///< the text is never longer than the first argument
};

namespace {

Kind KindOf(char letter) {
  switch (letter) {
    case 'i':
      return Kind::Int;
    case 'd':
      return Kind::DateTime;
    case 'f':
      return Kind::Float;
    default:
      return Kind::Text;
  }
}

bool IsAggregateName(std::string_view name) {
  return name == "sum" || name == "count" || name == "min" || name == "max" || name == "avg";
}

}  // namespace

const Translator::FunctionEntry* Translator::FindFunction(std::string_view name) {
  static constexpr std::array<FunctionEntry, 24> kFunctions = {{
      {"len", "t", Kind::Int, "srv_len"},
      {"left", "ti", Kind::Text, "srv_left", true},
      {"right", "ti", Kind::Text, "srv_right", true},
      {"substring", "tii", Kind::Text, "srv_substring", true},
      {"ltrim", "t", Kind::Text, "ltrim", true},
      {"rtrim", "t", Kind::Text, "rtrim", true},
      {"upper", "t", Kind::Text, "srv_upper", true},
      {"lower", "t", Kind::Text, "srv_lower", true},
      {"charindex", "tt|i", Kind::Int, "srv_charindex"},
      {"replace", "ttt", Kind::Text, "srv_replace"},
      {"reverse", "t", Kind::Text, "srv_reverse", true},
      {"replicate", "ti", Kind::Text, "srv_replicate"},
      {"space", "i", Kind::Text, "srv_space"},
      {"char", "i", Kind::Text, "srv_char"},
      {"ascii", "t", Kind::Int, "srv_ascii"},
      {"getdate", "", Kind::DateTime, "srv_getdate"},
      {"year", "d", Kind::Int, "srv_year"},
      {"month", "d", Kind::Int, "srv_month"},
      {"day", "d", Kind::Int, "srv_day"},
      {"object_id", "t", Kind::Int, "srv_object_id"},
      {"newid", "", Kind::Guid, "srv_newid"},
      {"newsequentialid", "", Kind::Guid, "srv_newsequentialid"},
      {"datalength", "t", Kind::Int, "srv_datalength"},
      {"sqrt", "f", Kind::Float, "srv_sqrt"},
  }};
  const auto found =
      std::find_if(kFunctions.begin(), kFunctions.end(), [&](const FunctionEntry& entry) { return entry.name == name; });
  return found == kFunctions.end() ? nullptr : &*found;
}

bool Translator::HasAggregate(const Expr& expr) {
  if (expr.kind == ExprKind::Function && IsAggregateName(expr.name)) return true;
  return std::any_of(expr.children.begin(), expr.children.end(), [](const ast::ExprPtr& child) { return HasAggregate(*child); });
}

Translator::Emitted Translator::Function(const Expr& expr, Scope& scope) {
  if (IsAggregateName(expr.name)) return Aggregate(expr, scope);
  if (expr.flag) Unknown(expr, "distinct belongs to aggregates");
  if (expr.name == "isnull") return IsNull(expr, scope);
  if (expr.name == "coalesce") return Coalesce(expr, scope);
  if (expr.name == "nullif") return NullIf(expr, scope);
  if (expr.name == "isnumeric") return IsNumeric(expr, scope);
  if (expr.name == "abs" || expr.name == "round" || expr.name == "floor" || expr.name == "ceiling") return Rounding(expr, scope);
  if (expr.name.starts_with("date") && expr.name != "datalength") return DateFunction(expr, scope);
  const FunctionEntry* entry = FindFunction(expr.name);
  if (!entry) RaiseServer(kUnknownFunction, "'" + expr.name + "' is not a recognized function name.");
  const std::size_t bar = entry->arguments.find('|');
  const std::size_t least = bar == std::string_view::npos ? entry->arguments.size() : bar;
  const std::size_t most = bar == std::string_view::npos ? least : entry->arguments.size() - 1;
  if (expr.children.size() < least || expr.children.size() > most) {
    RaiseServer(kWrongNumberOfArguments, "The function '" + expr.name + "' requires " + std::to_string(most) + " arguments.");
  }
  Emitted value;
  value.sql = std::string(entry->store) + "(";
  value.type = Type::Of(entry->result);
  for (std::size_t i = 0; i < expr.children.size(); ++i) {
    Emitted argument = Value(*expr.children[i], scope);
    if (i == 0 && entry->keepsLength) value.type.length = argument.type.IsText() ? argument.type.length : 0;
    const char letter = entry->arguments[i < least ? i : i + 1];
    const Kind kind = KindOf(letter);
    // Text of any length and a uniqueidentifier pass as they are.
    if (kind != Kind::Text || !argument.type.IsText()) argument = Coerce(std::move(argument), Type::Of(kind));
    value.sql += (i ? ", " : "") + argument.sql;
  }
  value.sql += ")";
  return value;
}

Translator::Emitted Translator::Aggregate(const Expr& expr, Scope& scope) {
  if (expr.children.size() != 1) RaiseServer(kWrongNumberOfArguments, "The " + expr.name + " function requires 1 argument.");
  if (!scope.grouped || scope.inAggregate) {
    RaiseServer(kMisplacedAggregate,
                "An aggregate may not appear in the WHERE clause or inside another aggregate: '" + expr.name + "'.");
  }
  Emitted value;
  if (expr.children[0]->kind == ExprKind::Star) {
    value.sql = "count(*)";
    value.type = Type::Of(Kind::Int);
    return value;
  }
  scope.inAggregate = true;
  Emitted argument = Value(*expr.children[0], scope);
  scope.inAggregate = false;
  const std::string distinct = expr.flag ? "DISTINCT " : "";
  value.type = argument.type;
  if (expr.name == "count") {
    value.sql = "count(" + distinct + Collated(argument) + ")";
    value.type = Type::Of(Kind::Int);
    return value;
  }
  if (expr.name == "min" || expr.name == "max") {
    value.sql = expr.name + "(" + Collated(argument) + ")";
    return value;
  }
  if (!argument.type.IsNumber() || argument.type.kind == Kind::Bit) {
    RaiseServer(
        409, "The " + expr.name + " aggregate operation cannot take a " + TypeName(argument.type) + " data type as an argument.");
  }
  if (value.type.IsWhole()) value.type = Type::Of(std::max(value.type.kind, Kind::Int));
  if (value.type.kind == Kind::Decimal) value.type = Type::DecimalOf(38, value.type.scale);
  const std::string sum = "sum(" + distinct + argument.sql + ")";
  if (expr.name == "sum") {
    value.sql = sum;
    return value;
  }
  const std::string count = "count(" + distinct + argument.sql + ")";
  if (value.type.kind == Kind::Decimal) {
    const int scale = std::max<int>(value.type.scale, 6);
    value.sql = "srv_quotient(" + sum + ", nullif(" + count + ", 0), " + std::to_string(scale - value.type.scale) + ")";
    value.type = Type::DecimalOf(38, scale);
  } else {
    value.sql = "(" + sum + " / " + count + ")";
  }
  return value;
}

Translator::Emitted Translator::IsNull(const Expr& expr, Scope& scope) {
  if (expr.children.size() != 2) RaiseServer(kWrongNumberOfArguments, "The isnull function requires 2 arguments.");
  Emitted value = Value(*expr.children[0], scope);
  Emitted instead = Value(*expr.children[1], scope);
  if (value.type.kind == Kind::Null) return instead;
  // The result has the first argument's type, whatever the second one is.
  Emitted result;
  result.type = value.type;
  result.nullable = instead.nullable;
  result.sql = "ifnull(" + value.sql + ", " + Coerce(std::move(instead), result.type).sql + ")";
  return result;
}

Translator::Emitted Translator::Coalesce(const Expr& expr, Scope& scope) {
  std::vector<Emitted> values;
  Emitted result;
  for (const ast::ExprPtr& child : expr.children) {
    values.push_back(Value(*child, scope));
    result.type = CommonType(result.type, values.back().type);
  }
  if (values.size() < 2) RaiseServer(kWrongNumberOfArguments, "The coalesce function requires 2 arguments.");
  result.sql = "coalesce(";
  for (std::size_t i = 0; i < values.size(); ++i) result.sql += (i ? ", " : "") + Coerce(std::move(values[i]), result.type).sql;
  result.sql += ")";
  return result;
}

Translator::Emitted Translator::NullIf(const Expr& expr, Scope& scope) {
  if (expr.children.size() != 2) RaiseServer(kWrongNumberOfArguments, "The nullif function requires 2 arguments.");
  Emitted result = Value(*expr.children[0], scope);
  Emitted left = Value(*expr.children[0], scope);
  Emitted right = Value(*expr.children[1], scope);
  const Type common = CommonType(left.type, right.type);
  left = Coerce(std::move(left), common);
  result.sql =
      "(CASE WHEN " + Collated(left) + " = " + Coerce(std::move(right), common).sql + " THEN NULL ELSE " + result.sql + " END)";
  result.parameter = -1;
  result.tableColumn = -1;
  result.collated = false;
  result.nullable = true;
  return result;
}

Translator::Emitted Translator::IsNumeric(const Expr& expr, Scope& scope) {
  if (expr.children.size() != 1) RaiseServer(kWrongNumberOfArguments, "The isnumeric function requires 1 argument.");
  const Emitted argument = Value(*expr.children[0], scope);
  Emitted value;
  value.type = Type::Of(Kind::Int);
  value.nullable = false;
  if (argument.type.IsText()) {
    value.sql = "srv_isnumeric(" + argument.sql + ")";
  } else {
    value.sql = argument.type.IsNumber() ? "(" + argument.sql + " IS NOT NULL)" : "0";
  }
  return value;
}

Translator::Emitted Translator::Rounding(const Expr& expr, Scope& scope) {
  const std::size_t wanted = expr.name == "round" ? 2 : 1;
  if (expr.children.size() != wanted) {
    RaiseServer(kWrongNumberOfArguments, "The " + expr.name + " function requires " + std::to_string(wanted) + " arguments.");
  }
  Emitted value = Value(*expr.children[0], scope);
  if (value.type.IsText()) value = Coerce(std::move(value), Type::Of(Kind::Float));
  if (!value.type.IsNumber()) Unknown(expr, "a number is expected");
  Emitted result;
  result.type = value.type;
  const int scale = value.type.kind == Kind::Decimal ? value.type.scale : 0;
  if (expr.name == "abs") {
    result.sql = "abs(" + value.sql + ")";
    return result;
  }
  result.sql = value.type.kind == Kind::Float ? "srv_" + expr.name + "_float(" : "srv_" + expr.name + "(";
  result.sql += value.sql + ", " + std::to_string(scale);
  if (wanted == 2) result.sql += ", " + Coerce(Value(*expr.children[1], scope), Type::Of(Kind::Int)).sql;
  result.sql += ")";
  return result;
}

Translator::Emitted Translator::DateFunction(const Expr& expr, Scope& scope) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 20> kParts = {
      {{"year", "year"},     {"yy", "year"},   {"yyyy", "year"},     {"quarter", "quarter"}, {"qq", "quarter"},
       {"month", "month"},   {"mm", "month"},  {"m", "month"},       {"day", "day"},         {"dd", "day"},
       {"d", "day"},         {"week", "week"}, {"wk", "week"},       {"hour", "hour"},       {"hh", "hour"},
       {"minute", "minute"}, {"mi", "minute"}, {"second", "second"}, {"ss", "second"},       {"ms", "millisecond"}}};
  const bool add = expr.name == "dateadd", part = expr.name == "datepart";
  if (!add && !part && expr.name != "datediff")
    RaiseServer(kUnknownFunction, "'" + expr.name + "' is not a recognized function name.");
  if (expr.children.size() != (part ? 2u : 3u))
    RaiseServer(kWrongNumberOfArguments, "The " + expr.name + " function requires " + (part ? "2" : "3") + " arguments.");
  const std::string& word = expr.children[0]->name;
  const auto found = std::find_if(kParts.begin(), kParts.end(), [&](const auto& entry) { return entry.first == word; });
  if (found == kParts.end()) RaiseServer(kUnknownOption, "'" + word + "' is not a recognized " + expr.name + " option.");
  Emitted value;
  value.type = Type::Of(add ? Kind::DateTime : Kind::Int);
  value.sql = "srv_" + expr.name + "('" + std::string(found->second) + "'";
  for (std::size_t i = 1; i < expr.children.size(); ++i) {
    const Kind kind = add && i == 1 ? Kind::Int : Kind::DateTime;
    value.sql += ", " + Coerce(Value(*expr.children[i], scope), Type::Of(kind)).sql;
  }
  value.sql += ")";
  return value;
}

}  // namespace suite
