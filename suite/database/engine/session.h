#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "suite/database/engine/observer.h"
#include "suite/database/engine/parser.h"
#include "suite/database/engine/server_functions.h"
#include "suite/database/engine/statement_cache.h"
#include "suite/database/engine/store.h"

namespace suite {

/// What running a text gave: rows to step through, or the number of rows it changed.
struct RunResult {
  StatementHandle rows;
  std::int64_t affected = -1;
};

/// Something with open rows that ends with its connection.
class OpenRows {
 public:
  virtual ~OpenRows() = default;
  virtual void ConnectionClosed() = 0;
};

/// One connection to the store: runs statements of the dialect and keeps the transaction. It knows nothing of ADO's objects.
class Session : public std::enable_shared_from_this<Session> {
 public:
  Session(std::shared_ptr<Store> store, StatementObserver* observer);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Runs a batch. With `updatable` a select of one table brings the rows' ids along.
  RunResult Run(std::string_view text, bool updatable = false);
  /// Moves to the next row; false at the end. Raises what the statement met.
  bool Step(sqlite3_stmt* statement);
  /// Prepares a statement in the store's own words, for rows sent through a recordset.
  StatementHandle Prepare(Translation translation);

  void Begin();
  void Commit();
  void Rollback();
  bool InTransaction() const { return inTransaction_; }
  /// Runs `body` so that a failure undoes all that it did, and nothing else.
  template <class Body>
  void Atomically(const Body& body);

  void Attach(OpenRows* rows) { open_.push_back(rows); }
  void Detach(OpenRows* rows) { std::erase(open_, rows); }
  /// Closes every recordset that is open on this connection.
  void CloseRows();

  /// Seconds; 0 waits for ever.
  void SetTimeout(int seconds);
  StatementObserver* Observer() const { return observer_; }
  const Catalog& Names() const { return store_->catalog; }
  sqlite3* Handle() const { return handle_; }
  /// Reads the stored definitions into the catalog.
  void LoadCatalog();
  /// Runs a script (Database::RunScript).
  void RunScript(std::string_view text);

 private:
  friend class Definitions;

  RunResult RunLexed(const Lexed& lexed, bool updatable);
  RunResult RunBatch(const Lexed& lexed, bool updatable);
  RunResult RunStatement(const Lexed& lexed, ast::Statement& statement, Parser& parser, bool updatable);
  RunResult RunProcedure(const Lexed& lexed, const ast::Statement& statement, bool updatable);
  RunResult Start(const Lexed& lexed, std::shared_ptr<CachedStatement> cached);
  std::shared_ptr<CachedStatement> Translate(const Lexed& lexed, const ast::Statement& statement, std::vector<int>& structural,
                                             bool updatable, bool inlineLiterals);
  bool ConditionHolds(const Lexed& lexed, const ast::Statement& statement);
  void RunBatchText(std::string_view text);
  void Configure();
  void Execute(const char* sql);
  void BeginTransaction();
  void CommitTransaction();
  void RollbackTransaction();
  static int Progress(void* self);

  std::shared_ptr<Store> store_;
  StatementObserver* observer_;
  sqlite3* handle_ = nullptr;
  FunctionContext functions_;
  StatementCache cache_;
  std::int64_t cacheVersion_ = -1;
  std::int64_t versionAtBegin_ = 0;
  Lexed scratch_;
  int running_ = 0;  ///< depth of Run: only the outermost may use the scratch tokens
  std::vector<OpenRows*> open_;
  bool inTransaction_ = false;
  std::chrono::seconds timeout_{30};
  std::optional<std::chrono::steady_clock::time_point> deadline_;
};

template <class Body>
void Session::Atomically(const Body& body) {
  Execute("SAVEPOINT rows");
  try {
    body();
  } catch (...) {
    Execute("ROLLBACK TO rows");
    Execute("RELEASE rows");
    throw;
  }
  Execute("RELEASE rows");
}

}  // namespace suite
