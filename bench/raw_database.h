#pragma once

#include <sqlite3.h>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// SQLite's C interface on a shop's file, as the limits are measured with: prepared statements and nothing around them.
class RawDatabase {
 public:
  explicit RawDatabase(const std::string& path);
  ~RawDatabase();
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;

  void Run(const char* statement);
  /// Reads all rows of a query into strings; how many rows there were.
  std::size_t ReadIntoStrings(const char* query, std::vector<std::vector<std::string>>& rows);
  sqlite3* Handle() const { return database_; }

 private:
  sqlite3* database_ = nullptr;
};

/// A prepared statement that is bound and stepped again and again.
class RawStatement {
 public:
  RawStatement(RawDatabase& database, const char* text);
  ~RawStatement();
  RawStatement(const RawStatement&) = delete;
  RawStatement& operator=(const RawStatement&) = delete;

  void Bind(int index, std::int64_t value) { sqlite3_bind_int64(statement_, index, value); }
  void Bind(int index, std::string_view text) {
    sqlite3_bind_text(statement_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  }
  /// Steps to the end, reading text of every column, and resets.
  std::size_t Execute();

 private:
  sqlite3_stmt* statement_ = nullptr;
};

}  // namespace bench
