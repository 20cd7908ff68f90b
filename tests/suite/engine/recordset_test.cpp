#include "base/ado/constants.h"
#include "tests/suite/engine/request_tables.h"

namespace {

using Recordsets = RequestTables;

constexpr std::int32_t kAll = -1;

TEST_F(Recordsets, WalksForwardOnceAndKnowsNoCount) {
  Fill(3);
  const auto rows = Open("select line, qty from detail order by line", ado::kForwardOnly, ado::kReadOnly);
  EXPECT_EQ(rows->Get("RecordCount").ToInt32(), -1);
  std::string walked;
  for (; !rows->Get("EOF").ToBool(); rows->Call("MoveNext")) walked += Field(rows, "QTY").ToText() + " ";
  EXPECT_EQ(walked, "1.5 2.5 3.5 ");
  EXPECT_FALSE(rows->Get("BOF").ToBool());
  EXPECT_EQ(ErrorOf([&] { Field(rows, "line"); }), ado::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { rows->Call("MoveNext"); }), ado::kNoCurrentRecord);
}

TEST_F(Recordsets, MovesBothWaysAndCountsWhereRowsAreKept) {
  Fill(3);
  for (const int cursor : {ado::kKeyset, ado::kStatic}) {
    const auto rows = Open("select line from detail order by line", cursor, ado::kReadOnly);
    EXPECT_EQ(rows->Get("RecordCount").ToInt32(), 3);
    rows->Call("MoveLast");
    EXPECT_EQ(Field(rows, "line").ToInt32(), 3);
    EXPECT_EQ(rows->Get("AbsolutePosition").ToInt32(), 3);
    const late::Value mark = rows->Get("Bookmark");
    rows->Call("MovePrevious");
    EXPECT_EQ(Field(rows, "line").ToInt32(), 2);
    rows->Call("Move", {std::int32_t{-1}});
    EXPECT_EQ(Field(rows, "line").ToInt32(), 1);
    rows->Call("MovePrevious");
    EXPECT_TRUE(rows->Get("BOF").ToBool());
    rows->Put("Bookmark", mark);
    EXPECT_EQ(Field(rows, "line").ToInt32(), 3);
  }
}

TEST_F(Recordsets, AnEmptyOneIsAtBothEnds) {
  for (const int cursor : {ado::kForwardOnly, ado::kKeyset, ado::kDynamic, ado::kStatic}) {
    const auto rows = Open("select * from detail", cursor, ado::kReadOnly);
    EXPECT_TRUE(rows->Get("EOF").ToBool() && rows->Get("BOF").ToBool()) << cursor;
    EXPECT_EQ(ErrorOf([&] { rows->Call("GetRows"); }), ado::kNoCurrentRecord) << cursor;
  }
}

TEST_F(Recordsets, ASnapshotDoesNotSeeLaterRows) {
  Fill(2);
  const auto rows = Open("select line from detail", ado::kStatic, ado::kReadOnly);
  Execute("delete detail");
  EXPECT_EQ(rows->Call("GetRows").ToArray()->columns, 2u);
}

TEST_F(Recordsets, BlocksAndTextContinueWhereTheLastOneEnded) {
  Fill(5);
  Execute("update detail set remarks = null where line = 4");
  const auto rows = Open("select line, remarks from detail order by line", ado::kForwardOnly, ado::kReadOnly);
  const late::ArrayPtr block = rows->Call("GetRows", {std::int32_t{2}}).ToArray();
  EXPECT_EQ(block->rows, 2u);
  EXPECT_EQ(block->columns, 2u);
  EXPECT_EQ(block->At(1, 1).ToText(), "line 2");
  EXPECT_EQ(Field(rows, "line").ToInt32(), 3);
  EXPECT_EQ(rows->Call("GetString", {std::int32_t{2}, kAll, "|", ";", "-"}).ToText(), "3|line 3;4|-;5|line 5;");
  EXPECT_TRUE(rows->Get("EOF").ToBool());
}

TEST_F(Recordsets, FieldsAreReachedByNameAndPosition) {
  Fill(1);
  const auto rows = Open("select line, qty from detail", ado::kForwardOnly, ado::kReadOnly);
  const late::ObjectPtr fields = rows->Get("Fields").ToObject();
  EXPECT_EQ(fields->Get("Count").ToInt32(), 2);
  const late::ObjectPtr field = fields->Get("Item", {"QTY"}).ToObject();
  EXPECT_EQ(field->Get("Name").ToText(), "qty");
  EXPECT_EQ(field->Get("Type").ToInt32(), 131);
  EXPECT_EQ(field->Get("NumericScale").ToInt32(), 3);
  EXPECT_EQ(field->Get("Value").ToText(), "1.5");
  EXPECT_EQ(rows->Get("", {std::int32_t{0}}).ToObject()->Get("").ToInt32(), 1);
  EXPECT_EQ(ErrorOf([&] { Field(rows, "nothing"); }), ado::kItemNotFound);
  EXPECT_EQ(ErrorOf([&] { rows->Get("Collect", {std::int32_t{2}}); }), ado::kItemNotFound);
}

