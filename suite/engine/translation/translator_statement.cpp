#include "base/vb/text.h"
#include "suite/engine/translation/translator.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

std::string ColumnList(const std::vector<std::string>& names) {
  std::string text = "(";
  for (const std::string& name : names) text += (text.size() > 1 ? ", " : "") + Quoted(name);
  return text + ")";
}

std::size_t ColumnNamed(const Relation& table, const std::string& name) {
  const int column = table.Find(name);
  if (column < 0) RaiseServer(kInvalidColumn, "Invalid column name '" + name + "'.");
  return static_cast<std::size_t>(column);
}

const Relation& TableNamed(const Catalog& catalog, const std::string& name) {
  const Relation& relation = catalog.RelationNamed(name);
  if (relation.view) RaiseServer(kViewNotUpdatable, "View '" + relation.name + "' is not updatable.");
  if (relation.name == "syscolumns" || relation.name == "sysobjects")
    RaiseServer(kSystemCatalog, "Ad hoc updates to system catalogs are not enabled.");
  return relation;
}

std::string StoreType(const Type& type) {
  switch (type.kind) {
    case Kind::Text:
    case Kind::Guid:
      return "TEXT COLLATE server";
    case Kind::Float:
      return "REAL";
    default:
      return "INT";
  }
}

}  // namespace

Translation Translator::Finish(std::string sql) {
  Translation translation;
  translation.sql = std::move(sql);
  translation.parameters = std::move(parameters_);
  return translation;
}

Translation Translator::Query(const ast::Query& query, bool rowIds) {
  Translation updatable;
  std::vector<ResultColumn> columns;
  std::string sql = QueryText(query, nullptr, columns, nullptr, rowIds ? &updatable : nullptr);
  Translation translation = Finish(std::move(sql));
  translation.columns = std::move(columns);
  translation.rowIds = updatable.rowIds;
  translation.table = std::move(updatable.table);
  return translation;
}

Translation Translator::Condition(const ast::Expr& predicate) {
  Scope scope;
  Translation translation = Finish("SELECT CASE WHEN " + Predicate(predicate, scope) + " THEN 1 ELSE 0 END");
  translation.columns.push_back(ResultColumn{"", Type::Of(Kind::Int)});
  return translation;
}

Translation Translator::Insert(const ast::Insert& statement) {
  const Relation& table = TableNamed(catalog_, statement.table);
  std::vector<std::string> names;
  std::vector<Type> types;
  for (const ColumnDef& column : table.columns) {
    if (!statement.columns.empty()) break;
    names.push_back(column.name);
    types.push_back(column.type);
  }
  for (const std::string& name : statement.columns) {
    const ColumnDef& column = table.columns[ColumnNamed(table, name)];
    for (const std::string& other : names) {
      if (vb::EqualNoCase(other, name))
        RaiseServer(kColumnSetTwice, "Column name '" + name + "' appears more than once in the result column list.");
    }
    names.push_back(column.name);
    types.push_back(column.type);
  }
  std::string sql = "INSERT INTO " + Quoted(table.name) + " " + ColumnList(names);
  if (statement.query) {
    std::vector<ResultColumn> columns;
    return Finish(sql + " " + QueryText(*statement.query, nullptr, columns, &types));
  }
  Scope scope;
  for (std::size_t r = 0; r < statement.rows.size(); ++r) {
    const auto& row = statement.rows[r];
    if (row.size() != types.size()) {
      RaiseServer(row.size() < types.size() ? kMoreColumnsThanValues : kFewerColumnsThanValues,
                  "There are " + std::string(row.size() < types.size() ? "more" : "fewer") +
                      " columns in the INSERT statement than values specified in the VALUES clause.");
    }
    sql += r ? ", (" : " VALUES (";
    for (std::size_t i = 0; i < row.size(); ++i) sql += (i ? ", " : "") + CoerceAssigned(Value(*row[i], scope), types[i]).sql;
    sql += ")";
  }
  return Finish(std::move(sql));
}

Translation Translator::Update(const ast::Update& statement) {
  const Relation& table = TableNamed(catalog_, statement.table);
  Scope scope;
  scope.sources.push_back(SourceInfo{table.name, true, table.name, table.columns});
  std::string sql = "UPDATE " + Quoted(table.name);
  const char* separator = " SET ";
  for (const ast::Update::Assignment& assignment : statement.assignments) {
    const ColumnDef& column = table.columns[ColumnNamed(table, assignment.column)];
    sql += separator + Quoted(column.name) + " = " + CoerceAssigned(Value(*assignment.value, scope), column.type).sql;
    separator = ", ";
  }
  if (statement.where) sql += " WHERE " + Predicate(*statement.where, scope);
  return Finish(std::move(sql));
}

Translation Translator::Delete(const ast::Delete& statement) {
  const Relation& table = TableNamed(catalog_, statement.table);
  Scope scope;
  scope.sources.push_back(SourceInfo{table.name, true, table.name, table.columns});
  std::string sql = "DELETE FROM " + Quoted(table.name);
  if (statement.where) sql += " WHERE " + Predicate(*statement.where, scope);
  return Finish(std::move(sql));
}

Translation Translator::Table(const std::string& name, const std::vector<ast::ColumnDefinition>& columns,
                              const std::vector<ast::Key>& keys) {
  Scope scope;
  std::string sql = "CREATE TABLE " + Quoted(name);
  std::string keyText;
  const char* separator = " (";
  for (const ast::ColumnDefinition& column : columns) {
    sql += separator + Quoted(column.name) + " " + StoreType(column.type);
    separator = ", ";
    if (!column.nullable) sql += " NOT NULL";
    if (column.defaultValue) sql += " DEFAULT (" + CoerceAssigned(Value(*column.defaultValue, scope), column.type).sql + ")";
    if (column.unique) keyText += ", UNIQUE (" + Quoted(column.name) + ")";
    if (column.primary) keyText += ", PRIMARY KEY (" + Quoted(column.name) + ")";
  }
  for (const ast::Key& key : keys) keyText += (key.primary ? ", PRIMARY KEY " : ", UNIQUE ") + ColumnList(key.columns);
  return Finish(sql + keyText + ")");
}

Translation Translator::View(const ast::CreateView& view) {
  std::vector<ResultColumn> columns;
  const std::string query = QueryText(*view.query, nullptr, columns);
  if (!view.columns.empty()) {
    if (view.columns.size() != columns.size()) {
      RaiseServer(kViewColumnCount, "'" + view.name + "' has more or fewer columns than were specified in the column list.");
    }
    for (std::size_t i = 0; i < columns.size(); ++i) columns[i].name = view.columns[i];
  }
  std::vector<std::string> names;
  for (const ResultColumn& column : columns) {
    if (column.name.empty())
      RaiseServer(kViewColumnWithoutName,
                  "Create View failed because no column name was specified for a column of '" + view.name + "'.");
    names.push_back(column.name);
  }
  Translation translation = Finish("CREATE VIEW " + Quoted(view.name) + " " + ColumnList(names) + " AS " + query);
  translation.columns = std::move(columns);
  return translation;
}

}  // namespace suite
