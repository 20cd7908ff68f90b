#include "suite/engine/objects/connection.h"

#include <csignal>
#include <cstdio>
#include <sqlite3.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "base/ado/constants.h"
#include "tests/suite/engine/database_file.h"
#include "tests/suite/engine/request_tables.h"

namespace {

using suite::StatementObserver;

class Connections : public RequestTables {
 protected:
  static constexpr const char* kInsert = "insert into detail (line, shop, request, item) values (1, 1, 1, 1)";
};

TEST_F(Connections, ATransactionHoldsOrIsUndone) {
  EXPECT_EQ(connection_->Call("BeginTrans").ToInt32(), 1);
  Execute(kInsert);
  connection_->Call("RollbackTrans");
  EXPECT_EQ(Count(), 0);
  connection_->Call("BeginTrans");
  Execute(kInsert);
  connection_->Call("CommitTrans");
  EXPECT_EQ(Count(), 1);
}

TEST_F(Connections, TransactionsDoNotNestAndDoNotEndTwice) {
  EXPECT_EQ(ServerErrorOf([&] { connection_->Call("CommitTrans"); }), 3902);
  EXPECT_EQ(ServerErrorOf([&] { connection_->Call("RollbackTrans"); }), 3903);
  connection_->Call("BeginTrans");
  EXPECT_EQ(ServerErrorOf([&] { connection_->Call("BeginTrans"); }), 3904);
  connection_->Call("RollbackTrans");
}

TEST_F(Connections, AFailedStatementLeavesTheTransactionOpen) {
  connection_->Call("BeginTrans");
  Execute(kInsert);
  EXPECT_EQ(ServerErrorOf([&] { Execute(kInsert); }), 2627);
  connection_->Call("CommitTrans");
  EXPECT_EQ(Count(), 1);
}

TEST_F(Connections, ClosingAsksForTheTransactionFirstAndClosesTheRecordsets) {
  Fill(2);
  connection_->Call("BeginTrans");
  EXPECT_EQ(ErrorOf([&] { connection_->Call("Close"); }), ado::kInTransaction);
  connection_->Call("RollbackTrans");
  const auto rows = Open("select * from detail", ado::kForwardOnly, ado::kReadOnly);
  connection_->Call("Close");
  EXPECT_EQ(connection_->Get("State").ToInt32(), ado::kClosed);
  EXPECT_EQ(rows->Get("State").ToInt32(), ado::kClosed);
  EXPECT_EQ(ErrorOf([&] { Execute("select 1"); }), ado::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { connection_->Call("BeginTrans"); }), ado::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { Open("select 1", ado::kForwardOnly, ado::kReadOnly); }), ado::kInvalidConnection);
}

TEST_F(Connections, ASecondConnectionReadsWhileTheFirstWrites) {
  const late::ObjectPtr second = database_->Connect();
  connection_->Call("BeginTrans");
  Execute(kInsert);
  EXPECT_NO_THROW(second->Call("Execute", {"select count(*) from detail"}));
  second->Put("CommandTimeout", std::int32_t{1});
  EXPECT_EQ(ServerErrorOf([&] { second->Call("Execute", {"delete detail"}); }), 1222) << "but does not write";
  connection_->Call("CommitTrans");
  const auto rows = second->Call("Execute", {"select count(*) from detail"}).ToObject();
  EXPECT_EQ(rows->Get("Collect", {std::int32_t{0}}).ToInt32(), 1);
}

TEST_F(Connections, AStatementThatRunsTooLongIsStopped) {
  Fill(60);
  connection_->Put("CommandTimeout", std::int32_t{1});
  const std::string endless =
      "select count(*) from detail a, detail b, detail c, detail d, detail e where a.qty + b.qty + c.qty + d.qty + e.qty < 0";
  EXPECT_EQ(ServerErrorOf([&] { Single(endless); }), 1222);
  EXPECT_EQ(Count(), 60) << "and the connection goes on";
}

