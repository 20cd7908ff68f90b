#include <algorithm>

#include "base/vb/text.h"
#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using support::Click;
using support::Enter;

class Saving : public EditorShop {
 protected:
  static constexpr const char* kFinishQuestion =
      "You have confirmed the transaction as finished.\r\nCannot modify later; Do you want to continue?";
  static constexpr int kNoIsDefault = controls::kYesNo + controls::kQuestion + controls::kDefaultButton2;

  /// OK refuses: the message, the focus where it can be mended, nothing written, no transaction and no hourglass left behind.
  void ExpectRefusal(const std::string& message, int style, const controls::Control& focus) {
    const std::vector<std::string> before = Everything();
    log.Clear();
    desktop.ExpectMessage(message, style == controls::kInformation ? Answer::Ok : Answer::No, style);
    Click(editor->cmdOK);
    desktop.Verify();
    EXPECT_TRUE(editor->IsLoaded());
    EXPECT_TRUE(focus.HasFocus()) << focus.Name();
    EXPECT_EQ(before, Everything());
    EXPECT_EQ(log.Starting("begin").size(), log.Starting("rollback").size());
    EXPECT_EQ(0u, log.Starting("commit").size());
    EXPECT_EQ(0, desktop.hourglasses);
  }
  /// What the save sent, the auditing helper's own statements aside.
  std::vector<std::string> SentUntilCommit() const {
    std::vector<std::string> sent;
    for (const std::string& line : log.lines) {
      if (vb::InStr(line, "smpUserAudit") == 0) sent.push_back(line);
      if (line == "commit") break;
    }
    return sent;
  }
  void CloseWithoutSaving() {
    desktop.ExpectMessage("Save Changes?", Answer::No);
    Click(editor->cmdCancel);
  }
};

