#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "base/late/value.h"

namespace console {

/// The shop's database beside the session: what a person with a query tool, and a server with its moods, could do to it.
class DatabaseTools {
 public:
  virtual ~DatabaseTools() = default;
  /// Runs a statement on a second connection and returns its rows; a run-time error when it fails.
  virtual void Query(std::string_view statement, const std::function<void(std::span<const late::Value> row)>& row) = 0;
  /// Lets the n-th (from 1) statement, row change or commit of the session from now on fail once; replaces an earlier wish.
  virtual void FailAt(int n, std::string text) = 0;
};

/// Reads a session global by name; a Missing value when there is none.
using GlobalReader = std::function<late::Value(std::string_view name)>;

/// Reads a whole file of the application folder by its name; a run-time error when there is none.
using FileReader = std::function<std::string(std::string_view name)>;

}  // namespace console
