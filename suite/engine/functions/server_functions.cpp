#include "suite/engine/functions/server_functions.h"

#include <algorithm>
#include <cstring>
#include <sqlite3.h>

#include "base/vb/text.h"
#include "suite/engine/values/conversion.h"

namespace suite {
namespace {

char Fold(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

int Collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return CompareTexts({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                      {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

void Fail(sqlite3_context* context, FunctionContext& functions, ServerError error) {
  functions.error = std::move(error);
  sqlite3_result_error(context, functions.error->Description().c_str(), -1);
}

/// Nothing is thrown through the store: the error waits in the context until the step has returned.
void Trampoline(sqlite3_context* context, int count, sqlite3_value** values) {
  auto& registered = *static_cast<FunctionContext::Registered*>(sqlite3_user_data(context));
  if (!registered.takesNull) {
    for (int i = 0; i < count; ++i) {
      if (sqlite3_value_type(values[i]) == SQLITE_NULL) return sqlite3_result_null(context);
    }
  }
  try {
    registered.body(FunctionCall(context, count, values, *registered.context));
  } catch (const ServerError& error) {
    Fail(context, *registered.context, error);
  } catch (const vb::RunTimeError& error) {
    Fail(context, *registered.context, ServerError(8115, error.Description()));
  } catch (const std::exception& error) {
    Fail(context, *registered.context, ServerError(701, error.what()));
  }
}

}  // namespace

int CompareTexts(std::string_view a, std::string_view b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  std::size_t i = 0;
  for (; i < shorter; ++i) {
    const char x = a[i], y = b[i];
    if (((x | y) & 0x80) != 0) return vb::CompareServer(a, b);  // beyond ASCII the folding needs whole characters
    if (x != y && Fold(x) != Fold(y)) {
      // The rest decides nothing unless a character beyond ASCII folds to one of these two, which none does.
      return static_cast<unsigned char>(Fold(x)) < static_cast<unsigned char>(Fold(y)) ? -1 : 1;
    }
  }
  if (a.size() == b.size()) return 0;
  const std::string_view rest = a.size() > b.size() ? a.substr(i) : b.substr(i);
  const std::size_t other = rest.find_first_not_of(' ');
  if (other == std::string_view::npos) return 0;
  const bool greater = static_cast<unsigned char>(rest[other]) > ' ';
  return greater == (a.size() > b.size()) ? 1 : -1;
}

bool FunctionCall::IsNull(int index) const {
  return sqlite3_value_type(values_[index]) == SQLITE_NULL;
}
std::int64_t FunctionCall::Integer(int index) const {
  return sqlite3_value_int64(values_[index]);
}
double FunctionCall::Real(int index) const {
  return sqlite3_value_double(values_[index]);
}

std::string_view FunctionCall::Text(int index) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(values_[index]));
  return {text ? text : "", static_cast<std::size_t>(sqlite3_value_bytes(values_[index]))};
}

void FunctionCall::ReturnNull() const {
  sqlite3_result_null(context_);
}
void FunctionCall::Return(std::int64_t value) const {
  sqlite3_result_int64(context_, value);
}
void FunctionCall::Return(double value) const {
  sqlite3_result_double(context_, value);
}
void FunctionCall::Return(std::string_view text) const {
  sqlite3_result_text64(context_, text.data() ? text.data() : "", text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void RegisterServerFunctions(sqlite3* store, FunctionContext& context) {
  context.store = store;
  int code = sqlite3_create_collation_v2(store, "server", SQLITE_UTF8, nullptr, Collate, nullptr);
  if (code != SQLITE_OK) RaiseFromStore(store, code);
  for (const auto& group :
       {detail::TextFunctions(), detail::NumberFunctions(), detail::DateFunctions(), detail::SystemFunctions()}) {
    for (const detail::FunctionEntry& entry : group) {
      context.registered.push_back(
          std::make_unique<FunctionContext::Registered>(FunctionContext::Registered{entry.body, entry.takesNull, &context}));
      const int flags = SQLITE_UTF8 | SQLITE_INNOCUOUS | (entry.constant ? SQLITE_DETERMINISTIC : 0);
      code = sqlite3_create_function_v2(store, entry.name, entry.arguments, flags, context.registered.back().get(), Trampoline,
                                        nullptr, nullptr, nullptr);
      if (code != SQLITE_OK) RaiseFromStore(store, code);
    }
  }
}

}  // namespace suite
