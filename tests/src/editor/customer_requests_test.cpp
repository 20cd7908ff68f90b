#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using support::Click;
using Texts = std::vector<std::string>;

class CustomerDocuments : public EditorShop {
 protected:
  void Link(int requestId, int position, const std::string& invoice, const std::string& reexport) {
    shop.Run(
        "insert into mosRequestInvDetail (reqcompanyid, reqdid, reqddetailid, reqinvdshopid, reqinvdinvoiceid, reqReexportID) "
        "values (1, " +
        std::to_string(requestId) + ", " + std::to_string(position) + ", 1, " + invoice + ", " + reexport + ")");
  }
  Texts Links() {
    return shop.Rows(
        "select reqddetailid, reqinvdinvoiceid, reqReexportID from mosRequestInvDetail where reqdid=7 order by reqddetailid");
  }
};

TEST_F(CustomerDocuments, OnOfferAreFinishedOnesThatNoLiveRequestHolds) {
  shop.Run(
      "insert into losinvoiceheader (ihInvoiceID, ihShopID, ihCompanyId, ihInvoiceNo, ihType, ihProformaID, ihCancelled, "
      "ihTransFinished) values "
      "(104, 1, 1, 'unfinished', 'R', null, 0, 0), (105, 1, 1, 'cash sale', 'I', null, 0, 1), (106, 2, 1, 'other shop', 'R', "
      "null, 0, 1), "
      "(107, 1, 2, 'other company', 'R', null, 0, 1), (108, 1, 1, 'proforma', 'R', null, 0, 1), (109, 1, 1, 'its invoice', 'I', "
      "108, 0, 1), "
      "(110, 1, 1, 'invoiced', 'R', null, 0, 1)");
  shop.Run("insert into smpInvoicedPosRequests (ihShopID, RequestID, invoiceid) values (1, 110, 900)");
  shop.Run(
      "insert into losExportHeader (rehExportID, rehExportNo, rehShopID, rehCompanyID, rehCancelled, rehtype) values "
      "(103, 'cancelled', 1, 1, 1, 'R'), (104, 'sent on', 1, 1, 0, 'S'), (105, 'other shop', 2, 1, 0, 'R')");
  New([&] {
    CheckDocuments({});
    EXPECT_EQ((Texts{"[ ] I-101", "[ ] I-102", "[ ] I-103", "[ ] X-101", "[ ] X-102"}), Documents());
  });

  Link(7, 1, "101", "null");
  Link(7, 2, "null", "102");
  New([&] {
    CheckDocuments({});
    EXPECT_EQ((Texts{"[ ] I-102", "[ ] I-103", "[ ] X-101"}), Documents());
  });
  shop.Run("update mosGoodsRequestHeader set GRHcancel = 1 where GRHrequestID = 7");
  New([&] {
    CheckDocuments({});
    EXPECT_EQ((Texts{"[ ] I-101", "[ ] I-102", "[ ] I-103", "[ ] X-101", "[ ] X-102"}), Documents());
  });
}

TEST_F(CustomerDocuments, AreAskedForInTheSuitesOwnWords) {
  New([&] {
    CheckDocuments({"I-102", "X-102"});
    ExpectNoSaving();
  });
  EXPECT_TRUE(log.Sent(
      "select a.ihInvoiceNo,null ReExportNo,a.ihInvoiceID from losinvoiceheader a left outer join losinvoiceheader b on "
      "a.ihShopID "
      "= b.ihShopID And a.ihInvoiceID = b.ihProformaID  and a.ihCompanyId=b.ihCompanyId and a.ihCancelled=0 left outer join   "
      "(select gd.reqinvdshopid, gd.reqinvdinvoiceid from mosRequestInvDetail gd,  mosgoodsrequestheader gh where "
      "gh.GRHrequestID=gd.reqdid and  gh.GRHshopID=gd.reqinvdshopid and gh.GRHcancel=0 ) req on a.ihShopID=req.reqinvdshopid  "
      "and "
      "a.ihInvoiceID=req.reqinvdinvoiceid left outer join vwInvoicedPosRequests InvReq  on a.ihShopID=invReq.ihShopID and "
      "a.ihInvoiceID=invReq.RequestID where  a.ihType='R' and invreq.invoiceid is null and req.reqinvdinvoiceid is null and "
      "b.ihinvoiceid is null and a.ihTransFinished=1 And a.ihShopID = 1 And a.ihCompanyId = 1 union all  select "
      "null,a.rehExportNo, a.rehExportID from losExportHeader a left outer join (select gd.reqinvdshopid, gd.reqReexportID from "
      "mosRequestInvDetail gd,  mosgoodsrequestheader gh where gh.GRHrequestID=gd.reqdid and  gh.GRHshopID=gd.reqinvdshopid and "
      "gh.GRHcancel=0 and gd.reqReexportID is not null ) req  on a.rehShopID=req.reqinvdshopid  and "
      "a.rehExportID=req.reqReexportID where a.rehCancelled=0 and a.rehCompanyID=1 and a.rehtype='R' and  req.reqReexportID is "
      "null "
      "and a.rehShopID=1"));
  EXPECT_TRUE(
      log.Sent("select v.ItemID,v.itemdescription,v.code,d.idQuantity, d.idDescription, u.UnitCode  from vwitemdescription "
               "v,losinvoicedetail  d, aItem i, aUnit u  where d.idInvoiceID = 102 and v.ItemID = d.idItemID  and idItemId = "
               "i.ItemId and i.UnitsId = u.UnitId and idShopID = 1"));
  EXPECT_TRUE(log.Sent(
      "select v.ItemID,v.itemdescription,v.code,d.redQuantity idQuantity, d.redDescription idDescription, u.UnitCode  from "
      "vwitemdescription v,losExportDetail d, aItem i, aUnit u  where d.redExportID = 102 and v.ItemID = d.redItemID  and "
      "redItemID = i.ItemId and i.UnitsId = u.UnitId and redShopID = 1"));
}

