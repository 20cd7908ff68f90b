// One file, opened several times: each opening has a catalog of its own, as the programs of several workstations have.
#include <functional>
#include <memory>
#include <sqlite3.h>
#include <thread>

#include "base/ado/recordset.h"
#include "suite/engine/objects/connection.h"
#include "suite/engine/objects/database.h"
#include "suite/engine/values/errors.h"
#include "tests/suite/engine/database_file.h"

namespace {

int ServerErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const suite::ServerError& error) {
    return error.NativeError();
  }
  return 0;
}

class SharedFile : public DatabaseFile {
 protected:
  /// A program at work on the file.
  struct Workstation {
    explicit Workstation(const std::string& path) : database(suite::Database::Open(path)), connection(database->Connect()) {}

    late::ObjectPtr Execute(const std::string& statement) { return connection->Call("Execute", {statement}).ToObject(); }
    std::string Ask(const std::string& query) { return Execute(query)->Get("Collect", {std::int32_t{0}}).TextOrEmpty(); }
    late::ObjectPtr Open(const std::string& query, ado::CursorType cursor = ado::kKeyset) {
      late::ClassRegistry registry;
      suite::RegisterAdo(registry);
      const late::ObjectPtr rows = registry.Create("ADODB.Recordset");
      rows->Call("Open", {query, connection, std::int32_t{cursor}, std::int32_t{ado::kOptimistic}});
      return rows;
    }

    std::shared_ptr<suite::Database> database;
    late::ObjectPtr connection;
  };

  Workstation first_{path_.string()}, second_{path_.string()};
};

TEST_F(SharedFile, WhatOneDefinesTheOtherKnowsAtItsNextStatement) {
  first_.Execute("create table t (v decimal(9,2) null)");
  second_.Execute("insert into t values (1.25)");
  EXPECT_EQ(first_.Ask("select v from t"), "1.25");
  second_.Execute("drop table t");
  second_.Execute("create table t (v int null)");
  second_.Execute("insert into t values (125)");
  EXPECT_EQ(first_.Ask("select v from t"), "125") << "and not in the type that it had before";
  first_.Execute("alter table t add w varchar(5) null");
  EXPECT_EQ(second_.Ask("select count(*) from t where w is null"), "1");
  first_.Execute("create procedure p @shop int as select 1");
  EXPECT_EQ(ServerErrorOf([&] { second_.Execute("create procedure p @shop int as select 1"); }), 2714);
  first_.Execute("drop table t");
  EXPECT_EQ(ServerErrorOf([&] { second_.Execute("insert into t values (1)"); }), 208);
}

TEST_F(SharedFile, ADefinitionCountsFromItsCommitOn) {
  first_.connection->Call("BeginTrans");
  first_.Execute("create table t (v int null)");
  first_.Execute("insert into t values (7)");
  EXPECT_EQ(ServerErrorOf([&] { second_.Execute("select v from t"); }), 208);
  const late::ObjectPtr beside = first_.database->Connect();
  EXPECT_EQ(ServerErrorOf([&] { beside->Call("Execute", {"select v from t"}); }), 208) << "nor for another connection here";
  EXPECT_EQ(first_.Ask("select v from t"), "7");
  first_.connection->Call("RollbackTrans");
  EXPECT_EQ(ServerErrorOf([&] { first_.Execute("select v from t"); }), 208);
  second_.Execute("create table t (v decimal(9,2) null)");
  second_.Execute("insert into t values (1.25)");
  EXPECT_EQ(first_.Ask("select v from t"), "1.25");
}

