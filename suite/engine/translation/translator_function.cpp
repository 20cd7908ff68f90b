#include <algorithm>
#include <array>

#include "suite/engine/language/expr_children.h"
#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Expr;

/// One function of the dialect. Either the store computes it (`store`), with arguments of these kinds, or it is written out by a
/// function of the translator (`handler`), which knows what its arguments may be.
struct Translator::FunctionEntry {
  static constexpr std::size_t kAnyNumber = 1000;

  std::string_view name;
  std::size_t minArguments;
  std::size_t maxArguments;
  SqlValue (Translator::*handler)(const FunctionUse& use, Scope& scope) = &Translator::StoreFunction;
  std::array<Kind, 3> arguments{};
  Kind result = Kind::Null;
  std::string_view store = {};
  bool keepsLength = false;  ///< the text is never longer than the first argument
  bool aggregate = false;

  static constexpr FunctionEntry Store(std::string_view name, std::string_view store, Kind result,
                                       std::initializer_list<Kind> kinds, std::size_t optional = 0) {
    FunctionEntry entry{name, kinds.size() - optional, kinds.size()};
    std::copy(kinds.begin(), kinds.end(), entry.arguments.begin());
    entry.result = result;
    entry.store = store;
    return entry;
  }
  /// A text function whose result is a part of its first argument.
  static constexpr FunctionEntry Part(std::string_view name, std::string_view store, std::initializer_list<Kind> kinds) {
    FunctionEntry entry = Store(name, store, Kind::Text, kinds);
    entry.keepsLength = true;
    return entry;
  }
  static constexpr FunctionEntry Aggregate(std::string_view name) {
    FunctionEntry entry{name, 1, 1, &Translator::Aggregate};
    entry.aggregate = true;
    return entry;
  }
};

const Translator::FunctionEntry* Translator::FindFunction(std::string_view name) {
  using Entry = FunctionEntry;
  constexpr Kind kText = Kind::Text, kInt = Kind::Int, kDate = Kind::DateTime, kFloat = Kind::Float;
  static constexpr std::array kFunctions = {
      Entry::Store("len", "srv_len", kInt, {kText}),
      Entry::Part("left", "srv_left", {kText, kInt}),
      Entry::Part("right", "srv_right", {kText, kInt}),
      Entry::Part("substring", "srv_substring", {kText, kInt, kInt}),
      Entry::Part("ltrim", "ltrim", {kText}),
      Entry::Part("rtrim", "rtrim", {kText}),
      Entry::Part("upper", "srv_upper", {kText}),
      Entry::Part("lower", "srv_lower", {kText}),
      Entry::Part("reverse", "srv_reverse", {kText}),
      Entry::Store("charindex", "srv_charindex", kInt, {kText, kText, kInt}, 1),
      Entry::Store("replace", "srv_replace", kText, {kText, kText, kText}),
      Entry::Store("replicate", "srv_replicate", kText, {kText, kInt}),
      Entry::Store("space", "srv_space", kText, {kInt}),
      Entry::Store("char", "srv_char", kText, {kInt}),
      Entry::Store("ascii", "srv_ascii", kInt, {kText}),
      Entry::Store("getdate", "srv_getdate", kDate, {}),
      Entry::Store("year", "srv_year", kInt, {kDate}),
      Entry::Store("month", "srv_month", kInt, {kDate}),
      Entry::Store("day", "srv_day", kInt, {kDate}),
      Entry::Store("object_id", "srv_object_id", kInt, {kText}),
      Entry::Store("newid", "srv_newid", Kind::Guid, {}),
      Entry::Store("newsequentialid", "srv_newsequentialid", Kind::Guid, {}),
      Entry::Store("datalength", "srv_datalength", kInt, {kText}),
      Entry::Store("sqrt", "srv_sqrt", kFloat, {kFloat}),
      Entry::Aggregate("sum"),
      Entry::Aggregate("count"),
      Entry::Aggregate("count_big"),
      Entry::Aggregate("min"),
      Entry::Aggregate("max"),
      Entry::Aggregate("avg"),
      Entry{"isnull", 2, 2, &Translator::IsNull},
      Entry{"coalesce", 2, Entry::kAnyNumber, &Translator::Coalesce},
      Entry{"nullif", 2, 2, &Translator::NullIf},
      Entry{"isnumeric", 1, 1, &Translator::IsNumeric},
      Entry{"abs", 1, 1, &Translator::Rounding},
      Entry{"round", 2, 2, &Translator::Rounding},
      Entry{"floor", 1, 1, &Translator::Rounding},
      Entry{"ceiling", 1, 1, &Translator::Rounding},
  };
  const auto* const found =
      std::find_if(kFunctions.begin(), kFunctions.end(), [&](const FunctionEntry& entry) { return entry.name == name; });
  return found == kFunctions.end() ? nullptr : found;
}