TEST_F(CustomerDocuments, CheckingAddsTheirQuantitiesAndUncheckingTakesThemOutAgain) {
  New([&] {
    AddLine(2, "1.500");
    CheckDocuments({"I-101", "I-102", "X-101"});
    EXPECT_EQ((Texts{"1|POT|6.500|2", "2|CUP|6.000|1", "3|TEA|0.300|3"}), Lines());
    const controls::ListItem& cup = editor->lvwrequest.Item(2);
    EXPECT_EQ("Cup", cup.SubItem(goods::kLineItemName));
    EXPECT_EQ("school", cup.SubItem(goods::kLineRemarks));
    EXPECT_EQ("pcs", cup.SubItem(goods::kLineUnit));

    CheckDocument("I-101", false);
    EXPECT_EQ((Texts{"1|POT|6.500|2", "2|CUP|2.000|1"}), Lines());
    CheckDocument("X-101", false);
    CheckDocument("I-102", false);
    EXPECT_EQ((Texts{"1|POT|1.500|2"}), Lines()) << "what was typed stays";
    desktop.ExpectMessage("Save Changes?", Answer::No);
  });
}

TEST_F(CustomerDocuments, AQuantityChangedByHandInBetweenMayGoBelowNothing) {
  New([&] {
    CheckDocuments({"I-101"});
    editor->lvwrequest.Item(1).SetSubItem(goods::kLineQty, "1.000");
    editor->lvwrequest.Item(2).SetSubItem(goods::kLineQty, "0.4");
    CheckDocument("I-101", false);
    EXPECT_EQ((Texts{"1|CUP|-3.000|1", "2|TEA|0.100|3"}), Lines());
    ExpectNoSaving();
  });
}

TEST_F(CustomerDocuments, MayNameAnItemTwiceOrWithoutAQuantity) {
  shop.Run(
      "insert into losinvoicedetail (idInvoiceID, idShopID, idItemID, idQuantity) values (102, 1, 1, 0.5), (102, 1, 6, null), "
      "(102, 2, 2, 9)");
  New([&] {
    CheckDocuments({"I-102"});
    EXPECT_EQ((Texts{"1|CUP|2.500|1", "2|JAR|0.000|6"}), Lines());
    CheckDocument("I-102", false);
    EXPECT_EQ(Texts{}, Lines());
  });
}

TEST_F(CustomerDocuments, FindTheFirstLineOfAnItemThatHasSeveral) {
  shop.Run(
      "insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID, GRDgoodQty) values (3, 1, 7, 2, 1)");
  shop.Run("insert into losinvoicedetail (idInvoiceID, idShopID, idItemID, idQuantity) values (103, 1, 2, 2.5), (103, 1, 2, 1)");
  Link(7, 1, "103", "null");
  Edit(7, [&] {
    CheckDocument("X-101");
    EXPECT_EQ((Texts{"1|POT|7.500|2", "2|CUP|4.000|1", "3|POT|1.000|2"}), Lines());
    CheckDocument("X-101", false);
    CheckDocument("I-103", false);
    EXPECT_EQ((Texts{"1|CUP|4.000|1"}), Lines()) << "both of its lines";
    ExpectNoSaving();
  });
}

