// Transactions, procedures and scripts of a session.
#include <sqlite3.h>
#include <utility>

#include "base/vb/text.h"
#include "suite/engine/store/definitions.h"
#include "suite/engine/store/procedures.h"
#include "suite/engine/store/session.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {

void Session::Begin() {
  if (observer_) observer_->Begin();
  if (HasUnreadRows()) RaiseProvider(kUnspecified, "Cannot start transaction while in firehose mode.");
  BeginTransaction();
}

void Session::Commit() {
  Guarded([&] {
    if (manual_ && observer_) observer_->Commit();
    CommitTransaction();
  });
}

void Session::Rollback() {
  if (manual_ && observer_) observer_->Rollback();
  RollbackTransaction();
}

void Session::BeginTransaction() {
  if (manual_) RaiseServer(kTransactionOpen, "Cannot start more transactions on this session.");
  manual_ = true;
  lost_ = false;
}

void Session::OpenTransaction() {
  // The write lock is taken at once: what a save reads to number its request is then still true when it writes.
  PrepareToWrite();
  Execute("BEGIN IMMEDIATE");
  inTransaction_ = true;
  lost_ = false;
  version_.Forget();
  RefreshCatalog();
  versionAtBegin_ = store_->catalog.Version();
}

void Session::CommitTransaction() {
  if (!manual_ || lost_) {
    manual_ = lost_ = false;
    RaiseServer(kNothingToCommit, "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION.");
  }
  if (inTransaction_) EndTransaction("COMMIT");
  manual_ = false;
}

void Session::RollbackTransaction() {
  if (!manual_ || lost_) {
    manual_ = lost_ = false;
    RaiseServer(kNothingToRollBack, "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION.");
  }
  manual_ = false;
  if (!inTransaction_) return;
  // After a grave error (a full disk) the store has already rolled back by itself.
  EndTransaction(HasStoreTransaction() ? "ROLLBACK" : nullptr);
  ForgetDefinitions();
}

void Session::EndTransaction(const char* sql) {
  if (sql) Execute(sql);
  inTransaction_ = false;
  version_.Forget();
  for (OpenRows* rows : open_) rows->TransactionEnded();
}

bool Session::HasStoreTransaction() const {
  return !sqlite3_get_autocommit(handle_);
}

void Session::Lose(const ServerError& error) {
  // A full disk makes the store roll back by itself, too: what follows must not be written alone.
  if (!inTransaction_ || (HasStoreTransaction() && !error.EndsTransaction())) return;
  EndTransaction(HasStoreTransaction() ? "ROLLBACK" : nullptr);
  lost_ = true;
  ForgetDefinitions();
}

void Session::CloseRows() {
  const std::vector<OpenRows*> rows = std::exchange(open_, {});
  for (OpenRows* each : rows) each->ConnectionClosed();
}

void Session::ForgetDefinitions() {
  if (versionAtBegin_ != store_->catalog.Version()) store_->catalogOf = -1;
}

RunResult Session::RunProcedure(const TokenList& tokenList, const ast::Execute& execute, bool updatable) {
  const ProcedureDef* definition = store_->catalog.FindProcedure(execute.procedure);
  if (!definition) RaiseServer(kUnknownProcedure, "Could not find stored procedure '" + execute.procedure + "'.");
  const Procedure procedure = FindProcedure(definition->name);
  if (!procedure)
    RaiseServer(kUnknownProcedure, "The stored procedure '" + definition->name + "' has no function registered in this engine.");
  const std::vector<ast::ExprPtr>& given = execute.arguments;
  if (given.size() > definition->parameters.size()) {
    RaiseServer(kTooManyArguments, "Procedure or function " + definition->name + " has too many arguments specified.");
  }
  std::vector<late::Value> arguments;
  for (std::size_t i = 0; i < definition->parameters.size(); ++i) {
    const ProcedureDef::Parameter& parameter = definition->parameters[i];
    if (i >= given.size() && !parameter.hasDefault) {
      RaiseServer(kParameterNotSupplied,
                  "Procedure '" + definition->name + "' expects parameter '" + parameter.name + "', which was not supplied.");
    }
    arguments.push_back(i < given.size() ? ArgumentValue(tokenList, given[i].get()) : parameter.defaultValue);
    if (parameter.type.IsInteger() && arguments.back().IsText()) {
      std::string buffer;
      arguments.back() =
          Convert(Cell::Of(std::string_view(*arguments.back().If<std::string>())), Type::TextOf(0), parameter.type, buffer)
              .integer;
    }
  }
  return Run(procedure(arguments), updatable);
}

void Session::RunBatchText(std::string_view text) {
  const std::string_view trimmed = vb::Trim(text);
  if (trimmed.find_first_not_of(" \t\r\n") == std::string_view::npos) return;
  const RunResult result = Run(text);
  result.RaiseLater();
  if (!result.rows) return;
  while (Step(result.rows.Get())) {
  }
}

void Session::RunScript(std::string_view text) {
  std::vector<std::string_view> lines;
  bool anyGo = false;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    std::string_view line = text.substr(begin, end - begin);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    anyGo = anyGo || vb::EqualNoCase(vb::Trim(line), "go");
    lines.push_back(line);
    begin = end + 1;
  }
  if (!anyGo) {
    for (const std::string_view line : lines) RunBatchText(line);
    return;
  }
  std::size_t batch = 0;
  for (std::size_t i = 0; i <= lines.size(); ++i) {
    if (i < lines.size() && !vb::EqualNoCase(vb::Trim(lines[i]), "go")) continue;
    if (batch < i) {
      const char* begin = lines[batch].data();
      const char* end = lines[i - 1].data() + lines[i - 1].size();
      RunBatchText({begin, static_cast<std::size_t>(end - begin)});
    }
    batch = i + 1;
  }
}

}  // namespace suite
