#include "base/vb/text.h"
#include "tests/src/register/register_day.h"

namespace {

using goods::kRegisterRemarks;

class RegisterList : public RegisterDay {};

TEST_F(RegisterList, ShowsTheRequestsAfterTheFromDateOneARow) {
  Open([&] {
    EXPECT_EQ("13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28", Listed());  // 12 is dated on the from-date itself
    EXPECT_EQ("Request ID|Request No|Request Date|Remarks|Cancelled|Finished", RowText(0));
    EXPECT_EQ("13|GR24/5|16/01/2024|Workshop fitting, project|No|Yes", RowText(RowOf(13)));
    EXPECT_EQ("25|GR24/17|12/03/2024||No|No", RowText(RowOf(25)));  // a null remark
    EXPECT_EQ("Goods Request to HQ", Register().Caption());
  });
  EXPECT_TRUE(
      shop.log.Sent("select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks,  CASE GRHcancel when 1 then 'Yes' when 0 then "
                    "'No' end , CASE GRHtransfinished when 1 then 'Yes' when 0 then 'No' end from mosGoodsRequestHeader where "
                    "GRHshopid=1  and grhrequestdate >'20240115' order by GRHrequestID"));
  EXPECT_TRUE(
      shop.log.Sent("select tc.columnheader,tc.columnname from atables t,atablecolumns tc where t.tableid = tc.tableid "
                    "and tablename ='mosGoodsRequestHeader'"));
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

TEST_F(RegisterList, CancelledRequestsAreRedFromSideToSide) {
  Open([&] {
    for (long row = 1; row < Grid().Rows(); ++row) {
      const bool cancelled = Grid().TextMatrix(row, goods::kRegisterCancelled) == "Yes";
      for (long column = 0; column < Grid().Cols(); ++column) {
        EXPECT_EQ(cancelled ? controls::kRed : controls::kDefaultColor, Grid().CellForeColor(row, column)) << RowText(row);
      }
    }
    EXPECT_EQ(controls::kRed, Grid().CellForeColor(RowOf(28), 0));
  });
}

TEST_F(RegisterList, CellsAreTrimmedAndColumnsGrowWithTheLongestTextInCharacters) {
  const auto widthFor = [&](const std::string& remark) {
    int width = 0;
    shop.Run("update mosGoodsRequestHeader set GRHremarks='" + remark + "' where GRHshopID=1");
    Open([&] {
      width = Grid().ColWidth(kRegisterRemarks);
      EXPECT_EQ(std::string(vb::Trim(remark)), Grid().TextMatrix(1, kRegisterRemarks));
    });
    return width;
  };
  const int forShort = widthFor("  ten chars  ");
  const int forLong = widthFor(std::string(60, 'e'));
  EXPECT_GT(forLong, 3 * forShort);
  std::string accented;
  for (int count = 0; count < 60; ++count) accented += "é";
  EXPECT_EQ(forLong, widthFor(accented));
}

TEST_F(RegisterList, AShopWithoutRequestsKeepsOneEmptyRowAndNothingToActOn) {
  Open({9, 9, 1}, [&] {
    EXPECT_EQ(2, Grid().Rows());
    EXPECT_EQ("|||||", RowText(1));
    EXPECT_EQ("N", Enabled());  // whatever the rights say
  });
}

TEST_F(RegisterList, FillsBothListsWithTheHeadingsThatExist) {
  shop.Run("update aTableColumns set columnheader='' where columnname='GRHremarks'");
  shop.Run("insert into aTableColumns (tableid, columnname, columnheader) values (1, 'GRHmore', 'More than the register shows')");
  Open([&] {
    for (controls::ComboBox* list : {&Register().cboColNames, &Register().cboSearch}) {
      ASSERT_EQ(5, list->ListCount());
      EXPECT_EQ("Cancelled", list->List(3));
      EXPECT_EQ(goods::kRegisterCancelled, list->ItemData(3));
      EXPECT_EQ(-1, list->ListIndex());
    }
  });
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

TEST_F(RegisterList, AppliesTheUsersColumnWidths) {
  Open([] {});
  shop.Run(
      "insert into smpGridSettings (userid,companyid,interfaceid,colno,colwidth) values (1,1,1503,0,0)\ngo\n"
      "insert into smpGridSettings (userid,companyid,interfaceid,colno,colwidth) values (2,1,1503,1,77)");
  Open([&] {
    EXPECT_EQ(0, Grid().ColWidth(0));
    EXPECT_NE(77, Grid().ColWidth(1));
  });
}

TEST_F(RegisterList, OneLongRemarkLeavesTheOtherColumnsInSight) {
  shop.Run("update mosGoodsRequestHeader set GRHremarks='" + std::string(250, 'w') + "' where GRHrequestID=20");
  Open([&] {
    int together = 0;
    for (long column = 0; column < Grid().Cols(); ++column) together += Grid().ColWidth(column);
    EXPECT_LT(together, Grid().Place().width) << "Finished is the last of them";
    EXPECT_GT(Grid().ColWidth(goods::kRegisterRemarks), Grid().Place().width / 4);
  });
}

TEST_F(RegisterList, KeepsTheWidthsThatAUserPulled) {
  Open([] {});
  shop.log.Clear();
  Open([] {});
  const std::vector<std::string> untouched = shop.log.lines;
  shop.log.Clear();
  Open([&] { Grid().PullColumn(goods::kRegisterRemarks, 3210); });
  EXPECT_GT(shop.log.lines.size(), untouched.size());
  Open({2}, [&] { EXPECT_NE(3210, Grid().ColWidth(goods::kRegisterRemarks)) << "somebody else's list"; });
  shop.log.Clear();
  Open([&] { EXPECT_EQ(3210, Grid().ColWidth(goods::kRegisterRemarks)); });
  EXPECT_EQ(untouched, shop.log.lines) << "with nothing pulled nothing is stored";
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

/// Grid settings of a suite whose users cannot change them.
class FixedSettings : public late::TableObject<FixedSettings> {
 public:
  static const late::MemberTable<FixedSettings>& Members() {
    static const late::MemberTable<FixedSettings> table = {
        {"fnGridSettings", [](FixedSettings&, late::Arguments&) { return late::Value(true); }, nullptr, 4, 4}};
    return table;
  }
  std::string TypeName() const override { return "clsMasterGridSetting"; }
};

TEST_F(RegisterList, GridSettingsThatCannotStoreAreNotAskedTo) {
  shop.registry.Register("GridPrefs.clsMasterGridSetting", [] { return std::make_shared<FixedSettings>(); });
  Open([&] { Grid().PullColumn(goods::kRegisterRemarks, 3210); });
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

TEST_F(RegisterList, WithoutGridSettingsTheListStillStands) {
  shop.registry.Unregister("GridPrefs.clsMasterGridSetting");
  Open([&] {
    EXPECT_EQ(17, Grid().Rows());
    EXPECT_EQ(controls::kRed, Grid().CellForeColor(RowOf(16), 0));
    EXPECT_EQ("NEDP", Enabled());
  });
  EXPECT_EQ(std::vector<std::string>{"frmMaster |SetHeadings|429|"}, errors->lines);
}

struct FromDateCase {
  const char* name;
  const char* settings;  // back days
  const char* closed;    // last close
  const char* expected;
};

class FromDate : public RegisterDay, public testing::WithParamInterface<FromDateCase> {};

TEST_P(FromDate, IsTheEarlierOfBackDaysAndLastClose) {
  shop.Run("update LOsSettings set sNoofBackDays=" + std::string(GetParam().settings) + " where ShopID=1");
  shop.Run("delete smpShopClose where shopid=1");
  if (*GetParam().closed)
    shop.Run("insert into smpShopClose (shopid, closedate) values (1, " + std::string(GetParam().closed) + ")");
  Open([&] { EXPECT_EQ(GetParam().expected, vb::DateText(shop.session.gDtFromDate)); });
}

INSTANTIATE_TEST_SUITE_P(Shops, FromDate,
                         testing::Values(FromDateCase{"NeverClosed", "60", "", "15/01/2024"},
                                         FromDateCase{"ClosedSince", "60", "'20240229'", "15/01/2024"},
                                         FromDateCase{"ClosedLongAgo", "60", "'20231231'", "31/12/2023"},
                                         FromDateCase{"ClosedThatVeryDay", "60", "'20240115'", "15/01/2024"},
                                         FromDateCase{"CloseLeftOpen", "60", "null", "15/01/2024"},
                                         FromDateCase{"NoBackDays", "0", "", "15/03/2024"}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(RegisterList, WithoutBackDaysTheErrorIsReportedAndEveryRequestListed) {
  shop.Run("delete LOsSettings where ShopID=1");
  Open([&] {
    EXPECT_EQ(29, Grid().Rows());
    EXPECT_EQ("NEDP", Enabled());
  });
  EXPECT_EQ(std::vector<std::string>{"frmMaster |fnPopulateDate|94|"}, errors->lines);
}

TEST_F(RegisterList, AnUnsetProcessDateListsEverything) {
  processDate = vb::Date();
  Open([&] { EXPECT_EQ(29, Grid().Rows()); });
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

TEST_F(RegisterList, LoadReadsNameAndSettingsAfreshEveryTime) {
  shop.Run("update aPackageSettings set IntegerQuantity=1, TransactionsSummary=1");
  Open([&] {
    EXPECT_EQ("Nora Halvard", shop.session.gStrUserName);
    EXPECT_TRUE(shop.session.gBlnIntegerQuantity);
    EXPECT_TRUE(shop.session.gBlnRequestForNonShopItem);
    EXPECT_TRUE(shop.session.gBlnPreserveItemDetails);
    EXPECT_EQ("vwInquiryShopStockSummary", shop.session.gStrStockView);
  });
  shop.Run("update aPackageSettings set IntegerQuantity=0, TransactionsSummary=null");
  Open({9, 2, 1}, [&] {
    EXPECT_EQ("Ayo Balogun", shop.session.gStrUserName);
    EXPECT_FALSE(shop.session.gBlnIntegerQuantity);
    EXPECT_FALSE(shop.session.gBlnRequestForNonShopItem);
    EXPECT_FALSE(shop.session.gBlnPreserveItemDetails);
    EXPECT_EQ("vwInquiryShopStock", shop.session.gStrStockView);
    EXPECT_EQ("5 6 7 8", Listed());
  });
}

TEST_F(RegisterList, AFailureInLoadIsReportedOnceAndLeavesTheRegisterOpen) {
  shop.registry.Unregister("Audit.clsUserAuditing");
  Open([&] {
    EXPECT_EQ(2, Grid().Rows());
    EXPECT_EQ("", Enabled());
  });
  EXPECT_EQ(std::vector<std::string>{"frmMaster |Form_Load|429|"}, errors->lines);
}

}  // namespace
