#include <gtest/gtest.h>

#include "tests/src/printing/slip_shop.h"

namespace {

using support::Drawn;
using support::SlipShop;

TEST(RequestSlip, EverythingOffIsHeadingsLinesAndTheUser) {
  SlipShop shop;
  shop.Settings({});
  shop.AddLine(1, 11, "2.5");
  shop.AddLine(2, 12, "12");
  EXPECT_EQ(shop.PrintToScreen(), Drawn(R"(
Sl.No Item Description    Quantity  Unit
    1 Green tea              12.00    Pc
    2 Rice 25 kg              2.50   Bag


Ana Lima - 15/03/2024 10:30:05
)"));
}

TEST(RequestSlip, EverythingOnFillsAWidePage) {
  SlipShop shop;
  shop.Run(R"(insert into smpItemRetailPacking (ItemId,PackingTypeId) values (11,1)
insert into losShopItemShipmentDetail (ItemId,PackingTypeId,ShopId,SellingPrice) values (11,1,1,15.75))");
  shop.Settings({{"pagewidth", "80"},
                 {"showcostintrans", "1"},
                 {"showspintransrep", "1"},
                 {"showitemcodeinprint", "1"},
                 {"printinsavedorder", "1"},
                 {"showtotalqty", "1"},
                 {"printheadertopline", "1"},
                 {"printheaderbottomline", "1"},
                 {"printdetailbottomline", "1"},
                 {"spaceinlinecode", "1"}});
  shop.AddLine(1, 12, "12");
  shop.AddLine(2, 11, "2.5");
  EXPECT_EQ(shop.PrintToScreen(), Drawn(R"(
- - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - -
Sl.No Code     Item Description      Quantity  Unit  Cost Pr Total Cost  Sell Pr
- - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - -
    1 R25      Rice 25 kg                2.50   Bag    11.06      27.64    15.75
    2 TEA      Green tea                12.00    Pc     3.52      42.24     0.00
- - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - -
                     Grand Total:      14.500


Ana Lima - 15/03/2024 10:30:05
)"));
}

TEST(RequestSlip, CostAloneEndsWithItsOwnTotal) {
  SlipShop shop;
  shop.Settings({{"pagewidth", "60"}, {"showcostintrans", "1"}});
  shop.AddLine(1, 11, "2");
  EXPECT_EQ(shop.PrintToScreen(), Drawn(R"(
Sl.No Item Description    Quantity  Unit  Cost Pr Total Cost
    1 Rice 25 kg              2.00   Bag    11.06      22.11
                                         Grand Total : 22.11



Ana Lima - 15/03/2024 10:30:05
)"));
}

TEST(RequestSlip, ARequestWithoutLinesStillHasItsTotal) {
  SlipShop shop;
  shop.Settings({{"showtotalqty", "1"}});
  EXPECT_EQ(shop.PrintToScreen(), Drawn(R"(
Sl.No Item Description    Quantity  Unit
          Grand Total:       0.000


Ana Lima - 15/03/2024 10:30:05
)"));
}

TEST(RequestSlip, ColumnsCountCharactersWhateverTheScript) {
  SlipShop shop;
  shop.AddItem(13, "ЧАЙ", "Чай чёрный крупнолистовой", 1, "1");
  shop.AddItem(14, "SEÑ", "Señorío añejo", 1, "1");
  shop.Settings({{"showitemcodeinprint", "1"}, {"printinsavedorder", "1"}});
  shop.AddLine(1, 13, "1");
  shop.AddLine(2, 14, "1");
  EXPECT_EQ(shop.PrintToScreen(), Drawn(R"(
Sl.No Code     Item Description  Quantity  Unit
    1 ЧАЙ      Чай чёрны      1.00   Bag
    2 SEÑ      Señorío a      1.00   Bag


Ana Lima - 15/03/2024 10:30:05
)"));
}

TEST(RequestSlip, PaperGetsTheHeaderAndAFormFeedBetweenPages) {
  SlipShop shop;
  shop.Settings({{"internalprintnoofrecords", "1"},
                 {"pagewidth", "50"},
                 {"headerleftmargin", "2"},
                 {"linetoskipfirst", "1"},
                 {"printtransnameabove", "1"},
                 {"PrintCompanyName", "1"},
                 {"printadd1", "1"},
                 {"printadd3", "1"},
                 {"linesafterheader", "1"},
                 {"totalheadcount", "12"}});
  shop.AddLine(1, 11, "1");
  shop.AddLine(2, 12, "2");
  EXPECT_EQ(shop.PrintToPort(), "\r\n" + Drawn(R"(
               Goods Request To Hq                
  Harbour Stores
  1 Quay Street
  Old Port
  Quay Shop
  12 Front Row               Request No     : GR/5
  Porto , Portugal     Request Date   : 15/03/2024
  Tel:555-100  Fax: 555-101
  Remarks      :  For the weekend

Sl.No Item Description              Quantity  Unit
    1 Green tea                         2.00    Pc
)") + "\f" + Drawn(R"(
Sl.No Item Description              Quantity  Unit
    2 Rice 25 kg                        1.00   Bag


Ana Lima - 15/03/2024 10:30:05
)"));
}

TEST(RequestSlip, FootersOnEachPageCarryTheShopsMessages) {
  SlipShop shop;
  shop.Run(R"(insert into ashopprintmessages (shopid,transtype,messageid,message,allignment) values (1,'POSPO',2,'right','R')
insert into ashopprintmessages (shopid,transtype,messageid,message,allignment) values (1,'POSPO',1,'left','L')
insert into ashopprintmessages (shopid,transtype,messageid,message,allignment) values (1,'POSPO',3,'in the middle','m')
insert into ashopprintmessages (shopid,transtype,messageid,message,allignment) values (1,'POSPO',4,'a right message that is longer than the page','R')
insert into ashopprintmessages (shopid,transtype,messageid,message,allignment) values (1,'OTHER',1,'not ours','L'))");
  shop.Settings({{"internalprintnoofrecords", "1"}, {"printfooterineachpage", "1"}});
  shop.AddLine(1, 11, "1");
  shop.AddLine(2, 12, "2");
  const std::string footer = Drawn(R"(

left
                                   right
              in the middle
a right message that is longer than the page

Ana Lima - 15/03/2024 10:30:05
)");
  const std::string headings = "Sl.No Item Description    Quantity  Unit\r\n";
  EXPECT_EQ(shop.PrintToScreen(), headings + "    1 Green tea               2.00    Pc\r\n" + footer + headings +
                                      "    2 Rice 25 kg              1.00   Bag\r\n" + footer);
}

TEST(RequestSlip, TheTitleBelowTheRemarksIsFollowedByAnEmptyLine) {
  SlipShop shop;
  shop.Settings({{"pagewidth", "41"}});
  const std::string slip = shop.PrintToPort();
  EXPECT_NE(slip.find("Remarks      :  For the weekend\r\n          Goods Request To HQ            \r\n\r\nSl.No"),
            std::string::npos)
      << slip;
}

TEST(RequestSlip, WidthsThatCannotBeAreErrorsOfTheRoutine) {
  struct Case {
    const char* what;
    std::map<std::string, std::string> settings;
    const char* reported;
  };
  for (const Case& wrong : {Case{"no room for the description", {{"pagewidth", "20"}}, "frmMaster |PrintBill|5|"},
                            Case{"a width beyond 16 bits", {{"pagewidth", "40000"}}, "frmMaster |PrintBill|6|"},
                            Case{"arithmetic beyond 16 bits", {{"SlNo", "-32000"}, {"Qty", "-32000"}}, "frmMaster |PrintBill|6|"},
                            Case{"no step between dashes", {{"spaceinlinecode", "-1"}}, "frmMaster |PrintBill|11|"}}) {
    SlipShop shop;
    shop.Settings(wrong.settings);
    shop.PrintToScreen();
    EXPECT_EQ(shop.errors->lines, std::vector<std::string>{wrong.reported}) << wrong.what;
  }
}

TEST(RequestSlip, WhatGoesWrongBeforeTheFirstLineLeavesTheLastSlipAlone) {
  SlipShop shop;
  shop.Settings({{"spaceinlinecode", "-1"}});
  shop.workstation.files["LPT1"] = "the last slip";
  EXPECT_EQ(shop.PrintToPort(), "the last slip");
  shop.Settings({});
  shop.log.FailAt(1);
  EXPECT_EQ(shop.PrintToPort(), "the last slip");
  EXPECT_TRUE(shop.log.HasFailed());
  EXPECT_EQ(shop.errors->lines.size(), 2u);
}

TEST(RequestSlip, ALineThatCannotBeSetEndsTheSlipThere) {
  SlipShop shop;
  shop.Settings({{"showitemcodeinprint", "1"}, {"Unit", "-3"}});
  shop.AddLine(1, 11, "1");
  EXPECT_EQ(shop.PrintToScreen(), Drawn(R"(
Sl.No Code Item Description             Quantity Unit
)"));
  EXPECT_EQ(shop.errors->lines, std::vector<std::string>{"frmMaster |PrintBill|5|"});
}

TEST(RequestSlip, AHeaderOrFooterThatFailsIsToldAsItsOwnAndTheSlipGoesOn) {
  SlipShop shop;
  shop.Settings({{"pagewidth", "40"}, {"headerleftmargin", "40000"}});
  shop.AddLine(1, 11, "1");
  shop.log.FailAt(3);  // the lines, the user's name for the header's error, the footer's messages
  EXPECT_EQ(shop.PrintToPort(), Drawn(R"(
Sl.No Item Description    Quantity  Unit
    1 Rice 25 kg              1.00   Bag

)"));
  ASSERT_EQ(shop.errors->lines.size(), 2u);
  EXPECT_EQ(shop.errors->lines[0], "frmMaster |HeaderPrint|6|");
  EXPECT_TRUE(shop.errors->lines[1].starts_with("frmMaster |FooterPrint|")) << shop.errors->lines[1];
}

TEST(RequestSlip, SettingsAreReadAnewForEveryPrint) {
  SlipShop shop;
  shop.Settings({});
  const std::string narrow = shop.PrintToScreen();
  shop.Settings({{"pagewidth", "60"}});
  EXPECT_NE(shop.PrintToScreen(), narrow);
}

TEST(RequestSlip, AnAbsentKeyIsToldAndCountsAsNought) {
  SlipShop shop;
  shop.Settings({});
  std::string& file = shop.workstation.files["C:\\shop\\ShopSetting.txt"];
  const std::size_t line = file.find("showtotalqty");
  file.erase(line, file.find('\n', line) - line + 1);
  shop.desktop.ExpectMessage("showtotalqty  invalid parameter in Settings.ini file", controls::Answer::Ok, controls::kCritical);
  EXPECT_NE(shop.PrintToScreen().find("Ana Lima"), std::string::npos);
}

}  // namespace
