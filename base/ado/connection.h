#pragma once

#include <string_view>

#include "base/ado/recordset.h"
#include "base/late/object.h"

namespace ado {

/// Face over the host's late-bound ADO Connection. A default-made face has no object: every member raises error 91.
class Connection {
 public:
  Connection() = default;
  explicit Connection(late::ObjectPtr object) : object_(std::move(object)) {}

  const late::ObjectPtr& Object() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Runs a statement and gives its rows (forward-only, read-only); a statement without rows gives a closed recordset.
  Recordset Execute(std::string_view statement);
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();
  /// Seconds; 0 waits for ever.
  void SetCommandTimeout(int seconds);
  int CommandTimeout();
  int State();

 private:
  late::ObjectPtr object_;
};

/// Begins a transaction and rolls it back on the way out unless it was committed. A rollback that itself fails on the way out
/// stays silent: the error that led there is the one to report.
class Transaction {
 public:
  explicit Transaction(Connection& connection);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// After a failing commit the transaction is still to be rolled back, and is.
  void Commit();
  void Rollback();

 private:
  Connection& connection_;
  bool open_ = true;
};

}  // namespace ado
