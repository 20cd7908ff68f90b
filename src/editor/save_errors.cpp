#include "src/editor/save_errors.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace goods {
namespace {

constexpr auto kTimeoutExpired = static_cast<std::int32_t>(0x80040E31);

// The server's own numbers.
constexpr std::int32_t kDeadlockVictim = 1205;
constexpr std::int32_t kLockTimeout = 1222;
constexpr std::array<std::int32_t, 3> kUndone = {266, 3609, 3998};  // by a trigger or a procedure
constexpr std::array<std::int32_t, 9> kBroken = {11, 64, 121, 233, 596, 6005, 10053, 10054, 10060};

constexpr std::string_view kNothingLost = " What you typed is still here: press OK again";

template <std::size_t N>
bool IsOneOf(std::int32_t number, const std::array<std::int32_t, N>& numbers) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

/// Empty where the server's words have to do.
std::string Explanation(std::int32_t number, const ado::ErrorDetail& detail, SaveStep step) {
  const std::int32_t native = detail.nativeError;
  if (IsOneOf(native, kBroken) || detail.sqlState.starts_with("08")) {
    // Whether the server still received the commit is unknown.
    if (step == SaveStep::Committing) {
      return "The connection to the server broke while the request was being saved. Look in the register whether it is there "
             "before you press OK again.";
    }
    return "The connection to the server is broken, and the request was not saved." + std::string(kNothingLost) +
           " when the connection is back.";
  }
  if (native == kDeadlockVictim || native == kLockTimeout || number == kTimeoutExpired) {
    return "Another workstation was using the same data, and the request was not saved." + std::string(kNothingLost) + ".";
  }
  if (IsOneOf(native, kUndone)) {
    return "The server undid the whole save, and the request was not saved." + std::string(kNothingLost) + ".";
  }
  return {};
}

}  // namespace

vb::RunTimeError InUsersWords(const ado::Connection& connection, const vb::RunTimeError& error, SaveStep step) {
  const auto number = static_cast<std::int32_t>(error.Number());
  const std::string explanation = Explanation(number, connection.DetailOf(error).value_or(ado::ErrorDetail{}), step);
  if (explanation.empty()) return error;
  return vb::RunTimeError(error.Number(), explanation + "\r\n\r\n" + error.Description(), error.Source());
}

}  // namespace goods
