#include "bench/raw_database.h"

#include <stdexcept>

#include "base/vb/text.h"

namespace bench {
namespace {

int Compare(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return vb::CompareServer({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                           {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

void Check(sqlite3* database, int code) {
  if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(database));
}

}  // namespace

RawDatabase::RawDatabase(const std::string& path) {
  Check(database_, sqlite3_open(path.c_str(), &database_));
  // The files' text columns name the server's collation.
  Check(database_, sqlite3_create_collation(database_, "server", SQLITE_UTF8, nullptr, &Compare));
  Run("PRAGMA journal_mode = WAL");
  Run("PRAGMA synchronous = FULL");
}

RawDatabase::~RawDatabase() {
  sqlite3_close(database_);
}

void RawDatabase::Run(const char* statement) {
  Check(database_, sqlite3_exec(database_, statement, nullptr, nullptr, nullptr));
}

std::size_t RawDatabase::ReadIntoStrings(const char* query, std::vector<std::vector<std::string>>& rows) {
  sqlite3_stmt* statement = nullptr;
  Check(database_, sqlite3_prepare_v2(database_, query, -1, &statement, nullptr));
  const int columns = sqlite3_column_count(statement);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    std::vector<std::string> row(static_cast<std::size_t>(columns));
    for (int column = 0; column < columns; ++column) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
      if (text != nullptr)
        row[static_cast<std::size_t>(column)].assign(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
    }
    rows.push_back(std::move(row));
  }
  sqlite3_finalize(statement);
  return rows.size();
}

RawStatement::RawStatement(RawDatabase& database, const char* text) {
  Check(database.Handle(), sqlite3_prepare_v2(database.Handle(), text, -1, &statement_, nullptr));
}

RawStatement::~RawStatement() {
  sqlite3_finalize(statement_);
}

std::size_t RawStatement::Execute() {
  std::size_t rows = 0;
  int code = 0;
  while ((code = sqlite3_step(statement_)) == SQLITE_ROW) {
    ++rows;
    for (int column = 0; column < sqlite3_column_count(statement_); ++column) sqlite3_column_text(statement_, column);
  }
  Check(sqlite3_db_handle(statement_), code);
  sqlite3_reset(statement_);
  return rows;
}

}  // namespace bench
