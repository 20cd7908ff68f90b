#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/ado/connection.h"
#include "suite/engine/objects/database.h"
#include "suite/shop/shop.h"

/// A database in memory with a connection to it, for tests that ask questions.
class SuiteDatabase {
 public:
  explicit SuiteDatabase(bool replication = false) : database_(suite::Database::Open("")) {
    suite::LoadSchema(Get(), replication);
    connection_ = ado::Connection(Get().Connect());
  }

  suite::Database& Get() { return *database_; }
  ado::Connection& Connection() { return connection_; }

  int Number(std::string_view query) { return connection_.Execute(query).Field(0).ToInt32(); }

  /// The first column of every row, as text.
  std::vector<std::string> List(std::string_view query) {
    std::vector<std::string> result;
    auto rows = connection_.Execute(query);
    ado::ForEachRow(rows,
                    [&](const late::Array& block, std::size_t record) { result.push_back(block.At(0, record).TextOrEmpty()); });
    return result;
  }

 private:
  std::shared_ptr<suite::Database> database_;
  ado::Connection connection_;
};
