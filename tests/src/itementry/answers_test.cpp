#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

/// What the form tells about the chosen item where the shop's settings want it.
class Answers : public ItemEntryShop {
 protected:
  void Settings(const std::map<std::string, std::string>& settings) { shop.workstation.WriteSettings(settings); }
  std::string Told() {
    return form->lblRequested.Caption() + "|" + form->lblStock.Caption() + "|" + form->lblExplained.Caption();
  }
  /// A request of today over the item with id 1.
  void Requested(int requestId, std::string_view quantity, std::string_view cancelled = "0", std::string_view issued = "0") {
    const std::string id = std::to_string(requestId);
    shop.Run(
        "insert into mosGoodsRequestHeader(GRHrequestID,grhshopid,grhrequestno,grhrequestdate,GRHcancel,"
        "grhIssuenotegenerated) values(" +
        id + ",1,'GR24/" + id + "','20240314'," + std::string(cancelled) + "," + std::string(issued) + ")");
    shop.Run("insert into mosGoodsRequestDetail(GRDDetailid,GRDshopID,GRDrequestID,GRDitemID,GRDgoodQty) values(1,1," + id +
             ",1," + std::string(quantity) + ")");
  }
};

TEST_F(Answers, NothingIsAskedWithoutASetting) {
  const int designed = [&] {
    int height = 0;
    Add([&] {
      height = form->lvwpacktype.Place().height;
      Scan("KT1001");
      EXPECT_EQ("||", Told());
      EXPECT_FALSE(form->lblStock.Visible());
    });
    return height;
  }();
  Settings({{"showstock", "1"}});
  Add([&] { EXPECT_LT(form->lvwpacktype.Place().height, designed); });
  Settings({{"showstock", "0"}});
  Add([&] { EXPECT_EQ(designed, form->lvwpacktype.Place().height) << "the form is designed again"; });
}

TEST_F(Answers, WhatIsOnItsWayIsToldWithOneStatement) {
  Settings({{"showrequested", "1"}});
  Requested(101, "12");
  Requested(102, "1.5");
  Requested(103, "7", "1");
  Requested(104, "7", "0", "1");
  Add([&] {
    shop.log.Clear();
    Scan("KT1001");
    EXPECT_EQ(1u, shop.log.Starting("select d.GRDitemID").size());
    EXPECT_EQ(
        "Already requested: 1.500 in GR24/102 of 14/03/2024, 12.000 in GR24/101 of 14/03/2024||"
        "on its way 13.5, free in godowns 120: 40",
        Told());
    Scan("KT1017");
    EXPECT_TRUE(Told().starts_with("||on its way 0, free in godowns")) << Told();
    Refused("Scan valid barcode ");
    Scan("nothing");
    EXPECT_EQ("||", Told());
  });
  for (int request = 105; request < 110; ++request) Requested(request, "1");
  session.gLngRequestID = 109;
  session.gStrEntryMode = "E";
  GivenLine(1, "3.000");
  Edit(1, [&] {
    EXPECT_EQ(
        "Already requested: 1.000 in GR24/108 of 14/03/2024, 1.000 in GR24/107 of 14/03/2024, 1.000 in GR24/106 of "
        "14/03/2024 and 3 more",
        form->lblRequested.Caption())
        << "the edited request is not told";
  });
}

TEST_F(Answers, TheStockAndTheReasonForTheQuantityAreTold) {
  Settings({{"showstock", "1"}, {"showrequested", "1"}});
  Add([&] {
    Scan("KT1012");
    support::Enter(form->txtQuantity, "24");
    support::Press(form->txtQuantity, "Enter");
    EXPECT_NE(std::string::npos, form->lblExplained.Caption().find(": 24 = 2 Dozen")) << form->lblExplained.Caption();
    support::Enter(form->txtQuantity, "25");
    support::Press(form->txtQuantity, "Enter");
    EXPECT_TRUE(form->lblExplained.Caption().ends_with(": 25")) << form->lblExplained.Caption();
    support::Click(form->cmdOk);
    EXPECT_EQ("||", Told());
  });
}

TEST_F(Answers, AStatementThatFailsIsReportedAndTheItemStaysChosen) {
  Settings({{"showstock", "1"}});
  Add([&] {
    shop.log.Refuse("select sd.ItemReorderLevel", 1222);
    ExpectError("Refused by the test", "ShowAnswers", -2147217871);
    Scan("KT1001");
    EXPECT_EQ("Frying pan 20 cm||", ChosenItem() + Told().substr(0, 2));
  });
}

}  // namespace
}  // namespace itementry_test
