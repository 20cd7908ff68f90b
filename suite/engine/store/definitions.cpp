#include "suite/engine/store/definitions.h"

#include <sqlite3.h>

#include "base/vb/text.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr int kRowIdentifierStat = 2;  // syscolumns.colstat of a row identifier

/// The statement's own words.
std::string_view TextOfStatement(const TokenList& tokenList, const ast::Statement& statement) {
  const Token& last = tokenList.tokens[statement.end - 1];
  const std::uint32_t begin = tokenList.tokens[statement.token].begin;
  const bool quoted = last.kind == TokenKind::Text || last.kind == TokenKind::Quoted;
  return tokenList.text.substr(begin, last.end - begin + (quoted ? 1 : 0));
}

/// A statement of the store's own with texts bound to ?1, ?2, ...
void ExecuteBound(Session& session, const char* sql, std::initializer_list<std::string_view> texts,
                  std::initializer_list<std::int64_t> numbers = {}) {
  Translation translation;
  translation.sql = sql;
  const StatementHandle handle = session.Prepare(std::move(translation));
  int index = 0;
  for (const std::string_view text : texts) BindCell(handle.Get(), ++index, Cell::Of(text), true);
  for (const std::int64_t number : numbers) BindCell(handle.Get(), ++index, Cell::Of(number), true);
  while (session.Step(handle.Get())) {
  }
}

}  // namespace

void Definitions::Execute(const std::string& sql) {
  Translation translation;
  translation.sql = sql;
  const StatementHandle handle = session_.Prepare(std::move(translation));
  while (session_.Step(handle.Get())) {
  }
}

void Definitions::Prepare() {
  Execute(
      "CREATE TABLE IF NOT EXISTS sysobjects (id INTEGER PRIMARY KEY, name TEXT COLLATE server UNIQUE, xtype TEXT COLLATE "
      "server, "
      "definition TEXT)");
  Execute(
      "CREATE TABLE IF NOT EXISTS syscolumns (id INT, name TEXT COLLATE server, colid INT, colstat INT, length INT, isnullable "
      "INT)");
}

void Definitions::Load() {
  catalog_.Clear();
  std::vector<std::string> texts;
  {
    Translation translation;
    translation.sql = "SELECT definition FROM sysobjects ORDER BY id";
    const StatementHandle handle = session_.Prepare(std::move(translation));
    while (session_.Step(handle.Get())) texts.push_back(ToValue(handle.Get(), 0, Type::TextOf(0)).ToText());
  }
  TokenList tokenList;
  for (const std::string& text : texts) {
    Lex(text, tokenList);
    Parser parser(tokenList);
    AddToCatalog(tokenList, *parser.Statement(true));
  }
}

Relation Definitions::ShapeOf(ast::CreateTable& table) {
  Relation relation{table.name, false, {}};
  for (const ast::ColumnDefinition& column : table.columns) {
    if (relation.Find(column.name) >= 0) {
      RaiseServer(kDuplicateColumn,
                  "Column names in each table must be unique. Column name '" + column.name + "' is specified more than once.");
    }
    relation.columns.push_back(ColumnDef{column.name, column.type, column.nullable, column.rowIdentifier});
  }
  for (const ast::Key& key : table.keys) {
    for (const std::string& name : key.columns) {
      const int column = relation.Find(name);
      if (column < 0) RaiseServer(kUnknownKeyColumn, "Column name '" + name + "' does not exist in the target table.");
      if (!key.primary) continue;
      relation.columns[static_cast<std::size_t>(column)].nullable = false;
      table.columns[static_cast<std::size_t>(column)].nullable = false;
    }
  }
  return relation;
}

void Definitions::AddView(const TokenList& tokenList, const ast::CreateView& view) {
  std::vector<int> structural;
  const Translation translation = Translator(catalog_, tokenList, structural, true).View(view);
  Relation relation{view.name, true, {}};
  for (const ResultColumn& column : translation.columns) {
    relation.columns.push_back(ColumnDef{column.name, column.type, column.nullable, false});
  }
  catalog_.Add(std::move(relation));
}

