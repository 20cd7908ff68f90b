#pragma once

#include <string>
#include <string_view>

#include "base/vb/error.h"
#include "suite/engine/values/server_error_number.h"

struct sqlite3;

namespace suite {

/// The name under which the engine's own errors arrive in Err.Source.
inline constexpr std::string_view kProviderName = "Embedded Database Engine";

/// An error of the server's: Number() is the HRESULT that callers of the classic provider see, NativeError() the server's own.
class ServerError : public vb::RunTimeError {
 public:
  ServerError(int native, std::string text);
  /// An error of the provider's own, under this HRESULT; its native error is 0.
  ServerError(unsigned hresult, std::string_view text);
  int NativeError() const { return native_; }
  /// The five characters of the standard's error class; empty for the provider's own errors.
  std::string SqlState() const;
  /// Whether the server has rolled the transaction back by itself when it reports this: the victim of a deadlock, or a batch
  /// that a trigger has undone.
  bool EndsTransaction() const;

 private:
  int native_;
};

[[noreturn]] void RaiseServer(int native, std::string text);
/// An error of the provider's own.
[[noreturn]] void RaiseProvider(unsigned hresult, std::string_view text);
/// One of ADO's own errors (3021, 3704, ...) with ADO's text.
[[noreturn]] void RaiseAdo(long number, std::string_view source);
/// What the SQLite handle last refused, in the server's words.
[[noreturn]] void RaiseFromStore(sqlite3* store, int code);

inline constexpr unsigned kUnspecified = 0x80004005;
inline constexpr unsigned kRowsNotReleased = 0x80040E25;
inline constexpr unsigned kCatastrophic = 0x8000FFFF;

// Errors that arise in several places.
[[noreturn]] void RaiseConversion(std::string_view value, std::string_view type);  // 245
[[noreturn]] void RaiseDateConversion();                                           // 241
[[noreturn]] void RaiseOverflow(std::string_view type);                            // 8115
[[noreturn]] void RaiseTruncation();                                               // 8152

}  // namespace suite
