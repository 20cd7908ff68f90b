#include <algorithm>

#include "base/vb/text.h"
#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::Expr;
using ast::JoinKind;

void Translator::Sources(const ast::Source& source, Scope& scope) {
  if (source.left) {
    Sources(*source.left, scope);
    Sources(*source.right, scope);
    return;
  }
  SourceInfo info;
  info.alias = source.alias;
  for (const SourceInfo& other : scope.sources) {
    if (vb::EqualNoCase(other.alias, info.alias)) {
      RaiseServer(kDuplicateCorrelationName,
                  "The correlation name '" + info.alias + "' is specified multiple times in a FROM clause.");
    }
  }
  if (source.query) {
    std::vector<ResultColumn> columns;
    derivedTexts_.emplace_back(source.token, QueryText(*source.query, scope.outer, columns));
    for (const ResultColumn& column : columns) {
      if (column.name.empty())
        RaiseServer(kDerivedColumnWithoutName, "No column was specified for a column of '" + info.alias + "'.");
      info.columns.push_back(ColumnDef{column.name, column.type, true, false});
    }
  } else {
    const Relation& relation = catalog_.RelationNamed(source.name);
    info.table = !relation.view;
    info.name = relation.name;
    info.columns = relation.columns;
  }
  scope.sources.push_back(std::move(info));
}

std::string Translator::SourceText(const ast::Source& source, Scope& scope) {
  if (source.left) {
    static constexpr std::string_view kJoins[] = {" JOIN ", " LEFT JOIN ", " RIGHT JOIN ", " FULL JOIN ", " CROSS JOIN "};
    std::string text = SourceText(*source.left, scope);
    text += kJoins[static_cast<std::size_t>(source.join)];
    text += source.right->left ? "(" + SourceText(*source.right, scope) + ")" : SourceText(*source.right, scope);
    if (source.on) text += " ON " + Predicate(*source.on, scope);
    return text;
  }
  if (!source.query) return Quoted(catalog_.RelationNamed(source.name).name) + " AS " + Quoted(source.alias);
  const auto found = std::find_if(derivedTexts_.rbegin(), derivedTexts_.rend(),
                                  [&](const auto& derived) { return derived.first == source.token; });
  return "(" + found->second + ") AS " + Quoted(source.alias);
}

void Translator::Star(const std::string& qualifier, Scope& scope, Part& part) {
  bool found = false;
  for (const SourceInfo& source : scope.sources) {
    if (!qualifier.empty() && !vb::EqualNoCase(qualifier, source.alias)) continue;
    found = true;
    for (std::size_t c = 0; c < source.columns.size(); ++c) {
      const ColumnDef& column = source.columns[c];
      SqlValue value;
      value.sql = Quoted(source.alias) + "." + Quoted(column.name);
      value.type = column.type;
      value.collated = true;
      value.nullable = column.nullable;
      value.tableColumn = static_cast<int>(c);
      part.items.push_back(std::move(value));
      part.columns.push_back(ResultColumn{column.name, column.type, column.nullable, static_cast<int>(c)});
    }
  }
  if (found) return;
  if (qualifier.empty()) RaiseServer(kNothingToSelectFrom, "Must specify a table to select from with '*'.");
  RaiseServer(kUnknownPrefix,
              "The column prefix '" + qualifier + "' does not match with a table name or alias name used in the query.");
}

void Translator::Items(const ast::Select& select, Scope& scope, Part& part) {
  for (const ast::SelectItem& item : select.items) {
    if (!item.value) {
      if (scope.grouped)
        RaiseServer(kColumnNotGrouped,
                    "A column of '*' is invalid in the select list because it is not contained in the GROUP BY clause.");
      Star(item.qualifier, scope, part);
      continue;
    }
    SqlValue value = Value(*item.value, scope);
    ResultColumn column;
    const auto* named = item.value->If<ast::ColumnName>();
    column.name = !item.alias.empty() ? item.alias : named ? named->name : std::string();
    column.type = value.type;
    column.nullable = value.nullable;
    column.tableColumn = value.tableColumn;
    part.items.push_back(std::move(value));
    part.columns.push_back(std::move(column));
  }
}

std::string Translator::Tail(const ast::Select& select, Scope& scope) {
  std::string text;
  // Only the list, having and order by are bound to the groups.
  const bool grouped = scope.grouped;
  scope.grouped = false;
  const bool manySources = select.from.size() > 1;
  for (const auto& source : select.from) {
    // A comma binds like a join in the store; where that would change the outcome the joined tables stay together.
    const bool bracket = manySources && (source->join == JoinKind::Right || source->join == JoinKind::Full);
    const std::string one = SourceText(*source, scope);
    text += (text.empty() ? " FROM " : ", ") + (bracket ? "(" + one + ")" : one);
  }
  if (select.where) {
    if (HasAggregate(*select.where)) RaiseServer(kMisplacedAggregate, "An aggregate may not appear in the WHERE clause.");
    text += " WHERE " + Predicate(*select.where, scope);
  }
  for (std::size_t i = 0; i < select.group.size(); ++i) {
    text += (i ? ", " : " GROUP BY ") + Collated(Value(*select.group[i], scope));
  }
  scope.grouped = grouped;
  if (select.having) text += " HAVING " + Predicate(*select.having, scope);
  return text;
}

