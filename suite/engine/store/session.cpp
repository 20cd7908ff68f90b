#include "suite/engine/store/session.h"

#include <algorithm>
#include <sqlite3.h>
#include <thread>

#include "suite/engine/store/definitions.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr int kStepsBetweenChecks = 20000;  // of the store's machine, between two looks at the clock
constexpr int kForEver = 2147483647;

}  // namespace

Session::Session(std::shared_ptr<Store> store, StatementObserver* observer) : store_(std::move(store)), observer_(observer) {
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
  const int code = sqlite3_open_v2(store_->location.c_str(), &handle_, flags, nullptr);
  try {
    if (code != SQLITE_OK) RaiseFromStore(handle_, code);
    functions_.clock = store_->clock;
    Configure();
  } catch (...) {
    sqlite3_close_v2(handle_);
    throw;
  }
}

Session::~Session() {
  if (inTransaction_) {
    sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    ForgetDefinitions();
  }
  cache_.Clear();
  // Statements that a recordset still holds keep the handle alive until they go.
  sqlite3_close_v2(handle_);
}

void Session::Configure() {
  RegisterServerFunctions(handle_, functions_);
  sqlite3_extended_result_codes(handle_, 1);
  SetTimeout(static_cast<int>(timeout_.count()));
  if (store_->memory) {
    // Readers of the shared store see what others have not committed, instead of waiting for it.
    Execute("PRAGMA read_uncommitted = 1");
  } else {
    RefuseForeignFile();
    UseWriteAheadLog();
    Execute("PRAGMA synchronous = FULL");  // what a commit has answered is on the disk
  }
  version_.Watch(handle_, !store_->memory);
  Execute("PRAGMA case_sensitive_like = 0");
}

/// A database of another program has tables, but not the engine's.
void Session::RefuseForeignFile() {
  Translation translation;
  translation.sql =
      "SELECT count(*), total(name = 'sysobjects' AND sql LIKE '%definition%') FROM sqlite_master WHERE type IN ('table', "
      "'view')";
  const StatementHandle tables = Prepare(std::move(translation));
  if (!Step(tables.Get()) || sqlite3_column_int(tables.Get(), 0) == 0 || sqlite3_column_int(tables.Get(), 1) > 0) return;
  RaiseServer(kStoreFailure, "The file '" + store_->location +
                                 "' is a database of another program. Nothing in it was changed. Choose the shop's own file, or "
                                 "a new name for a new shop.");
}

/// A file in the old journal mode must be had alone for the change, and the store itself does not wait for that.
void Session::UseWriteAheadLog() {
  constexpr std::chrono::milliseconds kBetweenTries{10};
  const auto deadline = std::chrono::steady_clock::now() + timeout_;
  for (;;) {
    const int code = sqlite3_exec(handle_, "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
    if (code == SQLITE_OK) return;
    if ((code & 0xff) != SQLITE_BUSY || std::chrono::steady_clock::now() > deadline) RaiseFromStore(handle_, code);
    std::this_thread::sleep_for(kBetweenTries);
  }
}

void Session::Execute(const char* sql) {
  const int code = sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) RaiseFromStore(handle_, code);
}

void Session::SetTimeout(int seconds) {
  timeout_ = std::chrono::seconds(seconds);
  sqlite3_busy_timeout(handle_, seconds <= 0 || seconds > kForEver / 1000 ? kForEver : seconds * 1000);
  sqlite3_progress_handler(handle_, seconds > 0 ? kStepsBetweenChecks : 0, seconds > 0 ? Progress : nullptr, this);
}

int Session::Progress(void* self) {
  auto& session = *static_cast<Session*>(self);
  const auto now = std::chrono::steady_clock::now();
  if (!session.deadline_) session.deadline_ = now + session.timeout_;
  return now > *session.deadline_ ? 1 : 0;
}

bool Session::Step(sqlite3_stmt* statement) {
  deadline_.reset();  // the time between two rows is the reader's
  const int code = sqlite3_step(statement);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  if (functions_.error) {
    const ServerError error = *functions_.error;
    functions_.error.reset();
    sqlite3_reset(statement);
    throw ServerError(error);
  }
  try {
    RaiseFromStore(handle_, code);
  } catch (...) {
    sqlite3_reset(statement);
    throw;
  }
}

