#include <algorithm>
#include <utility>

#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using support::Click;
using support::Enter;
using support::Press;
using Texts = std::vector<std::string>;

class EditorWindow : public EditorShop {
 protected:
  static constexpr int kAsk = controls::kYesNoCancel + controls::kQuestion;
  void ExpectSaveQuestion(Answer answer) { desktop.ExpectMessage("Save Changes?", answer, kAsk); }
  void AddThreeLines() {
    AddLine(1, "1.000");
    AddLine(2, "2.000");
    AddLine(3, "3.000");
    editor->lvwrequest.SetTag("");
  }
};

TEST_F(EditorWindow, StockOutItemsAreProposedWhateverTheShopsLimitSays) {
  // Item 1 is exactly at its reorder level, 2 just above it, 4 and 5 are of the wrong type or inactive, 6 has no stock row.
  shop.Run("update aShops set MaxRequestItemsToHQ = 1");
  New(
      [&] {
        EXPECT_EQ((Texts{"1|CUP|24.000|1", "2|TEA|0.000|3"}), Lines());
        EXPECT_EQ("Tea", editor->lvwrequest.Item(2).SubItem(goods::kLineItemName));
        EXPECT_EQ("kg", editor->lvwrequest.Item(2).SubItem(goods::kLineUnit));
        EXPECT_EQ("", editor->lvwrequest.Item(1).SubItem(goods::kLinePartCode));
        EXPECT_TRUE(editor->optgoodreq.Value());
        ExpectNoSaving();
      },
      Answer::Yes);
  EXPECT_TRUE(log.Sent(
      "select itemcode,a.itemid,a.ItemReorderLevel,cast(cast(a.ReorderQuantity as decimal(18,3))  as varchar(20)) as "
      "reorderquantity,  "
      "z.ItemDescription from ashopitemdetail a,aitem b, vwitemdescription z, (select shopid, itemid, isnull(sum(stock),0) stock "
      "from "
      "vwInquiryShopStock s where shopid = 1 group by shopid, itemid) istock  where a.itemid = istock.itemid and a.shopid = "
      "istock.shopid and  a.itemid=b.itemid and b.itemid=z.itemid  and a.shopid= 1 and ItemReorderLevel >= istock.stock and "
      "b.itemtype "
      "<> 'B' and b.active = 1"));
}

TEST_F(EditorWindow, AProposalThatFailsIsReportedAndTheEditorIsThereAllTheSame) {
  session.gStrStockView = "vwNoSuchView";
  desktop.ExpectMessage("Do you want to add stock out items?", Answer::Yes);
  try {
    shop.Rows("select 1 from vwNoSuchView");
  } catch (const vb::RunTimeError& error) {
    ExpectError(error.Description(), "ProposeStockOutItems", error.Number());
  }
  session.gStrEntryMode = "N";
  editor->Load();
  desktop.Verify();
  EXPECT_TRUE(editor->optgoodreq.Value());
  EXPECT_TRUE(editor->cmdOK.Enabled());
}

/// Takes note of each error that is reported, and shows nothing.
class SilentErrorLog : public late::TableObject<SilentErrorLog> {
 public:
  explicit SilentErrorLog(std::function<void()> note) : note_(std::move(note)) {}
  static const late::MemberTable<SilentErrorLog>& Members() {
    static const late::MemberTable<SilentErrorLog> table{{"ErrorTrack",
                                                          [](SilentErrorLog& self, late::Arguments&) {
                                                            self.note_();
                                                            return late::Value(true);
                                                          },
                                                          nullptr, 8, 8}};
    return table;
  }
  std::string TypeName() const override { return "ErrorDetails"; }

 private:
  std::function<void()> note_;
};

TEST_F(EditorWindow, UnitsThatCannotBeReadAreToldOnceAndTheLinesAreThereAllTheSame) {
  std::vector<int> timeouts;  // at the moment of each report
  shop.registry.Unregister("ErrLog.ErrorDetails");
  shop.registry.Register("ErrLog.ErrorDetails", [&] {
    return std::make_shared<SilentErrorLog>([&] { timeouts.push_back(session.gAdoCon.CommandTimeout()); });
  });
  session.gAdoCon.SetCommandTimeout(45);
  log.Refuse("select u.UnitCode", 0);
  New(
      [&] {
        EXPECT_EQ((Texts{"1|CUP|24.000|1", "2|TEA|0.000|3"}), Lines());
        ExpectNoSaving();
      },
      Answer::Yes);
  EXPECT_EQ(std::vector<int>{0}, timeouts) << "a proposal may take as long as it takes";
  EXPECT_EQ(45, session.gAdoCon.CommandTimeout()) << "the host's own time-out again";
  Edit(7, [&] {
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines());
    EXPECT_TRUE(editor->cmdOK.Enabled()) << "a save needs no units";
  });
  EXPECT_EQ(2u, timeouts.size());
}