TEST_F(CustomerDocuments, ALineTakenOutOfTheMiddleLeavesTheOthersNumberedAndTheSelectionWhereItWas) {
  New([&] {
    CheckDocuments({"I-103", "I-102", "X-101"});
    editor->lvwrequest.Select(3);
    CheckDocument("I-102", false);
    EXPECT_EQ((Texts{"1|JAR|1.000|6", "2|POT|5.000|2"}), Lines());
    EXPECT_EQ(2, editor->lvwrequest.SelectedItem());
    ExpectNoSaving();
  });
}

TEST_F(CustomerDocuments, ClearingTheBoxOnANewRequestUnchecksAll) {
  New([&] {
    AddLine(1, "1.000");
    CheckDocuments({"I-101", "I-102"});
    EXPECT_TRUE(editor->sstabGoodsReq.TabVisible(1));
    Click(editor->chkcutomerrequest);
    EXPECT_EQ((Texts{"1|CUP|1.000|1"}), Lines());
    EXPECT_EQ(Texts{}, Documents());
    EXPECT_FALSE(editor->sstabGoodsReq.TabVisible(1));
    CheckDocuments({});
    EXPECT_EQ(5u, Documents().size());
    desktop.ExpectMessage("Save Changes?", Answer::No);
  });
}

TEST_F(CustomerDocuments, ClearingTheBoxOnAnExistingRequestTakesOutWhatWasTicked) {
  Edit(7, [&] {
    CheckDocuments({"X-101"});
    Click(editor->chkcutomerrequest);
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines());
    EXPECT_EQ(Texts{}, Documents());
    EXPECT_FALSE(editor->sstabGoodsReq.TabVisible(1));
    Click(editor->cmdOK);
  });
  EXPECT_EQ(Texts{}, Links());
}

TEST_F(CustomerDocuments, ADatabaseErrorLeavesBoxMarkAndLinesAsTheyWere) {
  constexpr long kNumber = -2147217900;
  New([&] {
    log.FailAt(1);
    ExpectError("Connection broken by the test", "chkcutomerrequest_Click", kNumber);
    Click(editor->chkcutomerrequest);
    EXPECT_FALSE(editor->chkcutomerrequest.IsChecked());
    EXPECT_FALSE(editor->sstabGoodsReq.TabVisible(1));

    CheckDocuments({"I-101", "I-102"});
    const Texts lines = Lines();
    const Texts documents = Documents();
    log.FailAt(1);
    ExpectError("Connection broken by the test", "lvwCustomerReq_ItemCheck", kNumber);
    CheckDocument("X-101");
    log.FailAt(1);
    ExpectError("Connection broken by the test", "lvwCustomerReq_ItemCheck", kNumber);
    CheckDocument("I-101", false);
    log.FailAt(2);
    ExpectError("Connection broken by the test", "chkcutomerrequest_Click", kNumber);
    Click(editor->chkcutomerrequest);
    desktop.Verify();
    EXPECT_EQ(lines, Lines());
    EXPECT_EQ(documents, Documents());
    EXPECT_TRUE(editor->chkcutomerrequest.IsChecked());
    EXPECT_TRUE(editor->sstabGoodsReq.TabVisible(1));
    ExpectNoSaving();
  });
}

TEST_F(CustomerDocuments, AProjectRequestStandsAlone) {
  New([&] {
    CheckDocuments({"I-103"});
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded()) << "alone it is welcome";
  });
  EXPECT_EQ("103", shop.Row("select reqinvdinvoiceid from mosRequestInvDetail"));
  EXPECT_TRUE(
      log.Sent("SELECT * FROM losInvoiceProjectRequestDetails WHERE idrInvoiceId = 103 AND idrShopId = 1 AND idrCompanyId = 1"));
}

TEST_F(CustomerDocuments, OnlyAnInvoiceOfThisShopCanBeAProjectRequest) {
  shop.Run("insert into losInvoiceProjectRequestDetails (idrInvoiceId, idrShopId, idrCompanyId) values (102, 1, 1), (101, 2, 1)");
  New([&] {
    CheckDocuments({"I-101", "X-101", "X-102"});  // a re-export has the project's number, I-102 is not checked
    Click(editor->cmdOK);
    EXPECT_FALSE(editor->IsLoaded());
  });
  EXPECT_EQ("3", shop.Row("select count(*) from mosRequestInvDetail where reqdid=8"));
}