StatementHandle Session::Prepare(Translation translation) {
  auto statement = std::make_shared<CachedStatement>();
  statement->translation = std::move(translation);
  statement->store = handle_;
  return StatementHandle(std::move(statement));
}

void RunResult::RaiseLater() const {
  if (later && later->error) throw ServerError(*later->error);
}

bool Session::HasUnreadRows() const {
  return std::any_of(open_.begin(), open_.end(), [](const OpenRows* rows) { return rows->IsUnread(); });
}

void Session::Use() {
  if (HasUnreadRows()) {
    if (manual_) RaiseProvider(kUnspecified, "Cannot create new connection because in manual or distributed transaction mode.");
    if (observer_) observer_->SecondLogIn();
  }
  if (manual_ && !inTransaction_) OpenTransaction();
  RefreshCatalog();
}

void Session::PrepareToWrite() {
  if (HasStoreTransaction()) return;
  for (OpenRows* rows : open_) rows->ReadAhead();
}

void Session::DefinitionsChanged() {
  if (store_->memory) return;
  version_.Raise();
  store_->catalogOf = version_.Current();
}

void Session::RefreshCatalog() {
  const std::int32_t current = store_->memory ? 0 : version_.Current();
  if (current == store_->catalogOf) return;
  store_->catalogOf = -1;
  // Version and definitions are read from one state of the file.
  const bool own = !HasStoreTransaction();
  if (own) Execute("BEGIN");
  try {
    version_.Forget();
    const std::int32_t version = store_->memory ? 0 : version_.Current();
    Definitions(*this).Load();
    store_->catalogOf = version;
  } catch (...) {
    if (own) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    throw;
  }
  if (own) Execute("COMMIT"), version_.Forget();
}

RunResult Session::Run(std::string_view text, bool updatable) {
  functions_.now.reset();
  struct Depth {
    int& depth;
    explicit Depth(int& counter) : depth(counter) { ++depth; }
    ~Depth() { --depth; }
  } depth(running_);
  if (running_ > 1) {
    TokenList own;
    Lex(text, own);
    return RunTokens(own, updatable);
  }
  return Guarded([&] {
    if (observer_) observer_->Statement(text);
    Use();
    Lex(text, scratch_);
    return RunTokens(scratch_, updatable);
  });
}

RunResult Session::RunTokens(const TokenList& tokenList, bool updatable) {
  if (cacheVersion_ != store_->catalog.Version()) {
    cache_.Clear();
    cacheVersion_ = store_->catalog.Version();
  }
  if (auto cached = cache_.Find(tokenList, updatable)) return Start(tokenList, std::move(cached));
  return RunBatch(tokenList, updatable);
}

RunResult Session::RunBatch(const TokenList& tokenList, bool updatable) {
  Parser parser(tokenList);
  LaterResults results;
  for (bool first = true; !results.error; first = false) {
    parser.SkipSeparators();
    if (parser.AtEnd()) break;
    const ast::StatementPtr statement = parser.Statement(first);
    try {
      RefreshCatalog();
      RunResult next = RunStatement(tokenList, *statement, parser, updatable);
      if (!next.IsEmpty()) results.results.push_back(std::move(next));
    } catch (const ServerError& error) {
      if (results.results.empty()) throw;
      Lose(error);
      results.error = error;
    }
  }
  if (results.results.empty()) return {};
  RunResult result = std::move(results.results.front());
  results.results.pop_front();
  if (!results.results.empty() || results.error) result.later = std::make_shared<LaterResults>(std::move(results));
  return result;
}

std::shared_ptr<CachedStatement> Session::Translate(const TokenList& tokenList, const ast::Statement& statement,
                                                    std::vector<int>& structural, bool updatable, bool inlineLiterals) {
  Translator translator(store_->catalog, tokenList, structural, inlineLiterals);
  auto cached = std::make_shared<CachedStatement>();
  cached->store = handle_;
  cached->query = std::holds_alternative<ast::QueryStatement>(statement.node);
  cached->translation =
      std::visit(ast::Overloaded{
                     [&](const ast::QueryStatement& select) { return translator.Query(*select.query, updatable); },
                     [&](const ast::Insert& insert) { return translator.Insert(insert); },
                     [&](const ast::Update& update) { return translator.Update(update); },
                     [&](const ast::Delete& remove) { return translator.Delete(remove); },
                     [](const auto&) -> Translation { RaiseServer(kNotPrepared, "Statement(s) could not be prepared."); },
                 },
                 statement.node);
  return cached;
}

