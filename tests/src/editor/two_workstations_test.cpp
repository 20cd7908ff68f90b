#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using support::Click;
using support::Enter;

/// What another workstation, on a connection of its own, does to a request while it is open here.
class TwoWorkstations : public EditorShop {
 protected:
  static constexpr int kNoIsDefault = controls::kYesNo + controls::kQuestion + controls::kDefaultButton2;
  void Change(const std::string& columns) { shop.Run("update mosGoodsRequestHeader set " + columns + " where GRHrequestID=7"); }
  void ExpectQuestion(const std::string& what, Answer answer) {
    desktop.ExpectMessage(
        "Another workstation has changed this request since you opened it" + what + ".\r\nDo you want to save over that change?",
        answer, kNoIsDefault);
  }
  void Link(int request, const std::string& invoice, const std::string& reexport) {
    shop.Run(
        "insert into mosRequestInvDetail (reqcompanyid,reqdid,reqddetailid,reqinvdshopid,reqinvdinvoiceid,reqReexportID) "
        "values (1," +
        std::to_string(request) + ",1,1," + invoice + "," + reexport + ")");
  }
};

TEST_F(TwoWorkstations, WhatTheOtherHasClosedStaysClosedAndWhatWasTypedCanBeRead) {
  struct Case {
    const char* columns;
    const char* message;
  };
  for (const Case& other : {Case{"GRHcancel=1", "This record is already Deleted "},
                            Case{"GRHTransFinished=1", "Transaction is confirmed as finished,Cannot modify"},
                            Case{"GRHIssuenotegenerated=1, GRHTransFinished=1", "Issue Note Generated,Cannot Modify"}}) {
    Change("GRHcancel=0, GRHTransFinished=0, GRHIssuenotegenerated=0");
    Edit(7, [&] {
      Enter(editor->txtRemarks, "typed");
      AddLine(3, "3.000");
      Change(other.columns);
      const std::vector<std::string> before = Everything();
      log.Clear();
      desktop.ExpectMessage("Save Changes?", Answer::Yes);
      desktop.ExpectMessage(other.message, Answer::Ok, controls::kInformation);
      Click(editor->cmdCancel);
      desktop.Verify();
      ASSERT_TRUE(editor->IsLoaded()) << other.message;
      EXPECT_FALSE(editor->cmdOK.Enabled());
      EXPECT_EQ("typed", editor->txtRemarks.Text());
      EXPECT_EQ(3, editor->lvwrequest.Count());
      EXPECT_EQ(before, Everything());
      EXPECT_EQ("rollback", log.lines.back());
      EXPECT_EQ(0, desktop.hourglasses);
      Click(editor->cmdCancel);
      EXPECT_FALSE(editor->IsLoaded()) << "there is nothing left to ask";
    });
  }
}

TEST_F(TwoWorkstations, NobodyIsOverwrittenUnasked) {
  Edit(7, [&] {
    AddLine(3, "3.000");
    Click(editor->chkTransFinished);
    const std::string finish = "You have confirmed the transaction as finished.\r\nCannot modify later; Do you want to continue?";
    Change("updatetime='2024-03-15 11:00:00', GRHrecmoduser='Ines'");
    const std::vector<std::string> before = Everything();
    desktop.ExpectMessage(finish, Answer::Yes);
    ExpectQuestion(" by Ines, 15/03/2024 11:00:00", Answer::No);
    Click(editor->cmdOK);
    desktop.Verify();
    EXPECT_TRUE(editor->IsLoaded());
    EXPECT_EQ(3, editor->lvwrequest.Count());
    EXPECT_EQ(before, Everything());

    // Yes counts for the change that was shown, even when the save that follows fails; the next change is asked about again.
    desktop.ExpectMessage(finish, Answer::Yes);
    ExpectQuestion(" by Ines, 15/03/2024 11:00:00", Answer::Yes);
    log.Refuse("delete mosGoodsRequestdetail", 0);
    ExpectError("Refused by the test", "cmdOK_Click", -2147217900);
    Click(editor->cmdOK);
    desktop.Verify();
    EXPECT_EQ(before, Everything());
    log.Refuse("", 0);
    Change("updatetime='2024-03-15 11:05:00', GRHrecmoduser=null");
    log.Clear();
    desktop.ExpectMessage(finish, Answer::Yes);
    ExpectQuestion(", 15/03/2024 11:05:00", Answer::Yes);
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
    EXPECT_EQ(2u, log.Starting("begin").size()) << "nobody waits while the question is open";
    EXPECT_EQ(1u, log.Starting("rollback").size());
  });
  EXPECT_EQ("Nora|1|3", shop.Row("select ltrim(rtrim(GRHrecmoduser)),GRHTransFinished,GRHNoofDetails from mosGoodsRequestHeader "
                                 "where GRHrequestID=7"));
}

TEST_F(TwoWorkstations, ADatabaseThatKeepsNoTimesAsksNothing) {
  Edit(7, [&] {
    Change("GRHremarks='changed', GRHrecmoduser='Ines'");
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
}

TEST_F(TwoWorkstations, TheRemarksAreThoseOfTheDatabaseInEditorAndRegister) {
  controls::FlexGrid& grid = registerForm->flexMaster;
  grid.SetTextMatrix(1, goods::kRegisterId, "7");
  grid.SetTextMatrix(1, goods::kRegisterRemarks, "weekly");
  Change("GRHremarks=' daily '");
  Edit(7, [&] {
    EXPECT_EQ("daily", editor->txtRemarks.Text());
    EXPECT_EQ("daily", grid.TextMatrix(1, goods::kRegisterRemarks));
  });
}

TEST_F(TwoWorkstations, ADocumentThatAnotherRequestHasTakenIsNamedAndCanBeTakenOff) {
  shop.Run("insert into mosGoodsRequestHeader (GRHrequestID, GRHshopID, GRHrequestno, GRHcancel) values (9, 1, 'GR/9', 1)");
  New([&] {
    CheckDocuments({"I-101", "I-102", "X-101"});
    EXPECT_EQ(10, session.gLngRequestID);
    // The other new request was saved under the id that this one has been given for the time being.
    shop.Run("insert into mosGoodsRequestHeader (GRHrequestID, GRHshopID, GRHrequestno) values (10, 1, 'GR/10')");
    Link(10, "101", "null");
    Link(7, "null", "101");
    Link(9, "102", "null");  // cancelled
    const std::vector<std::string> before = Everything();
    log.Clear();
    desktop.ExpectMessage(
        "These documents are in another request already:\r\n\r\nX-101 (GR/7)\r\nI-101 (GR/10)\r\n\r\nTake their ticks off and "
        "press "
        "OK again.",
        Answer::Ok, controls::kInformation);
    Click(editor->cmdOK);
    desktop.Verify();
    EXPECT_EQ(before, Everything());
    EXPECT_TRUE(log.Starting("begin").empty());
    EXPECT_TRUE(editor->lvwCustomerReq.HasFocus());
    CheckDocument("I-101", false);
    CheckDocument("X-101", false);
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
  EXPECT_EQ("102", shop.Row("select reqinvdinvoiceid from mosRequestInvDetail where reqdid=11"));
}

}  // namespace
}  // namespace editor_test
