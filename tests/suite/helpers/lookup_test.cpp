#include <gtest/gtest.h>

#include "base/vb/text.h"
#include "suite/helpers/frm_lookup.h"
#include "tests/suite/helpers/helper_form.h"

namespace {

/// The item lookup as item entry sets it up, over a handful of items.
class Lookup : public testing::Test {
 protected:
  Lookup() {
    fetch->Call("setFieldNames", {late::Array::List({"ItemID", "ItemCode", "ItemDescription"})});
    fetch->Call("setFieldCaptions", {late::Array::List({"Item ID", "Item Code", "Item Description"})});
    fetch->Call("setFieldWidths", {late::Array::List({0, 2000, 4000})});
    fetch->Call("setDefaultFetchField", {2});
    fetch->Call("setInterfaceCaption", {"Item Fetch"});
    fetch->Put("strMsgboxTitle", "Shop");
    fetch->Put("DataIdentifier", "03");
    fetch->Put("PreserveData", true);
    Query("a.itemid <= 6");
  }
  void Query(const std::string& condition) {
    fetch->Put(
        "strQuery",
        "select a.itemid,a.itemcode,v.itemdescription from aitem a,vwitemdescription v where a.itemid=v.itemid and " + condition);
  }
  /// Shows the lookup; the id of the row taken, 0 when cancelled.
  int Show(const std::function<void(suite::frmLookup&)>& work) {
    late::Value given(rows);
    fetch->Call("setRecordSet", {late::Value::ByRef(given)});
    rows = given.ToObject();
    shop.desktop.ExpectForm("frmLookup", [&](controls::Form& form) { work(dynamic_cast<suite::frmLookup&>(form)); });
    fetch->Call("Show");
    return fetch->Call("getCancelledStatus").ToBool() ? 0 : ado::Recordset(rows).Field("itemid").ToInt32();
  }
  static std::string Descriptions(const suite::frmLookup& window) {
    std::string list;
    for (long row = 1; row < window.flexMaster.Rows(); ++row) list += window.flexMaster.TextMatrix(row, 2) + ";";
    return list;
  }

