#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "src/entry/module.h"
#include "suite/engine/objects/database.h"
#include "suite/helpers/surroundings.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/test_workstation.h"

namespace support {

/// What went to the connection, in the component's own words: statements as they are, "begin", "commit", "rollback", and
/// "insert TABLE column=value ..." for rows sent through a recordset. Can make the n-th statement, row change or commit fail.
class StatementLog : public suite::StatementObserver {
 public:
  std::vector<std::string> lines;

  /// The n-th (from 1) statement, row change or commit from now on fails once with a server error; 0 takes it back. With one of
  /// the server's own numbers, the error is the server's.
  void FailAt(int n, int native = 0) {
    failIn_ = n;
    native_ = native;
  }
  /// Every statement that begins so fails with this error of the server's.
  void Refuse(std::string start, int native) {
    refused_ = std::move(start);
    native_ = native;
  }
  bool HasFailed() const { return failed_; }
  /// Whether this exact text was sent since the last Clear.
  bool Sent(std::string_view statement) const;
  /// The lines that begin with `start`.
  std::vector<std::string> Starting(std::string_view start) const;
  void Clear() { lines.clear(); }

  void Statement(std::string_view text) override;
  void RowChange(Change change, std::string_view table, std::span<const ColumnValue> values) override;
  void Begin() override { lines.emplace_back("begin"); }
  void Commit() override;
  void Rollback() override { lines.emplace_back("rollback"); }
  /// The component reads its rows to the end first: a test fails where it does not.
  void SecondLogIn() override;

 private:
  void Count(const std::string& what);

  int failIn_ = 0;
  int native_ = 0;
  std::string refused_;
  bool failed_ = false;
};

/// A shop with its database, helper components, workstation and scripted desktop, and the component's session in it: company 1,
/// shop 1, user 1, the sample's process date, title "Shop".
class Shop {
 public:
  enum class Stock { Empty, Sample };
  explicit Shop(Stock stock = Stock::Sample, bool replication = false);

  /// The component's session as the register's load leaves it, for tests that open a lower form alone: form colours and auditing
  /// are there, the user's name and the settings are read from the database where it has them.
  void LogOn();

  /// Runs statements on a second connection (one, or several lines separated by "go" lines).
  void Run(std::string_view script);
  /// Rows of a query on a second connection: cells separated by "|", null as "NULL", flags 0/1.
  std::vector<std::string> Rows(std::string_view query);
  /// The first row of Rows, "" when there is none.
  std::string Row(std::string_view query);

  std::shared_ptr<suite::Database> database;
  StatementLog log;
  ScriptedDesktop desktop;
  TestWorkstation workstation;
  late::ClassRegistry registry;
  goods::Module module;
  goods::basGoodsRequest& session;

 private:
  late::ObjectPtr helpersConnection_;
  std::shared_ptr<suite::Surroundings> surroundings_;
};

}  // namespace support
