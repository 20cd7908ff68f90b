#pragma once

#include <list>
#include <string>
#include <vector>

#include "suite/engine/store/session.h"

namespace suite {

/// Sends the rows of one table that a recordset added, changed or deleted. Statements are prepared once for every set of columns.
class RowWriter {
 public:
  /// Columns of the table, in the order they were set.
  struct ColumnSet {
    std::vector<int> columns;
    StatementHandle insert;
    StatementHandle update;
  };

  RowWriter(std::shared_ptr<Session> session, const std::string& table);

  const Relation& Table() const { return table_; }
  ColumnSet& SetOf(const std::vector<int>& columns);
  /// Returns the new row's id.
  std::int64_t Insert(ColumnSet& set, const std::vector<late::Value>& values);
  /// Error 16947 (0x80040E38) when the row is no longer there.
  void Update(ColumnSet& set, const std::vector<late::Value>& values, std::int64_t rowId);
  void Delete(std::int64_t rowId);

 private:
  /// Error 16943 when the table is no longer what it was: the rows were read, and are set, in its old types.
  void RequireSameTable();
  void Announce(StatementObserver::Change change, const ColumnSet& set, const std::vector<late::Value>& values);
  void Bind(sqlite3_stmt* statement, const ColumnSet& set, const std::vector<late::Value>& values);
  void Run(sqlite3_stmt* statement);
  void RequireOne() const;

  std::shared_ptr<Session> session_;
  Relation table_;
  std::int64_t catalogVersion_;
  std::list<ColumnSet> sets_;
  std::vector<std::string> buffers_;
  StatementHandle delete_;
};

}  // namespace suite
