#include <gtest/gtest.h>
#include <set>

#include "tests/suite/shop/suite_database.h"

namespace {

class SampleShop : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    shop_ = std::make_unique<SuiteDatabase>();
    suite::LoadSample(shop_->Get());
  }
  static void TearDownTestSuite() { shop_.reset(); }

  static int Number(const std::string& query) { return shop_->Number(query); }
  static std::vector<std::string> List(const std::string& query) { return shop_->List(query); }
  static bool Any(const std::string& fromAndWhere) { return Number("select count(*) from " + fromAndWhere) > 0; }

  static inline std::unique_ptr<SuiteDatabase> shop_;
};

TEST(Schema, ReplicationAddsARowIdentifierThatGrowsWithEveryLine) {
  const std::string identifiers = "select count(*) from syscolumns where colstat=2 and id=object_id('mosgoodsrequestdetail')";
  SuiteDatabase plain;
  EXPECT_EQ(plain.Number(identifiers), 0);

  SuiteDatabase replicated(true);
  EXPECT_EQ(replicated.Number(identifiers), 1);
  suite::LoadSample(replicated.Get());
  replicated.Connection().Execute(
      "insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID) values (0, 1, 27, 3)");
  const auto lines =
      replicated.List("select GRDitemID from mosGoodsRequestDetail where GRDrequestID = 27 and GRDshopID = 1 order by rowguid");
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.back(), "3") << "the line added last is last, whatever its number";
  EXPECT_EQ(
      lines.front(),
      replicated.List("select GRDitemID from mosGoodsRequestDetail where GRDrequestID = 27 and GRDshopID = 1 and GRDDetailid = 1")
          .front());
}