  HelperShop shop;
  late::ObjectPtr fetch = shop.Helper("Lookup.clsFetch");
  late::ObjectPtr rows;
};

TEST_F(Lookup, ShowsRowsAtOnceAndEnterTakesTheCurrentOne) {
  EXPECT_EQ(Show([&](suite::frmLookup& window) {
              EXPECT_EQ(window.Caption(), "Item Fetch");
              EXPECT_EQ(window.flexMaster.Rows(), 7);
              EXPECT_EQ(window.flexMaster.ColWidth(0), 0);
              EXPECT_EQ(window.ActiveControl(), &window.txtsearch);
              support::Press(window.txtsearch, "Down");
              support::Press(window.txtsearch, "Enter");
              EXPECT_FALSE(window.IsShown());
            }),
            2);
}

TEST_F(Lookup, FiltersAsOneTypesAndTakesTheRowThatBeginsSo) {
  shop.Run("update smpItemDescription set ItemDescription = 'Pan lid' where ItemID = 5");
  EXPECT_EQ(Show([&](suite::frmLookup& window) {
              support::Enter(window.txtsearch, " sauce ");
              EXPECT_EQ(window.lblcount.Caption(), "1 of 6") << "blanks around the text count for nothing";
              support::Enter(window.txtsearch, "PAN");
              EXPECT_EQ(window.flexMaster.Rows(), 7) << "frying pans and saucepans alike";
              support::Click(window.cmdOk);
            }),
            5);
}

TEST_F(Lookup, AHeadingSortsOnceUpOnceDownAndTheRightRowIsTaken) {
  Show([&](suite::frmLookup& window) {
    window.flexMaster.ClickCell(0, 2);
    const std::string up = Descriptions(window);
    window.flexMaster.ClickCell(0, 2);
    EXPECT_NE(Descriptions(window), up);
    for (long row = 2; row < window.flexMaster.Rows(); ++row) {
      EXPECT_GE(window.flexMaster.TextMatrix(row - 1, 2), window.flexMaster.TextMatrix(row, 2));
    }
    support::DoubleClick(window.flexMaster);
    EXPECT_TRUE(window.IsShown()) << "a heading clicked twice takes no item";
    support::GoToRow(window.flexMaster, 1);
    support::DoubleClick(window.flexMaster);
  });
  EXPECT_EQ(ado::Recordset(rows).Field("itemdescription").ToText(),
            shop.Row("select max(ItemDescription) from smpItemDescription where ItemID <= 6"));
}

TEST_F(Lookup, EscapeCancelsAndAnEmptyListTakesNothing) {
  EXPECT_EQ(Show([](suite::frmLookup& window) { support::Press(window.txtsearch, "Esc"); }), 0);
  Query("a.itemid < 0");
  fetch->Put("ForcedRefresh", true);
  EXPECT_EQ(Show([](suite::frmLookup& window) {
              support::Press(window.txtsearch, "Enter");
              EXPECT_TRUE(window.IsShown());
            }),
            0);
}

TEST_F(Lookup, SearchesAndSortsByTheColumnsThatAreShown) {
  shop.Run("update aItem set ItemCode = '9' where ItemId = 6\ngo\nupdate aItem set ItemCode = '10' where ItemId = 5");
  EXPECT_EQ(Show([&](suite::frmLookup& window) {
              EXPECT_EQ(window.flexMaster.TextMatrix(0, 1), "Item Code");
              EXPECT_EQ(window.flexMaster.ColWidth(1), 2000);
              EXPECT_EQ(window.flexMaster.ColWidth(2), 4000);
              EXPECT_EQ(window.cboSearch.ListCount(), 2) << "the hidden column is none to search in";
              EXPECT_EQ(window.cboColNames.ListCount(), 2);
              EXPECT_EQ(window.cboSearch.Text(), "Item Description");
              support::Choose(window.cboColNames, "Item Code");
              EXPECT_TRUE(Descriptions(window).starts_with("Saucepan with lid 2 l;Saucepan with lid 1.5 l;Frying pan 20 cm;"))
                  << "9, 10, KT1001: " << Descriptions(window);
              support::Enter(window.txtsearch, "1001");
              EXPECT_EQ(window.lblcount.Caption(), "0 of 6") << "no description has it";
              support::Choose(window.cboSearch, "Item Code");
              EXPECT_EQ(window.lblcount.Caption(), "1 of 6");
              support::Enter(window.txtsearch, "");
              EXPECT_EQ(window.lblcount.Caption(), "6 of 6");
              support::Press(window.txtsearch, "Down");
              support::Press(window.txtsearch, "Enter");
            }),
            5)
      << "the row under the bar in the order shown";
}

TEST_F(Lookup, ColumnsGivenAsTextsMayBeMoreThanTheQueryHas) {
  fetch->Call("setFieldNames", {"ItemID, ItemCode ,ItemDescription,Colour"});
  fetch->Call("setFieldCaptions", {"Id,Code"});
  fetch->Call("setFieldWidths", {"0,1500"});
  fetch->Call("setDefaultFetchField", {0});
  EXPECT_EQ(Show([](suite::frmLookup& window) {
              ASSERT_EQ(window.flexMaster.Cols(), 4);
              EXPECT_EQ(window.flexMaster.TextMatrix(0, 1), "Code");
              EXPECT_EQ(window.flexMaster.TextMatrix(0, 2), "ItemDescription") << "without a caption its own name";
              EXPECT_EQ(window.flexMaster.ColWidth(1), 1500);
              EXPECT_EQ(window.flexMaster.TextMatrix(2, 1), "KT1002");
              EXPECT_EQ(window.flexMaster.TextMatrix(2, 3), "");
              EXPECT_EQ(window.cboSearch.Text(), "Code") << "nobody can search in a hidden column";
              support::Enter(window.txtsearch, "kt1004");
              support::Press(window.txtsearch, "Enter");
            }),
            4);
}

TEST_F(Lookup, FieldsToldAnewOrNotAtAllAreReadAnew) {
  const auto last = [](suite::frmLookup& window) {
    return window.flexMaster.TextMatrix(0, window.flexMaster.Cols() - 1) + "=" +
           window.flexMaster.TextMatrix(2, window.flexMaster.Cols() - 1);
  };
  fetch->Put("DataIdentifier", "");
  fetch->Call("setFieldNames", {"ItemID,ItemCode"});
  Show([&](suite::frmLookup& window) { EXPECT_EQ(last(window), "Item Code=KT1002"); });
  fetch->Call("setFieldNames", {"ItemID,ItemCode,ItemDescription"});
  EXPECT_EQ(Show([&](suite::frmLookup& window) {
              EXPECT_EQ(last(window), "Item Description=Frying pan 24 cm");
              support::Enter(window.txtsearch, "pan with lid 2");
              support::Click(window.cmdOk);
            }),
            6);
  const late::ObjectPtr untold = shop.Helper("Lookup.clsFetch");
  untold->Put("strQuery", "select PackingTypeName from aPackingType where packingtypeid <= 2 order by packingtypeid");
  shop.desktop.ExpectForm("frmLookup", [&](controls::Form& form) {
    EXPECT_EQ(last(dynamic_cast<suite::frmLookup&>(form)), "PackingTypeName=Inner box");
  });
  untold->Call("Show");
}

TEST_F(Lookup, WhatWasTakenBeforeIsNotTakenAgainByCancellingOrByAnError) {
  EXPECT_EQ(Show([](suite::frmLookup& window) { support::Click(window.cmdOk); }), 1);
  EXPECT_EQ(Show([](suite::frmLookup& window) { support::Click(window.cmdClose); }), 0);
  EXPECT_EQ(Show([](suite::frmLookup& window) { support::Click(window.cmdOk); }), 1);
  fetch->Put("ForcedRefresh", true);
  shop.log.FailAt(1);
  EXPECT_THROW(fetch->Call("Show"), vb::RunTimeError);
  EXPECT_TRUE(fetch->Call("getCancelledStatus").ToBool());
  fetch->Put("ForcedRefresh", false);
  EXPECT_EQ(Show([](suite::frmLookup& window) {
              EXPECT_EQ(window.flexMaster.Rows(), 7);
              support::Click(window.cmdOk);
            }),
            1);
}

TEST_F(Lookup, AnOpenListHandedOverIsShownWithoutAskingTheDatabaseAgain) {
  const auto statements = [&] { return shop.log.Starting("select a.itemid").size(); };
  const auto another = [&] {
    fetch = shop.Helper("Lookup.clsFetch");  // as a form opened again makes its own
    fetch->Call("setFieldNames", {"ItemID,ItemCode,ItemDescription"});
    fetch->Put("DataIdentifier", "03");
    fetch->Put("PreserveData", true);
    Query("a.itemid <= 6");
  };
  Show([](suite::frmLookup& window) { window.Unload(); });
  another();
  EXPECT_EQ(Show([](suite::frmLookup& window) {
              EXPECT_EQ(window.flexMaster.Rows(), 7);
              support::GoToRow(window.flexMaster, 4);
              support::Press(window.flexMaster, "Enter");
            }),
            4);
  EXPECT_EQ(statements(), 1u);

  another();
  fetch->Put("PreserveData", false);
  Show([](suite::frmLookup& window) { window.Unload(); });
  EXPECT_EQ(statements(), 2u) << "every list is read again, where the shop wants it so";
  another();
  fetch->Put("ForcedRefresh", true);
  Show([](suite::frmLookup& window) { window.Unload(); });
  EXPECT_EQ(statements(), 3u);
  another();
  Query("a.itemid <= 5");
  Show([](suite::frmLookup& window) { EXPECT_EQ(window.flexMaster.Rows(), 6); });
  EXPECT_EQ(statements(), 4u) << "of another shop, say";
}

TEST_F(Lookup, KeepsItsRowsOnlyAsLongAsItIsToldTo) {
  const auto statements = [&] { return shop.log.Starting("select a.itemid").size(); };
  const auto look = [](suite::frmLookup& window) { window.Unload(); };
  std::string asTheyCame;
  Show([&](suite::frmLookup& window) {
    asTheyCame = Descriptions(window);
    support::Enter(window.txtsearch, "pan");
    window.flexMaster.ClickCell(0, 2);
    window.flexMaster.ClickCell(0, 2);
  });
  Show([&](suite::frmLookup& window) {
    EXPECT_EQ(Descriptions(window), asTheyCame) << "neither filtered nor sorted";
    window.flexMaster.ClickCell(0, 2);
    EXPECT_TRUE(Descriptions(window).starts_with("Frying pan 20 cm;")) << "up at the first click again";
  });
  EXPECT_EQ(statements(), 1u) << "the same data set is kept";
  fetch->Put("ForcedRefresh", true);
  Show(look);
  EXPECT_EQ(statements(), 2u);
  fetch->Put("ForcedRefresh", false);
  fetch->Put("DataIdentifier", "01");
  Show(look);
  EXPECT_EQ(statements(), 3u) << "another data set is another query";
  fetch->Put("PreserveData", false);
  Show([](suite::frmLookup& window) { support::Enter(window.txtsearch, "frying"); });
  EXPECT_EQ(statements(), 4u);
  Query("a.itemid in (5,6,7,8,9,10,11,12)");
  Show([](suite::frmLookup& window) {
    support::Enter(window.txtsearch, "pot");
    EXPECT_EQ(window.lblcount.Caption(), "3 of 8") << "the new rows are searched, not the old";
  });
  fetch->Put("PreserveData", true);
  Query("a.itemid < 0");
  fetch->Put("DataIdentifier", "02");
  Show(look);
  Show(look);
  EXPECT_EQ(statements(), 7u) << "an empty list is asked for again";
}

}  // namespace
