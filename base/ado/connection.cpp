#include "base/ado/connection.h"

#include "base/vb/error.h"

namespace ado {
namespace {

late::Object& Target(const late::ObjectPtr& object) {
  if (!object) vb::Raise(vb::kObjectNotSet);
  return *object;
}

}  // namespace

Recordset Connection::Execute(std::string_view statement) {
  return Recordset(Target(object_).Call("Execute", {statement}).ToObject());
}

void Connection::ExecuteNoRecords(std::string_view statement) {
  Target(object_).Call("Execute",
                       {statement, late::Missing{}, late::Value(static_cast<std::int32_t>(kCommandText | kExecuteNoRecords))});
}

std::optional<ErrorDetail> Connection::DetailOf(const vb::RunTimeError& error) const {
  try {
    const late::ObjectPtr errors = Target(object_).Get("Errors").ToObject();
    const std::int32_t count = errors->Get("Count").ToInt32();
    for (std::int32_t index = 0; index < count; ++index) {
      const late::ObjectPtr entry = errors->Get("Item", {index}).ToObject();
      // The collection keeps what an earlier statement left, too.
      if (entry->Get("Number").ToInt32() != error.Number() || entry->Get("Description").ToText() != error.Description()) continue;
      return ErrorDetail{entry->Get("NativeError").ToInt32(), entry->Get("SQLState").ToText()};
    }
  } catch (const vb::RunTimeError&) {
    // A connection without such a collection has nothing to add.
  }
  return std::nullopt;
}

void Connection::BeginTrans() {
  Target(object_).Call("BeginTrans");
}
void Connection::CommitTrans() {
  Target(object_).Call("CommitTrans");
}
void Connection::RollbackTrans() {
  Target(object_).Call("RollbackTrans");
}
void Connection::SetCommandTimeout(int seconds) {
  Target(object_).Put("CommandTimeout", late::Value(static_cast<std::int32_t>(seconds)));
}
int Connection::CommandTimeout() {
  return Target(object_).Get("CommandTimeout").ToInt32();
}
int Connection::State() {
  return Target(object_).Get("State").ToInt32();
}

Transaction::Transaction(Connection& connection) : connection_(connection) {
  connection_.BeginTrans();
}

Transaction::~Transaction() {
  if (!open_) return;
  try {
    connection_.RollbackTrans();
  } catch (...) {
    // An error is already on its way to the user, and it is the one that says what went wrong; a destructor that throws would
    // end the host besides. The server undoes what is left when the connection goes.
  }
}

void Transaction::Commit() {
  connection_.CommitTrans();  // when this raises, the transaction still counts as open
  open_ = false;
}

void Transaction::Rollback() {
  connection_.RollbackTrans();
  open_ = false;
}

}  // namespace ado