TEST_F(SampleShop, EveryReferenceLeadsSomewhere) {
  const std::vector<std::string> dangling = {
      "aItem i where not exists (select 1 from aUnit u where u.UnitId = i.UnitsId)",
      "aItem i where not exists (select 1 from vwItemDescription v where v.ItemID = i.ItemId)",
      "smpItemDescription d where not exists (select 1 from aItem i where i.ItemId = d.ItemID and i.ItemCode = d.code)",
      "aShopItemDetail d where not exists (select 1 from aItem i where i.ItemId = d.ItemID)",
      "aShopItemDetail d where not exists (select 1 from aShops s where s.ShopID = d.ShopID)",
      "smpShopStock k where not exists (select 1 from aShopItemDetail d where d.ItemID = k.itemid and d.ShopID = k.shopid)",
      "smpGodownStock g where not exists (select 1 from aItem i where i.ItemId = g.gsitemid)",
      "aItemPackingDetail p where not exists (select 1 from aItem i where i.ItemId = p.itemid)",
      "aItemPackingDetail p where not exists (select 1 from aPackingType t where t.packingtypeid = p.packingtypeid)",
      "aPackingTypeCapacityDetail c where not exists (select 1 from aPackingType t where t.packingtypeid = c.packingtypeid)",
      "vwItemRetailPacking r where not exists (select 1 from aItemPackingDetail p where p.itemid = r.ItemId and p.packingtypeid "
      "= r.PackingTypeId)",
      "losShopItemShipmentDetail d where not exists (select 1 from vwItemRetailPacking r where r.ItemId = d.ItemId)",
      "mosGoodsRequestDetail d where not exists (select 1 from mosGoodsRequestHeader h where h.GRHrequestID = d.GRDrequestID and "
      "h.GRHshopID = d.GRDshopID)",
      "mosGoodsRequestDetail d where not exists (select 1 from aShopItemDetail s where s.ItemID = d.GRDitemID and s.ShopID = "
      "d.GRDshopID)",
      "mosGoodsRequestHeader h where not exists (select 1 from aUsers u where u.UserName = h.GRHrecaddUser and u.ShopID = "
      "h.GRHshopID)",
      "mosRequestInvDetail l where not exists (select 1 from mosGoodsRequestHeader h where h.GRHrequestID = l.reqdid and "
      "h.GRHshopID = l.reqinvdshopid)",
      "mosRequestInvDetail l where reqReexportID is null and not exists (select 1 from losinvoiceheader h where h.ihInvoiceID = "
      "l.reqinvdinvoiceid"
      " and h.ihShopID = l.reqinvdshopid and h.ihCompanyId = l.reqcompanyid)",
      "mosRequestInvDetail l where reqinvdinvoiceid is null and not exists (select 1 from losExportHeader h where h.rehExportID "
      "= l.reqReexportID"
      " and h.rehShopID = l.reqinvdshopid and h.rehCompanyID = l.reqcompanyid)",
      "losinvoicedetail d where not exists (select 1 from losinvoiceheader h where h.ihInvoiceID = d.idInvoiceID and h.ihShopID "
      "= d.idShopID)",
      "losinvoicedetail d where not exists (select 1 from aShopItemDetail s where s.ItemID = d.idItemID and s.ShopID = "
      "d.idShopID)",
      "losExportDetail d where not exists (select 1 from losExportHeader h where h.rehExportID = d.redExportID and h.rehShopID = "
      "d.redShopID)",
      "losExportDetail d where not exists (select 1 from aShopItemDetail s where s.ItemID = d.redItemID and s.ShopID = "
      "d.redShopID)",
      "losinvoiceheader h where ihProformaID is not null and not exists (select 1 from losinvoiceheader p where p.ihInvoiceID = "
      "h.ihProformaID)",
      "vwInvoicedPosRequests v where not exists (select 1 from losinvoiceheader h where h.ihInvoiceID = v.RequestID and "
      "h.ihShopID = v.ihShopID)",
      "losInvoiceProjectRequestDetails p where not exists (select 1 from losinvoiceheader h where h.ihInvoiceID = p.idrInvoiceId "
      "and h.ihShopID = p.idrShopId)",
      "meiDespatchToShopDetail d where not exists (select 1 from meiDespatchToShopHeader h where h.dhDespatchID = "
      "d.ddDespatchID)",
      "ahqIssueNotedetail d where not exists (select 1 from ahqIssueNoteheader h where h.INHIssuenoteID = d.INDIssuenoteID)",
      "louserrights r where not exists (select 1 from loUsers u where u.UserID = r.userid)",
      "loUsers u where not exists (select 1 from aUsers a where a.UserID = u.UserID and a.ShopID = u.ShopID and a.UserName = "
      "u.UserName)",
      "aShops s where not exists (select 1 from aCity c where c.cityid = s.cityid)",
      "aShops s where not exists (select 1 from aCountryMaster c where c.countryid = s.countryid)",
      "aShops s where not exists (select 1 from aDepartmentMaster d where d.departmentid = s.DepartmentID)",
      "aPrefix p where not exists (select 1 from aFinancialYear y where y.FinancialId = p.FinancialId)",
  };
  for (const auto& lost : dangling) EXPECT_EQ(Number("select count(*) from " + lost), 0) << lost;
}

TEST_F(SampleShop, RequestsKeepTheirInvariants) {
  EXPECT_FALSE(
      Any("mosGoodsRequestHeader h where GRHNoofDetails <> (select count(*) from mosGoodsRequestDetail d"
          " where d.GRDrequestID = h.GRHrequestID and d.GRDshopID = h.GRHshopID)"));
  EXPECT_FALSE(
      Any("mosGoodsRequestHeader h where GRHNoofDetails > 0 and GRHNoofDetails <> (select max(GRDDetailid) from "
          "mosGoodsRequestDetail d"
          " where d.GRDrequestID = h.GRHrequestID and d.GRDshopID = h.GRHshopID)"))
      << "lines are numbered from 1 without gaps";
  EXPECT_FALSE(Any(
      "(select GRHshopID, GRHrequestno from mosGoodsRequestHeader group by GRHshopID, GRHrequestno having count(*) > 1) twice"));
  EXPECT_FALSE(
      Any("mosRequestInvDetail where (reqinvdinvoiceid is null and reqReexportID is null) or"
          " (reqinvdinvoiceid is not null and reqReexportID is not null)"));
  EXPECT_FALSE(
      Any("mosGoodsRequestHeader where GRHcancel = 1 and (GRHcancelRemarks is null or left(GRHcancelRemarks, 1) = ':')"));
  EXPECT_FALSE(
      Any("mosGoodsRequestHeader where (GRHrecmoduser is null and updatetime is not null) or (GRHrecmoduser is not null and "
          "updatetime is null)"));
  // A request that is waiting marks its items in every shop's list, and nothing else does.
  const std::string waiting =
      "(select d.GRDitemID from mosGoodsRequestDetail d inner join mosGoodsRequestHeader h on h.GRHrequestID = d.GRDrequestID"
      " and h.GRHshopID = d.GRDshopID where h.GRHcancel = 0 and h.GRHIssuenotegenerated = 0 and h.GRHhqrequestgenerated = 0)";
  EXPECT_FALSE(Any("aShopItemDetail where RequestRaised = 1 and ItemID not in " + waiting));
  EXPECT_FALSE(Any("aShopItemDetail where RequestRaised = 0 and ItemID in " + waiting));
}