Translator::Part Translator::SelectPart(const ast::Select& select, Scope* outer, const ast::Query* orderedBy,
                                        std::string& order) {
  Part part;
  Scope scope;
  scope.outer = outer;
  for (const auto& source : select.from) Sources(*source, scope);
  scope.group = &select.group;
  scope.grouped = !select.group.empty() || select.having;
  for (const ast::SelectItem& item : select.items) scope.grouped = scope.grouped || (item.value && HasAggregate(*item.value));
  Items(select, scope, part);
  part.tail = Tail(select, scope);
  part.distinct = select.distinct;
  if (select.top) {
    SqlValue top = Coerce(Literal(*select.top->If<ast::Literal>()), Type::Of(Kind::BigInt));
    part.limit = " LIMIT " + top.sql;
  }
  if (!scope.grouped && !select.distinct && scope.sources.size() == 1 && scope.sources[0].table) {
    part.rowId = Quoted(scope.sources[0].alias) + ".rowid";
    part.table = scope.sources[0].name;
  }
  if (orderedBy) order = OrderText(*orderedBy, &scope, part.columns);
  return part;
}

std::string Translator::OrderText(const ast::Query& query, Scope* scope, const std::vector<ResultColumn>& columns) {
  std::string text;
  for (const ast::OrderItem& item : query.order) {
    const Expr& expr = *item.value;
    text += text.empty() ? " ORDER BY " : ", ";
    std::size_t position = columns.size();
    const auto* column = expr.If<ast::ColumnName>();
    if (const auto* literal = expr.If<ast::Literal>()) {
      const std::string digits = Near(literal->token);
      position = !digits.empty() && digits.size() < 6 && digits.find_first_not_of("0123456789") == std::string::npos
                     ? static_cast<std::size_t>(std::stoi(digits)) - 1
                     : columns.size();
      if (position >= columns.size())
        RaiseServer(kOrderPositionOutOfRange, "The ORDER BY position number " + digits + " is out of range.");
    } else if (column && column->qualifier.empty()) {
      const auto named = std::find_if(columns.begin(), columns.end(),
                                      [&](const ResultColumn& each) { return vb::EqualNoCase(each.name, column->name); });
      position = static_cast<std::size_t>(named - columns.begin());
    }
    if (position < columns.size()) {
      text += std::to_string(position + 1);
    } else if (scope) {
      text += Collated(Value(expr, *scope));
    } else {
      RaiseServer(kOrderNotSelected, "ORDER BY items must appear in the select list if the statement contains a UNION operator.");
    }
    if (item.descending) text += " DESC";
  }
  return text;
}

std::string Translator::PartText(Part& part, const std::vector<Type>& types, bool assigned) {
  std::string text = part.distinct ? "SELECT DISTINCT " : "SELECT ";
  for (std::size_t i = 0; i < part.items.size(); ++i) {
    SqlValue item = assigned ? CoerceAssigned(std::move(part.items[i]), types[i]) : Coerce(std::move(part.items[i]), types[i]);
    // Every column carries its name for derived tables; text carries the server's comparison for sorting and grouping above.
    text += (i ? ", " : "") + Collated(item) + " AS " + Quoted(part.columns[i].name);
  }
  return text;
}

std::string Translator::QueryText(const ast::Query& query, Scope* outer, std::vector<ResultColumn>& columns,
                                  const std::vector<Type>* targets, Translation* updatable) {
  const bool alone = query.parts.size() == 1;
  std::string order;
  std::vector<Part> parts;
  for (const ast::Select& select : query.parts) {
    if (!alone && select.top)
      RaiseServer(kSyntaxNearKeyword, "Incorrect syntax near the keyword 'top': it cannot stand in a union.");
    parts.push_back(SelectPart(select, outer, alone && !query.order.empty() ? &query : nullptr, order));
    if (parts.back().columns.size() != parts.front().columns.size()) {
      RaiseServer(kUnionOfUnequalColumns,
                  "All queries in an SQL statement containing a UNION operator must have an equal number of expressions.");
    }
  }
  columns = parts.front().columns;
  for (const Part& part : parts) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      columns[i].type = CommonType(columns[i].type, part.columns[i].type);
      columns[i].nullable = columns[i].nullable || part.columns[i].nullable;
    }
  }
  if (targets && targets->size() != columns.size()) {
    RaiseServer(kValuesDoNotMatchTable,
                "Insert Error: Column name or number of supplied values does not match table definition.");
  }
  std::vector<Type> types;
  for (std::size_t i = 0; i < columns.size(); ++i) types.push_back(targets ? (*targets)[i] : columns[i].type);
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i) text += query.all[i - 1] ? " UNION ALL " : " UNION ";
    text += PartText(parts[i], types, targets != nullptr);
    if (updatable && alone && !parts[0].rowId.empty()) {
      text += ", " + parts[0].rowId;
      updatable->rowIds = true;
      updatable->table = parts[0].table;
    }
    text += parts[i].tail;
  }
  if (!alone) order = OrderText(query, nullptr, columns);
  return text + order + parts.front().limit;
}

}  // namespace suite
