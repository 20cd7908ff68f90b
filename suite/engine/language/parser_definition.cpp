#include "base/vb/text.h"
#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::StatementKind;
using ast::StatementPtr;

StatementPtr Parser::Create() {
  ExpectWord("create");
  if (PeekWord("table")) return CreateTable();
  if (PeekWord("view")) return CreateView();
  if (PeekWord("procedure") || PeekWord("proc")) return CreateProcedure();
  const bool unique = TakeWord("unique");
  SkipClustering();
  if (PeekWord("index")) return CreateIndex(unique);
  Unexpected();
}

void Parser::SkipClustering() {
  if (!TakeWord("clustered")) TakeWord("nonclustered");
}

StatementPtr Parser::CreateTable() {
  StatementPtr statement = Make(StatementKind::CreateTable);
  ExpectWord("table");
  statement->name = ObjectName();
  ExpectSymbol('(');
  do {
    if (!TableKey(*statement)) statement->definitions.push_back(Column());
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return statement;
}

bool Parser::TableKey(ast::Statement& statement) {
  const bool named = PeekWord("constraint");
  const std::size_t ahead = named ? 2 : 0;
  if (!PeekWord("primary", ahead) && !PeekWord("unique", ahead)) {
    if (named) Unexpected();
    return false;
  }
  position_ += ahead;
  ast::Key key;
  key.primary = TakeWord("primary");
  ExpectWord(key.primary ? "key" : "unique");
  SkipClustering();
  key.columns = NameList();
  statement.keys.push_back(std::move(key));
  return true;
}

ast::ColumnDefinition Parser::Column() {
  ast::ColumnDefinition column;
  column.name = Name();
  column.type = TypeNamed(1);
  while (ColumnOption(column)) {
  }
  return column;
}

bool Parser::ColumnOption(ast::ColumnDefinition& column) {
  if (TakeWord("constraint")) Name();
  if (TakeWord("null")) {
    column.nullable = true;
  } else if (TakeWord("not")) {
    ExpectWord("null");
    column.nullable = false;
  } else if (TakeWord("default")) {
    column.initial = Primary();
  } else if (TakeWord("primary")) {
    ExpectWord("key");
    SkipClustering();
    column.primary = true;
    column.nullable = false;
  } else if (TakeWord("unique")) {
    column.unique = true;
  } else if (TakeWord("rowguidcol")) {
    column.rowIdentifier = true;
  } else {
    return false;
  }
  return true;
}

StatementPtr Parser::CreateView() {
  StatementPtr statement = Make(StatementKind::CreateView);
  ExpectWord("view");
  statement->name = ObjectName();
  if (PeekSymbol('(')) statement->columns = NameList();
  ExpectWord("as");
  statement->query = Query();
  return statement;
}

StatementPtr Parser::CreateIndex(bool unique) {
  StatementPtr statement = Make(StatementKind::CreateIndex);
  ExpectWord("index");
  statement->unique = unique;
  statement->name = Name();
  ExpectWord("on");
  statement->target = ObjectName();
  ExpectSymbol('(');
  do {
    statement->columns.push_back(Name());
    // The direction of an index column matters to no result.
    if (!TakeWord("asc")) TakeWord("desc");
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return statement;
}

StatementPtr Parser::CreateProcedure() {
  StatementPtr statement = Make(StatementKind::CreateProcedure);
  ++position_;
  statement->name = ObjectName();
  const bool parenthesis = TakeSymbol('(');
  while (Peek().kind == TokenKind::Variable) {
    ast::ProcedureParameter parameter;
    parameter.name = std::string(lexed_.TextOf(lexed_.tokens[position_++]));
    TakeWord("as");
    parameter.type = TypeNamed(1);
    parameter.hasDefault = TakeSymbol('=');
    if (parameter.hasDefault) parameter.initial = Sign();
    statement->parameters.push_back(std::move(parameter));
    if (!TakeSymbol(',')) break;
  }
  if (parenthesis) ExpectSymbol(')');
  ExpectWord("as");
  // The body runs on the server; here it is kept as text, and a registered function does its work.
  if (AtEnd()) Unexpected();
  position_ = lexed_.tokens.size() - 1;
  return statement;
}

StatementPtr Parser::Alter() {
  StatementPtr statement = Make(StatementKind::AddColumn);
  ExpectWord("alter");
  ExpectWord("table");
  statement->name = ObjectName();
  ExpectWord("add");
  do {
    statement->definitions.push_back(Column());
  } while (TakeSymbol(','));
  return statement;
}

StatementPtr Parser::Drop() {
  StatementPtr statement = Make(StatementKind::Drop);
  ExpectWord("drop");
  for (const std::string_view type : {"table", "view", "procedure", "proc", "index"}) {
    if (!TakeWord(type)) continue;
    statement->objectType = type == "proc" ? "procedure" : type;
    statement->name = ObjectName();
    if (type != "index") return statement;
    // "drop index table.index" and "drop index index on table"
    if (TakeSymbol('.')) {
      statement->target = std::move(statement->name);
      statement->name = Name();
    } else if (TakeWord("on")) {
      statement->target = ObjectName();
    }
    return statement;
  }
  Unexpected();
}

}  // namespace suite
