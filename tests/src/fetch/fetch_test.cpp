#include <utility>

#include "src/fetch/fetch_queries.h"
#include "tests/src/fetch/fetch_shop.h"

namespace fetch_test {
namespace {

using goods::FrmFetch;
using goods::ItemListMode;
using Fetch = FetchShop;

constexpr std::string_view kAllItems =
    "select a.itemid,a.itemcode,v.itemdescription ,a.brand,a.modelno,isnull(a.part_code,'')part_code  from ashopitemdetail "
    "s,vwitemdescription v, aitem a where a.itemid = v.itemid  and s.itemid = v.itemid and s.shopid = 1 and a.Active = 1";

TEST_F(Fetch, TheFilterFindsTextAnywhereInTheChosenColumn) {
  Open(ItemListMode::AllInShop, [&] {
    EXPECT_TRUE(dialog->txtFetch.HasFocus());
    EXPECT_EQ(dialog->cboFetch.Text(), "ItemDescription") << "the shop's preferred field";
    Filter(" blue rim ");
    EXPECT_TRUE(shop.log.Sent(std::string(kAllItems) + " and v.itemdescription like '%blue rim%' "));
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1021;KT1024;KT1026;");
    EXPECT_EQ(dialog->txtFetch.Text(), "");
    EXPECT_EQ(dialog->flexMaster.Row(), 3) << "the last row is current";
    EXPECT_EQ(dialog->flexMaster.ColSel(), FrmFetch::kPartCode);
    EXPECT_EQ(dialog->flexMaster.ColWidth(FrmFetch::kItemId), 0);

    support::Choose(dialog->cboFetch, "Brand");
    Filter("tashira");
    EXPECT_TRUE(shop.log.Sent(std::string(kAllItems) + " and a.brand like '%tashira%' ")) << "filters do not add up";
    const long tashira = RowsShown();
    Filter("tashira");
    EXPECT_EQ(RowsShown(), tashira) << "the column stays chosen";
  });
}

TEST_F(Fetch, EachFieldIsLookedForInItsOwnColumn) {
  Open(ItemListMode::AllInShop, [&] {
    const auto found = [&](std::string_view field, std::string_view text) {
      support::Choose(dialog->cboFetch, field);
      Filter(text);
      return Column(FrmFetch::kItemCode);
    };
    EXPECT_EQ(found("ItemCode", "t1003"), "KT1003;");
    EXPECT_EQ(found("ItemDescription", "limescale"), "SP1001;");
    EXPECT_EQ(found("ModelNo", "ST-80"), "KT1009;");
    EXPECT_EQ(found("Part_Code", "748"), "SP1016;");
    EXPECT_EQ(found("Brand", "limescale"), ";");
  });
}

TEST_F(Fetch, TheFilterContinuesTheListsConditionsAndLeavesItsOrderLast) {
  const auto filtered = [](std::string_view list, bool isCondition = false) {
    return goods::FilteredQuery(list, "a.brand", "o''k", isCondition);
  };
  EXPECT_EQ(filtered("select * from aitem a Where active=1 ORDER BY a.itemcode"),
            "select * from aitem a Where active=1  and a.brand like '%o''k%' ORDER BY a.itemcode");
  EXPECT_EQ(filtered("select * from aitem a order by 1"), "select * from aitem a  where a.brand like '%o''k%' order by 1");
  EXPECT_EQ(filtered("", true), " and a.brand like '%o''k%' ");
}

TEST_F(Fetch, EnterInTheEmptyFilterListsEverything) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("");
    EXPECT_EQ(std::to_string(RowsShown()), shop.Row("select count(*) from aShopItemDetail s inner join aItem a on a.ItemId = "
                                                    "s.ItemID where s.ShopID = 1 and a.active = 1"));
    const long everything = RowsShown();
    support::Choose(dialog->cboFetch, "Brand");
    Filter("");
    EXPECT_EQ(RowsShown(), everything) << "also the items of no brand";
  });
}

