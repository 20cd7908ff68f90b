#include "base/vb/text.h"
#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

ast::StatementNode Parser::Create() {
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

ast::CreateTable Parser::CreateTable() {
  ExpectWord("table");
  ast::CreateTable table;
  table.name = ObjectName();
  ExpectSymbol('(');
  do {
    if (!TableKey(table)) table.columns.push_back(Column());
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return table;
}

bool Parser::TableKey(ast::CreateTable& table) {
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
  table.keys.push_back(std::move(key));
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
    column.defaultValue = Primary();
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

ast::CreateView Parser::CreateView() {
  ExpectWord("view");
  ast::CreateView view;
  view.name = ObjectName();
  if (PeekSymbol('(')) view.columns = NameList();
  ExpectWord("as");
  view.query = Query();
  return view;
}

ast::CreateIndex Parser::CreateIndex(bool unique) {
  ExpectWord("index");
  ast::CreateIndex index;
  index.unique = unique;
  index.name = Name();
  ExpectWord("on");
  index.table = ObjectName();
  ExpectSymbol('(');
  do {
    index.columns.push_back(Name());
    // The direction of an index column matters to no result.
    if (!TakeWord("asc")) TakeWord("desc");
  } while (TakeSymbol(','));
  ExpectSymbol(')');
  return index;
}

ast::CreateProcedure Parser::CreateProcedure() {
  ++position_;
  ast::CreateProcedure procedure;
  procedure.name = ObjectName();
  const bool parenthesis = TakeSymbol('(');
  while (Peek().kind == TokenKind::Variable) {
    ast::ProcedureParameter parameter;
    parameter.name = std::string(tokenList_.TextOf(tokenList_.tokens[position_++]));
    TakeWord("as");
    parameter.type = TypeNamed(1);
    parameter.hasDefault = TakeSymbol('=');
    if (parameter.hasDefault) parameter.defaultValue = Sign();
    procedure.parameters.push_back(std::move(parameter));
    if (!TakeSymbol(',')) break;
  }
  if (parenthesis) ExpectSymbol(')');
  ExpectWord("as");
  // The body runs on the server; here it is kept as text, and a registered function does its work.
  if (AtEnd()) Unexpected();
  position_ = tokenList_.tokens.size() - 1;
  return procedure;
}

ast::AddColumns Parser::Alter() {
  ExpectWord("table");
  ast::AddColumns add;
  add.table = ObjectName();
  ExpectWord("add");
  do {
    add.columns.push_back(Column());
  } while (TakeSymbol(','));
  return add;
}

ast::Drop Parser::Drop() {
  for (const std::string_view type : {"table", "view", "procedure", "proc", "index"}) {
    if (!TakeWord(type)) continue;
    ast::Drop drop;
    drop.objectType = type == "proc" ? "procedure" : type;
    drop.name = ObjectName();
    if (type != "index") return drop;
    // "drop index table.index" and "drop index index on table"
    if (TakeSymbol('.')) {
      drop.table = std::move(drop.name);
      drop.name = Name();
    } else if (TakeWord("on")) {
      drop.table = ObjectName();
    }
    return drop;
  }
  Unexpected();
}

}  // namespace suite
