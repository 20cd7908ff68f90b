#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using Texts = std::vector<std::string>;

constexpr const char* kLeaveOut = "1 of 2 proposed items is already requested. Leave it out?";

/// What the shop's settings want of a stock-out proposal of CUP and TEA. Request GR/7 asks for CUP.
class ProposalReview : public EditorShop {
 protected:
  void Settings(const std::map<std::string, std::string>& settings) { shop.workstation.WriteSettings(settings); }
  /// Accepts the proposal; `told` is what is said of it.
  void Propose(const std::vector<std::pair<std::string, Answer>>& told, Work work) {
    session.gStrEntryMode = "N";
    desktop.ExpectMessage("Do you want to add stock out items?", Answer::Yes);
    for (const auto& [text, answer] : told) desktop.ExpectMessage(text, answer);
    editor->txtrequestDate.SetText(vb::DateText(session.gDtProcessDate));
    editor->txtRemarks.SetText("");
    desktop.ExpectForm("frmRequest", [&](controls::Form&) {
      work();
      ExpectNoSaving();
      support::Click(editor->cmdCancel);
    });
    editor->Show();
    desktop.Verify();
  }
};

TEST_F(ProposalReview, ItemsAlreadyRequestedAreLeftOut) {
  Settings({{"showrequested", "1"}});
  log.Clear();
  Propose({{kLeaveOut, Answer::Yes}}, [&] {
    EXPECT_EQ(Texts{"1|TEA|0.000|3"}, Lines());
    EXPECT_EQ(1u, log.Starting("select d.GRDitemID").size()) << "one statement for all items";
  });
  shop.Run("update mosGoodsRequestHeader set GRHcancel=1");
  Propose({}, [&] { EXPECT_EQ(2u, Lines().size()); });
}

TEST_F(ProposalReview, OrTheyAreKeptAndRed) {
  Settings({{"showrequested", "1"}});
  Propose({{kLeaveOut, Answer::No}}, [&] {
    EXPECT_EQ((Texts{"1|CUP|24.000|1", "2|TEA|0.000|3"}), Lines());
    const auto color = [&](int line) { return editor->lvwrequest.Item(line).CellForeColor(goods::kLineItemName); };
    EXPECT_EQ(controls::kRed, color(1));
    EXPECT_EQ(controls::kDefaultColor, color(2));
    EXPECT_EQ("Already requested: 4.000 in GR/7 of 10/03/2024", editor->lvwrequest.ToolTipAt(1, 1 + goods::kLineItemName));
    editor->lvwrequest.Select(2);
    desktop.ExpectMessage("Are you sure you want to delete \rTea", Answer::Yes);
    support::Press(editor->lvwrequest, "Delete");
    support::Press(editor->lvwrequest, "Ctrl+Z");
    EXPECT_EQ(controls::kRed, color(1)) << "what is taken back leaves the other lines as they are";
  });
}

TEST_F(ProposalReview, QuantitiesAreWholePacksOfTheSmallestPacking) {
  Settings({{"packproposals", "1"}});
  shop.Run("update aShops set MaxRequestItemsToHQ=1");
  shop.Run("insert into aPackingType(PackingTypeID,PackingTypeName) values(71,'Tray'),(72,'Crate')");
  shop.Run("insert into aItemPackingDetail(ItemID,PackingTypeID,Active) values(1,71,1),(1,72,1)");
  shop.Run(
      "insert into aPackingTypeCapacityDetail(PackingTypeID,UnitsID,Quantity) select 71,unitsid,10 from aItem where itemid=1");
  shop.Run(
      "insert into aPackingTypeCapacityDetail(PackingTypeID,UnitsID,Quantity) select 72,unitsid,40 from aItem where itemid=1");
  Propose({{"These are beyond the shop's limit of 1 lines:\r\nTEA Tea, 0.000", Answer::Ok}}, [&] {
    EXPECT_EQ((Texts{"1|CUP|30.000|1", "2|TEA|0.000|3"}), Lines());
  });
}

TEST_F(ProposalReview, AnErrorIsReportedAndTheProposalStays) {
  Settings({{"showrequested", "1"}});
  log.Refuse("select d.GRDitemID", 1222);
  Propose({{"Refused by the test\n(frmRequest AskAboutRequested, -2147217871)", Answer::Ok}},
          [&] { EXPECT_EQ(2u, Lines().size()); });
}

}  // namespace
}  // namespace editor_test