TEST_F(Fetch, APastedApostropheFindsWhatItNames) {
  shop.Run("update smpItemDescription set ItemDescription = 'O''Brien''s frying pan' where ItemID = 1");
  Open(ItemListMode::AllInShop, [&] {
    support::Type(dialog->txtFetch, "O'Br");
    EXPECT_EQ(dialog->txtFetch.Text(), "OBr") << "the key is swallowed";
    dialog->txtFetch.SelectAll();
    dialog->txtFetch.Paste("O'Brien");
    support::Press(dialog->txtFetch, "Enter");
    EXPECT_TRUE(shop.log.Sent(std::string(kAllItems) + " and v.itemdescription like '%O''Brien%' "));
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1001;");
  });
  Open(ItemListMode::InGodownNotInShop, [&] {
    dialog->txtFetch.Paste("O'Brien");
    support::Press(dialog->txtFetch, "Enter");
    EXPECT_TRUE(shop.log.Sent("spgodownitemnotinshop 1,' and v.itemdescription like ''%O''''Brien%'' '"));
  });
}

TEST_F(Fetch, NothingFoundLeavesHeadingsAndAnEmptyRow) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("frying");
    Filter("no such thing");
    EXPECT_EQ(RowsShown(), 1);
    EXPECT_EQ(dialog->flexMaster.Cols(), 6);
    EXPECT_EQ(dialog->flexMaster.TextMatrix(0, FrmFetch::kBrand), "Brand");
    EXPECT_EQ(Column(FrmFetch::kItemCode), ";");
    support::Click(dialog->CmdOk);
    EXPECT_TRUE(dialog->IsLoaded());
    Filter("frying");
    EXPECT_GT(RowsShown(), 1);
  });
  EXPECT_TRUE(entry.lines.empty());
}

TEST_F(Fetch, ADatabaseErrorLeavesListAndFilterText) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("blue rim");
    dialog->txtFetch.Paste("O'Brien");
    shop.log.FailAt(1);
    shop.desktop.ExpectMessage("Connection broken by the test\n(FrmFetch GridPopulate, -2147217900)");
    support::Press(dialog->txtFetch, "Enter");
    EXPECT_EQ(dialog->txtFetch.Text(), "O'Brien");
    EXPECT_EQ(RowsShown(), 3);
    EXPECT_EQ(shop.desktop.hourglasses, 0);
  });
}

TEST_F(Fetch, AnErrorWhileItOpensDoesNotSpoilTheNextFilter) {
  shop.log.FailAt(1);  // the shop's item type
  shop.desktop.ExpectMessage("Connection broken by the test\n(FrmFetch Form_Load, -2147217900)");
  Open(ItemListMode::StockOut, [&] {
    Filter("stock pot 5 l");
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1008;");
  });
}

TEST_F(Fetch, SortingFollowsTheListAndTheDirection) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("rim");
    support::Choose(dialog->cboColNames, "ItemDescription");
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1026;KT1021;KT1024;");
    EXPECT_EQ(dialog->flexMaster.Row(), 3);
    support::Click(dialog->optDescend);
    EXPECT_EQ(dialog->cboColNames.ListIndex(), -1);
    support::Choose(dialog->cboColNames, "ItemDescription");
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1024;KT1021;KT1026;");
    EXPECT_EQ(dialog->flexMaster.Row(), 3);
    support::Click(dialog->optAscend);
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1024;KT1021;KT1026;") << "the direction alone sorts nothing";
    EXPECT_EQ(dialog->cboColNames.ListIndex(), -1);

    // This entry sorts on the brand alone.
    support::Click(dialog->optAscend);
    Filter("lamp");
    support::Choose(dialog->cboColNames, "ItemCode");
    support::Choose(dialog->cboColNames, "ItemCode,ItemDescription");
    for (long row = 2; row < dialog->flexMaster.Rows(); ++row) {
      EXPECT_LE(dialog->flexMaster.TextMatrix(row - 1, FrmFetch::kBrand), dialog->flexMaster.TextMatrix(row, FrmFetch::kBrand));
    }
    EXPECT_TRUE(shop.desktop.sawHourglass);
    EXPECT_EQ(shop.desktop.hourglasses, 0);

    Filter("filter");  // spare parts of several machines
    support::Choose(dialog->cboColNames, "ItemCode");
    dialog->flexMaster.SetTextMatrix(1, FrmFetch::kPartCode, "ZZ");
    dialog->flexMaster.SetRow(1);
    dialog->flexMaster.SetTopRow(1);
    support::Press(dialog->txtFetch, "Up");  // several rows are selected now: all are sorted all the same
    support::Choose(dialog->cboColNames, "Part_code");
    const std::string partCodes = Column(FrmFetch::kPartCode);
    EXPECT_TRUE(partCodes.ends_with("ZZ;")) << partCodes;
    EXPECT_EQ(dialog->flexMaster.Row(), RowsShown());
    EXPECT_EQ(dialog->flexMaster.TopRow(), RowsShown());
  });
}