TEST_F(Connections, WhatTheServerSaidIsKept) {
  const late::ObjectPtr errors = connection_->Get("Errors").ToObject();
  EXPECT_EQ(errors->Get("Count").ToInt32(), 0);
  EXPECT_EQ(ErrorOf([&] { Execute("select nothing from detail"); }), -2147217900);
  ASSERT_EQ(errors->Get("Count").ToInt32(), 1);
  const late::ObjectPtr error = errors->Get("Item", {std::int32_t{0}}).ToObject();
  EXPECT_EQ(error->Get("NativeError").ToInt32(), 207);
  EXPECT_EQ(error->Get("Description").ToText(), "Invalid column name 'nothing'.");
  EXPECT_EQ(connection_->Get("Errors", {std::int32_t{0}}).ToObject()->Get("NativeError").ToInt32(), 207);
}

/// The work that the store's machine has done for the connection's selects and for its inserts.
struct Work {
  int selects = 0, inserts = 0;
};

Work WorkOf(const late::ObjectPtr& connection) {
  Work work;
  sqlite3* store = std::static_pointer_cast<suite::Connection>(connection)->OpenSession()->Handle();
  for (sqlite3_stmt* each = sqlite3_next_stmt(store, nullptr); each; each = sqlite3_next_stmt(store, each)) {
    const std::string sql = sqlite3_sql(each);
    const int steps = sqlite3_stmt_status(each, SQLITE_STMTSTATUS_VM_STEP, 0);
    if (sql.starts_with("SELECT")) work.selects += steps;
    if (sql.starts_with("INSERT INTO \"detail\"")) work.inserts += steps;
  }
  return work;
}

TEST_F(Connections, AppendingReadsNoMoreThanOneOfTheRowsThatAreThere) {
  Fill(1);
  const late::Value names = late::Array::List({"line", "shop", "request", "item"});
  const auto append = [&](int line) {
    const late::ObjectPtr fresh = database_->Connect();
    late::ClassRegistry registry;
    suite::RegisterAdo(registry);
    const late::ObjectPtr rows = registry.Create("ADODB.Recordset");
    rows->Put("CursorLocation", std::int32_t{ado::kUseClient});
    rows->Put("MaxRecords", std::int32_t{1});
    rows->Call("Open",
               {"select * from detail where shop=1", fresh, std::int32_t{ado::kStatic}, std::int32_t{ado::kBatchOptimistic}});
    rows->Call("AddNew", {names, late::Array::List({std::int32_t{line}, std::int32_t{1}, std::int32_t{2}, std::int32_t{1}})});
    rows->Call("UpdateBatch");
    return WorkOf(fresh);
  };
  const Work small = append(3001);
  Execute("delete detail");
  Fill(2000);
  const Work large = append(3002);
  EXPECT_EQ(large.selects, small.selects);
  EXPECT_GT(small.inserts, 0);
  EXPECT_EQ(large.inserts, small.inserts);
  const late::ObjectPtr fresh = database_->Connect();
  fresh->Call("Execute", {"select line from detail"}).ToObject()->Call("GetRows");
  EXPECT_GT(WorkOf(fresh).selects, 10 * small.selects) << "the measure would have seen rows being read";
}

TEST_F(Connections, TheUpdatesOfASaveArePreparedOnce) {
  Fill(20);
  const late::ObjectPtr fresh = database_->Connect();
  for (int i = 0; i < 20; ++i) {
    const std::string text = i % 2 ? "o''clock; --" + std::to_string(i) : std::string("x");
    fresh->Call("Execute", {"update detail set raised=1, remarks='" + text + "' where item = " + std::to_string(100 + i)});
  }
  sqlite3* store = std::static_pointer_cast<suite::Connection>(fresh)->OpenSession()->Handle();
  int updates = 0;
  for (sqlite3_stmt* each = sqlite3_next_stmt(store, nullptr); each; each = sqlite3_next_stmt(store, each)) {
    updates += std::string(sqlite3_sql(each)).starts_with("UPDATE") ? 1 : 0;
  }
  EXPECT_EQ(updates, 1);
  EXPECT_EQ(Count("raised=1 and remarks like 'o''clock; --%'"), 10);
}

