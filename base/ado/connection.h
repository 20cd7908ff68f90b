#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/ado/recordset.h"
#include "base/late/object.h"
#include "base/vb/error.h"

namespace ado {

/// What the server says of an error beside number and text.
struct ErrorDetail {
  std::int32_t nativeError = 0;
  std::string sqlState;  ///< five characters, of the standard
};

/// Face over the host's late-bound ADO Connection. A default-made face has no object: every member raises error 91.
class Connection {
 public:
  Connection() = default;
  explicit Connection(late::ObjectPtr object) : object_(std::move(object)) {}

  const late::ObjectPtr& Object() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Runs a statement and returns its rows (forward-only, read-only; closed when the first result is a count). Read them to the
  /// end and close them before the next statement: until then the connection is busy.
  Recordset Execute(std::string_view statement);
  /// Runs a statement that returns no rows. The provider then reads the server's whole answer, so that an error after a first
  /// count (in a trigger, in a procedure) is raised here and not lost.
  void ExecuteNoRecords(std::string_view statement);
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();
  /// Seconds; 0 waits for ever.
  void SetCommandTimeout(int seconds);
  int CommandTimeout();
  int State();
  /// The entry of the Errors collection for this error; nothing when there is none. Raises nothing. Ask before the next statement
  /// or rollback: their errors take its place.
  std::optional<ErrorDetail> DetailOf(const vb::RunTimeError& error) const;

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