TEST_F(Fetch, AHeadingSortsAndKeepsTheItemThatWasSelected) {
  Open(ItemListMode::AllInShop, [&] {
    controls::FlexGrid& grid = dialog->flexMaster;
    Filter("rim");
    support::GoToRow(grid, 1);
    const std::string selected = grid.TextMatrix(1, FrmFetch::kItemCode);
    const auto clicked = [&](FrmFetch::Column column) {
      grid.ClickHeading(column);
      EXPECT_EQ(grid.TextMatrix(grid.Row(), FrmFetch::kItemCode), selected);
      EXPECT_EQ(grid.SortedCol(), column);
      EXPECT_EQ(grid.SortedAscending(), dialog->optAscend.Value());
      return Column(FrmFetch::kItemCode) + " " + dialog->cboColNames.Text();
    };
    EXPECT_EQ(clicked(FrmFetch::kItemDescription), "KT1026;KT1021;KT1024; ItemDescription");
    EXPECT_EQ(clicked(FrmFetch::kItemDescription), "KT1024;KT1021;KT1026; ItemDescription");
    EXPECT_EQ(clicked(FrmFetch::kItemCode), "KT1021;KT1024;KT1026; ItemCode");
    EXPECT_TRUE(clicked(FrmFetch::kBrand).ends_with(" ItemCode,ItemDescription")) << "the entry that sorts on the brand";
    EXPECT_TRUE(clicked(FrmFetch::kPartCode).ends_with(" Part_code"));
    EXPECT_TRUE(clicked(FrmFetch::kModelNo).ends_with("; ")) << "which the list does not name";

    support::Choose(dialog->cboColNames, "ItemCode");
    EXPECT_EQ(grid.SortedCol(), -1) << "no arrow is left where the list was sorted otherwise";
    grid.ClickHeading(FrmFetch::kItemCode);
    Filter("rim");
    EXPECT_EQ(grid.SortedCol(), -1);
    grid.ClickHeading(FrmFetch::kItemCode);
    support::Click(dialog->CmdOk);
  });
  EXPECT_EQ(entry.lines.size(), 2U) << "a click on a heading before OK takes the item all the same";
}

TEST_F(Fetch, EveryColumnIsInSight) {
  Open(ItemListMode::AllInShop, [&] {
    for (const auto* text : {"rim", "no such thing"}) {
      int width = 0;
      for (long column = 0; column < dialog->flexMaster.Cols(); ++column) width += dialog->flexMaster.ColWidth(column);
      EXPECT_LT(width, dialog->flexMaster.Place().width) << "before " << text;
      Filter(text);
    }
  });
}