RunResult Session::RunTranslated(const TokenList& tokenList, const ast::Statement& statement, const Parser& parser,
                                 bool updatable) {
  constexpr std::size_t kMaxParameters = 2000;
  const bool tooMany = tokenList.literals.size() > kMaxParameters;
  std::vector<int> structural = parser.Structural();
  auto cached = Translate(tokenList, statement, structural, updatable, tooMany);
  const bool whole = statement.token == 0 && parser.AtEnd();
  if (whole && !tooMany) cache_.Add(tokenList, updatable, structural, cached);
  if (tooMany) cached->translation.parameters.clear();
  return Start(tokenList, std::move(cached));
}

/// Answers with its first rows, or else with its last count.
RunResult Session::RunBlock(const TokenList& tokenList, const ast::Block& block, Parser& parser, bool updatable) {
  RunResult result;
  for (const ast::StatementPtr& inner : block.statements) {
    RunResult next = RunStatement(tokenList, *inner, parser, updatable);
    if (!result.rows) result = std::move(next);
  }
  return result;
}

RunResult Session::RunStatement(const TokenList& tokenList, ast::Statement& statement, Parser& parser, bool updatable) {
  const auto onRows = [&](const auto&) { return RunTranslated(tokenList, statement, parser, updatable); };
  return std::visit(ast::Overloaded{
                        [&](const ast::QueryStatement& node) { return onRows(node); },
                        [&](const ast::Insert& node) { return onRows(node); },
                        [&](const ast::Update& node) { return onRows(node); },
                        [&](const ast::Delete& node) { return onRows(node); },
                        [&](const ast::Execute& execute) { return RunProcedure(tokenList, execute, updatable); },
                        [&](const ast::Begin&) { return BeginTransaction(), OpenTransaction(), RunResult{}; },
                        [&](const ast::Commit&) { return CommitTransaction(), RunResult{}; },
                        [&](const ast::Rollback&) { return RollbackTransaction(), RunResult{}; },
                        [&](const ast::If& node) {
                          const ast::StatementPtr& branch =
                              ConditionHolds(tokenList, *node.condition) ? node.then : node.otherwise;
                          return branch ? RunStatement(tokenList, *branch, parser, updatable) : RunResult{};
                        },
                        [&](const ast::Block& block) { return RunBlock(tokenList, block, parser, updatable); },
                        [&](const ast::SetNoCount& setting) { return countsRows_ = !setting.on, RunResult{}; },
                        [&](const ast::SetDateOrder& setting) { return functions_.dateOrder = setting.order, RunResult{}; },
                        [](const ast::OtherSetting&) { return RunResult{}; },
                        [&](const auto&) { return Definitions(*this).Run(tokenList, statement), RunResult{}; },
                    },
                    statement.node);
}

bool Session::ConditionHolds(const TokenList& tokenList, const ast::Expr& condition) {
  std::vector<int> structural;
  auto cached = std::make_shared<CachedStatement>();
  cached->store = handle_;
  cached->query = true;
  cached->translation = Translator(store_->catalog, tokenList, structural).Condition(condition);
  const RunResult result = Start(tokenList, std::move(cached));
  return Step(result.rows.Get()) && sqlite3_column_int(result.rows.Get(), 0) != 0;
}

RunResult Session::Start(const TokenList& tokenList, std::shared_ptr<CachedStatement> cached) {
  const bool query = cached->query;
  StatementHandle handle(std::move(cached));
  std::string buffer;
  int index = 0;
  const auto& parameters = handle.Translated().parameters;
  for (const Parameter& parameter : parameters) {
    const Cell cell = LiteralCell(tokenList, parameter, buffer, functions_.dateOrder);
    // The caller's text stays in place while a change runs; rows are read later, and a converted text is in the buffer.
    BindCell(handle.Get(), ++index, cell, query || cell.text.data() == buffer.data());
  }
  RunResult result;
  if (query) {
    result.rows = std::move(handle);
    return result;
  }
  PrepareToWrite();
  while (Step(handle.Get())) {
  }
  if (countsRows_) result.affected = sqlite3_changes64(handle_);
  return result;
}

}  // namespace suite
