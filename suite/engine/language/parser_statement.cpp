#include "suite/engine/language/parser.h"
#include "suite/engine/values/errors.h"

namespace suite {

using ast::StatementKind;
using ast::StatementPtr;

StatementPtr Parser::Make(StatementKind kind) const {
  auto statement = std::make_unique<ast::Statement>();
  statement->kind = kind;
  statement->token = static_cast<std::uint32_t>(position_);
  return statement;
}

StatementPtr Parser::Statement(bool first) {
  const auto begin = static_cast<std::uint32_t>(position_);
  StatementPtr statement;
  if (PeekWord("select")) {
    statement = Make(StatementKind::Query);
    statement->query = Query();
  } else if (PeekWord("insert")) {
    statement = Insert();
  } else if (PeekWord("update")) {
    statement = Update();
  } else if (PeekWord("delete")) {
    statement = Delete();
  } else if (PeekWord("create")) {
    statement = Create();
  } else if (PeekWord("alter")) {
    statement = Alter();
  } else if (PeekWord("drop")) {
    statement = Drop();
  } else if (PeekWord("begin")) {
    statement = BeginStatement();
  } else if (PeekWord("commit")) {
    statement = CommitOrRollback(StatementKind::Commit);
  } else if (PeekWord("rollback")) {
    statement = CommitOrRollback(StatementKind::Rollback);
  } else if (PeekWord("if")) {
    statement = If();
  } else if (PeekWord("set")) {
    statement = Set();
  } else if (PeekWord("exec") || PeekWord("execute")) {
    ++position_;
    statement = ExecuteProcedure();
  } else if (first && NameFollows()) {
    statement = ExecuteProcedure();
  } else {
    Unexpected();
  }
  statement->token = begin;
  statement->end = static_cast<std::uint32_t>(position_);
  return statement;
}

StatementPtr Parser::Insert() {
  StatementPtr statement = Make(StatementKind::Insert);
  ExpectWord("insert");
  TakeWord("into");
  statement->name = ObjectName();
  if (PeekSymbol('(') && !PeekWord("select", 1)) statement->columns = NameList();
  if (!TakeWord("values")) {
    if (!PeekWord("select")) Unexpected();
    statement->query = Query();
    return statement;
  }
  do {
    std::vector<ast::ExprPtr> row;
    ExpectSymbol('(');
    do {
      row.push_back(Value());
    } while (TakeSymbol(','));
    ExpectSymbol(')');
    statement->rows.push_back(std::move(row));
  } while (TakeSymbol(','));
  return statement;
}

StatementPtr Parser::Update() {
  StatementPtr statement = Make(StatementKind::Update);
  ExpectWord("update");
  statement->name = ObjectName();
  ExpectWord("set");
  statement->rows.emplace_back();
  do {
    std::string column = Name();
    if (TakeSymbol('.')) column = Name();
    statement->columns.push_back(std::move(column));
    ExpectSymbol('=');
    statement->rows.front().push_back(Value());
  } while (TakeSymbol(','));
  if (TakeWord("where")) statement->where = Predicate();
  return statement;
}

StatementPtr Parser::Delete() {
  StatementPtr statement = Make(StatementKind::Delete);
  ExpectWord("delete");
  TakeWord("from");
  statement->name = ObjectName();
  if (TakeWord("where")) statement->where = Predicate();
  return statement;
}

StatementPtr Parser::ExecuteProcedure() {
  StatementPtr statement = Make(StatementKind::Execute);
  statement->name = ObjectName();
  statement->rows.emplace_back();
  while (!AtEnd() && !PeekSymbol(';')) {
    // An argument is a literal, a signed number or null; the server takes no expressions here either.
    if (PeekSymbol('-')) {
      statement->rows.front().push_back(Sign());
    } else {
      const bool literal = Peek().literal >= 0;
      if (!literal && !PeekWord("null")) Unexpected();
      statement->rows.front().push_back(Primary());
    }
    if (!TakeSymbol(',')) break;
    if (AtEnd()) Unexpected();
  }
  return statement;
}

StatementPtr Parser::BeginStatement() {
  StatementPtr statement = Make(StatementKind::Begin);
  ExpectWord("begin");
  if (TakeWord("tran") || TakeWord("transaction")) return statement;
  statement->kind = StatementKind::Block;
  while (SkipSeparators(), !TakeWord("end")) statement->inner.push_back(Statement(false));
  return statement;
}

StatementPtr Parser::CommitOrRollback(StatementKind kind) {
  StatementPtr statement = Make(kind);
  ++position_;
  if (!TakeWord("tran") && !TakeWord("transaction")) TakeWord("work");
  return statement;
}

StatementPtr Parser::If() {
  StatementPtr statement = Make(StatementKind::If);
  ExpectWord("if");
  statement->where = Predicate();
  statement->inner.push_back(Statement(false));
  SkipSeparators();
  if (TakeWord("else")) statement->inner.push_back(Statement(false));
  return statement;
}

StatementPtr Parser::Set() {
  StatementPtr statement = Make(StatementKind::Nothing);
  ExpectWord("set");
  if (TakeWord("nocount")) {
    statement->kind = TakeWord("on") ? StatementKind::CountNoRows : StatementKind::CountRows;
    if (statement->kind == StatementKind::CountRows) ExpectWord("off");
    return statement;
  }
  const bool known = TakeWord("ansi_nulls") || TakeWord("quoted_identifier") || TakeWord("ansi_padding") ||
                     TakeWord("ansi_warnings") || TakeWord("xact_abort");
  if (!known) Unexpected();
  if (!TakeWord("on")) ExpectWord("off");
  return statement;
}

}  // namespace suite
