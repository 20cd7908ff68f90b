#include "base/ado/constants.h"
#include "tests/suite/engine/request_tables.h"

namespace {

using suite::StatementObserver;

constexpr long kUnspecified = static_cast<std::int32_t>(0x80004005);
constexpr long kCatastrophic = static_cast<std::int32_t>(0x8000FFFF);
constexpr long kRowsNotReleased = static_cast<std::int32_t>(0x80040E25);
constexpr const char* kLines = "select line from detail order by line";

/// Counts second log-ins, and lets the server fail a statement with an error of its own.
class Server : public StatementObserver {
 public:
  void Statement(std::string_view text) override { Fail(text); }
  void RowChange(Change, std::string_view, std::span<const ColumnValue>) override { Fail("row"); }
  void Commit() override { Fail("commit"); }
  void SecondLogIn() override { ++logIns; }

  int logIns = 0;
  std::string refused;  ///< a statement, "row" or "commit"
  int native = suite::kDeadlockVictim;

 private:
  void Fail(std::string_view what) {
    if (what != refused) return;
    refused.clear();
    suite::RaiseServer(native, "refused");
  }
};

/// What the classic library and the server refuse, and a careless caller meets in the shop for the first time.
class Strict : public RequestTables {
 protected:
  Strict() {
    connection_ = database_->Connect(&server_);
    Fill(3);
  }
  late::ObjectPtr OpenWith(int location, const std::string& source, int cursor, int lock) {
    connection_->Put("CursorLocation", std::int32_t{location});
    late::ObjectPtr rows = Open(source, cursor, lock);
    connection_->Put("CursorLocation", std::int32_t{ado::kUseServer});
    return rows;
  }
  static void Add(const late::ObjectPtr& rows, int line) {
    rows->Call("AddNew", {late::Array::List({"line", "shop", "request", "item"}),
                          late::Array::List({std::int32_t{line}, std::int32_t{1}, std::int32_t{1}, std::int32_t{5}})});
  }
  /// Seen by another connection.
  int Stored() {
    const late::ObjectPtr rows = database_->Connect()->Call("Execute", {"select count(*) from detail"}).ToObject();
    return rows->Get("Collect", {std::int32_t{0}}).ToInt32();
  }
  void Delete() { connection_->Call("Execute", {"delete detail", late::Missing{}, std::int32_t{ado::kExecuteNoRecords}}); }

