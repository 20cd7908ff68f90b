#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

ast::StatementPtr Parser::Statement(bool first) {
  const std::uint32_t begin = Here();
  ast::StatementNode node = StatementBody(first);
  return std::make_unique<ast::Statement>(ast::Statement{begin, Here(), std::move(node)});
}

ast::StatementNode Parser::StatementBody(bool first) {
  if (PeekWord("select")) return ast::QueryStatement{Query()};
  if (TakeWord("insert")) return Insert();
  if (TakeWord("update")) return Update();
  if (TakeWord("delete")) return Delete();
  if (TakeWord("create")) return Create();
  if (TakeWord("alter")) return Alter();
  if (TakeWord("drop")) return Drop();
  if (TakeWord("begin")) return Begin();
  if (TakeWord("commit")) return TransactionWord(), ast::Commit{};
  if (TakeWord("rollback")) return TransactionWord(), ast::Rollback{};
  if (TakeWord("if")) return If();
  if (TakeWord("set")) return Set();
  if (TakeWord("exec") || TakeWord("execute")) return ExecuteProcedure();
  if (first && NameFollows()) return ExecuteProcedure();
  Unexpected();
}

ast::Insert Parser::Insert() {
  TakeWord("into");
  ast::Insert insert;
  insert.table = ObjectName();
  if (PeekSymbol('(') && !PeekWord("select", 1)) insert.columns = NameList();
  if (!TakeWord("values")) {
    if (!PeekWord("select")) Unexpected();
    insert.query = Query();
    return insert;
  }
  do {
    ExpectSymbol('(');
    insert.rows.push_back(Arguments());
  } while (TakeSymbol(','));
  return insert;
}

ast::Update Parser::Update() {
  ast::Update update;
  update.table = ObjectName();
  ExpectWord("set");
  do {
    std::string column = Name();
    if (TakeSymbol('.')) column = Name();
    ExpectSymbol('=');
    update.assignments.push_back({std::move(column), Value()});
  } while (TakeSymbol(','));
  if (TakeWord("where")) update.where = Predicate();
  return update;
}

ast::Delete Parser::Delete() {
  TakeWord("from");
  ast::Delete statement{ObjectName(), nullptr};
  if (TakeWord("where")) statement.where = Predicate();
  return statement;
}

ast::Execute Parser::ExecuteProcedure() {
  ast::Execute execute{ObjectName(), {}};
  while (!AtEnd() && !PeekSymbol(';')) {
    // An argument is a literal, a signed number or null; the server takes no expressions here either.
    if (PeekSymbol('-')) {
      execute.arguments.push_back(Sign());
    } else {
      const bool literal = Peek().literal >= 0;
      if (!literal && !PeekWord("null")) Unexpected();
      execute.arguments.push_back(Primary());
    }
    if (!TakeSymbol(',')) break;
    if (AtEnd()) Unexpected();
  }
  return execute;
}

ast::StatementNode Parser::Begin() {
  if (TakeWord("tran") || TakeWord("transaction")) return ast::Begin{};
  ast::Block block;
  while (SkipSeparators(), !TakeWord("end")) block.statements.push_back(Statement(false));
  return block;
}

void Parser::TransactionWord() {
  if (!TakeWord("tran") && !TakeWord("transaction")) TakeWord("work");
}

ast::If Parser::If() {
  ast::If statement;
  statement.condition = Predicate();
  statement.then = Statement(false);
  SkipSeparators();
  if (TakeWord("else")) statement.otherwise = Statement(false);
  return statement;
}

ast::StatementNode Parser::Set() {
  // Of a language only its order of dates is known.
  if (TakeWord("language")) {
    if (TakeWord("british")) return ast::SetDateOrder{DateOrder::DayMonthYear};
    ExpectWord("us_english");
    return ast::SetDateOrder{};
  }
  if (TakeWord("dateformat")) {
    if (TakeWord("dmy")) return ast::SetDateOrder{DateOrder::DayMonthYear};
    if (TakeWord("ymd")) return ast::SetDateOrder{DateOrder::YearMonthDay};
    ExpectWord("mdy");
    return ast::SetDateOrder{};
  }
  const bool noCount = TakeWord("nocount");
  const bool known = noCount || TakeWord("ansi_nulls") || TakeWord("quoted_identifier") || TakeWord("ansi_padding") ||
                     TakeWord("ansi_warnings") || TakeWord("xact_abort");
  if (!known) Unexpected();
  const bool on = TakeWord("on");
  if (!on) ExpectWord("off");
  if (noCount) return ast::SetNoCount{on};
  return ast::OtherSetting{};
}

}  // namespace suite
