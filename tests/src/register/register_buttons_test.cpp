#include "src/editor/frm_request.h"
#include "src/register/frm_cancel_reason.h"
#include "tests/src/register/register_day.h"

namespace {

constexpr const char* kStockOut = "Do you want to add stock out items?";
constexpr const char* kDeleted = "This record is already Deleted ";

struct RightsCase {
  const char* name;
  int user;
  const char* rights;
};

class Rights : public RegisterDay, public testing::WithParamInterface<RightsCase> {};

TEST_P(Rights, DecideWhatTheUserMayDoWithALiveRequest) {
  Open({GetParam().user, 1, 1}, [&] {
    GoTo(18);
    EXPECT_EQ(GetParam().rights, Enabled());
  });
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

INSTANTIATE_TEST_SUITE_P(Users, Rights,
                         testing::Values(RightsCase{"AllFourLetters", 1, "NEDP"},
                                         RightsCase{"SmallLettersAmongBlanks", 2, "NEDP"}, RightsCase{"TheWordAdmin", 3, ""},
                                         RightsCase{"DeleteAndPrint", 4, "DP"}, RightsCase{"NoRightsForThisInterface", 5, "N"},
                                         RightsCase{"NullRights", 6, ""}, RightsCase{"EmptyRights", 7, ""},
                                         RightsCase{"AdminInSmallLettersWithABlank", 8, ""}),
                         [](const auto& tested) { return std::string(tested.param.name); });

class RegisterButtons : public RegisterDay {
 protected:
  /// What a person who looks at the register after another form has closed finds.
  void ComeBackFromThePrintDialog() {
    shop.workstation.WriteSettings({{"windowsprint", "0"}, {"printtoscreen", "1"}});
    shop.desktop.ExpectForm("frmPrint");
    Register().Cmdprev.Click.Fire();
  }
};

TEST_F(RegisterButtons, AUserWithoutARightsRowIsUnrestrictedUntilTheFirstJudgement) {
  shop.session.gIntUserID = 5;
  shop.session.gStrUserRights = "NEDP";  // of the one before
  Register().Load();
  EXPECT_EQ("NEDP", Enabled());
  Grid().SetRow(3);
  EXPECT_EQ("N", Enabled());
}

TEST_F(RegisterButtons, NobodyWithoutRightsGetsToALiveRequestByWayOfACancelledOne) {
  shop.Run("update mosGoodsRequestHeader set GRHcancel = 1 where GRHshopID = 1 and GRHrequestID = 13");
  Open({5, 1, 1}, [&] {
    EXPECT_EQ("NE", Enabled()) << "on a cancelled request Edit stays what it was";
    GoTo(18);
    EXPECT_EQ("N", Enabled());
    GoTo(13);
    EXPECT_EQ("N", Enabled());
  });
  Open({1, 1, 1}, [&] {
    EXPECT_EQ("NEP", Enabled());
    GoTo(18);
    EXPECT_EQ("NEDP", Enabled());
  });
}

TEST_F(RegisterButtons, RightsThatCannotBeReadAllowNothing) {
  shop.Run("drop table louserrights");
  Open([&] {
    EXPECT_NE("", Listed());
    EXPECT_EQ("", Enabled());
    GoTo(18);
    EXPECT_EQ("", Enabled());
  });
  ASSERT_EQ(1u, errors->lines.size());
  EXPECT_TRUE(errors->lines[0].starts_with("frmMaster |Form_Load|")) << errors->lines[0];
}

TEST_F(RegisterButtons, ACancelledRequestCanBeLookedAtAndPrintedButNotDeleted) {
  Open([&] {
    GoTo(16);
    EXPECT_EQ("NEP", Enabled());
    ComeBackFromThePrintDialog();
    EXPECT_EQ("NEP", Enabled());  // Edit keeps what it was
    GoTo(18);
    EXPECT_EQ("NEDP", Enabled());
    Register().CmdEdit.SetEnabled(false);
    GoTo(17);
    ComeBackFromThePrintDialog();
    EXPECT_EQ("NP", Enabled());
    GoTo(18);
    ComeBackFromThePrintDialog();
    EXPECT_EQ("NEDP", Enabled());
  });
}

TEST_F(RegisterButtons, KeysAndMouseOnTheGridDoWhatTheButtonsDo) {
  Open([&] {
    GoTo(18);
    shop.desktop.ExpectForm("frmRequest");
    support::Press(Grid(), "Enter");
    shop.desktop.ExpectForm("frmRequest");
    support::DoubleClick(Grid());
    shop.desktop.ExpectMessage(kStockOut, controls::Answer::No);
    shop.desktop.ExpectForm("frmRequest");
    support::Press(Grid(), "Ctrl+Enter");
    shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/10 ?", controls::Answer::No);
    support::Press(Grid(), "Delete");

    Grid().MoveMouse(RowOf(13), goods::kRegisterRemarks);
    EXPECT_EQ("Workshop fitting, project", Grid().ToolTipText());
    Grid().MoveMouse(0, goods::kRegisterNo);
    EXPECT_EQ("Request No", Grid().ToolTipText());
    shop.log.Clear();
    for (int times = 0; times < 2; ++times) {
      Grid().MoveMouse(RowOf(16), goods::kRegisterCancelled);
      EXPECT_EQ("Yes - Nora Halvard:Customer has changed his mind", Grid().ToolTipText());
    }
    EXPECT_EQ(1u, shop.log.lines.size()) << "asked for once";
  });
}

TEST_F(RegisterButtons, AfterTheFormOfACommandTheListHasTheFocus) {
  shop.workstation.WriteSettings({{"windowsprint", "0"}, {"printtoscreen", "1"}});
  Open([&] {
    GoTo(18);
    for (controls::CommandButton* button :
         {&Register().cmdnew, &Register().CmdEdit, &Register().Cmdprev, &Register().CmdDelete}) {
      if (button == &Register().cmdnew) shop.desktop.ExpectMessage(kStockOut, controls::Answer::No);
      if (button == &Register().CmdDelete)
        shop.desktop.ExpectMessage("Are you sure you want to Delete GR24/10 ?", controls::Answer::Yes);
      shop.desktop.ExpectForm(button == &Register().Cmdprev     ? "frmPrint"
                              : button == &Register().CmdDelete ? "frmcancelreason"
                                                                : "frmRequest",
                              [](controls::Form& form) {
                                if (auto* reason = dynamic_cast<goods::frmcancelreason*>(&form))
                                  support::Type(reason->txtcanreason, "twice");
                              });
      support::Click(*button);
      EXPECT_TRUE(Grid().HasFocus()) << button->Name();
    }
  });
}

TEST_F(RegisterButtons, KeysDoNothingWhereTheButtonIsOff) {
  Open({4, 1, 1}, [&] {  // may delete and print alone
    GoTo(18);
    support::Press(Grid(), "Enter");
    support::Press(Grid(), "Ctrl+Enter");
    support::DoubleClick(Grid());
    GoTo(16);
    support::Press(Grid(), "Delete");
  });
  EXPECT_EQ(std::vector<std::string>{"frmMaster"}, shop.desktop.opened);
}

TEST_F(RegisterButtons, TheSelectionTakesTheColourOfWhatIsSelected) {
  Open([&] {
    EXPECT_EQ(controls::kHighlightText, Grid().BackColorSel());
    EXPECT_NE(Grid().BackColorSel(), Grid().ForeColorSel());  // the selected text stays readable
    GoTo(16);
    shop.desktop.ExpectMessage(kDeleted);
    shop.desktop.ExpectForm("frmRequest");
    support::Press(Grid(), "Enter");
    EXPECT_EQ(controls::kRed, Grid().BackColorSel());
    GoTo(18);
    EXPECT_EQ(controls::kHighlightText, Grid().BackColorSel());
    Grid().SelectRange(2, 5);
    EXPECT_EQ(controls::kCyan, Grid().BackColorSel());
  });
}

TEST_F(RegisterButtons, NewOpensAnEmptyEditorWithTheProcessDate) {
  Open([&] {
    shop.workstation.now = vb::MakeDate(2024, 3, 15, 11, 45, 0);
    shop.desktop.ExpectMessage(kStockOut, controls::Answer::No);
    shop.desktop.ExpectForm("frmRequest", [&](controls::Form& form) {
      auto& editor = dynamic_cast<goods::frmRequest&>(form);
      EXPECT_EQ("N", shop.session.gStrEntryMode);
      EXPECT_EQ("15/03/2024", editor.txtrequestDate.Text());
      EXPECT_EQ("", editor.txtRemarks.Text());
      EXPECT_EQ(shop.workstation.now.days, shop.session.gObjUserAuditing.Object()->Get("LoggedTime").ToDate().days);
    });
    support::Click(Register().cmdnew);
  });
}

TEST_F(RegisterButtons, EditHandsTheSelectedRequestToTheEditor) {
  Open([&] {
    GoTo(18);
    shop.desktop.ExpectForm("frmRequest", [&](controls::Form& form) {
      auto& editor = dynamic_cast<goods::frmRequest&>(form);
      EXPECT_EQ("E", shop.session.gStrEntryMode);
      EXPECT_EQ(18, shop.session.gLngRequestID);
      EXPECT_EQ("GR24/10", editor.txtRequestNo.Text());
      EXPECT_EQ("13/02/2024", editor.txtrequestDate.Text());
      EXPECT_EQ("Customer glasses", editor.txtRemarks.Text());
      EXPECT_TRUE(editor.cmdOK.Enabled());
      ASSERT_GE(editor.lvwCustomerReq.Count(), 1);
      EXPECT_TRUE(editor.lvwCustomerReq.Item(1).Checked());
    });
    support::Click(Register().CmdEdit);

    GoTo(16);  // cancelled: can only be looked at
    shop.desktop.ExpectMessage(kDeleted, controls::Answer::Ok, controls::kInformation);
    shop.desktop.ExpectForm("frmRequest", [&](controls::Form& form) {
      const auto& editor = dynamic_cast<goods::frmRequest&>(form);
      EXPECT_FALSE(editor.cmdOK.Enabled());
      EXPECT_TRUE(editor.txtRemarks.Locked());
    });
    support::Click(Register().CmdEdit);
  });
  EXPECT_TRUE(shop.log.Sent(
      "select h.ihInvoiceNo,d.reqinvdinvoiceid from losinvoiceheader h,mosrequestinvdetail d where h.ihShopID = d.reqinvdshopid "
      "And h.ihInvoiceID = d.reqinvdinvoiceid and h.ihCompanyId=d.reqcompanyid and d.reqcompanyid=1 and d.reqinvdshopid=1 and "
      "d.reqdid=18"));
}

TEST_F(RegisterButtons, EditOnTheHeadingIsRefused) {
  Open([&] {
    support::GoToRow(Grid(), 0);
    shop.desktop.ExpectMessage("No Request No. Selected ", controls::Answer::Ok, controls::kInformation);
    support::Click(Register().CmdEdit);
    EXPECT_EQ("Shop", shop.desktop.messages.back().title);
  });
}

TEST_F(RegisterButtons, AnEditThatFailsOnItsWayDoesNotShowThroughInTheNextNew) {
  Open([&] {
    GoTo(18);
    shop.Run("drop table mosRequestInvDetail");
    support::Click(Register().CmdEdit);
    ASSERT_EQ(1u, errors->lines.size());
    EXPECT_TRUE(errors->lines[0].starts_with("frmMaster |CmdEdit_Click|")) << errors->lines[0];
    shop.desktop.ExpectMessage(kStockOut, controls::Answer::No);
    shop.desktop.ExpectForm("frmRequest", [&](controls::Form& form) {
      auto& editor = dynamic_cast<goods::frmRequest&>(form);
      EXPECT_EQ(0, editor.lvwrequest.Count());
      EXPECT_TRUE(editor.optgoodreq.Enabled());
    });
    support::Click(Register().cmdnew);
  });
}

TEST_F(RegisterButtons, RefreshRewritesTheSelectedRequestWithItsOwnValues) {
  Open([&] {
    GoTo(21);
    const std::string before = shop.Row("select * from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=21");
    shop.log.Clear();
    shop.desktop.ExpectMenu("mnurefresh");
    support::RightClick(Grid());
    EXPECT_EQ(std::vector<std::string>{"mnurefresh"}, shop.desktop.lastMenu);
    EXPECT_EQ(
        (std::vector<std::string>{"update mosgoodsrequestheader set GRHcancel=GRHcancel where  GRHrequestID=21 and GRHshopID=1",
                                  "update mosgoodsrequestdetail set GRDbadQty=GRDbadQty where GRDrequestID=21 and GRDshopID=1"}),
        shop.log.lines);
    EXPECT_EQ(before, shop.Row("select * from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=21"));

    shop.log.Clear();
    support::GoToRow(Grid(), 0);
    shop.desktop.ExpectMenu("mnurefresh");
    support::RightClick(Grid());
    EXPECT_TRUE(shop.log.lines.empty());  // the heading is no request
  });
}

TEST_F(RegisterButtons, CloseEndsTheSession) {
  Open([&] {
    support::Click(Register().CmdClose);
    EXPECT_FALSE(Register().IsShown());
  });
}

}  // namespace