TEST_F(SharedFile, RowsOfATableThatIsMadeAnewAreNotWrittenInItsOldTypes) {
  first_.Execute("create table t (id int null, v decimal(9,2) null)");
  first_.Execute("insert into t values (1, 1.25)");
  const late::ObjectPtr rows = first_.Open("select * from t", ado::kStatic);
  rows->Put("Collect", {"v"}, 2.5);
  second_.Execute("drop table t");
  second_.Execute("create table t (id int null, v int null)");
  second_.Execute("insert into t values (1, 3)");
  EXPECT_EQ(ServerErrorOf([&] { rows->Call("Update"); }), 16943);
  EXPECT_EQ(second_.Ask("select v from t"), "3");
}

TEST_F(SharedFile, ARowIsWrittenThroughOpenRowsThatAnotherHasOvertaken) {
  first_.Execute("create table t (id int null, v int null)");
  for (int id = 1; id <= 4; ++id) first_.Execute("insert into t values (" + std::to_string(id) + ", 0)");
  for (const ado::CursorType cursor : {ado::kKeyset, ado::kForwardOnly}) {
    const late::ObjectPtr rows = first_.Open("select * from t order by id", cursor);
    EXPECT_FALSE(rows->Get("EOF").ToBool());
    second_.Execute("update t set v = v + 10 where id = 3");
    rows->Put("Collect", {"v"}, std::int32_t{1});
    rows->Call("Update");
    std::string left;
    for (; !rows->Get("EOF").ToBool(); rows->Call("MoveNext")) left += rows->Get("Collect", {"id"}).ToText();
    EXPECT_EQ(left, "1234") << "and the rows that were left are still read";
    rows->Call("Close");
  }
  EXPECT_EQ(second_.Ask("select sum(v) from t"), "21");
}

TEST_F(SharedFile, AfterAFullDiskNothingOfTheTransactionIsWrittenAlone) {
  first_.Execute("create table t (v varchar(8000) null)");
  sqlite3* store = std::static_pointer_cast<suite::Connection>(first_.connection)->OpenSession()->Handle();
  first_.connection->Call("BeginTrans");
  first_.Execute("insert into t values ('a')");
  sqlite3_exec(store, "PRAGMA max_page_count = 1", nullptr, nullptr, nullptr);  // as many as there are
  const auto fill = [&] {
    for (int i = 0; i < 20; ++i) first_.Execute("insert into t values (replicate('x', 4000))");
  };
  EXPECT_EQ(ServerErrorOf(fill), 823);
  EXPECT_EQ(second_.Ask("select count(*) from t"), "0");
  EXPECT_NO_THROW(first_.Execute("insert into t values ('b')"));
  EXPECT_EQ(second_.Ask("select count(*) from t"), "0") << "what follows waits for its commit";
}

/// A file as another program left it, and that program still at work on it.
struct ForeignFile {
  explicit ForeignFile(const std::string& path) { sqlite3_open(path.c_str(), &handle); }
  ~ForeignFile() { sqlite3_close(handle); }
  void Run(const char* sql) const { EXPECT_EQ(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql; }
  sqlite3* handle = nullptr;
};

class FilesOfOthers : public DatabaseFile {};

TEST_F(FilesOfOthers, AreRefusedAsTheyAre) {
  ForeignFile foreign(path_.string());
  foreign.Run("create table notes (text)");
  EXPECT_EQ(ServerErrorOf([&] { suite::Database::Open(path_.string()); }), 823);
  foreign.Run("pragma journal_mode = delete");
  foreign.Run("create table sysobjects (id)");
  EXPECT_EQ(ServerErrorOf([&] { suite::Database::Open(path_.string()); }), 823);
  foreign.Run("drop table notes");
}

TEST_F(FilesOfOthers, AnOldJournalIsChangedWhenItsWriterIsDone) {
  suite::Database::Open(path_.string())->RunScript("create table t (v int null)");
  ForeignFile writer(path_.string());
  writer.Run("pragma journal_mode = delete");
  writer.Run("begin immediate");
  std::thread done([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    writer.Run("commit");
  });
  EXPECT_EQ(ServerErrorOf([&] { suite::Database::Open(path_.string()); }), 0);
  done.join();
}

}  // namespace
