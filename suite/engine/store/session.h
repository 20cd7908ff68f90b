#pragma once

#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "suite/engine/functions/server_functions.h"
#include "suite/engine/language/parser.h"
#include "suite/engine/store/file_version.h"
#include "suite/engine/store/observer.h"
#include "suite/engine/store/store.h"
#include "suite/engine/translation/statement_cache.h"
#include "suite/engine/values/errors.h"

namespace suite {

struct LaterResults;

/// What running a text gave: rows to step through, or the number of rows it changed.
struct RunResult {
  StatementHandle rows;
  std::int64_t affected = -1;
  std::shared_ptr<LaterResults> later;  ///< none when the text gave nothing else

  bool IsEmpty() const { return !rows && affected < 0; }
  /// Raises the error that the text met after this result. The provider shows it only to who asks for the next result.
  void RaiseLater() const;
};

/// What a text gave after its first result. Nobody sees it who does not ask: not even the error that ended it.
struct LaterResults {
  std::deque<RunResult> results;
  std::optional<ServerError> error;
};

/// Something with open rows on a connection.
class OpenRows {
 public:
  virtual ~OpenRows() = default;
  virtual void ConnectionClosed() = 0;
  /// Reads what the store still has of the rows: while they are open there, the connection cannot write once another one has.
  virtual void ReadAhead() = 0;
  /// The transaction was committed or rolled back: rows on the server end with it.
  virtual void TransactionEnded() = 0;
  /// Whether the connection still has rows of this under way and can carry nothing else.
  virtual bool IsUnread() const = 0;
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

  /// As the classic provider does it: from Begin to Commit or Rollback every statement runs in a transaction, which the first
  /// one opens. When the server has rolled it back by itself, the next statement opens another one, and a Commit or Rollback
  /// without a statement in between fails with 3902 or 3903.
  void Begin();
  void Commit();
  void Rollback();
  bool InTransaction() const { return manual_; }
  /// What every statement and row goes through on its way to the server. Raises the provider's error when the connection still
  /// has unread rows under way inside a transaction; outside, the provider logs on a second time. Afterwards the catalog is that
  /// of the file, also when another process has changed it.
  void Use();
  /// To be called before something is written: outside a transaction the open rows are read ahead.
  void PrepareToWrite();
  /// Runs `body`; when its error has made the server roll back, the transaction is gone.
  template <class Body>
  auto Guarded(const Body& body);
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
  /// Runs a script (Database::RunScript).
  void RunScript(std::string_view text);

 private:
  friend class Definitions;

  RunResult RunTokens(const TokenList& tokenList, bool updatable);
  RunResult RunBatch(const TokenList& tokenList, bool updatable);
  RunResult RunStatement(const TokenList& tokenList, ast::Statement& statement, Parser& parser, bool updatable);
  RunResult RunTranslated(const TokenList& tokenList, const ast::Statement& statement, const Parser& parser, bool updatable);
  RunResult RunBlock(const TokenList& tokenList, const ast::Block& block, Parser& parser, bool updatable);
  RunResult RunProcedure(const TokenList& tokenList, const ast::Execute& execute, bool updatable);
  RunResult Start(const TokenList& tokenList, std::shared_ptr<CachedStatement> cached);
  std::shared_ptr<CachedStatement> Translate(const TokenList& tokenList, const ast::Statement& statement,
                                             std::vector<int>& structural, bool updatable, bool inlineLiterals);
  bool ConditionHolds(const TokenList& tokenList, const ast::Expr& condition);
  void RunBatchText(std::string_view text);
  void Configure();
  void RefuseForeignFile();
  void UseWriteAheadLog();
  /// Reads the stored definitions into the catalog when it is not of the file's version.
  void RefreshCatalog();
  /// The catalog and the file's definitions have changed alike.
  void DefinitionsChanged();
  /// What the transaction that has ended defined is gone.
  void ForgetDefinitions();
  void Execute(const char* sql);
  void BeginTransaction();
  void OpenTransaction();
  void CommitTransaction();
  void RollbackTransaction();
  void EndTransaction(const char* sql);
  void Lose(const ServerError& error);
  bool HasUnreadRows() const;
  bool HasStoreTransaction() const;
  static int Progress(void* self);

  std::shared_ptr<Store> store_;
  StatementObserver* observer_;
  sqlite3* handle_ = nullptr;
  FileVersion version_;
  FunctionContext functions_;
  StatementCache cache_;
  std::int64_t cacheVersion_ = -1;
  std::int64_t versionAtBegin_ = 0;
  TokenList scratch_;
  int running_ = 0;  ///< depth of Run: only the outermost may use the scratch tokens
  std::vector<OpenRows*> open_;
  bool manual_ = false;         ///< between Begin and Commit or Rollback
  bool inTransaction_ = false;  ///< the store has a transaction open
  bool lost_ = false;           ///< the server has rolled it back by itself
  bool countsRows_ = true;      ///< set nocount off
  std::chrono::seconds timeout_{30};
  std::optional<std::chrono::steady_clock::time_point> deadline_;
};

template <class Body>
void Session::Atomically(const Body& body) {
  Use();
  PrepareToWrite();
  const bool own = !HasStoreTransaction();
  // With the write lock taken first, what the catalog says is still true when the body writes.
  Execute(own ? "BEGIN IMMEDIATE" : "SAVEPOINT rows");
  try {
    if (own) version_.Forget(), RefreshCatalog();
    body();
    Execute(own ? "COMMIT" : "RELEASE rows");
  } catch (...) {
    if (HasStoreTransaction()) {  // else the server has undone more than this already
      Execute(own ? "ROLLBACK" : "ROLLBACK TO rows");
      if (!own) Execute("RELEASE rows");
    }
    if (own) version_.Forget();
    throw;
  }
  if (own) version_.Forget();
}

template <class Body>
auto Session::Guarded(const Body& body) {
  try {
    return body();
  } catch (const ServerError& error) {
    Lose(error);
    throw;
  }
}

}  // namespace suite