void Definitions::AddProcedure(const TokenList& tokenList, const ast::CreateProcedure& procedure) {
  ProcedureDef definition{procedure.name, {}};
  for (const ast::ProcedureParameter& parameter : procedure.parameters) {
    definition.parameters.push_back(
        {parameter.name, parameter.type, parameter.hasDefault, ArgumentValue(tokenList, parameter.defaultValue.get())});
  }
  catalog_.Add(std::move(definition));
}

void Definitions::AddToCatalog(const TokenList& tokenList, ast::Statement& statement) {
  std::visit(ast::Overloaded{
                 [&](ast::CreateTable& table) { catalog_.Add(ShapeOf(table)); },
                 [&](const ast::CreateView& view) { AddView(tokenList, view); },
                 [&](const ast::CreateProcedure& procedure) { AddProcedure(tokenList, procedure); },
                 [](const auto&) {},
             },
             statement.node);
}

void Definitions::Run(const TokenList& tokenList, ast::Statement& statement) {
  const std::int64_t version = catalog_.Version();
  try {
    session_.Atomically([&] {
      Change(tokenList, statement);
      session_.DefinitionsChanged();
    });
  } catch (...) {
    if (version != catalog_.Version()) session_.store_->catalogOf = -1;
    throw;
  }
}

void Definitions::Change(const TokenList& tokenList, ast::Statement& statement) {
  const std::string_view text = TextOfStatement(tokenList, statement);
  std::visit(ast::Overloaded{
                 [&](ast::CreateTable& table) { CreateTable(tokenList, table, text); },
                 [&](const ast::CreateView& view) { CreateView(tokenList, view, text); },
                 [&](const ast::CreateIndex& index) { CreateIndex(index); },
                 [&](const ast::CreateProcedure& procedure) { CreateProcedure(tokenList, procedure, text); },
                 [&](const ast::AddColumns& add) { AddColumns(tokenList, add, statement); },
                 [&](const ast::Drop& drop) { Drop(drop); },
                 [](const auto&) {},
             },
             statement.node);
}

void Definitions::RefuseExisting(const std::string& name) const {
  if (catalog_.FindRelation(name) || catalog_.FindProcedure(name)) {
    RaiseServer(kObjectExists, "There is already an object named '" + name + "' in the database.");
  }
}

void Definitions::Remember(const std::string& name, const char* type, std::string_view text, const Relation* relation) {
  ExecuteBound(session_, "INSERT INTO sysobjects (name, xtype, definition) VALUES (?1, ?2, ?3)", {name, type, text});
  if (relation) RememberColumns(*relation);
}

void Definitions::RememberColumns(const Relation& relation) {
  ExecuteBound(session_, "DELETE FROM syscolumns WHERE id = (SELECT id FROM sysobjects WHERE name = ?1)", {relation.name});
  std::int64_t position = 0;
  for (const ColumnDef& column : relation.columns) {
    ExecuteBound(session_,
                 "INSERT INTO syscolumns (id, name, colid, colstat, length, isnullable) "
                 "SELECT id, ?2, ?3, ?4, ?5, ?6 FROM sysobjects WHERE name = ?1",
                 {relation.name, column.name},
                 {++position, column.rowIdentifier ? kRowIdentifierStat : 0, column.type.length, column.nullable ? 1 : 0});
  }
}

void Definitions::CreateTable(const TokenList& tokenList, ast::CreateTable& table, std::string_view text) {
  RefuseExisting(table.name);
  const Relation relation = ShapeOf(table);
  std::vector<int> structural;
  Execute(Translator(catalog_, tokenList, structural, true).Table(table.name, table.columns, table.keys).sql);
  Remember(table.name, "U", text, &relation);
  catalog_.Add(relation);
}

void Definitions::CreateView(const TokenList& tokenList, const ast::CreateView& view, std::string_view text) {
  RefuseExisting(view.name);
  std::vector<int> structural;
  Execute(Translator(catalog_, tokenList, structural, true).View(view).sql);
  AddView(tokenList, view);
  Remember(view.name, "V", text, &catalog_.RelationNamed(view.name));
}