TEST_F(SampleShop, TheRegisterOfTheProcessDateShowsRequestsInEveryState) {
  EXPECT_EQ(vb::DateText(suite::SampleProcessDate()), "15/03/2024");
  EXPECT_FALSE(Any("mosGoodsRequestHeader where GRHrequestdate > '20240315'")) << "nothing is dated after the process date";
  const std::string from = vb::FormatDate(
      vb::Date{suite::SampleProcessDate().days - Number("select sNoofBackDays from LOsSettings where ShopID = 1")}, "yyyymmdd");
  EXPECT_TRUE(Any("vwshopCloseDate where shopid = 1 and closedate > '" + from + "'")) << "the days decide in shop 1";
  EXPECT_TRUE(Any("mosGoodsRequestHeader where GRHshopID = 1 and GRHrequestdate = '" + from + "'"))
      << "one on the boundary itself";

  const std::string listed = "mosGoodsRequestHeader h where GRHshopID = 1 and GRHrequestdate > '" + from + "' and ";
  for (const std::string state :
       {"GRHcancel = 0 and GRHTransFinished = 0 and GRHIssuenotegenerated = 0 and GRHrequesttype = 'G'",
        "GRHcancel = 0 and GRHTransFinished = 0 and GRHIssuenotegenerated = 0 and GRHrequesttype = 'P'",
        "GRHcancel = 0 and GRHTransFinished = 1 and GRHIssuenotegenerated = 0",
        "GRHcancel = 0 and GRHTransFinished = 0 and GRHIssuenotegenerated = 1",
        "GRHcancel = 0 and GRHTransFinished = 1 and GRHIssuenotegenerated = 1", "GRHcancel = 1 and GRHTransFinished = 0",
        "GRHcancel = 1 and GRHTransFinished = 1", "GRHremarks is null", "GRHremarks like '%''%'", "len(GRHremarks) > 200",
        "GRHrecmoduser <> GRHrecaddUser", "GRHNoofDetails = 0", "GRHNoofDetails > 30",
        "GRHcancel = 0 and GRHrequestID in (select reqdid from mosRequestInvDetail where reqinvdshopid = 1)",
        "GRHcancel = 1 and GRHrequestID in (select reqdid from mosRequestInvDetail where reqinvdshopid = 1)",
        "exists (select 1 from mosGoodsRequestDetail d where d.GRDrequestID = h.GRHrequestID and d.GRDshopID = 1 and "
        "d.GRDgoodQty = 0)",
        "exists (select 1 from mosGoodsRequestHeader e where e.GRHshopID = 1 and e.GRHrequestID < h.GRHrequestID and "
        "e.GRHrequestdate > h.GRHrequestdate)"})
    EXPECT_TRUE(Any(listed + state)) << state;
  EXPECT_EQ(Number("select count(*) from mosGoodsRequestHeader"), 40);
  EXPECT_GE(Number("select count(distinct year(GRHrequestdate)) from mosGoodsRequestHeader"), 3);
}