TEST_F(Saving, ANewRequestIsWrittenWholeInOneTransaction) {
  New([&] {
    AddLine(2, "2.500", "blue");
    AddLine(6, "0.000");
    Enter(editor->txtRemarks, "  Nora's order ");
    support::Click(editor->optporeq);
    log.Clear();
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
  const std::vector<std::string> expected = {
      "begin",
      "select GRHrequestID from mosGoodsRequestHeader where grhrequestno='' and grhshopid=1",
      "select max(grhrequestid) from mosGoodsRequestHeader where grhshopid = 1",
      "SELECT Prefix FROM aPrefix WHERE InterfaceID = 1503AND FinancialId = (Select FinancialId from aFinancialYear where "
      "CurFinancialYear = 1) and shopid=1",
      "Select isnull(max(convert(int,right(GRHrequestNo,len(GRHrequestNo)-3))),0) from mosGoodsRequestHeader where GRHshopid = 1 "
      "and len(GRHrequestNo)>len('GR/') and  isnumeric(isnull(right(GRHrequestNo,len(GRHrequestNo)-3),0)) =1 and "
      "substring(GRHrequestNo,1,len('GR/'))='GR/'",
      "select UserName from aUsers where Userid = 1",
      "select * from mosGoodsRequestHeader",
      "select CURRENT_TIMESTAMP",
      "insert mosGoodsRequestHeader GRHrequestID=8 GRHrequestno=GR/8 GRHrequestdate=2024/03/15 GRHshopID=1 "
      "GRHremarks=Nora's order GRHrecaddUser=Nora GRHTransFinished=0 GRHNoofDetails=2 GRHrequestTime=2024-03-15 10:30:05 "
      "GRHhqrequestgenerated=0 GRHrequesttype=P",
      "select * from mosGoodsRequestDetail where GRDshopID=1",
      "insert mosGoodsRequestDetail GRDDetailid=1 GRDshopID=1 GRDrequestID=8 GRDitemID=2 GRDreqcomments=blue GRDgoodQty=2.5 "
      "GRDexpectremarks=  Nora's order ",
      "insert mosGoodsRequestDetail GRDDetailid=2 GRDshopID=1 GRDrequestID=8 GRDitemID=6 GRDreqcomments= GRDgoodQty=0 "
      "GRDexpectremarks=  Nora's order ",
      "select * from mosGoodsRequestDetail where GRDrequestID = 8",
      "update aShopItemDetail set RequestRaised=1 where Itemid = 2",
      "update aShopItemDetail set RequestRaised=1 where Itemid = 6",
      "select * from mosRequestInvDetail",
      "commit",
  };
  EXPECT_EQ(expected, SentUntilCommit());
  EXPECT_EQ(std::vector<std::string>{"8|GR/8|N"}, shop.Rows("select recordid, recordno, action from smpUserAudit"));
  EXPECT_EQ(8, session.gLngRequestID);
  EXPECT_EQ("GR/8", registerForm->flexMaster.TextMatrix(registerForm->flexMaster.Rows() - 1, 1));
  EXPECT_EQ(0, desktop.hourglasses);
  EXPECT_TRUE(desktop.sawHourglass);

  // The line without a quantity is stored, but the next one to open the request does not see it.
  Edit(8, [&] { EXPECT_EQ((std::vector<std::string>{"1|POT|2.500|2"}), Lines()); });
}

TEST_F(Saving, AnEditedRequestKeepsWhatItWasCreatedWithAndGetsItsLinesAnew) {
  shop.Run(
      "insert into mosRequestInvDetail (reqcompanyid, reqdid, reqddetailid, reqinvdshopid, reqinvdinvoiceid) values (1, 7, 1, 1, "
      "101)");
  session.gIntUserID = 2;
  Edit(7, [&] {
    editor->lvwrequest.Remove(1);
    AddLine(3, "0.750");
    Enter(editor->txtRequestNo, "GR/99");
    Enter(editor->txtrequestDate, "01/01/2020");
    log.Clear();
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
  const std::vector<std::string> expected = {
      "SELECT * FROM losInvoiceProjectRequestDetails WHERE idrInvoiceId = 101 AND idrShopId = 1 AND idrCompanyId = 1",
      "select gh.GRHrequestno,gd.reqinvdinvoiceid,gd.reqReexportID from mosRequestInvDetail gd, mosgoodsrequestheader gh where "
      "gh.GRHrequestID=gd.reqdid and gh.GRHshopID=gd.reqinvdshopid and gh.GRHcancel=0 and gd.reqcompanyid=1 and "
      "gd.reqinvdshopid=1 "
      "and gd.reqdid<>7 and (gd.reqinvdinvoiceid in (101) or gd.reqReexportID in (null)) order by gd.reqdid,gd.reqddetailid",
      "begin",
      "select * from mosGoodsRequestDetail where GRDrequestID = 7",
      "update aShopItemDetail set RequestRaised=0 where Itemid = 2",
      "update aShopItemDetail set RequestRaised=0 where Itemid = 1",
      "select UserName from aUsers where ShopID=1 and Userid=2",
      "select * from mosGoodsRequestHeader where grhrequestid=7 and grhshopid=1",
      "update mosGoodsRequestHeader GRHremarks=weekly GRHrecmoduser=Ines GRHTransFinished=0 GRHNoofDetails=2",
      "Update mosGoodsRequestHeader set updatetime=getdate() where grhrequestid=7  and grhshopid=1",
      "delete mosGoodsRequestdetail where grdrequestid=7 and grdshopid=1",
      "select * from mosGoodsRequestDetail where grdrequestid=7 and GRDshopID=1",
      "insert mosGoodsRequestDetail GRDDetailid=1 GRDshopID=1 GRDrequestID=7 GRDitemID=1 GRDreqcomments= GRDgoodQty=4 "
      "GRDexpectremarks=weekly",
      "insert mosGoodsRequestDetail GRDDetailid=2 GRDshopID=1 GRDrequestID=7 GRDitemID=3 GRDreqcomments= GRDgoodQty=0.75 "
      "GRDexpectremarks=weekly",
      "select * from mosGoodsRequestDetail where GRDrequestID = 7",
      "update aShopItemDetail set RequestRaised=1 where Itemid = 1",
      "update aShopItemDetail set RequestRaised=1 where Itemid = 3",
      "delete from mosRequestInvDetail where reqdid = 7 and reqcompanyid=1 and reqinvdshopid=1",
      "select * from mosRequestInvDetail",
      "insert mosRequestInvDetail reqcompanyid=1 reqdid=7 reqddetailid=1 reqinvdshopid=1 reqinvdinvoiceid=101 reqReexportID=NULL",
      "commit",
  };
  EXPECT_EQ(expected, SentUntilCommit());
  EXPECT_EQ(std::vector<std::string>{"GR/7|2024-03-10 00:00:00|p|Ines|Ines|2024-03-15 10:30:05"},
            shop.Rows("select GRHrequestno, GRHrequestdate, GRHrequesttype, GRHrecaddUser, GRHrecmoduser, updatetime from "
                      "mosGoodsRequestHeader where GRHrequestID=7"));
  // The flags know no shops: item 3 is marked in both, item 2 is free in both.
  EXPECT_EQ((std::vector<std::string>{"1|1|1", "1|2|0", "1|3|1", "2|1|1", "2|2|0", "2|3|1"}),
            shop.Rows("select ShopID, ItemID, RequestRaised from aShopItemDetail where ItemID <= 3 order by ShopID, ItemID"));
}

TEST_F(Saving, RefusalsComeInTheirOrderAndLeaveNoTrace) {
  New([&] {
    CheckDocuments({"I-103", "X-102"});
    Enter(editor->txtrequestDate, "31/02/2024");
    editor->lvwrequest.Clear();
    Click(editor->chkTransFinished);
    Enter(editor->txtRemarks, "typed");

    ExpectRefusal("Enter a valid request date", controls::kInformation, editor->txtrequestDate);
    EXPECT_TRUE(log.lines.empty()) << "the date is looked at before anything else";
    Enter(editor->txtrequestDate, "2024-03-14");

    ExpectRefusal(
        "One of the customer requests you selected is a Project Request.\r\n\r\nYou cannot select more than one request when "
        "project requests are involved. Please select only one customer request and try again",
        controls::kInformation, editor->lvwCustomerReq);
    EXPECT_EQ(1, editor->sstabGoodsReq.Tab());
    CheckDocument("X-102", false);

    ExpectRefusal("Atleast one detail needed", controls::kInformation, editor->cmdOK);
    AddLine(1, "0.000");
    AddLine(2, "-3.000");
    ExpectRefusal("Atleast one detail needed", controls::kInformation, editor->cmdOK);
    AddLine(3, "0.001");

    ExpectRefusal(kFinishQuestion, kNoIsDefault, editor->chkTransFinished);
    EXPECT_EQ("typed", editor->txtRemarks.Text());

    desktop.ExpectMessage(kFinishQuestion, Answer::Yes, kNoIsDefault);
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
  EXPECT_EQ("2024-03-14 00:00:00|typed|1|3",
            shop.Row("select GRHrequestdate, GRHremarks, GRHTransFinished, GRHNoofDetails from mosGoodsRequestHeader where "
                     "GRHrequestID=8"));
  EXPECT_EQ("8|3|103|NULL", shop.Row("select reqdid, reqddetailid, reqinvdinvoiceid, reqReexportID from mosRequestInvDetail"));
}

TEST_F(Saving, ANumberThatExistsAlreadyWritesTheLinksAndClosesAllTheSame) {
  const std::vector<std::string> headers = shop.Rows("select * from mosGoodsRequestHeader");
  New([&] {
    AddLine(1, "1.000");
    CheckDocuments({"I-102"});
    Enter(editor->txtRequestNo, "gr/7");  // the server knows no case
    desktop.ExpectMessage("8 already exists", Answer::Ok, controls::kInformation);
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
  EXPECT_EQ(headers, shop.Rows("select * from mosGoodsRequestHeader"));
  EXPECT_EQ("2", shop.Row("select count(*) from mosGoodsRequestDetail"));
  EXPECT_EQ("1|8|2|1|102|NULL", shop.Row("select * from mosRequestInvDetail"));
  EXPECT_EQ(1u, log.Starting("commit").size());
}

TEST_F(Saving, AnApostropheInTheNumberReachesNoStatement) {
  const std::vector<std::string> before = Everything();
  New([&] {
    AddLine(1, "1.000");
    Enter(editor->txtRequestNo, "O'D");
    editor->txtRequestNo.Paste("';delete mosGoodsRequestDetail--");
    EXPECT_EQ("OD;delete mosGoodsRequestDetail--", editor->txtRequestNo.Text());
    for (const char* number : {"O'Dowd", "' or '1'='1", "';delete mosGoodsRequestDetail--"}) {
      editor->txtRequestNo.SetText(number);
      ExpectError("A request number cannot contain an apostrophe.", "cmdOK_Click", vb::kInvalidCall);
      Click(editor->cmdOK);
      desktop.Verify();
      EXPECT_EQ(number, editor->txtRequestNo.Text());
      EXPECT_EQ(before, Everything());
    }
    EXPECT_TRUE(log.Sent("select GRHrequestID from mosGoodsRequestHeader where grhrequestno='O''Dowd' and grhshopid=1"));
    CloseWithoutSaving();
  });
}

TEST_F(Saving, ARowThatCannotBeRefreshedDoesNotLookLikeAFailedSave) {
  const std::string refused = "select GRHrequestID,GRHrequestno,GRHrequestdate";
  const auto expectSavedAs = [&](const std::string& number) {
    log.Refuse(refused, 0);
    desktop.ExpectMessage(
        "The request is saved under the number " + number +
        ". Its row in the list could not be refreshed:\r\n\r\nRefused by the test\n(basGoodsPurchase UpdateEditedRow, "
        "-2147217900)");
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  };
  New([&] {
    AddLine(1, "1.000");
    expectSavedAs("GR/8");
  });
  Edit(7, [&] { expectSavedAs("GR/7"); });
}

/// A save that fails at any of its steps leaves the database as it was and the editor with all that was typed; the next OK works.
class FailingSave : public Saving {
 protected:
  static constexpr long kUnspecified = static_cast<std::int32_t>(0x80004005);
  static constexpr int kAnyError = 0;
  static constexpr int kDeadlockVictim = 1205;

  void ExpectFailure(int native) {
    if (native == kAnyError) return ExpectError("Connection broken by the test", "cmdOK_Click", -2147217900);
    ExpectError(
        "Another workstation was using the same data, and the request was not saved. What you typed is still here: press OK "
        "again.\r\n\r\nFailed by the test",
        "cmdOK_Click", kUnspecified);
  }
  /// What was sent after the step that failed: the way back, and who the user is, for the report.
  void ExpectNothingWrittenAfter(std::size_t failed) {
    for (std::size_t i = failed; i < log.lines.size(); ++i) {
      const std::string& line = log.lines[i];
      EXPECT_TRUE(line == "rollback" || line.starts_with("select username from LOUSERS")) << line;
    }
  }
  /// With the server's own error of a deadlock, the server has undone the transaction already.
  void FailAtEveryStep(int native = kAnyError) {
    const std::vector<std::string> before = Everything();
    const std::vector<std::string> lines = Lines();
    const std::vector<std::string> documents = Documents();
    const std::string number = editor->txtRequestNo.Text();
    const std::int32_t id = session.gLngRequestID;
    int step = 0;
    do {
      log.Clear();
      log.FailAt(++step, native);
      ExpectFailure(native);
      Click(editor->cmdOK);
      desktop.Verify();
      const auto back = std::find(log.lines.begin(), log.lines.end(), "rollback");
      ExpectNothingWrittenAfter(static_cast<std::size_t>(back - log.lines.begin()));
      ASSERT_TRUE(editor->IsLoaded()) << "step " << step;
      EXPECT_EQ(before, Everything()) << "step " << step;
      EXPECT_EQ(number, editor->txtRequestNo.Text());
      EXPECT_EQ(id, session.gLngRequestID);
      EXPECT_EQ(lines, Lines());
      EXPECT_EQ(documents, Documents());
      EXPECT_EQ("typed ", editor->txtRemarks.Text());
      EXPECT_TRUE(editor->cmdOK.Enabled());
      EXPECT_EQ(0, desktop.hourglasses);
    } while (log.Starting("commit").empty() && step < 100);
    EXPECT_GT(step, 15) << "every statement and every row had its turn before the commit";
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  }
};

class FailingSaveBy : public FailingSave, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Errors, FailingSaveBy, testing::Values(0, 1205), [](const auto& native) {
  return std::string(native.param == 0 ? "LeavesTheTransaction" : "HasRolledBack");
});

TEST_P(FailingSaveBy, OfANewRequest) {
  New([&] {
    AddLine(1, "1.000");
    AddLine(2, "2.000");
    AddLine(3, "3.000");
    CheckDocuments({"I-102", "X-102"});
    Enter(editor->txtRemarks, "typed ");
    FailAtEveryStep(GetParam());
  });
  EXPECT_EQ("GR/8|3", shop.Row("select GRHrequestno, GRHNoofDetails from mosGoodsRequestHeader where GRHrequestID=8"));
  EXPECT_EQ("3", shop.Row("select count(*) from mosGoodsRequestDetail where GRDrequestID=8"));
  EXPECT_EQ("2", shop.Row("select count(*) from mosRequestInvDetail where reqdid=8"));
}

TEST_P(FailingSaveBy, OfAnEditedRequest) {
  shop.Run(
      "insert into mosRequestInvDetail (reqcompanyid, reqdid, reqddetailid, reqinvdshopid, reqinvdinvoiceid) values (1, 7, 1, 1, "
      "101)");
  Edit(7, [&] {
    AddLine(3, "3.000");
    Enter(editor->txtRemarks, "typed ");
    FailAtEveryStep(GetParam());
  });
  EXPECT_EQ("typed|3", shop.Row("select GRHremarks, GRHNoofDetails from mosGoodsRequestHeader where GRHrequestID=7"));
  EXPECT_EQ("3", shop.Row("select count(*) from mosGoodsRequestDetail where GRDrequestID=7"));
  EXPECT_EQ("101", shop.Row("select reqinvdinvoiceid from mosRequestInvDetail where reqdid=7"));
}

TEST_F(FailingSave, OverABrokenConnectionSaysWhatToDo) {
  constexpr int kConnectionReset = 10054;
  New([&] {
    AddLine(1, "1.000");
    const auto failAt = [&](int step, const std::string& words) {
      log.FailAt(step, kConnectionReset);
      ExpectError(words + "\r\n\r\nFailed by the test", "cmdOK_Click", kUnspecified);
      Click(editor->cmdOK);
      desktop.Verify();
    };
    log.Clear();
    failAt(7,
           "The connection to the server is broken, and the request was not saved. What you typed is still here: press OK again "
           "when the connection is back.");
    // The step of the commit is the one after all that a whole save sends.
    const std::vector<std::string> before = Everything();
    int step = 8;
    for (log.Clear(); log.Starting("commit").empty(); ++step) {
      log.Clear();
      log.FailAt(step);
      ExpectError("Connection broken by the test", "cmdOK_Click", -2147217900);
      Click(editor->cmdOK);
    }
    failAt(step - 1,
           "The connection to the server broke while the request was being saved. Look in the register whether it is there "
           "before you press OK again.");
    EXPECT_EQ(before, Everything());
    Click(editor->cmdOK);
  });
  EXPECT_EQ("GR/8", shop.Row("select GRHrequestno from mosGoodsRequestHeader where GRHrequestID=8"));
}

TEST_F(Saving, WithoutTheRightToMakeTheAuditTableGoesOnAndIsNotedOnce) {
  constexpr int kPermissionDenied = 262;
  shop.Run("drop table smpUserAudit");
  log.Refuse("create table smpUserAudit", kPermissionDenied);
  for (int request = 8; request <= 9; ++request) {
    New([&] {
      AddLine(1, "1.000");
      Click(editor->cmdOK);
      EXPECT_FALSE(editor->IsLoaded());
    });
    EXPECT_EQ("1", shop.Row("select count(*) from mosGoodsRequestDetail where GRDrequestID=" + std::to_string(request)));
  }
  EXPECT_EQ(1u, log.Starting("create table smpUserAudit").size());
  const std::string noted = shop.workstation.files["C:\\shop\\errors.log"];
  EXPECT_EQ(1, std::count(noted.begin(), noted.end(), '\n')) << noted;
  EXPECT_NE(0u, vb::InStr(noted, "create table smpUserAudit")) << noted;
}

}  // namespace
}  // namespace editor_test