void Definitions::CreateIndex(const ast::CreateIndex& index) {
  const Relation& table = catalog_.RelationNamed(index.table);
  std::string columns;
  for (const std::string& name : index.columns) {
    const int column = table.Find(name);
    if (column < 0) RaiseServer(kUnknownKeyColumn, "Column name '" + name + "' does not exist in the target table.");
    columns += (columns.empty() ? "" : ", ") + Quoted(table.columns[static_cast<std::size_t>(column)].name);
  }
  // The store's index names are the database's; the server's belong to their table.
  Execute(std::string(index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") + Quoted(table.name + "." + index.name) + " ON " +
          Quoted(table.name) + " (" + columns + ")");
}

void Definitions::CreateProcedure(const TokenList& tokenList, const ast::CreateProcedure& procedure, std::string_view text) {
  RefuseExisting(procedure.name);
  Remember(procedure.name, "P", text, nullptr);
  AddProcedure(tokenList, procedure);
}

std::string Definitions::TextOf(const std::string& name) {
  Translation translation;
  translation.sql = "SELECT definition FROM sysobjects WHERE name = ?1";
  const StatementHandle handle = session_.Prepare(std::move(translation));
  BindCell(handle.Get(), 1, Cell::Of(std::string_view(name)), true);
  return session_.Step(handle.Get()) ? ToValue(handle.Get(), 0, Type::TextOf(0)).ToText() : std::string();
}

void Definitions::AddColumns(const TokenList& tokenList, const ast::AddColumns& add, const ast::Statement& statement) {
  const Relation& table = catalog_.RelationNamed(add.table);
  std::string text = TextOf(table.name);
  text.erase(text.rfind(')'));
  std::vector<int> structural;
  const std::string whole = Translator(catalog_, tokenList, structural, true).Table(table.name, add.columns, {}).sql;
  // The store adds one column at a time; their definitions are between the outer parentheses.
  if (add.columns.size() != 1) RaiseServer(kSyntaxNear, "Incorrect syntax near 'add': one column at a time.");
  const std::size_t open = whole.find(" (") + 2;
  Execute("ALTER TABLE " + Quoted(table.name) + " ADD COLUMN " + whole.substr(open, whole.size() - open - 1));
  const std::string_view added = TextOfStatement(tokenList, statement);
  std::size_t column = 0;
  for (std::uint32_t token = statement.token; token < statement.end; ++token) {
    if (EqualWord(tokenList.TextOf(tokenList.tokens[token]), "add")) {
      column = tokenList.tokens[token].end - tokenList.tokens[statement.token].begin;
      break;
    }
  }
  text += "," + std::string(added.substr(column)) + ")";
  ExecuteBound(session_, "UPDATE sysobjects SET definition = ?2 WHERE name = ?1", {table.name, text});
  TokenList grown;
  Lex(text, grown);
  AddToCatalog(grown, *Parser(grown).Statement(true));
  RememberColumns(catalog_.RelationNamed(add.table));
}

void Definitions::Drop(const ast::Drop& drop) {
  if (drop.objectType == "index") {
    const std::string table = drop.table.empty() ? std::string() : catalog_.RelationNamed(drop.table).name;
    return Execute("DROP INDEX " + Quoted(table + "." + drop.name));
  }
  const Relation* relation = catalog_.FindRelation(drop.name);
  const bool procedure = drop.objectType == "procedure";
  const bool known =
      procedure ? catalog_.FindProcedure(drop.name) != nullptr : relation && relation->view == (drop.objectType == "view");
  if (!known || (relation && relation->name.starts_with("sys"))) {
    RaiseServer(kNothingToDrop,
                "Cannot drop the " + drop.objectType + " '" + drop.name + "', because it does not exist in the system catalog.");
  }
  const std::string name = relation ? relation->name : drop.name;
  if (!procedure) Execute((relation->view ? "DROP VIEW " : "DROP TABLE ") + Quoted(name));
  ExecuteBound(session_, "DELETE FROM syscolumns WHERE id = (SELECT id FROM sysobjects WHERE name = ?1)", {name});
  ExecuteBound(session_, "DELETE FROM sysobjects WHERE name = ?1", {name});
  if (procedure) {
    catalog_.RemoveProcedure(name);
  } else {
    catalog_.RemoveRelation(name);
  }
}

}  // namespace suite