TEST_F(SampleShop, NumbersContinueTheYearsPrefix) {
  const std::string prefix = List(
                                 "SELECT Prefix FROM aPrefix WHERE InterfaceID = 1503AND FinancialId = (Select FinancialId from "
                                 "aFinancialYear where CurFinancialYear = 1) and shopid=1")
                                 .at(0);
  EXPECT_TRUE(Any("mosGoodsRequestHeader where GRHshopID = 1 and isnumeric(right(GRHrequestno, 1)) = 0 and GRHrequestno like '" +
                  prefix + "%'"))
      << "a number whose tail is no number does not count";
  EXPECT_EQ(
      List("select GRHrequestno from mosGoodsRequestHeader where GRHshopID = 1 and GRHrequestID = (select max(GRHrequestID) from"
           " mosGoodsRequestHeader where GRHshopID = 1)")
          .at(0),
      prefix + "20");
  EXPECT_TRUE(List("SELECT Prefix FROM aPrefix WHERE InterfaceID = 1503 and FinancialId = 3 and shopid = 3").empty());
}

TEST_F(SampleShop, StockStandsAboveAtAndBelowTheReorderLevel) {
  const std::string levels =
      "aShopItemDetail d inner join vwInquiryShopStockSummary k on k.itemid = d.ItemID and k.shopid = d.ShopID inner join aItem "
      "i on i.ItemId = d.ItemID"
      " where d.ShopID = 1 and ";
  for (const std::string kind :
       {"k.stock > d.ItemReorderLevel and i.active = 1", "k.stock = d.ItemReorderLevel and i.active = 1",
        "k.stock < d.ItemReorderLevel and i.active = 1 and i.forsales = 1 and d.RequestRaised = 0", "k.stock < 0",
        "k.stock <= d.ItemReorderLevel and i.active = 0", "k.stock <= d.ItemReorderLevel and i.forsales = 0",
        "k.stock <= d.ItemReorderLevel and i.itemtype = 'B'", "d.ReorderQuantity = 0",
        "k.stock < d.ItemReorderLevel + 1 and k.stock > d.ItemReorderLevel"})
    EXPECT_TRUE(Any(levels + kind)) << kind;
  EXPECT_TRUE(
      Any("aShopItemDetail d where ShopID = 1 and not exists (select 1 from vwInquiryShopStock k where k.itemid = d.ItemID and "
          "k.shopid = 1)"));
  EXPECT_TRUE(Any("(select itemid from vwInquiryShopStock where shopid = 1 group by itemid having count(*) > 1) several"));
  EXPECT_EQ(Number("select count(*) from vwInquiryShopStockSummary"),
            Number("select count(*) from (select distinct shopid, itemid from vwInquiryShopStock) one"));
  EXPECT_TRUE(Any("aShopItemDetail where ShopID = 1 and ItemReorderLevel is null"));
}

TEST_F(SampleShop, TheProcedureOffersWhatGodownsHaveAndTheShopHasNot) {
  const auto offered = List(" spgodownitemnotinshop 1, '',1");
  ASSERT_FALSE(offered.empty());
  for (const auto& item : offered) {
    EXPECT_GT(Number("select sum(gsstock) from vwInquiryGodownStock where gsitemid = " + item), 0) << item;
    EXPECT_LE(Number("select isnull(sum(stock), 0) from vwInquiryShopStock where shopid = 1 and itemid = " + item), 0) << item;
    EXPECT_TRUE(
        Any("aItem i inner join aShopItemDetail s on s.ItemID = i.ItemId where s.ShopID = 1 and active = 1 and forsales = 1 and "
            "i.ItemId = " +
            item));
  }
  // The shop's stock of item 8 is negative; item 10 has no stock row; item 30's godowns cancel each other out; item 33 is in
  // none.
  const std::set<std::string> all(offered.begin(), offered.end());
  EXPECT_TRUE(all.contains("8"));
  EXPECT_TRUE(all.contains("10"));
  EXPECT_FALSE(all.contains("30"));
  EXPECT_FALSE(all.contains("33"));

  EXPECT_EQ(List("spgodownitemnotinshop 1,' and v.itemdescription like ''%carpenter''''s%'''"), std::vector<std::string>{"172"});
}

