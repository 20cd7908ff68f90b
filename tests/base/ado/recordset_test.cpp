#include "base/ado/recordset.h"

#include <gtest/gtest.h>

#include "base/ado/connection.h"
#include "base/vb/error.h"
#include "tests/base/ado/recording_object.h"

namespace {

using Lines = std::vector<std::string>;

class ShopRecordset : public testing::Test {
 protected:
  void StateIs(int state) {
    object->answers["State"] = [=](auto) { return late::Value(state); };
  }

  std::shared_ptr<RecordingObject> object = std::make_shared<RecordingObject>();
  ado::Recordset recordset{object};
};

TEST_F(ShopRecordset, ComesFromTheFactoryByItsClassicName) {
  late::ClassRegistry registry;
  registry.Register("ADODB.Recordset", [&] { return object; });
  EXPECT_EQ(ado::Recordset::Create(registry).Object(), object);
}

TEST_F(ShopRecordset, OpensWithArgumentsInTheClassicOrder) {
  const ado::Connection connection(std::make_shared<RecordingObject>());
  recordset.SetCursorLocation(ado::kUseClient);
  recordset.SetMaxRecords(1);
  recordset.Open("select * from t", connection, ado::kStatic, ado::kBatchOptimistic);
  recordset.Open("select 1", connection);
  EXPECT_EQ(object->log,
            (Lines{"put CursorLocation [3]", "put MaxRecords [1]", "call Open [select * from t] [object] [3] [4] [1]",
                   "call Open [select 1] [object] [0] [1] [1]"}));
}

TEST_F(ShopRecordset, ReadsAndWritesAFieldInOneCall) {
  object->answers["Collect"] = [](auto) { return late::Value("bolt"); };
  EXPECT_EQ(recordset.Field("Name").ToText(), "bolt");
  recordset.Field(3);
  recordset.SetField("Name", "nut");
  EXPECT_EQ(object->log, (Lines{"get Collect [Name]", "get Collect [3]", "put Collect [Name] [nut]"}));
}

TEST_F(ShopRecordset, NamesItsFields) {
  const auto fields = std::make_shared<RecordingObject>();
  const auto field = std::make_shared<RecordingObject>();
  object->answers["Fields"] = [&](auto) { return late::Value(fields); };
  fields->answers["Count"] = [](auto) { return late::Value(2); };
  fields->answers["Item"] = [&](auto) { return late::Value(field); };
  field->answers["Name"] = [](auto) { return late::Value("ItemID"); };
  EXPECT_EQ(recordset.FieldCount(), 2);
  EXPECT_EQ(recordset.FieldName(1), "ItemID");
  EXPECT_EQ(fields->log, (Lines{"get Count", "get Item [1]"}));
}

TEST_F(ShopRecordset, AddsARowInOneCall) {
  recordset.AddNew(late::Array::List({"ItemID", "Qty"}), {17, 2.5});
  recordset.UpdateBatch();
  EXPECT_EQ(object->log, (Lines{"call AddNew [ItemID,Qty] [17,2.5]", "call UpdateBatch"}));
}

TEST_F(ShopRecordset, ClosesOnlyWhenOpen) {
  StateIs(ado::kClosed);
  recordset.CloseIfOpen();
  EXPECT_EQ(object->log, Lines{"get State"});
  StateIs(5);  // open and executing
  recordset.CloseIfOpen();
  EXPECT_EQ(object->log.back(), "call Close");
}

TEST_F(ShopRecordset, HandsOutRowsAsText) {
  object->answers["GetString"] = [](auto) { return late::Value("1;bolt|"); };
  EXPECT_EQ(recordset.GetString(";", "|", "-"), "1;bolt|");
  EXPECT_EQ(object->log, Lines{"call GetString [2] [-1] [;] [|] [-]"});
}

TEST_F(ShopRecordset, ReadsManyRowsInBlocks) {
  int left = 1000;
  object->answers["EOF"] = [&](auto) { return late::Value(left == 0); };
  object->answers["GetRows"] = [&](std::span<late::Value> arguments) {
    const int count = std::min(left, arguments[0].ToInt32());
    const auto block = late::Array::Table(2, static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) block->At(1, static_cast<std::size_t>(i)) = late::Value(left - i);
    left -= count;
    return late::Value(block);
  };
  int expected = 1000;
  ado::ForEachRow(recordset,
                  [&](const late::Array& block, std::size_t record) { EXPECT_EQ(block.At(1, record).ToInt32(), expected--); });
  EXPECT_EQ(expected, 0);
  EXPECT_EQ(object->log, (Lines{"get EOF", "call GetRows [512]", "get EOF", "call GetRows [512]", "get EOF"}));
}

}  // namespace
