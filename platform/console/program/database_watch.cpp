#include "platform/console/program/database_watch.h"

#include "base/ado/connection.h"
#include "base/ado/recordset.h"
#include "platform/console/escape.h"
#include "platform/console/value_text.h"
#include "suite/engine/values/errors.h"

namespace console {
namespace {

/// The server's number of errors raised by a statement (raiserror).
constexpr int kRaisedError = 50000;
/// A failure whose text begins so comes from a server that has undone the transaction already.
constexpr std::string_view kRolledBack = "rolled back by the server";

/// A value in a trace: text as it is, the rest as everywhere.
std::string PlainText(const late::Value& value) {
  return value.IsText() ? value.ToText() : ValueText(value);
}

std::string_view VerbOf(suite::StatementObserver::Change change) {
  switch (change) {
    case suite::StatementObserver::Change::Insert:
      return "insert";
    case suite::StatementObserver::Change::Update:
      return "update";
    default:
      return "delete";
  }
}

}  // namespace

void ConnectionWatch::FailAt(int n, std::string text) {
  remaining_ = n;
  failure_ = std::move(text);
}

void ConnectionWatch::Trace(std::string_view statement) {
  if (output_.IsTracing()) output_.Line("sql", Quote(statement));
}

void ConnectionWatch::Count() {
  if (remaining_ == 0 || --remaining_ > 0) return;
  const bool rolledBack = failure_.starts_with(kRolledBack);
  suite::RaiseServer(rolledBack ? suite::kDeadlockVictim : kRaisedError, failure_);
}

void ConnectionWatch::Statement(std::string_view text) {
  Trace(text);
  Count();
}

void ConnectionWatch::RowChange(Change change, std::string_view table, std::span<const ColumnValue> values) {
  if (output_.IsTracing()) {
    std::string line = std::string(VerbOf(change)).append(" ").append(table);
    for (const auto& [column, value] : values) line.append(" ").append(column).append("=").append(PlainText(value));
    Trace(line);
  }
  Count();
}

void ConnectionWatch::Begin() {
  Trace("begin");
}

void ConnectionWatch::Commit() {
  Trace("commit");
  Count();
}

void ConnectionWatch::Rollback() {
  Trace("rollback");
}

// Nothing of the component may cost that; a script that shows it must not pass.
void ConnectionWatch::SecondLogIn() {
  output_.Line("error", "a statement ran while rows of the connection were unread");
}

void ShopDatabase::Query(std::string_view statement, const std::function<void(std::span<const late::Value>)>& row) {
  if (!connection_) connection_ = database_.Connect();
  ado::Connection connection(connection_);
  for (ado::Recordset result = connection.Execute(statement); result; result = result.NextRecordset()) {
    if (!result.IsOpen()) continue;  // a count
    ado::ForEachRow(result, [&](const late::Array& block, std::size_t record) {
      row(std::span<const late::Value>(&block.items[record * block.rows], block.rows));
    });
  }
}

}  // namespace console