TEST_F(EditorWindow, ANewRequestWhoseOpeningFailsIsToTheGodownAllTheSame) {
  session.gStrEntryMode = "N";
  log.Refuse("select max(grhrequestid)", 0);
  ExpectError("Refused by the test", "Form_Load", -2147217900);
  editor->Load();
  desktop.Verify();
  EXPECT_TRUE(editor->optgoodreq.Value());
}

TEST_F(EditorWindow, AnExistingRequestShowsItsHeaderAndItsLinesWithAQuantity) {
  shop.Run(
      "insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID, GRDgoodQty) values (3, 1, 7, 3, 0), "
      "(4, 1, 7, 99, 1)");
  Edit(7, [&] {
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines());
    EXPECT_EQ("blue", editor->lvwrequest.Item(1).SubItem(goods::kLineRemarks));
    EXPECT_EQ("P-1", editor->lvwrequest.Item(2).SubItem(goods::kLinePartCode));
    EXPECT_EQ("pcs", editor->lvwrequest.Item(2).SubItem(goods::kLineUnit));
    EXPECT_TRUE(editor->optporeq.Value());
    EXPECT_FALSE(editor->optporeq.Enabled());
    EXPECT_FALSE(editor->optgoodreq.Enabled());
    EXPECT_TRUE(editor->cmdOK.Enabled());
  });
  EXPECT_TRUE(
      log.Sent("select itemcode,a.grditemid,cast(cast(a.grdgoodqty as decimal(18,3)) as varchar(20)) as grdgoodqty,  "
               "z.ItemDescription,a.grdshopid, "
               "grdreqcomments,isnull(b.part_code,'') part_code  from mosgoodsrequestdetail a,aitem b,vwitemdescription z where "
               "a.grditemid=b.itemid and b.itemid=z.itemid and GRDgoodQty >0 and a.grdrequestid=7 and a.grdshopid=1 "));
}

class ReplicatedShop : public EditorShop {
 protected:
  ReplicatedShop() : EditorShop(true) {}
};