TEST_F(SampleShop, DocumentsOnOfferAreThoseNobodyHolds) {
  const std::string held =
      "(select gd.reqinvdinvoiceid from mosRequestInvDetail gd, mosGoodsRequestHeader gh where gh.GRHrequestID = gd.reqdid"
      " and gh.GRHshopID = gd.reqinvdshopid and gh.GRHcancel = 0 and gd.reqinvdinvoiceid is not null and gd.reqinvdshopid = 1)";
  EXPECT_EQ(List("select a.ihInvoiceID from losinvoiceheader a left outer join losinvoiceheader b on a.ihShopID = b.ihShopID and "
                 "a.ihInvoiceID = b.ihProformaID"
                 " and a.ihCompanyId = b.ihCompanyId and a.ihCancelled = 0 left outer join vwInvoicedPosRequests v on a.ihShopID "
                 "= v.ihShopID and"
                 " a.ihInvoiceID = v.RequestID where a.ihType = 'R' and v.invoiceid is null and b.ihInvoiceID is null and "
                 "a.ihTransFinished = 1 and"
                 " a.ihShopID = 1 and a.ihCompanyId = 1 and a.ihInvoiceID not in " +
                 held + " order by a.ihInvoiceID"),
            (std::vector<std::string>{"1001", "1002", "1003", "1008"}));
  EXPECT_TRUE(Any("losInvoiceProjectRequestDetails where idrInvoiceId = 1003")) << "a project request is among them";
  EXPECT_TRUE(Any("losinvoiceheader where ihCancelled = 1"));
  EXPECT_TRUE(Any("losExportHeader where rehCancelled = 1 and rehtype = 'R'"));
  EXPECT_TRUE(
      Any("losExportHeader e inner join losinvoiceheader h on h.ihInvoiceID = e.rehExportID and h.ihShopID = e.rehShopID"))
      << "an invoice and a re-export may share an id";
  EXPECT_TRUE(
      Any("losinvoicedetail a inner join losinvoicedetail b on b.idItemID = a.idItemID and b.idShopID = a.idShopID and"
          " b.idInvoiceID > a.idInvoiceID where a.idInvoiceID = 1001 and b.idInvoiceID = 1002"))
      << "two documents on offer ask for the same item";
}

TEST_F(SampleShop, CodesLeadToOneItemExceptWhereTheyShouldNot) {
  EXPECT_FALSE(Any("(select ItemCode from aItem group by ItemCode having count(*) > 1) twice"));
  EXPECT_FALSE(
      Any("(select packingbarcode from aItemPackingDetail where packingbarcode is not null group by packingbarcode having "
          "count(*) > 1) twice"));
  EXPECT_FALSE(
      Any("(select ShopID, shortcutno from aShopItemDetail where shortcutno <> 0 group by ShopID, shortcutno having count(*) > "
          "1) twice"));
  EXPECT_TRUE(
      Any("aShopItemDetail a inner join aShopItemDetail b on b.shortcutno = a.shortcutno and b.ShopID = 2 and a.ShopID = 1"
          " where a.shortcutno <> 0 and a.ItemID <> b.ItemID"))
      << "shops have shortcuts of their own";
  EXPECT_TRUE(Any("aItemPackingDetail p inner join aItem i on i.ItemCode = p.packingbarcode where i.ItemId <> p.itemid"))
      << "one barcode is another item's code";
  EXPECT_TRUE(Any("aItemPackingDetail where active = 0"));
  for (const auto& barcode : List("select packingbarcode from aItemPackingDetail where len(packingbarcode) = 13")) {
    int sum = 0;
    for (std::size_t k = 0; k < barcode.size(); ++k) sum += (barcode[k] - '0') * (k % 2 ? 3 : 1);
    EXPECT_EQ(sum % 10, 0) << barcode << " has a wrong check digit";
  }
}

TEST_F(SampleShop, UsersHaveAllSortsOfRights) {
  for (const std::string right :
       {"functionrights = 'NEDP'", "functionrights like ' %' and functionrights like '%p%'", "functionrights = 'ADMIN'",
        "functionrights = 'DP'", "functionrights is null", "functionrights = ''"})
    EXPECT_TRUE(Any("louserrights where interfaceid = 1503 and companyid = 1 and " + right)) << right;
  EXPECT_TRUE(
      Any("loUsers u where ShopID = 1 and not exists (select 1 from louserrights r where r.userid = u.UserID and r.interfaceid = "
          "1503)"));
  EXPECT_TRUE(Any("loUsers where len(UserName) > 25"));
}

}  // namespace
