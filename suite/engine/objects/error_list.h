#pragma once

#include <string>
#include <vector>

#include "base/late/object.h"
#include "suite/engine/values/errors.h"

namespace suite {

/// The Errors collection of a connection: what the server said about the statement that failed last.
class ErrorList : public late::TableObject<ErrorList> {
 public:
  static const late::MemberTable<ErrorList>& Members();
  std::string TypeName() const override { return "Errors"; }

  void Keep(const ServerError& error) { errors_.assign(1, error); }

 private:
  std::vector<ServerError> errors_;
};

/// One of them, with the server's own number beside the provider's.
class ErrorItem : public late::TableObject<ErrorItem> {
 public:
  // CurrentRow to be asked for, not thrown.
  explicit ErrorItem(const ServerError& error) : error_(error) {}  // NOLINT(bugprone-throw-keyword-missing)
  static const late::MemberTable<ErrorItem>& Members();
  std::string TypeName() const override { return "Error"; }

 private:
  ServerError error_;
};

}  // namespace suite