TEST_F(Fetch, SortCodesNameRangesOfColumns) {
  Open(ItemListMode::AllInShop, [&] {
    controls::FlexGrid& grid = dialog->flexMaster;
    grid.SetRows(1);
    // No two columns order these alike.
    for (const auto* row : {"1\tA\tpot\tZeta", "2\tA\tcup\tZeta", "3\tB\tcup\tAlfa", "4\tA\tcup\tAlfa"}) grid.AddItem(row);
    const auto sorted = [&](std::int32_t code) {
      dialog->cboColNames.AddItem(std::to_string(code), code);
      support::Choose(dialog->cboColNames, std::to_string(code));
      return Column(FrmFetch::kItemId);
    };
    EXPECT_EQ(sorted(4), "2;4;1;3;") << "code, then description";
    EXPECT_EQ(sorted(5), "4;3;2;1;") << "description, then brand";
    EXPECT_EQ(sorted(6), "4;2;1;3;") << "code, description, brand";
  });
}

TEST_F(Fetch, TypingJumpsToTheFirstRowThatBeginsSo) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("frying pan");
    support::Type(dialog->txtsearch, "frying pan 24");
    EXPECT_EQ(dialog->cboSearch.Text(), "ItemDescription") << "where no column is chosen";
    EXPECT_EQ(dialog->flexMaster.TextMatrix(dialog->flexMaster.Row(), FrmFetch::kItemCode), "KT1002");
    support::Choose(dialog->cboSearch, "ItemCode");
    support::Enter(dialog->txtsearch, "kt1002");
    EXPECT_EQ(dialog->flexMaster.TextMatrix(dialog->flexMaster.Row(), FrmFetch::kItemDescription), "Frying pan 24 cm");
    EXPECT_EQ(dialog->flexMaster.TopRow(), dialog->flexMaster.Row());
    EXPECT_EQ(dialog->flexMaster.ColSel(), FrmFetch::kPartCode);

    const auto current = [&](FrmFetch::Column column) { return dialog->flexMaster.TextMatrix(dialog->flexMaster.Row(), column); };
    support::Choose(dialog->cboSearch, "ModelNo");
    support::Enter(dialog->txtsearch, "fp-3");
    EXPECT_EQ(current(FrmFetch::kModelNo), "FP-32");
    support::Choose(dialog->cboSearch, "Part_Code");
    support::Enter(dialog->txtsearch, "FP-751");
    EXPECT_EQ(current(FrmFetch::kItemCode), "SP1017") << "the frying pan's handle";
    support::Choose(dialog->cboSearch, "ItemCode");
    support::Enter(dialog->txtsearch, " ");
    EXPECT_EQ(current(FrmFetch::kItemCode), "SP1017") << "a blank asks for nothing";
    EXPECT_EQ(dialog->flexMaster.Row(), RowsShown());
  });
}

TEST_F(Fetch, AChosenItemIsHandedOverInEveryMode) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("limescale");
    support::Press(dialog->flexMaster, "Enter");
    EXPECT_FALSE(dialog->IsLoaded());
  });
  EXPECT_EQ(entry.lines, (std::vector<std::string>{"code SP1001", "packings 258"}));

  entry.lines.clear();
  shop.Run("update smpShopStock set stock = 0 where shopid = 1 and itemid = 258");
  shop.Run("update aShopItemDetail set ItemReorderLevel = 5, RequestRaised = 0 where ShopID = 1 and ItemID = 258");
  Open(ItemListMode::StockOut, [&] {
    Filter("limescale");
    support::DoubleClick(dialog->flexMaster);
  });
  EXPECT_EQ(entry.lines,
            (std::vector<std::string>{"code SP1001", "item 258 Kettle limescale filter [KE17-703]", "packings 258"}));

  entry.lines.clear();
  entry.refuses = true;
  Open(ItemListMode::NotInShop, [&] {
    Filter("saucepan");
    support::Click(dialog->CmdOk);
    EXPECT_FALSE(dialog->IsLoaded());
  });
  EXPECT_EQ(entry.lines, (std::vector<std::string>{"code KT1005"})) << "no packings of an item that was refused";
}