TEST_F(CustomerDocuments, AnEditedRequestNeverLosesALink) {
  Link(7, 1, "102", "null");
  Link(7, 2, "null", "101");
  Link(7, 3, "999", "null");  // its invoice is gone
  Edit(7, [&] {
    EXPECT_EQ((Texts{"[x] I-102", "[x] X-101", "[x] 999", "[ ] I-101", "[ ] I-103", "[ ] X-102"}), Documents());
    EXPECT_TRUE(editor->chkcutomerrequest.IsChecked());
    EXPECT_FALSE(editor->chkcutomerrequest.Enabled());
    EXPECT_TRUE(editor->sstabGoodsReq.TabVisible(1));
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines()) << "the links' quantities are in the lines already";
    CheckDocument("X-102");
    Click(editor->cmdOK);
  });
  EXPECT_EQ((Texts{"1|102|NULL", "2|NULL|101", "3|999|NULL", "6|NULL|102"}), Links());

  Edit(7, [&] {
    CheckDocument("I-102", false);
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|CUP|2.000|1"}), Lines());
    Click(editor->cmdOK);
  });
  EXPECT_EQ((Texts{"2|NULL|101", "3|999|NULL", "4|NULL|102"}), Links());
}

TEST_F(CustomerDocuments, ALinkedDocumentThatCannotBeNamedIsCalledByItsId) {
  shop.Run("update losinvoiceheader set ihCompanyId = 2 where ihInvoiceID = 102");
  shop.Run("update losExportHeader set rehCompanyID = 2 where rehExportID = 102");
  shop.Run("update losExportHeader set rehExportNo = null where rehExportID = 101");
  Link(7, 1, "102", "null");
  Link(7, 2, "null", "101");
  Link(7, 3, "null", "102");
  Edit(7, [&] {
    EXPECT_EQ((Texts{"[x] 102", "[x] 101", "[x] 102", "[ ] I-101", "[ ] I-103"}), Documents());
    Click(editor->cmdOK);
  });
  EXPECT_EQ((Texts{"1|102|NULL", "2|NULL|101", "3|NULL|102"}), Links()) << "a re-export without a number stays one";
}

TEST_F(CustomerDocuments, LinksOfAnotherShopOrCompanyAreNotThisRequestsBusiness) {
  const std::string insert =
      "insert into mosRequestInvDetail (reqcompanyid, reqdid, reqddetailid, reqinvdshopid, reqinvdinvoiceid, reqReexportID) "
      "values ";
  shop.Run(insert + "(2, 7, 1, 1, 102, null), (2, 7, 2, 1, null, 101), (1, 7, 3, 2, 103, null), (1, 7, 4, 2, null, 102)");
  const Texts before = Links();
  Edit(7, [&] {
    EXPECT_EQ(Texts{}, Documents());
    EXPECT_FALSE(editor->chkcutomerrequest.IsChecked());
    Click(editor->cmdOK);
  });
  EXPECT_EQ(before, Links());
}

TEST_F(CustomerDocuments, ACancelledRequestShowsItsDocumentsOnce) {
  Link(7, 1, "102", "null");
  Link(7, 2, "null", "101");
  shop.Run("update mosGoodsRequestHeader set GRHcancel = 1 where GRHrequestID = 7");
  Edit(7, [&] { EXPECT_EQ((Texts{"[x] I-102", "[x] X-101", "[ ] I-101", "[ ] I-103", "[ ] X-102"}), Documents()); });
}

TEST_F(CustomerDocuments, ARequestWithoutLinksStartsWithTheBoxUnticked) {
  Link(8, 1, "102", "null");
  Edit(7, [&] {
    EXPECT_EQ(
        "select h.ihInvoiceNo,d.reqinvdinvoiceid from losinvoiceheader h,mosrequestinvdetail d where h.ihShopID = "
        "d.reqinvdshopid "
        "And h.ihInvoiceID = d.reqinvdinvoiceid and h.ihCompanyId=d.reqcompanyid and d.reqcompanyid=1 and d.reqinvdshopid=1 and "
        "d.reqdid=7",
        log.lines.at(0));
    EXPECT_FALSE(editor->chkcutomerrequest.IsChecked());
    EXPECT_TRUE(editor->chkcutomerrequest.Enabled());
    EXPECT_FALSE(editor->sstabGoodsReq.TabVisible(1));
    EXPECT_EQ(Texts{}, Documents());
    CheckDocuments({"X-102"});
    Click(editor->cmdOK);
  });
  EXPECT_EQ(1u, Links().size());
}

TEST_F(CustomerDocuments, LinksThatCannotBeReadKeepTheEditorShut) {
  Link(7, 1, "102", "null");
  for (int step = 1; step <= 3; ++step) {
    session.gStrEntryMode = "E";
    session.gLngRequestID = 7;
    log.FailAt(step);
    EXPECT_THROW(editor->ShowOwnLinks(7), vb::RunTimeError);
    EXPECT_FALSE(editor->IsLoaded());
  }
}

}  // namespace
}  // namespace editor_test
