#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "suite/engine/language/lexer.h"
#include "suite/engine/translation/translator.h"

struct sqlite3;
struct sqlite3_stmt;

namespace suite {

/// A translated statement with the store's statements prepared from it that are not in use.
struct CachedStatement {
  Translation translation;
  bool query = false;
  sqlite3* store = nullptr;
  std::vector<sqlite3_stmt*> idle;

  ~CachedStatement();
};

/// A prepared statement in use; its destructor returns it to its cache entry.
class StatementHandle {
 public:
  StatementHandle() = default;
  explicit StatementHandle(std::shared_ptr<CachedStatement> origin);
  StatementHandle(StatementHandle&& other) noexcept;
  StatementHandle& operator=(StatementHandle&& other) noexcept;
  ~StatementHandle();

  sqlite3_stmt* Get() const { return statement_; }
  const Translation& Translated() const { return origin_->translation; }
  explicit operator bool() const { return statement_ != nullptr; }
  void Release();

 private:
  std::shared_ptr<CachedStatement> origin_;
  sqlite3_stmt* statement_ = nullptr;
};

/// Translations by literal-free token sequence. Statements whose shape depends on a literal (a length, a position) are
/// distinguished by that literal as well.
class StatementCache {
 public:
  /// The entry of the statement's token list; null when there is none. `updatable` statements have entries of their own.
  std::shared_ptr<CachedStatement> Find(const TokenList& tokenList, bool updatable);
  void Add(const TokenList& tokenList, bool updatable, const std::vector<int>& structural,
           std::shared_ptr<CachedStatement> statement);
  void Clear() { entries_.clear(); }

 private:
  struct Entry {
    std::vector<int> structural;                 ///< literals that are part of the key of the entry proper
    std::shared_ptr<CachedStatement> statement;  ///< none when there are structural literals
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>()(key); }
  };
  const std::string& KeyOf(const TokenList& tokenList, bool updatable, const std::vector<int>& structural);

  std::unordered_map<std::string, Entry, Hash, std::equal_to<>> entries_;
  std::string key_;
};

}  // namespace suite