TEST_F(Fetch, TheCurrentRowIsHandedOver) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("frying pan");
    support::GoToRow(dialog->flexMaster, 2);
    support::Click(dialog->CmdOk);
  });
  EXPECT_EQ(entry.lines.at(0), "code KT1002");

  // A stock-out item comes as it stands, also when its code finds nothing, with the part code that it has by now.
  entry.lines.clear();
  entry.refuses = true;
  Open(ItemListMode::StockOut, [&] {
    Filter("stock pot 5 l");
    shop.Run("update aItem set part_code = 'NEW' where ItemId = 8");
    support::Press(dialog->flexMaster, "Enter");
  });
  EXPECT_EQ(entry.lines, (std::vector<std::string>{"code KT1008", "item 8 Stock pot 5 l [NEW]", "packings 8"}));
}

TEST_F(Fetch, ARowWithoutAnItemOnlyClosesTheDialog) {
  Open(ItemListMode::AllInShop, [&] {
    dialog->flexMaster.SetTextMatrix(1, FrmFetch::kItemId, "0");
    dialog->flexMaster.SetTextMatrix(1, FrmFetch::kItemCode, "X");
    support::Click(dialog->CmdOk);
    EXPECT_FALSE(dialog->IsLoaded());
  });
  EXPECT_TRUE(entry.lines.empty());
}

TEST_F(Fetch, KeysLeadThroughTheDialog) {
  Open(ItemListMode::AllInShop, [&] {
    Filter("frying pan");
    dialog->flexMaster.SetRow(2);
    support::Press(dialog->txtFetch, "Up");
    EXPECT_TRUE(dialog->flexMaster.HasFocus());
    EXPECT_EQ(dialog->flexMaster.Row(), 2);
    EXPECT_EQ(dialog->flexMaster.RowSel(), RowsShown());
    EXPECT_EQ(dialog->flexMaster.ColSel(), FrmFetch::kPartCode);
    support::Press(dialog->txtFetch, "Down");
    EXPECT_TRUE(dialog->flexMaster.HasFocus());
    EXPECT_EQ(dialog->flexMaster.Row(), 2);
    support::Press(dialog->txtsearch, "Ctrl+D");
    EXPECT_TRUE(dialog->flexMaster.HasFocus());
    for (const auto& [here, next] :
         std::initializer_list<std::pair<controls::Control*, controls::Control*>>{{&dialog->cboFetch, &dialog->txtFetch},
                                                                                  {&dialog->cboSearch, &dialog->txtsearch},
                                                                                  {&dialog->txtsearch, &dialog->cboColNames},
                                                                                  {&dialog->cboColNames, &dialog->optAscend},
                                                                                  {&dialog->optAscend, &dialog->optDescend},
                                                                                  {&dialog->optDescend, &dialog->CmdOk}}) {
      support::Press(*here, "Enter");
      EXPECT_TRUE(next->HasFocus()) << here->Name();
    }
    support::Press(dialog->txtFetch, "Esc");
    EXPECT_FALSE(dialog->IsLoaded());
  });
}

TEST_F(Fetch, EachOpeningStartsAnew) {
  shop.Run("update LOsSettings set defaultfetch = null where ShopID = 1");
  Open(ItemListMode::AllInShop, [&] {
    support::Choose(dialog->cboFetch, "Brand");
    Filter("oskeda");
  });
  Open(ItemListMode::NotInShop, [&] {
    EXPECT_EQ(dialog->cboFetch.Text(), "ItemDescription");
    EXPECT_EQ(RowsShown(), 1);
    EXPECT_EQ(Column(FrmFetch::kItemCode), ";");
    Filter("");
    EXPECT_EQ(Column(FrmFetch::kItemCode).find("KT1001;"), std::string::npos);
  });
  shop.Run("update LOsSettings set defaultfetch = 'ItemID' where ShopID = 1");
  Open(ItemListMode::AllInShop, [&] {
    EXPECT_EQ(dialog->cboFetch.Text(), "ItemDescription") << "a field that is not offered";
    Filter("limescale");
    EXPECT_EQ(Column(FrmFetch::kItemCode), "SP1001;");
  });
}

}  // namespace
}  // namespace fetch_test