TEST_F(Recordsets, AnAddedRowIsWrittenAtUpdate) {
  const auto rows = Open("select * from detail", ado::kKeyset, ado::kOptimistic);
  rows->Call("AddNew");
  Set(rows, "line", std::int32_t{1});
  Set(rows, "shop", std::int32_t{1});
  Set(rows, "request", "7");
  Set(rows, "item", 12.0);
  Set(rows, "remarks", "it's\t\xC3\xA9\n");
  Set(rows, "qty", 2.0005);
  Set(rows, "made", "2005/03/14");
  EXPECT_EQ(Count(), 0);
  rows->Call("Update");
  EXPECT_EQ(Count("request = 7 and item = 12 and qty = 2.001 and raised = 0 and made = '20050314'"), 1);
  EXPECT_EQ(Single("select remarks from detail").ToText(), "it's\t\xC3\xA9\n");
  // The new row is the current one and can be changed further.
  EXPECT_EQ(Field(rows, "qty").ToText(), "2.001");
  // As scripts write: rows.Fields("remarks") = "..." and rows.Fields.Item("qty") = Null.
  rows->Put("Fields", {"remarks"}, "by index");
  rows->Get("Fields").ToObject()->Put("Item", {"qty"}, late::Null{});
  rows->Call("Update");
  EXPECT_EQ(Count("qty is null and remarks = 'by index'"), 1);
  Set(rows, "qty", 123456789012345.0);  // as exact as a double is
  rows->Call("Update");
  EXPECT_EQ(Count("qty = 123456789012345"), 1);
  EXPECT_EQ(rows->Get("RecordCount").ToInt32(), 1);
}

TEST_F(Recordsets, AChangedRowIsWrittenByItself) {
  Fill(3);
  const auto rows = Open("select * from detail where shop=1 order by line", ado::kDynamic, ado::kOptimistic);
  rows->Call("MoveNext");
  Set(rows, "remarks", "changed");
  Set(rows, "raised", std::int32_t{1});
  EXPECT_EQ(Field(rows, "raised").If<bool>() != nullptr, true);
  rows->Call("MoveNext");  // moving on writes it
  EXPECT_EQ(Count("remarks = 'changed' and raised = 1 and line = 2"), 1);
  Set(rows, "remarks", "dropped");
  rows->Call("CancelUpdate");
  EXPECT_EQ(Field(rows, "remarks").ToText(), "line 3");
  rows->Call("Delete");
  EXPECT_EQ(Count(), 2);
  rows->Call("MovePrevious");
  EXPECT_EQ(Field(rows, "remarks").ToText(), "changed");
}

TEST_F(Recordsets, ABatchWaitsForUpdateBatchAndGoesWhole) {
  connection_->Put("CursorLocation", std::int32_t{ado::kUseClient});
  const auto rows = Open("select * from detail where shop=1", ado::kStatic, ado::kBatchOptimistic);
  const late::Value names = late::Array::List({"line", "shop", "request", "item", "qty"});
  const auto add = [&](int line) {
    rows->Call("AddNew",
               {names, late::Array::List({std::int32_t{line}, std::int32_t{1}, std::int32_t{1}, std::int32_t{5}, 1.5})});
  };
  add(1);
  add(2);
  EXPECT_EQ(Count(), 0);
  rows->Call("UpdateBatch");
  EXPECT_EQ(Count("qty = 1.5"), 2);
  add(3);
  add(2);  // the key is taken
  EXPECT_EQ(ServerErrorOf([&] { rows->Call("UpdateBatch"); }), 2627);
  EXPECT_EQ(Count(), 2) << "nothing of a failed batch stays";
  rows->Call("CancelBatch");
  add(4);
  rows->Call("UpdateBatch");
  EXPECT_EQ(Count("line in (1, 2, 4)"), 3);
  rows->Call("MoveFirst");
  EXPECT_EQ(rows->Call("GetRows").ToArray()->columns, 3u) << "every row once, read or added";
}

TEST_F(Recordsets, AFailedUpdateKeepsWhatWasSet) {
  Fill(1);
  const auto rows = Open("select * from detail", ado::kKeyset, ado::kOptimistic);
  rows->Call("AddNew");
  for (const char* name : {"line", "shop", "request", "item"}) Set(rows, name, std::int32_t{1});
  EXPECT_EQ(ServerErrorOf([&] { rows->Call("Update"); }), 2627);
  EXPECT_EQ(rows->Get("EditMode").ToInt32(), 2);
  Set(rows, "line", std::int32_t{2});
  rows->Call("Update");
  EXPECT_EQ(Count(), 2);
}

