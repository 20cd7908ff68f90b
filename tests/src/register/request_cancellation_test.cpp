#include "src/editor/frm_request.h"
#include "src/register/frm_cancel_reason.h"
#include "tests/src/register/register_day.h"

namespace {

using controls::Answer;

constexpr int kConfirm = 276;

class RequestCancellation : public RegisterDay {
 protected:
  static goods::frmcancelreason& Dialog(controls::Form& form) { return dynamic_cast<goods::frmcancelreason&>(form); }
  /// The user confirms, types the reason and presses OK.
  void CancelWith(std::string number, std::string reason) {
    shop.desktop.ExpectMessage("Are you sure you want to Delete " + number + " ?", Answer::Yes, kConfirm);
    shop.desktop.ExpectForm("frmcancelreason", [reason](controls::Form& form) {
      support::Type(Dialog(form).txtcanreason, reason);
      support::Click(Dialog(form).cmdok);
    });
    support::Click(Register().CmdDelete);
  }
  std::string Header(int id) {
    return shop.Row("select GRHcancel,GRHcancelRemarks from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=" +
                    std::to_string(id));
  }
  std::string Raised(int item) {
    std::string flags;
    for (const std::string& row : shop.Rows(
             "select ShopID,RequestRaised from aShopItemDetail where ItemID=" + std::to_string(item) + " order by ShopID")) {
      flags += row + " ";
    }
    return flags;
  }
};

TEST_F(RequestCancellation, ARequestIsCancelledWithAReasonAndItsItemsAreFree) {
  shop.Run("update aShopItemDetail set RequestRaised=1");
  Open([&] {
    GoTo(21);
    shop.workstation.now = vb::MakeDate(2024, 3, 15, 12, 0, 0);
    CancelWith("GR24/13", " Ordered twice ");

    EXPECT_EQ("1|Nora Halvard:Ordered twice", Header(21));
    EXPECT_EQ("Yes", Grid().TextMatrix(RowOf(21), goods::kRegisterCancelled));
    EXPECT_EQ("21", CurrentId());
    EXPECT_EQ(controls::kRed, Grid().CellForeColor(RowOf(21), 0));
    EXPECT_EQ(controls::kRed, Grid().BackColorSel());
    EXPECT_EQ(0, Grid().Col());
    EXPECT_EQ(Grid().Cols() - 1, Grid().ColSel());
    EXPECT_EQ(" Ordered twice ", shop.session.gStrCancelReason);
    EXPECT_EQ("E", shop.session.gStrEntryMode);
  });
  EXPECT_EQ("0|NULL", Header(22));
  EXPECT_EQ(std::string::npos, Raised(127).find("|1")) << Raised(127);  // in every shop
  EXPECT_NE(std::string::npos, Raised(126).find("1|1")) << Raised(126);
  EXPECT_EQ("1|1|1|1503|2024-03-15 12:00:00|21|GR24/13|D",
            shop.Row("select companyid,shopid,userid,interfaceid,loggedtime,recordid,recordno,action from smpUserAudit"));
  EXPECT_TRUE(shop.log.Sent("select * from  mosGoodsRequestHeader where GRHrequestID  = 21 and grhshopid=1"));
  EXPECT_TRUE(shop.log.Sent("select * from mosGoodsRequestDetail where GRDrequestID=21 and grdshopid=1"));
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

TEST_F(RequestCancellation, TheRemarkKeeps20CharactersOfTheNameAnd230OfTheReason) {
  Open({4, 1, 1}, [&] {
    GoTo(26);
    std::string reason;
    for (int count = 0; count < 300; ++count) reason += "ä";
    CancelWith("GR24/18", reason);
    EXPECT_EQ("1|Maximiliane Oberhofe:" + reason.substr(0, 230 * 2), Header(26));
  });
}

struct Refusal {
  const char* name;
  const char* state;  // of request 20
  const char* message;
};

class RefusedCancellation : public RequestCancellation, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedCancellation, ShowsItsOneMessageAndChangesNothing) {
  shop.Run("update mosGoodsRequestHeader set " + std::string(GetParam().state) + " where GRHshopID=1 and GRHrequestID=20");
  Open([&] {
    GoTo(20);
    const std::string before = Header(20);
    shop.desktop.ExpectMessage(GetParam().message, Answer::Ok, controls::kInformation);
    Register().CmdDelete.Click.Fire();
    EXPECT_EQ(before, Header(20));
  });
}

INSTANTIATE_TEST_SUITE_P(States, RefusedCancellation,
                         testing::Values(Refusal{"Finished", "GRHTransFinished=1",
                                                 "Transaction is confirmed as finished. Can not delete."},
                                         Refusal{"FinishedComesBeforeCancelledAndIssueNote",
                                                 "GRHTransFinished=1, GRHcancel=1, GRHIssuenotegenerated=1",
                                                 "Transaction is confirmed as finished. Can not delete."},
                                         Refusal{"IssueNote", "GRHIssuenotegenerated=1", "Issue Note Generated,Cannot Be Delete"},
                                         Refusal{"IssueNoteComesBeforeCancelled", "GRHIssuenotegenerated=1, GRHcancel=1",
                                                 "Issue Note Generated,Cannot Be Delete"},
                                         Refusal{"Cancelled", "GRHcancel=1", "This record is already Deleted "}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(RequestCancellation, WhatAnotherWorkstationHasClosedMeanwhileIsRefusedTheSame) {
  struct Case {
    const char* columns;
    const char* message;
    const char* row;
  };
  for (const Case& other : {Case{"GRHTransFinished=1", "Transaction is confirmed as finished. Can not delete.", "No|Yes"},
                            Case{"GRHIssuenotegenerated=1", "Issue Note Generated,Cannot Be Delete", "No|No"},
                            Case{"GRHcancel=1, GRHcancelRemarks='theirs'", "This record is already Deleted ", "Yes|No"}}) {
    const std::string update = "update mosGoodsRequestHeader set " + std::string(other.columns) + " where GRHrequestID=20";
    Open([&] {
      GoTo(20);
      shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/12 ?", Answer::Yes);
      shop.desktop.ExpectForm("frmcancelreason", [&](controls::Form& form) {
        support::Type(Dialog(form).txtcanreason, "mine");
        shop.Run(update);
        shop.desktop.ExpectMessage(other.message, Answer::Ok, controls::kInformation);
        support::Click(Dialog(form).cmdok);
      });
      support::Click(Register().CmdDelete);
      EXPECT_TRUE(RowText(RowOf(20)).ends_with(other.row)) << RowText(RowOf(20));
    });
    shop.Run("update mosGoodsRequestHeader set GRHTransFinished=0, GRHIssuenotegenerated=0 where GRHrequestID=20");
  }
  EXPECT_EQ("1|theirs", Header(20));
  EXPECT_TRUE(shop.log.Starting("insert into smpUserAudit").empty());
}

TEST_F(RequestCancellation, OnTheHeadingNothingIsLookedUpButTheUser) {
  Open([&] {
    support::GoToRow(Grid(), 0);
    shop.log.Clear();
    shop.desktop.ExpectMessage("No Request No Selected ", Answer::Ok, controls::kInformation);
    Register().CmdDelete.Click.Fire();
    EXPECT_EQ(std::vector<std::string>{"select UserName from loUsers where ShopID=1 and Userid=1"}, shop.log.lines);
  });
}

TEST_F(RequestCancellation, AnEmptyRegisterStaysSilentAndLoadsNoEditor) {
  Open({1, 9, 1}, [&] { Register().CmdDelete.Click.Fire(); });
  EXPECT_EQ(std::vector<std::string>{"frmMaster"}, shop.desktop.opened);
  EXPECT_TRUE(shop.desktop.messages.empty());
}

TEST_F(RequestCancellation, AnythingButYesEndsItBeforeTheReason) {
  Open([&] {
    GoTo(20);
    shop.session.gLngRequestID = 7;
    shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/12 ?", Answer::No, kConfirm);
    support::Click(Register().CmdDelete);
    EXPECT_EQ(7, shop.session.gLngRequestID);
  });
  EXPECT_EQ("0|NULL", Header(20));
}

TEST_F(RequestCancellation, AFailedHeaderUpdateIsReportedAndNothingIsCancelled) {
  Open([&] {
    GoTo(18);
    shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/10 ?", Answer::Yes);
    shop.desktop.ExpectForm("frmcancelreason", [&](controls::Form& form) {
      support::Type(Dialog(form).txtcanreason, "no longer wanted");
      shop.log.FailAt(2);  // the header is read, then written
      support::Click(Dialog(form).cmdok);
    });
    support::Click(Register().CmdDelete);
    EXPECT_EQ("No", Grid().TextMatrix(RowOf(18), goods::kRegisterCancelled));
  });
  EXPECT_TRUE(shop.log.HasFailed());
  EXPECT_EQ("0|NULL", Header(18));
  ASSERT_EQ(1u, errors->lines.size());
  EXPECT_TRUE(errors->lines[0].starts_with("frmMaster |CmdDelete_Click|")) << errors->lines[0];
  EXPECT_EQ("Nora Halvard", errors->users[0]);
}

TEST_F(RequestCancellation, AFailureBetweenHeaderAndMarksLeavesTheRequestCancelledAndTheMarksSet) {
  Open([&] {
    GoTo(18);
    shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/10 ?", Answer::Yes);
    shop.desktop.ExpectForm("frmcancelreason", [&](controls::Form& form) {
      support::Type(Dialog(form).txtcanreason, "no longer wanted");
      shop.log.FailAt(3);  // reading the lines
      support::Click(Dialog(form).cmdok);
    });
    support::Click(Register().CmdDelete);
    EXPECT_EQ("Yes", Grid().TextMatrix(RowOf(18), goods::kRegisterCancelled));  // the register tells the truth
  });
  EXPECT_EQ("1|Nora Halvard:no longer wanted", Header(18));
  EXPECT_NE(std::string::npos, Raised(30).find("1|1"));
  ASSERT_EQ(1u, errors->lines.size());
  EXPECT_TRUE(errors->lines[0].starts_with("frmMaster |RemoveRequestRaisedFromShopItemDetail|")) << errors->lines[0];
}

TEST_F(RequestCancellation, ARecordThatCannotBeWrittenOrARowThatCannotBeReadLeavesItCancelled) {
  Open([&] {
    GoTo(18);
    shop.log.Refuse("insert into smpUserAudit", 0);
    CancelWith("GR24/10", "no longer wanted");
    EXPECT_EQ("Yes", Grid().TextMatrix(RowOf(18), goods::kRegisterCancelled));
    GoTo(19);
    shop.log.Refuse("select GRHrequestID,", 0);
    CancelWith("GR24/11", "ordered twice");
  });
  EXPECT_EQ("1|Nora Halvard:no longer wanted", Header(18));
  EXPECT_EQ("1|Nora Halvard:ordered twice", Header(19));
  ASSERT_EQ(2u, errors->lines.size());
  EXPECT_TRUE(errors->lines[0].starts_with("frmMaster |CmdDelete_Click|")) << errors->lines[0];
  EXPECT_TRUE(errors->lines[1].starts_with("basGoodsPurchase|UpdateEditedRow|")) << errors->lines[1];
}

class ReasonDialog : public RequestCancellation {
 protected:
  /// Opens the dialog over request 20 and lets the user work in it.
  void Ask(std::function<void(goods::frmcancelreason&)> work) {
    Open([&] {
      GoTo(20);
      shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/12 ?", Answer::Yes);
      shop.desktop.ExpectForm("frmcancelreason", [work](controls::Form& form) { work(Dialog(form)); });
      support::Click(Register().CmdDelete);
    });
  }
};

TEST_F(ReasonDialog, CannotBeLeftWithoutAReason) {
  Ask([&](goods::frmcancelreason& dialog) {
    EXPECT_EQ("Reason for deletion", dialog.Caption());
    shop.desktop.ExpectMessage("Enter reason for deletion", Answer::Ok, controls::kInformation);
    support::Click(dialog.cmdok);
    EXPECT_EQ(&dialog.txtcanreason, dialog.ActiveControl());
    shop.desktop.ExpectMessage("Enter reason for deletion", Answer::Ok, controls::kInformation);
    EXPECT_FALSE(dialog.CloseByUser());
    support::Type(dialog.txtcanreason, "   ");
    EXPECT_FALSE(dialog.cmdok.Enabled());
    support::Type(dialog.txtcanreason, "x");
    EXPECT_TRUE(dialog.cmdok.Enabled());
    support::Enter(dialog.txtcanreason, "");
    EXPECT_FALSE(dialog.cmdok.Enabled());
    dialog.txtcanreason.Paste("stock found");
    EXPECT_TRUE(dialog.cmdok.Enabled());
    EXPECT_TRUE(dialog.CloseByUser());  // the title bar does what OK does
  });
  EXPECT_EQ("1|Nora Halvard:stock found", Header(20));
}

TEST_F(ReasonDialog, SwallowsApostrophesAndEnterMovesToOk) {
  Ask([&](goods::frmcancelreason& dialog) {
    support::Type(dialog.txtcanreason, "it's ");
    dialog.txtcanreason.SetSelStart(4);
    dialog.txtcanreason.Paste("the shop's fault");
    EXPECT_EQ("its the shops fault", dialog.txtcanreason.Text());
    support::Press(dialog.txtcanreason, "Enter");
    EXPECT_EQ(&dialog.cmdok, dialog.ActiveControl());
    EXPECT_TRUE(dialog.IsShown());
    support::Click(dialog.cmdok);
  });
  EXPECT_EQ("1|Nora Halvard:its the shops fault", Header(20));
}

TEST_F(ReasonDialog, AsksAfreshForEveryRequest) {
  Ask([&](goods::frmcancelreason& dialog) {
    support::Type(dialog.txtcanreason, "first");
    support::Click(dialog.cmdok);
  });
  Open([&] {
    GoTo(19);
    shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/11 ?", Answer::Yes);
    shop.desktop.ExpectForm("frmcancelreason", [&](controls::Form& form) {
      EXPECT_EQ("", shop.session.gStrCancelReason);
      EXPECT_EQ("", Dialog(form).txtcanreason.Text());
      support::Type(Dialog(form).txtcanreason, "second");
      support::Click(Dialog(form).cmdok);
    });
    support::Click(Register().CmdDelete);
  });
  EXPECT_EQ("1|Nora Halvard:second", Header(19));
}

}  // namespace
