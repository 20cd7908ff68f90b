#include "base/ado/connection.h"

#include <gtest/gtest.h>

#include "base/vb/error.h"
#include "tests/base/ado/recording_object.h"

namespace {

using Lines = std::vector<std::string>;

RecordingObject::Answer Failing(long number, const char* text) {
  return [=](std::span<late::Value>) -> late::Value { vb::Raise(number, text); };
}

class ShopConnection : public testing::Test {
 protected:
  std::shared_ptr<RecordingObject> server = std::make_shared<RecordingObject>();
  ado::Connection connection{server};
};

TEST_F(ShopConnection, SpeaksTheClassicMembers) {
  const auto rows = std::make_shared<RecordingObject>();
  server->answers["Execute"] = [&](auto) { return late::Value(rows); };
  server->answers["State"] = [](auto) { return late::Value(1); };
  EXPECT_EQ(connection.Execute("update t set a=1").Object(), rows);
  connection.ExecuteNoRecords("delete t");
  connection.SetCommandTimeout(0);
  EXPECT_EQ(connection.State(), ado::kOpen);
  EXPECT_EQ(server->log, (Lines{"call Execute [update t set a=1]", "call Execute [delete t] [] [129]", "put CommandTimeout [0]",
                                "get State"}));
}

TEST_F(ShopConnection, CommitsOnce) {
  {
    ado::Transaction transaction(connection);
    transaction.Commit();
  }
  EXPECT_EQ(server->log, (Lines{"call BeginTrans", "call CommitTrans"}));
}

TEST_F(ShopConnection, RollsBackWhenASaveIsLeftHalfway) {
  try {
    ado::Transaction transaction(connection);
    vb::Raise(13);
  } catch (const vb::RunTimeError&) {
  }
  { ado::Transaction forgotten(connection); }
  {
    ado::Transaction undone(connection);
    undone.Rollback();
  }
  const Lines each = {"call BeginTrans", "call RollbackTrans"};
  Lines expected;
  for (int i = 0; i < 3; ++i) expected.insert(expected.end(), each.begin(), each.end());
  EXPECT_EQ(server->log, expected);
}

TEST_F(ShopConnection, RollsBackAfterACommitThatFails) {
  server->answers["CommitTrans"] = Failing(1205, "deadlock victim");
  try {
    ado::Transaction transaction(connection);
    transaction.Commit();
    FAIL() << "the failing commit went unnoticed";
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Number(), 1205);
  }
  EXPECT_EQ(server->log, (Lines{"call BeginTrans", "call CommitTrans", "call RollbackTrans"}));
}

TEST_F(ShopConnection, ReportsTheFirstErrorWhenTheRollbackFailsToo) {
  server->answers["RollbackTrans"] = Failing(3709, "connection lost");
  try {
    ado::Transaction transaction(connection);
    vb::Raise(2627, "duplicate key");
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Number(), 2627);
    EXPECT_EQ(error.Description(), "duplicate key");
  }
  EXPECT_EQ(server->log.back(), "call RollbackTrans");
}

TEST_F(ShopConnection, AnAskedRollbackSaysThatItFailed) {
  server->answers["RollbackTrans"] = Failing(3709, "connection lost");
  ado::Transaction transaction(connection);
  EXPECT_THROW(transaction.Rollback(), vb::RunTimeError);
}

TEST_F(ShopConnection, WithoutBeginThereIsNothingToRollBack) {
  server->answers["BeginTrans"] = Failing(3709, "connection lost");
  EXPECT_THROW(ado::Transaction{connection}, vb::RunTimeError);
  EXPECT_EQ(server->log, Lines{"call BeginTrans"});
}

TEST(Faces, WithoutAnObjectRaiseError91) {
  ado::Connection connection;
  ado::Recordset recordset;
  const std::function<void()> touches[] = {
      [&] { connection.Execute("select 1"); },
      [&] { connection.BeginTrans(); },
      [&] { connection.State(); },
      [&] { recordset.Eof(); },
      [&] { recordset.Field("a"); },
      [&] { recordset.Open("select 1", connection); },
      [&] { ado::Recordset(std::make_shared<RecordingObject>()).Open("select 1", connection); },
  };
  for (const auto& touch : touches) {
    try {
      touch();
      FAIL() << "no error";
    } catch (const vb::RunTimeError& error) {
      EXPECT_EQ(error.Number(), vb::kObjectNotSet);
    }
  }
  EXPECT_NO_THROW(recordset.CloseIfOpen()) << "clean-up has nothing to clean up";
}

}  // namespace