TEST_F(Recordsets, ValuesThatDoNotFitAreRefused) {
  Fill(1);
  const auto rows = Open("select * from detail", ado::kKeyset, ado::kOptimistic);
  EXPECT_EQ(ServerErrorOf([&] { Set(rows, "remarks", "more than twenty characters"); }), 8152);
  EXPECT_EQ(ServerErrorOf([&] { Set(rows, "line", std::int32_t{40000}); }), 8115);
  EXPECT_EQ(ErrorOf([&] { Set(rows, "item", "abc"); }), ado::kDataConversion);
  EXPECT_EQ(ErrorOf([&] { Set(rows, "made", "tomorrow"); }), ado::kDataConversion);
  EXPECT_EQ(rows->Get("EditMode").ToInt32(), 0);
}

TEST_F(Recordsets, WhatCannotBeUpdatedSaysSo) {
  Fill(1);
  EXPECT_EQ(ErrorOf([&] { Open("select * from detail", ado::kKeyset, ado::kReadOnly)->Call("AddNew"); }),
            ado::kFeatureNotAvailable);
  for (const char* source :
       {"select count(*) n from detail", "select a.* from detail a, detail b", "select distinct line from detail"}) {
    EXPECT_EQ(ErrorOf([&] { Open(source, ado::kKeyset, ado::kOptimistic)->Call("AddNew"); }), ado::kFeatureNotAvailable)
        << source;
  }
  const auto rows = Open("select line + 1 n, item from detail", ado::kKeyset, ado::kOptimistic);
  EXPECT_EQ(ErrorOf([&] { Set(rows, "n", std::int32_t{5}); }), ado::kFeatureNotAvailable);
}

TEST_F(Recordsets, ARowThatSomebodyDeletedIsNotUpdated) {
  Fill(1);
  const auto rows = Open("select * from detail", ado::kStatic, ado::kOptimistic);
  Execute("delete detail");
  Set(rows, "remarks", "late");
  EXPECT_EQ(ServerErrorOf([&] { rows->Call("Update"); }), 16947);
}

TEST_F(Recordsets, MaxRecordsLimitsWhatIsFetched) {
  Fill(5);
  late::ClassRegistry registry;
  suite::RegisterAdo(registry);
  const late::ObjectPtr rows = registry.Create("adodb.recordset");
  rows->Put("MaxRecords", std::int32_t{2});
  rows->Put("CursorLocation", std::int32_t{ado::kUseClient});
  rows->Call("Open", {"select line from detail", connection_});
  EXPECT_EQ(rows->Get("RecordCount").ToInt32(), 2);
  rows->Call("Close");
  rows->Put("MaxRecords", std::int32_t{0});
  rows->Call("Open");
  EXPECT_EQ(rows->Get("RecordCount").ToInt32(), 5);
}

TEST_F(Recordsets, ClosedOnesRefuse) {
  const auto rows = Execute("delete detail");
  EXPECT_EQ(rows->Get("State").ToInt32(), ado::kClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Get("EOF"); }), ado::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Get("Fields"); }), ado::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Call("AddNew"); }), ado::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Call("Close"); }), ado::kObjectClosed);
  const auto open = Open("select 1", ado::kForwardOnly, ado::kReadOnly);
  EXPECT_EQ(ErrorOf([&] { open->Call("Open", {"select 2"}); }), ado::kObjectOpen);
  EXPECT_EQ(ErrorOf([&] { open->Put("LockType", std::int32_t{3}); }), ado::kObjectOpen);
}

TEST_F(Recordsets, AStatementThatFailsLeavesTheRecordsetClosed) {
  late::ClassRegistry registry;
  suite::RegisterAdo(registry);
  const late::ObjectPtr rows = registry.Create("ADODB.Recordset");
  EXPECT_EQ(ServerErrorOf([&] { rows->Call("Open", {"select * from detail where made = 'x'", connection_}); }), 241);
  EXPECT_EQ(rows->Get("State").ToInt32(), ado::kClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Call("Open", {"select 1", late::ObjectPtr()}); }), ado::kInvalidConnection);
}

TEST_F(Recordsets, AThousandRowsOfOneInsertArrive) {
  std::string text = "insert into detail (line, shop, request, item, remarks) values ";
  for (int i = 1; i <= 1000; ++i)
    text += (i > 1 ? ", (" : "(") + std::to_string(i) + ", 1, 1, 2, 'it''s " + std::to_string(i) + "')";
  Execute(text);
  EXPECT_EQ(Count("remarks like 'it''s %'"), 1000);
}

TEST_F(Recordsets, RowsOfACursorMayBeWalkedWhileOthersAreChanged) {
  Fill(50);
  connection_->Call("BeginTrans");
  const auto rows = Open("select * from detail where request = 1", ado::kDynamic, ado::kReadOnly);
  int walked = 0;
  for (; !rows->Get("EOF").ToBool(); rows->Call("MoveNext"), ++walked) {
    Execute("update detail set raised = 1 where item = " + Field(rows, "item").ToText());
  }
  EXPECT_EQ(walked, 50);
  rows->Call("Close");
  connection_->Call("CommitTrans");
  EXPECT_EQ(Count("raised = 1"), 50);
}

}  // namespace
