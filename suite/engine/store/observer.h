#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/late/value.h"

namespace suite {

/// Notified of everything a connection is about to do, in the caller's words. It may raise a run-time error:
/// then the thing is not done and the error goes to the caller (a refused commit leaves the transaction open).
class StatementObserver {
 public:
  enum class Change { Insert, Update, Delete };
  using ColumnValue = std::pair<std::string, late::Value>;

  virtual ~StatementObserver() = default;
  virtual void Statement(std::string_view text) { (void)text; }
  /// A row sent through a recordset; the columns in the order they were set, under their names in the table.
  virtual void RowChange(Change change, std::string_view table, std::span<const ColumnValue> values) {
    (void)change, (void)table, (void)values;
  }
  virtual void Begin() {}
  virtual void Commit() {}
  virtual void Rollback() {}
  /// A statement runs while rows of the connection are unread, outside a transaction: the provider logs on a second time for it.
  virtual void SecondLogIn() {}
};

}  // namespace suite