/// Records every notification, and refuses the one named.
class Diary : public StatementObserver {
 public:
  void Statement(std::string_view text) override { Note(std::string(text)); }
  void RowChange(Change change, std::string_view table, std::span<const ColumnValue> values) override {
    std::string text = (change == Change::Insert ? "insert " : "update ") + std::string(table);
    for (const auto& [column, value] : values) text += " " + column + "=" + value.TextOrEmpty();
    Note(text);
  }
  void Begin() override { Note("begin"); }
  void Commit() override { Note("commit"); }
  void Rollback() override { Note("rollback"); }

  std::vector<std::string> notes;
  std::string refused;

 private:
  void Note(const std::string& note) {
    notes.push_back(note);
    if (note == refused) vb::Raise(-2147467259, "refused", "observer");
  }
};

class Observed : public RequestTables {
 protected:
  Observed() { connection_ = database_->Connect(&diary_); }
  Diary diary_;
};

TEST_F(Observed, EverythingIsToldInTheWordsOfTheOneWhoAsked) {
  connection_->Call("BeginTrans");
  const auto rows = Open("select * from detail where SHOP=1", ado::kDynamic, ado::kBatchOptimistic);
  rows->Call("AddNew");
  for (const char* name : {"SHOP", "line", "request", "item"}) Set(rows, name, std::int32_t{1});
  rows->Call("Update");
  rows->Call("UpdateBatch");
  Set(rows, "remarks", "x");
  rows->Call("UpdateBatch");
  connection_->Call("CommitTrans");
  const std::vector<std::string> expected = {"begin", "select * from detail where SHOP=1",
                                             "insert detail shop=1 line=1 request=1 item=1", "update detail remarks=x", "commit"};
  EXPECT_EQ(diary_.notes, expected);
}

TEST_F(Observed, ARefusedThingIsNotDone) {
  diary_.refused = "delete detail";
  Execute("insert into detail (line, shop, request, item) values (1, 1, 1, 1)");
  EXPECT_EQ(ErrorOf([&] { Execute("delete detail"); }), -2147467259);
  EXPECT_EQ(Count(), 1);
  diary_.refused = "insert detail line=2 shop=1 request=1 item=1";
  const auto rows = Open("select * from detail", ado::kDynamic, ado::kOptimistic);
  const late::Value names = late::Array::List({"line", "shop", "request", "item"});
  const late::Value values = late::Array::List({std::int32_t{2}, std::int32_t{1}, std::int32_t{1}, std::int32_t{1}});
  EXPECT_EQ(ErrorOf([&] { rows->Call("AddNew", {names, values}); }), -2147467259);
  EXPECT_EQ(Count(), 1);
}

TEST_F(Observed, ARefusedCommitLeavesTheTransactionToBeRolledBack) {
  diary_.refused = "commit";
  connection_->Call("BeginTrans");
  Execute("insert into detail (line, shop, request, item) values (1, 1, 1, 1)");
  EXPECT_EQ(ErrorOf([&] { connection_->Call("CommitTrans"); }), -2147467259);
  connection_->Call("RollbackTrans");
  EXPECT_EQ(Count(), 0);
}

class Files : public DatabaseFile {
 protected:
  /// The rows of table t.
  int Count() {
    const late::ObjectPtr connection = suite::Database::Open(path_.string())->Connect();
    return connection->Call("Execute", {"select count(*) from t"}).ToObject()->Get("Collect", {std::int32_t{0}}).ToInt32();
  }
};

