#include "suite/engine/translation/statement_cache.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::size_t kMaxEntries = 1000;
constexpr std::size_t kMaxIdle = 4;

}  // namespace

CachedStatement::~CachedStatement() {
  for (sqlite3_stmt* statement : idle) sqlite3_finalize(statement);
}

StatementHandle::StatementHandle(std::shared_ptr<CachedStatement> origin) : origin_(std::move(origin)) {
  if (!origin_->idle.empty()) {
    statement_ = origin_->idle.back();
    origin_->idle.pop_back();
    return;
  }
  const std::string& sql = origin_->translation.sql;
  const int code = sqlite3_prepare_v3(origin_->store, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                      &statement_, nullptr);
  if (code != SQLITE_OK) RaiseFromStore(origin_->store, code);
}

StatementHandle::StatementHandle(StatementHandle&& other) noexcept
    : origin_(std::move(other.origin_)), statement_(std::exchange(other.statement_, nullptr)) {}

StatementHandle& StatementHandle::operator=(StatementHandle&& other) noexcept {
  if (this == &other) return *this;
  Release();
  origin_ = std::move(other.origin_);
  statement_ = std::exchange(other.statement_, nullptr);
  return *this;
}

StatementHandle::~StatementHandle() {
  Release();
}

void StatementHandle::Release() {
  if (!statement_) return;
  sqlite3_reset(statement_);
  if (origin_->idle.size() < kMaxIdle) {
    sqlite3_clear_bindings(statement_);
    origin_->idle.push_back(statement_);
  } else {
    sqlite3_finalize(statement_);
  }
  statement_ = nullptr;
  origin_.reset();
}

const std::string& StatementCache::KeyOf(const TokenList& tokenList, bool updatable, const std::vector<int>& structural) {
  key_.assign(1, updatable ? 'u' : 'r');
  key_ += tokenList.key;
  for (const int literal : structural) {
    key_ += '\0';
    key_ += tokenList.TextOf(tokenList.tokens[tokenList.literals[static_cast<std::size_t>(literal)]]);
  }
  return key_;
}

std::shared_ptr<CachedStatement> StatementCache::Find(const TokenList& tokenList, bool updatable) {
  auto found = entries_.find(KeyOf(tokenList, updatable, {}));
  if (found == entries_.end()) return nullptr;
  if (!found->second.structural.empty()) {
    found = entries_.find(KeyOf(tokenList, updatable, found->second.structural));
    if (found == entries_.end()) return nullptr;
  }
  return found->second.statement;
}

void StatementCache::Add(const TokenList& tokenList, bool updatable, const std::vector<int>& structural,
                         std::shared_ptr<CachedStatement> statement) {
  if (entries_.size() >= kMaxEntries) entries_.clear();
  std::vector<int> sorted = structural;
  std::sort(sorted.begin(), sorted.end());
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  if (!sorted.empty()) {
    // What shapes the statement may differ between two of the same words: the union tells them all apart.
    Entry& marker = entries_[KeyOf(tokenList, updatable, {})];
    std::vector<int> all;
    std::set_union(marker.structural.begin(), marker.structural.end(), sorted.begin(), sorted.end(), std::back_inserter(all));
    marker.structural = sorted = all;
    marker.statement = nullptr;
  }
  entries_[KeyOf(tokenList, updatable, sorted)].statement = std::move(statement);
}

}  // namespace suite