bool Translator::IsAggregate(const Expr& expr) {
  if (expr.If<ast::CountAll>()) return true;
  const auto* function = expr.If<ast::Function>();
  const FunctionEntry* entry = function ? FindFunction(function->name) : nullptr;
  return entry && entry->aggregate;
}

bool Translator::HasAggregate(const Expr& expr) {
  bool found = IsAggregate(expr);
  ast::ForEachChild(expr, [&](const Expr& child) { found = found || HasAggregate(child); });
  return found;
}

Translator::SqlValue Translator::Function(const Expr& expr, const ast::Function& function, Scope& scope) {
  const FunctionEntry* entry = FindFunction(function.name);
  if (!entry) RaiseServer(kUnknownFunction, "'" + function.name + "' is not a recognized function name.");
  if (function.distinct && !entry->aggregate) Unknown(expr, "distinct belongs to aggregates");
  const std::size_t count = function.arguments.size();
  if (count < entry->minArguments || count > entry->maxArguments) {
    const std::size_t wanted = entry->maxArguments == FunctionEntry::kAnyNumber ? entry->minArguments : entry->maxArguments;
    RaiseServer(kWrongNumberOfArguments, "The " + function.name + " function requires " + std::to_string(wanted) +
                                             (wanted == 1 ? " argument." : " arguments."));
  }
  return (this->*entry->handler)({expr, function, *entry}, scope);
}

Translator::SqlValue Translator::StoreFunction(const FunctionUse& use, Scope& scope) {
  const FunctionEntry& entry = use.entry;
  SqlValue value;
  value.sql = std::string(entry.store) + "(";
  value.type = Type::Of(entry.result);
  for (std::size_t i = 0; i < use.function.arguments.size(); ++i) {
    SqlValue argument = Value(*use.function.arguments[i], scope);
    if (i == 0 && entry.keepsLength) value.type.length = argument.type.IsText() ? argument.type.length : 0;
    const Kind kind = entry.arguments[i];
    // Text of any length and a uniqueidentifier pass as they are.
    if (kind != Kind::Text || !argument.type.IsText()) argument = Coerce(std::move(argument), Type::Of(kind));
    value.sql += (i ? ", " : "") + argument.sql;
  }
  value.sql += ")";
  return value;
}

void Translator::RequireAggregateAllowed(const std::string& name, const Scope& scope) {
  if (scope.grouped && !scope.inAggregate) return;
  RaiseServer(kMisplacedAggregate,
              "An aggregate may not appear in the WHERE clause or inside another aggregate: '" + name + "'.");
}

Translator::SqlValue Translator::CountAll(const ast::CountAll& count, Scope& scope) {
  RequireAggregateAllowed("count", scope);
  return {"count(*)", Type::Of(count.big ? Kind::BigInt : Kind::Int)};
}

Translator::SqlValue Translator::Aggregate(const FunctionUse& use, Scope& scope) {
  const std::string& name = use.function.name;
  RequireAggregateAllowed(name, scope);
  scope.inAggregate = true;
  const SqlValue argument = Value(*use.function.arguments[0], scope);
  scope.inAggregate = false;
  const std::string distinct = use.function.distinct ? "DISTINCT " : "";
  if (name == "count" || name == "count_big") {
    return {"count(" + distinct + Collated(argument) + ")", Type::Of(name == "count" ? Kind::Int : Kind::BigInt)};
  }
  if (name == "min" || name == "max") return {name + "(" + Collated(argument) + ")", argument.type};
  if (!argument.type.IsNumber() || argument.type.kind == Kind::Bit) {
    RaiseServer(kNotToBeSummed,
                "The " + name + " aggregate operation cannot take a " + TypeName(argument.type) + " data type as an argument.");
  }
  Type type = argument.type;
  if (type.IsInteger()) type = Type::Of(std::max(type.kind, Kind::Int));
  if (type.kind == Kind::Decimal) type = Type::DecimalOf(38, type.scale);
  if (name == "sum") return {"sum(" + distinct + argument.sql + ")", type};
  return Average(distinct + argument.sql, type);
}

Translator::SqlValue Translator::Average(const std::string& argument, const Type& type) {
  const std::string sum = "sum(" + argument + ")";
  const std::string count = "count(" + argument + ")";
  if (type.kind != Kind::Decimal) return {"(" + sum + " / " + count + ")", type};
  const int scale = std::max<int>(type.scale, 6);
  return {"srv_quotient(" + sum + ", nullif(" + count + ", 0), " + std::to_string(scale - type.scale) + ")",
          Type::DecimalOf(38, scale)};
}

