#pragma once

#include <string>
#include <string_view>

#include "base/vb/error.h"

struct sqlite3;

namespace suite {

/// The name under which the engine's own errors arrive in Err.Source.
inline constexpr std::string_view kProviderName = "Embedded Database Engine";

/// An error of the server's: Number() is the HRESULT that callers of the classic provider see, NativeError() the server's own.
class ServerError : public vb::RunTimeError {
 public:
  ServerError(int native, std::string text);
  int NativeError() const { return native_; }

 private:
  int native_;
};

[[noreturn]] void RaiseServer(int native, std::string text);
/// One of ADO's own errors (3021, 3704, ...) with ADO's text.
[[noreturn]] void RaiseAdo(long number, std::string_view source);
/// What the SQLite handle last refused, in the server's words.
[[noreturn]] void RaiseFromStore(sqlite3* store, int code);

// Errors that arise in several places.
[[noreturn]] void RaiseConversion(std::string_view value, std::string_view type);  // 245
[[noreturn]] void RaiseDateConversion();                                           // 241
[[noreturn]] void RaiseOverflow(std::string_view type);                            // 8115
[[noreturn]] void RaiseTruncation();                                               // 8152

}  // namespace suite