TEST_F(Files, KeepDefinitionsAndRowsFromOneOpeningToTheNext) {
  {
    const auto database = suite::Database::Open(path_.string());
    EXPECT_TRUE(database->IsEmpty());
    database->RunScript(
        "create table t (qty decimal(9,3) null, name varchar(5) null)\ncreate view v as select sum(qty) total from t\n"
        "insert into t values (1.5, 'a')\n-- a comment\n\ninsert into t values (2, 'B')");
  }
  const auto database = suite::Database::Open(path_.string());
  EXPECT_FALSE(database->IsEmpty());
  const late::ObjectPtr connection = database->Connect();
  const auto rows = connection->Call("Execute", {"select total from v, t where name = 'b'"}).ToObject();
  const late::Value total = rows->Get("Collect", {"total"});
  ASSERT_NE(total.If<vb::Decimal>(), nullptr);
  EXPECT_EQ(total.If<vb::Decimal>()->ToFixedText(), "3.500");
}

TEST_F(Files, ASecondConnectionSeesOnlyWhatIsCommitted) {
  const auto database = suite::Database::Open(path_.string());
  database->RunScript("create table t (id int null)");
  const late::ObjectPtr first = database->Connect();
  const late::ObjectPtr second = database->Connect();
  const auto count = [&] {
    return second->Call("Execute", {"select count(*) from t"}).ToObject()->Get("Collect", {std::int32_t{0}}).ToInt32();
  };
  first->Call("BeginTrans");
  first->Call("Execute", {"insert into t values (1)"});
  EXPECT_EQ(count(), 0);
  first->Call("CommitTrans");
  EXPECT_EQ(count(), 1);
}

/// Runs the work in a process of its own that is killed right after it, without any farewell.
void RunAndDie(const std::string& path, const std::function<void(late::Object&)>& work) {
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const auto database = suite::Database::Open(path);
    const late::ObjectPtr connection = database->Connect();
    work(*connection);
    ::kill(::getpid(), SIGKILL);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status)) << "the work itself failed";
}

TEST_F(Files, AProcessThatDiesLeavesTheStateBeforeOrAfterItsSave) {
  suite::Database::Open(path_.string())->RunScript("create table t (id int null)");
  const auto save = [](late::Object& connection) {
    connection.Call("BeginTrans");
    for (int i = 0; i < 5000; ++i) connection.Call("Execute", {"insert into t values (" + std::to_string(i) + ")"});
  };
  RunAndDie(path_.string(), save);
  EXPECT_EQ(Count(), 0);
  RunAndDie(path_.string(), [&](late::Object& connection) {
    save(connection);
    connection.Call("CommitTrans");
  });
  EXPECT_EQ(Count(), 5000);
}

/// A new shop of two statements, with time for somebody else between them.
void FillSlowly(suite::Database& database) {
  database.FillWhenEmpty([&](const late::ObjectPtr&) {
    database.RunScript("create table t (v int null)");
    ::usleep(50000);
    database.RunScript("insert into t values (1)");
  });
}

TEST_F(Files, TwoProgramsThatFillOneAtOnceFillItOnce) {
  const auto fill = [&] { FillSlowly(*suite::Database::Open(path_.string())); };
  std::thread other(fill);
  fill();
  other.join();
  EXPECT_EQ(Count(), 1);
}

TEST_F(Files, AFillingThatDiesLeavesAFileToBeFilled) {
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) FillSlowly(*suite::Database::Open(path_.string())), ::_exit(0);
  ::usleep(30000);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  FillSlowly(*suite::Database::Open(path_.string()));
  EXPECT_EQ(Count(), 1);
}

TEST_F(Files, AnotherKindOfFileIsRefused) {
  if (FILE* file = std::fopen(path_.c_str(), "w")) {
    for (int i = 0; i < 200; ++i) std::fputs("no database at all\n", file);
    std::fclose(file);
  }
  EXPECT_THROW(suite::Database::Open(path_.string()), suite::ServerError);
}

TEST_F(Files, AreReachedByAConnectionStringToo) {
  late::ClassRegistry registry;
  suite::RegisterAdo(registry);
  const late::ObjectPtr connection = registry.Create("ADODB.Connection");
  connection->Call("Open", {"embedded:" + path_.string()});
  connection->Call("Execute", {"create table t (id int null)"});
  connection->Call("Close");
  EXPECT_FALSE(suite::Database::Open(path_.string())->IsEmpty());
}

}  // namespace