  Server server_;
};

TEST_F(Strict, UnreadRowsOccupyTheConnectionOfATransaction) {
  connection_->Call("BeginTrans");
  const late::ObjectPtr unread = Execute(kLines);
  EXPECT_EQ(ErrorOf([&] { Execute("select 1"); }), kUnspecified);
  EXPECT_EQ(ErrorOf([&] { Open("select 1", ado::kStatic, ado::kReadOnly); }), kUnspecified);
  EXPECT_NO_THROW(database_->Connect()->Call("Execute", {"select 1"})) << "another connection has nothing to do with it";
  unread->Call("GetRows", {std::int32_t{3}});
  EXPECT_EQ(ErrorOf([&] { Delete(); }), 0) << "read to the end, they are no longer under way";
  connection_->Call("RollbackTrans");

  connection_->Call("BeginTrans");
  const late::ObjectPtr adding = Open("select * from detail", ado::kKeyset, ado::kOptimistic);
  const late::ObjectPtr first = Execute(kLines);
  EXPECT_EQ(ErrorOf([&] { Add(adding, 4); }), kUnspecified) << "a row is a statement, too";
  first->Call("Close");
  Add(adding, 4);
  connection_->Call("CommitTrans");
  EXPECT_EQ(Stored(), 4);
}

TEST_F(Strict, OutsideATransactionUnreadRowsCostASecondLogIn) {
  const late::ObjectPtr unread = Execute(kLines);
  EXPECT_EQ(ErrorOf([&] { Execute("select 1"); }), 0);
  EXPECT_EQ(server_.logIns, 1);
  EXPECT_EQ(ErrorOf([&] { connection_->Call("BeginTrans"); }), kUnspecified) << "and no transaction begins over them";
  unread->Call("Close");
  EXPECT_EQ(ErrorOf([&] { connection_->Call("BeginTrans"); }), 0);
}

TEST_F(Strict, ACursorIsAskedForItsRowsAndOccupiesNothing) {
  connection_->Call("BeginTrans");
  for (const int cursor : {ado::kKeyset, ado::kDynamic, ado::kStatic}) {
    const late::ObjectPtr rows = Open(kLines, cursor, ado::kReadOnly);
    EXPECT_EQ(ErrorOf([&] { Single("select 1"); }), 0) << cursor;
  }
  const late::ObjectPtr onClient = OpenWith(ado::kUseClient, kLines, ado::kForwardOnly, ado::kReadOnly);
  EXPECT_EQ(ErrorOf([&] { Single("select 1"); }), 0);
  const late::ObjectPtr ofNone = Execute("select line from detail where 1=0");
  EXPECT_EQ(ErrorOf([&] { Single("select 1"); }), 0);
}

TEST_F(Strict, ABatchBelongsToTheClient) {
  for (const int cursor : {ado::kForwardOnly, ado::kKeyset, ado::kDynamic, ado::kStatic}) {
    const late::ObjectPtr rows = Open("select * from detail", cursor, ado::kBatchOptimistic);
    Add(rows, 10 + cursor);
    EXPECT_EQ(ErrorOf([&] { Add(rows, 20 + cursor); }), kRowsNotReleased) << cursor;
    rows->Call("UpdateBatch");
    EXPECT_EQ(ErrorOf([&] { Add(rows, 20 + cursor); }), 0) << "sent, the row is released: cursor " << cursor;
    EXPECT_EQ(ErrorOf([&] { Set(rows, "remarks", "x"); }), kRowsNotReleased) << cursor;
    rows->Call("CancelBatch");
  }
  EXPECT_EQ(Stored(), 7);
  const late::ObjectPtr onClient = OpenWith(ado::kUseClient, "select * from detail", ado::kStatic, ado::kBatchOptimistic);
  for (int line = 30; line < 33; ++line) Add(onClient, line);
  onClient->Call("UpdateBatch");
  EXPECT_EQ(Stored(), 10);
}

TEST_F(Strict, RowsOnTheServerEndWithTheTransaction) {
  for (const char* end : {"CommitTrans", "RollbackTrans"}) {
    connection_->Call("BeginTrans");
    const late::ObjectPtr onServer = Open(kLines, ado::kStatic, ado::kReadOnly);
    const late::ObjectPtr onClient = OpenWith(ado::kUseClient, kLines, ado::kStatic, ado::kReadOnly);
    Execute("update detail set raised = 1");
    connection_->Call(end);
    EXPECT_EQ(onServer->Get("State").ToInt32(), ado::kOpen) << end;
    EXPECT_EQ(ErrorOf([&] { onServer->Get("EOF"); }), kCatastrophic) << end;
    EXPECT_EQ(ErrorOf([&] { onServer->Call("Close"); }), kCatastrophic) << end;
    EXPECT_EQ(onClient->Get("RecordCount").ToInt32(), 3) << end;
  }
}

TEST_F(Strict, AServerThatHasRolledBackLeavesNothingToRollBack) {
  for (const char* refused : {"delete detail", "row", "commit"}) {
    connection_->Call("BeginTrans");
    Execute("delete detail where line = 1");
    const late::ObjectPtr rows = OpenWith(ado::kUseClient, "select * from detail", ado::kStatic, ado::kBatchOptimistic);
    Add(rows, 9);
    server_.refused = refused;
    const int native = ServerErrorOf([&] {
      rows->Call("UpdateBatch");
      Execute("delete detail");
      connection_->Call("CommitTrans");
    });
    EXPECT_EQ(native, suite::kDeadlockVictim) << refused;
    EXPECT_EQ(Stored(), 3) << refused;
    EXPECT_EQ(ServerErrorOf([&] { connection_->Call("RollbackTrans"); }), 3903) << refused;
  }
  connection_->Call("BeginTrans");
  connection_->Call("RollbackTrans");
}

TEST_F(Strict, WhoGoesOnAfterThatWritesInAnotherTransaction) {
  connection_->Call("BeginTrans");
  Execute("delete detail where line = 1");
  server_.refused = "delete detail";
  EXPECT_EQ(ServerErrorOf([&] { Execute("delete detail"); }), suite::kDeadlockVictim);
  Execute("delete detail where line = 2");
  connection_->Call("CommitTrans");
  EXPECT_EQ(Stored(), 2) << "the second half alone is stored";
}

TEST_F(Strict, ErrorsOfAnyKindLeaveTheTransactionOpen) {
  connection_->Call("BeginTrans");
  Execute("delete detail where line = 1");
  server_.refused = "delete detail";
  server_.native = 1222;
  EXPECT_EQ(ServerErrorOf([&] { Execute("delete detail"); }), 1222);
  connection_->Call("RollbackTrans");
  EXPECT_EQ(Stored(), 3);
}

TEST_F(Strict, AnErrorAfterTheFirstCountIsSeenByWhoAsksForIt) {
  const std::string batch = "update detail set raised = 1; insert into detail (line, shop, request, item) values (1, 1, 1, 1)";
  const late::ObjectPtr first = Execute(batch);
  EXPECT_EQ(first->Get("State").ToInt32(), ado::kClosed);
  EXPECT_EQ(ServerErrorOf([&] { first->Call("NextRecordset"); }), 2627);
  EXPECT_EQ(ServerErrorOf([&] {
              connection_->Call("Execute", {batch, late::Missing{}, std::int32_t{ado::kCommandText | ado::kExecuteNoRecords}});
            }),
            2627);
}

TEST_F(Strict, ResultsComeOneAfterTheOther) {
  const late::ObjectPtr count = Execute("update detail set raised = 1; select line from detail; select 7 n");
  EXPECT_EQ(count->Get("State").ToInt32(), ado::kClosed);
  const late::ObjectPtr lines = count->Call("NextRecordset").ToObject();
  EXPECT_EQ(lines->Call("GetRows").ToArray()->columns, 3u);
  const late::ObjectPtr seven = lines->Call("NextRecordset").ToObject();
  EXPECT_EQ(Field(seven, "n").ToInt32(), 7);
  EXPECT_EQ(*seven->Call("NextRecordset").If<late::ObjectPtr>(), nullptr);
  Execute("set nocount on");
  EXPECT_EQ(Single("update detail set raised = 0; select 8 n").ToInt32(), 8);
}

TEST_F(Strict, TheErrorsOfRowsAndTransactionsAreKeptLikeThoseOfStatements) {
  const auto kept = [&] {
    const late::ObjectPtr error = connection_->Get("Errors", {std::int32_t{0}}).ToObject();
    return error->Get("SQLState").ToText() + " " + error->Get("NativeError").ToText();
  };
  EXPECT_EQ(ServerErrorOf([&] { connection_->Call("RollbackTrans"); }), 3903);
  EXPECT_EQ(kept(), "42000 3903");
  const late::ObjectPtr rows = Open("select * from detail", ado::kKeyset, ado::kOptimistic);
  EXPECT_EQ(ServerErrorOf([&] { Add(rows, 1); }), 2627);
  EXPECT_EQ(kept(), "23000 2627");
  server_.refused = "select 1";
  EXPECT_EQ(ServerErrorOf([&] { Execute("select 1"); }), suite::kDeadlockVictim);
  EXPECT_EQ(kept(), "40001 1205");
}

TEST_F(Strict, WhatIsNestedTooDeeplyIsAnErrorAndNotTheEndOfTheProcess) {
  const auto nested = [](const std::string& open, const std::string& inner, const std::string& close) {
    constexpr int kDepth = 10000;
    std::string text = "select ";
    for (int i = 0; i < kDepth; ++i) text += open;
    text += inner;
    for (int i = 0; i < kDepth; ++i) text += close;
    return text;
  };
  for (const std::string& text :
       {nested("(", "1", ")"), nested("case when 1=1 then ", "1", " end"), nested("abs(", "1", ")"), nested("(select ", "1", ")"),
        nested("- ", "1", ""), nested("", "1", "+1"), "select 1 where " + nested("not ", "1=1", "").substr(7),
        "select 1 from " + nested("(", "detail", ")").substr(7)}) {
    EXPECT_EQ(ServerErrorOf([&] { Execute(text); }), 191) << text.substr(0, 40);
  }
}

}  // namespace
