#include "src/editor/frm_request.h"
#include "tests/src/register/register_day.h"

namespace {

using controls::Answer;

/// Ctrl+R at the register: the selected request once more.
class SameAgain : public RegisterDay {
 protected:
  void Repeat(int requestId, const std::function<void(goods::frmRequest&)>& look) {
    GoTo(requestId);
    shop.desktop.ExpectForm("frmRequest", [&](controls::Form& form) { look(dynamic_cast<goods::frmRequest&>(form)); });
    support::Press(Grid(), "Ctrl+R");
  }
  void CloseUnsaved(goods::frmRequest& editor) {
    shop.desktop.ExpectMessage("Save Changes?", Answer::No);
    support::Click(editor.cmdCancel);
  }
  std::vector<std::string> Stored(int requestId) {
    return shop.Rows("select GRDitemID,GRDgoodQty from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=" +
                     std::to_string(requestId) + " order by GRDdetailID");
  }
};

TEST_F(SameAgain, TheLinesOfTheSelectedRequestMakeANewOne) {
  Open([&] {
    Repeat(27, [&](goods::frmRequest& editor) {
      EXPECT_EQ("N", shop.session.gStrEntryMode);
      EXPECT_EQ("", editor.txtRequestNo.Text());
      EXPECT_EQ("15/03/2024", editor.txtrequestDate.Text());
      EXPECT_EQ("", editor.txtRemarks.Text());
      CloseUnsaved(editor);
    });
    Repeat(27, [&](goods::frmRequest& editor) { support::Click(editor.cmdOK); });
    EXPECT_EQ("29", CurrentId());
  });
  EXPECT_FALSE(Stored(27).empty());
  EXPECT_EQ(Stored(27), Stored(29));
  EXPECT_EQ("GR24/21|0|",
            shop.Row("select GRHrequestno,GRHTransFinished,GRHremarks from mosGoodsRequestHeader where GRHrequestID=29"));
}

TEST_F(SameAgain, DocumentsStayWithTheFirstRequest) {
  Open([&] {
    Repeat(18, [&](goods::frmRequest& editor) {
      EXPECT_TRUE(editor.Entered().links.empty());
      EXPECT_FALSE(editor.chkcutomerrequest.IsChecked());
      CloseUnsaved(editor);
    });
  });
}

TEST_F(SameAgain, ItemsThatAreNoLongerSoldAreNamedAndLeftOut) {
  const std::vector<std::string> all = Stored(27);
  ASSERT_LE(2U, all.size());
  shop.Run("update aItem set forsales=0 where ItemId=" + all[0].substr(0, all[0].find('|')));
  Open([&] {
    shop.desktop.ExpectMessage("These are no longer active or not for sale and were left out:\r\nGC1005 Almonds blanched, 12.500",
                               Answer::Ok);
    Repeat(27, [&](goods::frmRequest& editor) {
      EXPECT_EQ(all.size() - 1, editor.Entered().lines.size());
      EXPECT_EQ("1", editor.lvwrequest.Item(1).Text());
      CloseUnsaved(editor);
    });
  });
}

TEST_F(SameAgain, TheNextNewRequestStartsEmpty) {
  Open([&] {
    Repeat(27, [&](goods::frmRequest& editor) { CloseUnsaved(editor); });
    shop.desktop.ExpectMessage("Do you want to add stock out items?", Answer::No);
    shop.desktop.ExpectForm(
        "frmRequest", [](controls::Form& form) { EXPECT_EQ(0, dynamic_cast<goods::frmRequest&>(form).lvwrequest.Count()); });
    support::Click(Register().cmdnew);
  });
}

TEST_F(SameAgain, WhoMayNotMakeRequestsRepeatsNone) {
  Open({4, 1, 1}, [&] {  // may delete and print
    GoTo(27);
    support::Press(Grid(), "Ctrl+R");
  });
}

}  // namespace
