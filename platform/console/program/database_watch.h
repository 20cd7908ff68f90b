#pragma once

#include <memory>

#include "platform/console/output.h"
#include "platform/console/shop_tools.h"
#include "suite/engine/objects/database.h"

namespace console {

/// Watches the session's connection: traces what goes over it, and lets it fail when it is asked to.
class ConnectionWatch : public suite::StatementObserver {
 public:
  explicit ConnectionWatch(Output& output) : output_(output) {}

  void FailAt(int n, std::string text);

  void Statement(std::string_view text) override;
  void RowChange(Change change, std::string_view table, std::span<const ColumnValue> values) override;
  void Begin() override;
  void Commit() override;
  void Rollback() override;
  void SecondLogIn() override;

 private:
  void Trace(std::string_view statement);
  /// Raises the server error when this is the statement that shall fail.
  void Count();

  Output& output_;
  int remaining_ = 0;  ///< 0: nothing shall fail
  std::string failure_;
};

/// The console's way to the embedded database.
class ShopDatabase : public DatabaseTools {
 public:
  ShopDatabase(suite::Database& database, ConnectionWatch& watch) : database_(database), watch_(watch) {}

  void Query(std::string_view statement, const std::function<void(std::span<const late::Value>)>& row) override;
  void FailAt(int n, std::string text) override { watch_.FailAt(n, std::move(text)); }

 private:
  suite::Database& database_;
  ConnectionWatch& watch_;
  late::ObjectPtr connection_;
};

}  // namespace console