Translator::SqlValue Translator::IsNull(const FunctionUse& use, Scope& scope) {
  SqlValue value = Value(*use.function.arguments[0], scope);
  SqlValue instead = Value(*use.function.arguments[1], scope);
  if (value.type.kind == Kind::Null) return instead;
  // The result has the first argument's type, whatever the second one is.
  SqlValue result;
  result.type = value.type;
  result.nullable = instead.nullable;
  result.sql = "ifnull(" + value.sql + ", " + Coerce(std::move(instead), result.type).sql + ")";
  return result;
}

Translator::SqlValue Translator::Coalesce(const FunctionUse& use, Scope& scope) {
  std::vector<SqlValue> values;
  SqlValue result;
  for (const ast::ExprPtr& argument : use.function.arguments) {
    values.push_back(Value(*argument, scope));
    result.type = CommonType(result.type, values.back().type);
  }
  result.sql = "coalesce(";
  for (std::size_t i = 0; i < values.size(); ++i) result.sql += (i ? ", " : "") + Coerce(std::move(values[i]), result.type).sql;
  result.sql += ")";
  return result;
}

Translator::SqlValue Translator::NullIf(const FunctionUse& use, Scope& scope) {
  const auto& arguments = use.function.arguments;
  SqlValue result = Value(*arguments[0], scope);
  SqlValue left = Value(*arguments[0], scope);
  SqlValue right = Value(*arguments[1], scope);
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

Translator::SqlValue Translator::IsNumeric(const FunctionUse& use, Scope& scope) {
  const SqlValue argument = Value(*use.function.arguments[0], scope);
  SqlValue value;
  value.type = Type::Of(Kind::Int);
  value.nullable = false;
  if (argument.type.IsText()) {
    value.sql = "srv_isnumeric(" + argument.sql + ")";
  } else {
    value.sql = argument.type.IsNumber() ? "(" + argument.sql + " IS NOT NULL)" : "0";
  }
  return value;
}

Translator::SqlValue Translator::Rounding(const FunctionUse& use, Scope& scope) {
  const auto& [name, distinct, arguments] = use.function;
  SqlValue value = Value(*arguments[0], scope);
  if (value.type.IsText()) value = Coerce(std::move(value), Type::Of(Kind::Float));
  if (!value.type.IsNumber()) Unknown(use.expr, "a number is expected");
  SqlValue result;
  result.type = value.type;
  const int scale = value.type.kind == Kind::Decimal ? value.type.scale : 0;
  if (name == "abs") {
    result.sql = "abs(" + value.sql + ")";
    return result;
  }
  result.sql = value.type.kind == Kind::Float ? "srv_" + name + "_float(" : "srv_" + name + "(";
  result.sql += value.sql + ", " + std::to_string(scale);
  if (arguments.size() > 1) result.sql += ", " + Coerce(Value(*arguments[1], scope), Type::Of(Kind::Int)).sql;
  result.sql += ")";
  return result;
}

Translator::SqlValue Translator::DateFunction(const ast::DateFunction& function, Scope& scope) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 20> kParts = {
      {{"year", "year"},     {"yy", "year"},   {"yyyy", "year"},     {"quarter", "quarter"}, {"qq", "quarter"},
       {"month", "month"},   {"mm", "month"},  {"m", "month"},       {"day", "day"},         {"dd", "day"},
       {"d", "day"},         {"week", "week"}, {"wk", "week"},       {"hour", "hour"},       {"hh", "hour"},
       {"minute", "minute"}, {"mi", "minute"}, {"second", "second"}, {"ss", "second"},       {"ms", "millisecond"}}};
  const bool add = function.name == "dateadd", part = function.name == "datepart";
  if (!add && !part && function.name != "datediff") {
    RaiseServer(kUnknownFunction, "'" + function.name + "' is not a recognized function name.");
  }
  if (function.arguments.size() != (part ? 1u : 2u)) {
    RaiseServer(kWrongNumberOfArguments, "The " + function.name + " function requires " + (part ? "2" : "3") + " arguments.");
  }
  const auto* const found =
      std::find_if(kParts.begin(), kParts.end(), [&](const auto& entry) { return entry.first == function.part; });
  if (found == kParts.end()) {
    RaiseServer(kUnknownOption, "'" + function.part + "' is not a recognized " + function.name + " option.");
  }
  SqlValue value;
  value.type = Type::Of(add ? Kind::DateTime : Kind::Int);
  value.sql = "srv_" + function.name + "('" + std::string(found->second) + "'";
  for (std::size_t i = 0; i < function.arguments.size(); ++i) {
    const Kind kind = add && i == 0 ? Kind::Int : Kind::DateTime;
    value.sql += ", " + Coerce(Value(*function.arguments[i], scope), Type::Of(kind)).sql;
  }
  value.sql += ")";
  return value;
}

}  // namespace suite
