#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/vb/date.h"
#include "suite/engine/values/errors.h"
#include "suite/engine/values/types.h"

struct sqlite3;
struct sqlite3_context;
struct sqlite3_value;

namespace suite {

struct FunctionContext;

/// One call of a server function: its arguments and where its result goes.
class FunctionCall {
 public:
  FunctionCall(sqlite3_context* context, int count, sqlite3_value** values, FunctionContext& functions)
      : context_(context), count_(count), values_(values), functions_(functions) {}

  int Count() const { return count_; }
  bool IsNull(int index) const;
  std::int64_t Integer(int index) const;
  double Real(int index) const;
  std::string_view Text(int index) const;
  sqlite3_value* Raw(int index) const { return values_[index]; }
  sqlite3_context* Context() const { return context_; }
  FunctionContext& Functions() const { return functions_; }

  void ReturnNull() const;
  void Return(std::int64_t value) const;
  void Return(double value) const;
  void Return(std::string_view text) const;

 private:
  sqlite3_context* context_;
  int count_;
  sqlite3_value** values_;
  FunctionContext& functions_;
};

using FunctionBody = void (*)(const FunctionCall&);

/// What the server functions of one connection need, and the error that one of them raised during the running statement.
struct FunctionContext {
  struct Registered {
    FunctionBody body = nullptr;
    bool takesNull = false;
    FunctionContext* context = nullptr;
  };

  sqlite3* store = nullptr;
  std::function<vb::Date()> clock;
  std::optional<std::int64_t> now;  ///< the statement's own time, fixed at its first use
  DateOrder dateOrder = DateOrder::MonthDayYear;
  std::optional<ServerError> error;
  std::vector<std::unique_ptr<Registered>> registered;
};

/// Makes the collation "server" and the functions srv_... known to the store's handle. The context outlives the handle.
void RegisterServerFunctions(sqlite3* store, FunctionContext& context);

/// The server's own comparison, for the collation.
int CompareTexts(std::string_view a, std::string_view b);

namespace detail {
struct FunctionEntry {
  const char* name;
  int arguments;  ///< -1: any number
  FunctionBody body;
  bool constant = true;    ///< the same arguments give the same result
  bool takesNull = false;  ///< otherwise null in gives null out
};
// The functions by theme, each in its own file.
std::vector<FunctionEntry> TextFunctions();
std::vector<FunctionEntry> NumberFunctions();
std::vector<FunctionEntry> DateFunctions();
std::vector<FunctionEntry> SystemFunctions();
}  // namespace detail

/// The server's like: no regard to case, % _ [a-z] [^a-z].
bool MatchLike(std::string_view text, std::string_view pattern, std::string_view escape = {});
/// The server's isnumeric: also true for + - . and money texts.
bool IsServerNumeric(std::string_view text);

}  // namespace suite