TEST_F(ReplicatedShop, LinesComeInTheOrderTheyWereEntered) {
  shop.Run(
      "insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID, GRDgoodQty) values (0, 1, 7, 3, 9)");
  Edit(7, [&] { EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|4.000|1", "3|TEA|9.000|3"}), Lines()); });
  EXPECT_EQ(1u, log.Starting("select itemcode,a.grditemid").size());
  EXPECT_TRUE(log.Starting("select itemcode,a.grditemid").at(0).ends_with(" and a.grdshopid=1 order by a.rowguid"));
}

TEST_F(EditorWindow, ARequestThatWasIssuedOrFinishedCanOnlyBeLookedAt) {
  shop.Run("update mosGoodsRequestHeader set GRHTransFinished = 1 where GRHrequestID = 7");
  desktop.ExpectMessage("Transaction is confirmed as finished,Cannot modify", Answer::Ok, controls::kInformation);
  const auto look = [&] {
    EXPECT_FALSE(editor->cmdOK.Enabled());
    EXPECT_TRUE(editor->chkTransFinished.IsChecked());
    EXPECT_FALSE(editor->chkTransFinished.Enabled());
    for (const char* key : {"Enter", "Ctrl+Enter", "F10", "Delete"}) Press(editor->lvwrequest, key);
    support::RightClick(editor->lvwrequest);
    CheckDocuments({"I-101"});
    EXPECT_EQ("[ ] I-101", Documents().at(0));
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines());
    for (controls::TextBox* box : {&editor->txtRequestNo, &editor->txtrequestDate, &editor->txtRemarks}) {
      const std::string shown = box->Text();
      Enter(*box, "typed");
      box->Paste("pasted");
      for (const char* key : {"Backspace", "Delete"}) Press(*box, key);
      EXPECT_EQ(shown, box->Text()) << box->Name();
    }
    Press(editor->txtRemarks, "Esc");
    EXPECT_FALSE(editor->IsLoaded()) << "closing asks nothing";
  };
  Edit(7, look);
  shop.Run("update mosGoodsRequestHeader set GRHIssuenotegenerated = 1 where GRHrequestID = 7");
  desktop.ExpectMessage("Issue Note Generated,Cannot Modify", Answer::Ok, controls::kInformation);
  Edit(7, look);
}

TEST_F(EditorWindow, ARequestThatCannotBeReadToItsEndCannotBeSaved) {
  int errors = 0;
  shop.registry.Unregister("ErrLog.ErrorDetails");
  shop.registry.Register("ErrLog.ErrorDetails", [&] { return std::make_shared<SilentErrorLog>([&] { ++errors; }); });
  session.gStrEntryMode = "E";
  session.gLngRequestID = 7;
  editor->Load();
  const auto statements = static_cast<int>(log.lines.size());
  editor->Unload();
  for (int step = 1; step <= statements; ++step) {
    log.FailAt(step);
    editor->Load();
    EXPECT_EQ(step, errors) << "each failure is reported once";
    const bool complete = Lines() == Texts{"1|POT|2.500|2", "2|CUP|4.000|1"};
    EXPECT_TRUE(complete || !editor->cmdOK.Enabled()) << "step " << step;
    editor->Unload();
  }
}

TEST_F(EditorWindow, ClosingAsksOnlyWhenSomethingChanged) {
  Edit(7, [&] {
    Enter(editor->txtRemarks, " weekly  ");  // blanks around do not count
    Click(editor->cmdCancel);
    EXPECT_FALSE(editor->IsLoaded());
  });
  Edit(7, [&] {
    Enter(editor->txtRemarks, "monthly");
    desktop.ExpectForm("frmRequestDetail");
    Press(editor->lvwrequest, "Ctrl+Enter");  // what the remarks were at first is not forgotten on the way back
    ExpectSaveQuestion(Answer::Cancel);
    Click(editor->cmdCancel);
    ASSERT_TRUE(editor->IsLoaded());
    EXPECT_EQ("monthly", editor->txtRemarks.Text());

    editor->lvwrequest.Clear();
    ExpectSaveQuestion(Answer::Yes);
    desktop.ExpectMessage("Atleast one detail needed");
    Click(editor->cmdCancel);
    ASSERT_TRUE(editor->IsLoaded()) << "a refused save keeps it open";

    AddLine(1, "1.000");
    ExpectSaveQuestion(Answer::Yes);
    Click(editor->cmdCancel);
    EXPECT_FALSE(editor->IsLoaded());
  });
  EXPECT_EQ("monthly", shop.Row("select GRHremarks from mosGoodsRequestHeader where GRHrequestID = 7"));
  Edit(7, [&] {
    Enter(editor->txtRemarks, "never");
    ExpectSaveQuestion(Answer::No);
  });
  EXPECT_EQ("monthly", shop.Row("select GRHremarks from mosGoodsRequestHeader where GRHrequestID = 7"));
}

TEST_F(EditorWindow, DeletingALineAsksAndRenumbers) {
  New([&] {
    AddThreeLines();
    editor->lvwrequest.ClickItem(2);
    const std::string question = "Are you sure you want to delete \rTea pot";
    desktop.ExpectMessage(question, Answer::No, controls::kYesNo + controls::kQuestion + controls::kDefaultButton2);
    Press(editor->lvwrequest, "Delete");
    EXPECT_EQ(3, editor->lvwrequest.Count());
    desktop.ExpectMessage(question, Answer::Yes);
    Press(editor->lvwrequest, "Delete");
    EXPECT_EQ((Texts{"1|CUP|1.000|1", "2|TEA|3.000|3"}), Lines());
    ExpectSaveQuestion(Answer::No);
  });
}

TEST_F(EditorWindow, TheListOpensItemEntryTheWayItsUserMeans) {
  Texts opened;
  const auto expectItemEntry = [&] {
    desktop.ExpectForm("frmRequestDetail", [&](controls::Form&) {
      opened.push_back(session.gStrDetailMode + " " + std::to_string(editor->lngCurrentLine));
    });
  };
  New([&] {
    expectItemEntry();
    support::DoubleClick(editor->lvwrequest);
    expectItemEntry();
    Press(editor->lvwrequest, "Enter");
    expectItemEntry();
    Press(editor->lvwrequest, "F10");
    EXPECT_EQ((Texts{"N 0", "N 0", "N 0"}), opened);
    expectItemEntry();
    editor->txtRemarks.SetFocus();
    editor->mnuAdd.Click.Fire();
    EXPECT_TRUE(editor->lvwrequest.HasFocus()) << "where the next line is entered";

    opened.clear();
    AddThreeLines();
    editor->lvwrequest.ClickItem(2);
    expectItemEntry();
    Press(editor->lvwrequest, "Enter");
    expectItemEntry();
    Press(editor->lvwrequest, "F10");
    expectItemEntry();
    Press(editor->lvwrequest, "Ctrl+Enter");
    EXPECT_EQ((Texts{"E 2", "E 2", "N 3"}), opened);
    ExpectNoSaving();
  });
}

TEST_F(EditorWindow, TheMenuOffersWhatTheLinesAllow) {
  New([&] {
    AddLine(1, "0.000");
    desktop.ExpectMenu("");
    support::RightClick(editor->lvwrequest);
    EXPECT_EQ((Texts{"mnuAdd", "(mnuEdit)", "(mnudel)", "mnuCancel"}), desktop.lastMenu);
    AddLine(2, "1.000");
    desktop.ExpectMenu("mnudel");
    desktop.ExpectMessage("Are you sure you want to delete \rCup", Answer::Yes);
    support::RightClick(editor->lvwrequest);
    EXPECT_EQ((Texts{"mnuAdd", "mnuEdit", "mnudel", "mnuCancel"}), desktop.lastMenu);
    EXPECT_EQ((Texts{"1|POT|1.000|2"}), Lines());
    ExpectSaveQuestion(Answer::No);
  });
}

TEST_F(EditorWindow, TheLinesAreInSightWithAllTheirColumns) {
  New([&] {
    int together = 0;
    for (int column = 1; column <= editor->lvwrequest.ColumnCount(); ++column)
      together += editor->lvwrequest.Column(column).width;
    constexpr int kScrollBar = 300;
    EXPECT_LE(together + kScrollBar, editor->lvwrequest.Place().width);
  });
}

TEST_F(EditorWindow, EnterWalksThroughTheHeader) {
  New([&] {
    EXPECT_TRUE(editor->txtRemarks.HasFocus()) << "where a person begins";
    Press(editor->txtRequestNo, "Enter");
    EXPECT_TRUE(editor->txtrequestDate.HasFocus());
    Press(editor->txtrequestDate, "Enter");
    EXPECT_TRUE(editor->optgoodreq.HasFocus());
    Press(editor->txtRemarks, "Enter");
    EXPECT_TRUE(editor->sstabGoodsReq.HasFocus());
  });
  Edit(7, [&] { EXPECT_TRUE(editor->lvwrequest.HasFocus()); });
}

TEST_F(EditorWindow, ALongQuantityCanBeReadAtItsTip) {
  New([&] {
    AddLine(1, "1234567.500");
    editor->lvwrequest.ClickItem(1);
    EXPECT_EQ("1,234,567.500", editor->lvwrequest.Item(1).SubItemToolTip(goods::kLineQty));
    ExpectSaveQuestion(Answer::No);
  });
}

TEST_F(EditorWindow, TheGodownIsCalledWhatTheSuiteCallsIt) {
  New([&] { EXPECT_EQ("To &Godown", editor->optgoodreq.Caption()); });
  shop.Run("update aPackageSettings set alias = 1");
  New([&] { EXPECT_EQ("To Warehouse", editor->optgoodreq.Caption()); });
  EXPECT_TRUE(log.Sent("select Alias from aalias where aliasid =2"));
}

TEST_F(EditorWindow, EachOpeningStartsAfresh) {
  Edit(7, [&] {
    Enter(editor->txtRemarks, "forgotten");
    ExpectSaveQuestion(Answer::No);
  });
  New([&] {
    EXPECT_EQ("", editor->txtRequestNo.Text());
    EXPECT_EQ("15/03/2024", editor->txtrequestDate.Text());
    EXPECT_EQ(0, editor->lvwrequest.Count());
    EXPECT_TRUE(editor->optgoodreq.Enabled());
    EXPECT_EQ(8, session.gLngRequestID);
  });
}

}  // namespace
}  // namespace editor_test
