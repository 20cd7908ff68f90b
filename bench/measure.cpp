// Prints what the component costs, as ratios against limits measured in the same run.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "base/vb/text.h"
#include "bench/bench_shop.h"
#include "bench/measurements.h"
#include "bench/raw_database.h"
#include "bench/stopwatch.h"
#include "src/editor/frm_request.h"
#include "src/editor/stock_out_proposal.h"
#include "src/fetch/frm_fetch.h"
#include "src/lists/grid_search.h"
#include "src/records/request_lines.h"
#include "suite/helpers/frm_lookup.h"

namespace {

using bench::BenchShop;
using bench::Pair;
using bench::PrintRow;
using bench::RawDatabase;
using bench::RawStatement;
using bench::TemporaryFile;
using bench::Time;

constexpr int kRuns = 5;
constexpr int kLines = 1000;

std::string Detail(const Pair& pair, const char* reference) {
  char text[160];
  std::snprintf(text, sizeof(text), "%.1f ms, %s %.1f ms", pair.ours, reference, pair.reference);
  return text;
}

constexpr const char* kRegisterQuery =
    "select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks,CASE GRHcancel when 1 then 'Yes' when 0 then 'No' end,"
    "CASE GRHtransfinished when 1 then 'Yes' when 0 then 'No' end from mosGoodsRequestHeader"
    " where GRHshopid=1 and grhrequestdate > 0 order by GRHrequestID";

void MeasureRegister() {
  BenchShop shop(TemporaryFile("register"), {100000, 0, 1});
  RawDatabase raw(shop.path);
  const auto fill = [&] {
    const double time = Time([&] { shop.module.Register().Load(); });
    shop.module.Register().Unload();
    return time;
  };
  const auto read = [&] {
    std::vector<std::vector<std::string>> rows;
    return Time([&] { raw.ReadIntoStrings(kRegisterQuery, rows); });
  };
  const Pair pair = bench::MeasurePair(kRuns, fill, read);
  PrintRow("register filled with 100,000 requests", pair.Ratio(), 1.5, "x", Detail(pair, "rows into strings"));
  const bench::ChildCost child = bench::InChild([&] {
    // A connection does not survive a fork: the child opens the file again.
    BenchShop* inherited = &shop;
    inherited->database = suite::Database::Open(inherited->path);
    inherited->session.gAdoCon = ado::Connection(inherited->database->Connect());
    inherited->module.Register().Load();
  });
  PrintRow("peak memory with it", child.peakMegabytes, 120, "MB", "");

  shop.module.Register().Load();
  controls::FlexGrid& grid = shop.module.Register().flexMaster;
  const auto sortOn = [&](long column) {
    grid.SetRow(1);
    grid.SetCol(column);
    grid.Sort(controls::GridSort::TextAscending);
  };
  const auto sort = [&] {
    sortOn(3);
    return Time([&] { sortOn(1); });
  };
  const auto sortKeys = [&] {
    sortOn(3);
    std::vector<std::pair<std::string, std::size_t>> keys;
    for (long row = 1; row < grid.Rows(); ++row) keys.emplace_back(grid.TextMatrix(row, 1), static_cast<std::size_t>(row));
    return Time(
        [&] { std::stable_sort(keys.begin(), keys.end(), [](const auto& a, const auto& b) { return a.first < b.first; }); });
  };
  const Pair sorting = bench::MeasurePair(kRuns, sort, sortKeys);
  PrintRow("100,000 rows sorted", sorting.Ratio(), 1.5, "x", Detail(sorting, "std::stable_sort"));
  shop.module.Register().Unload();
}

/// A new request of 1,000 lines in an editor; the time of its OK.
double SaveNewRequest(BenchShop& shop, goods::frmRequest& editor, int lines) {
  double time = 0;
  shop.session.gStrEntryMode = "N";
  shop.desktop.work = [&](controls::Form&) {
    editor.lvwrequest.Clear();
    for (int line = 1; line <= lines; ++line) {
      controls::ListItem& item = editor.lvwrequest.Add(std::to_string(line));
      item.SetSubItem(goods::kLineItemCode, "CODE" + std::to_string(line));
      item.SetSubItem(goods::kLineItemName, "Item " + std::to_string(line));
      item.SetSubItem(goods::kLineQty, "2.500");
      item.SetSubItem(goods::kLineItemId, std::to_string(line));
      item.SetSubItem(goods::kLineRemarks, "as last time");
    }
    time = Time([&] { editor.cmdOK.Click.Fire(); });
  };
  editor.txtrequestDate.SetText("15/03/2024");
  editor.txtRemarks.SetText("measured");
  editor.Show();
  return time;
}

double SaveRaw(RawDatabase& raw, int lines) {
  RawStatement next(raw, "select max(grhrequestid) from mosGoodsRequestHeader where grhshopid = 1");
  RawStatement header(
      raw,
      "insert into mosGoodsRequestHeader (grhrequestid,grhrequestno,grhrequestdate,grhshopid,grhremarks,grhrecaddUser,"
      "grhTransFinished,grhNoofDetails,GRHrequestTime,grhhqrequestgenerated,grhrequesttype) values "
      "((select max(grhrequestid)+1 from mosGoodsRequestHeader where grhshopid=1),?1,?2,1,'measured','User',0,?3,?2,0,'G')");
  RawStatement detail(raw,
                      "insert into mosGoodsRequestDetail (GRDDetailid,GRDshopID,GRDrequestID,GRDitemID,grdreqcomments,GRDgoodQty,"
                      "grdexpectremarks) values (?1,1,(select max(grhrequestid) from mosGoodsRequestHeader where grhshopid=1),?2,"
                      "'as last time',2500,'measured')");
  RawStatement flag(raw, "update aShopItemDetail set RequestRaised=1 where Itemid = ?1");
  return Time([&] {
    raw.Run("begin immediate");
    next.Execute();
    header.Bind(1, "RAW/1");
    header.Bind(2, std::int64_t{3919449600000});
    header.Bind(3, lines);
    header.Execute();
    for (int line = 1; line <= lines; ++line) {
      detail.Bind(1, line);
      detail.Bind(2, line);
      detail.Execute();
    }
    for (int line = 1; line <= lines; ++line) {
      flag.Bind(1, line);
      flag.Execute();
    }
    raw.Run("commit");
  });
}

/// A shop of its own with an editor, ready to save new requests of kLines lines.
class SavingShop {
 public:
  SavingShop(const std::string& name, int storedRequests) : shop_(TemporaryFile(name), {storedRequests, kLines, kLines}) {
    shop_.LogOn();
    shop_.module.Register().Load();
    goods::RegisterView view{shop_.module.Register().flexMaster,
                             "select GRHrequestID from mosGoodsRequestHeader where GRHshopid=1 order by GRHrequestID"};
    editor_ = std::make_shared<goods::frmRequest>(shop_.session, view);
  }
  const std::string& Path() const { return shop_.path; }
  double Save() { return SaveNewRequest(shop_, *editor_, kLines); }

 private:
  BenchShop shop_;
  std::shared_ptr<goods::frmRequest> editor_;
};

void MeasureSaves() {
  {
    SavingShop shop("save", 1);
    RawDatabase raw(shop.Path());
    const Pair pair = bench::MeasurePair(
        kRuns * 8, [&] { return shop.Save(); }, [&] { return SaveRaw(raw, kLines); });
    PrintRow("new request of 1,000 lines saved", pair.Ratio(), 2, "x", Detail(pair, "prepared statements"));
  }
  SavingShop small("save_small", 1);
  SavingShop large("save_large", 1000);
  const Pair pair = bench::MeasurePair(
      kRuns * 8, [&] { return large.Save(); }, [&] { return small.Save(); });
  PrintRow("the same with 1,000,000 stored lines", pair.Ratio(), 1.2, "x", Detail(pair, "with 1,000 lines"));
  {
    SavingShop shop("save_one", 1);
    RawDatabase raw(shop.Path());
    const auto save = [&](const char* synchronous) {
      raw.Run(synchronous);
      return SaveRaw(raw, 1);
    };
    const Pair one = bench::MeasurePair(
        kRuns * 20, [&] { return save("pragma synchronous=FULL"); }, [&] { return save("pragma synchronous=NORMAL"); });
    PrintRow("one line saved, on the disk when it answers", one.Ratio(), 10, "x", Detail(one, "synchronous=NORMAL"));
  }
}

constexpr const char* kLinesQuery =
    "select itemcode,a.grditemid,a.grdgoodqty,z.ItemDescription,a.grdshopid,grdreqcomments,ifnull(b.part_code,'') part_code "
    "from mosgoodsrequestdetail a,aitem b,vwitemdescription z where a.grditemid=b.itemid and b.itemid=z.itemid and GRDgoodQty >0 "
    "and a.grdrequestid=?1 and a.grdshopid=1";

double UnitCodesRaw(RawStatement& unit, int first, int count) {
  return Time([&] {
    for (int item = first; item < first + count; ++item) {
      unit.Bind(1, item);
      unit.Execute();
    }
  });
}

void MeasureOpening() {
  BenchShop shop(TemporaryFile("open"), {3, kLines, kLines});
  shop.LogOn();
  shop.module.Register().Load();
  goods::RegisterView view{shop.module.Register().flexMaster, ""};
  const auto editor = std::make_shared<goods::frmRequest>(shop.session, view);
  const auto id = vb::CLng(vb::Val(view.flexMaster.TextMatrix(view.flexMaster.Rows() - 1, 0)));
  RawDatabase raw(shop.path);
  RawStatement lines(raw, kLinesQuery);
  RawStatement unit(raw, "select u.UnitCode from aItem i, aUnit u where i.UnitsId = u.UnitId AND i.ItemId = ?1");
  const auto open = [&] {
    shop.session.gStrEntryMode = "E";
    shop.session.gLngRequestID = id;
    const double time = Time([&] { editor->Load(); });
    editor->Unload();
    return time;
  };
  const auto read = [&] {
    return Time([&] {
             lines.Bind(1, id);
             lines.Execute();
           }) +
           UnitCodesRaw(unit, 1, kLines);
  };
  const Pair pair = bench::MeasurePair(kRuns * 2, open, read);
  PrintRow("request of 1,000 lines opened", pair.Ratio(), 2, "x", Detail(pair, "its statements"));
}

void MeasureProposal() {
  constexpr int kItems = 10000;
  BenchShop shop(TemporaryFile("proposal"), {0, kItems, 1});
  shop.LogOn();
  shop.database->RunScript("update ashopitemdetail set ItemReorderLevel=1000000 where ShopID=1");
  goods::RegisterView view{shop.module.Register().flexMaster, ""};
  const auto editor = std::make_shared<goods::frmRequest>(shop.session, view);
  RawDatabase raw(shop.path);
  RawStatement proposal(
      raw,
      "select itemcode,a.itemid,a.ItemReorderLevel,a.ReorderQuantity,z.ItemDescription from ashopitemdetail a,aitem b,"
      "vwitemdescription z,(select shopid,itemid,ifnull(sum(stock),0) stock from smpShopStock s where shopid=1 "
      "group by shopid,itemid) istock where a.itemid=istock.itemid and a.shopid=istock.shopid and a.itemid=b.itemid "
      "and b.itemid=z.itemid and a.shopid=1 and ItemReorderLevel >= istock.stock and b.itemtype <> 'B' and b.active=1");
  RawStatement unit(raw, "select u.UnitCode from aItem i, aUnit u where i.UnitsId = u.UnitId AND i.ItemId = ?1");
  const auto propose = [&] {
    shop.session.gStrEntryMode = "N";  // the empty desktop answers Yes to the stock-out question
    const double time = Time([&] { editor->Load(); });
    editor->Unload();
    return time;
  };
  const auto read = [&] {
    std::size_t rows = 0;
    const double time = Time([&] { rows = proposal.Execute(); });
    return time + UnitCodesRaw(unit, 1, static_cast<int>(rows));
  };
  const Pair pair = bench::MeasurePair(kRuns, propose, read);
  PrintRow("10,000 stock-out lines proposed", pair.Ratio(), 3, "x", Detail(pair, "bare statements"));
}

void MeasureTypeAhead() {
  BenchShop shop(TemporaryFile("search"), {32000, 0, 1});
  shop.module.Register().Load();
  controls::FlexGrid& grid = shop.module.Register().flexMaster;
  const auto perKey = [&](long column, const char* typed) {
    return bench::Median(kRuns * 4, [&] { return Time([&] { goods::SearchInGrid(grid, column, typed); }); });
  };
  goods::SearchInGrid(grid, 3, "a");  // sorts
  const double found = perKey(3, "m");
  const double inVain = perKey(3, "zzz");
  goods::SearchInGrid(grid, 0, "1");
  const double number = perKey(0, "31999");
  char detail[120];
  std::snprintf(detail, sizeof(detail), "a text that is there %.4f ms, one that is not %.2f ms, a number %.2f ms", found, inVain,
                number);
  PrintRow("type-ahead, one key, " + std::to_string(grid.Rows() - 1) + " sorted rows", std::max({found, inVain, number}), 2, "ms",
           detail);
}

/// Item entry as the fetch dialog sees it, with nobody in it.
class NoItemEntry : public goods::ItemEntryPort {
 public:
  goods::ItemListMode SelectedList() const override { return goods::ItemListMode::AllInShop; }
  bool TakeItemCode(const goods::PickedItem&) override { return true; }
  void TakeStockOutItem(const goods::PickedItem&) override {}
  void TakeManyItems(const std::vector<goods::PickedItem>&) override {}
  void FillPackTypeinList(std::int32_t) override {}
};

constexpr const char* kShopItemsQuery =
    "select a.itemid,a.itemcode,v.itemdescription,a.brand,a.modelno,ifnull(a.part_code,'') part_code from ashopitemdetail s,"
    "vwitemdescription v,aitem a where a.itemid=v.itemid and a.itemtype<>'B' and s.itemid=v.itemid and s.shopid=1 and a.Active=1 "
    "and a.brand like '%e%'";

constexpr const char* kLookupQuery =
    "select a.itemid,a.itemcode,v.itemdescription,a.brand,a.modelno,isnull(a.part_code,'')part_code from aitem a,"
    "vwitemdescription v where a.itemid=v.itemid";
constexpr const char* kLookupRawQuery =
    "select a.itemid,a.itemcode,v.itemdescription,a.brand,a.modelno,ifnull(a.part_code,'') part_code from aitem a,"
    "vwitemdescription v where a.itemid=v.itemid";

void MeasureFetchDialog() {
  BenchShop shop(TemporaryFile("fetch"), {0, 100000, 1});
  shop.LogOn();
  shop.session.gStrItemTypeFilter = " and a.itemtype<>'B'";
  NoItemEntry itemEntry;
  const auto dialog = std::make_shared<goods::FrmFetch>(shop.session, itemEntry);
  dialog->Load();
  dialog->cboFetch.SetListIndex(2);  // every generated brand has an "e"
  const auto filter = [&] {
    dialog->txtFetch.SetText("e");
    int enter = controls::kCharReturn;
    return Time([&] { dialog->txtFetch.KeyPress.Fire(enter); });
  };
  RawDatabase raw(shop.path);
  const auto read = [&] {
    std::vector<std::vector<std::string>> rows;
    return Time([&] { raw.ReadIntoStrings(kShopItemsQuery, rows); });
  };
  const Pair pair = bench::MeasurePair(kRuns, filter, read);
  PrintRow("fetch dialog, " + std::to_string(dialog->flexMaster.Rows() - 1) + " items filtered and filled", pair.Ratio(), 2, "x",
           Detail(pair, "bare statement"));
  dialog->Unload();
}

/// The lookup of item entry: a key in its search box that every item answers to, so that all are filtered and filled again.
void MeasureLookup() {
  BenchShop shop(TemporaryFile("lookup"), {0, 100000, 1});
  shop.LogOn();
  const late::ObjectPtr lookup = shop.registry.Create("Lookup.clsFetch");
  lookup->PutRef("adocon", shop.session.gAdoCon.Object());
  lookup->Put("strQuery", kLookupQuery);
  lookup->Call("setFieldNames", {late::Array::List({"ItemID", "ItemCode", "ItemDescription", "Brand", "ModelNo", "Part_Code"})});
  lookup->Call("setDefaultFetchField", {3});
  RawDatabase raw(shop.path);
  const auto read = [&] {
    std::vector<std::vector<std::string>> rows;
    return Time([&] { raw.ReadIntoStrings(kLookupRawQuery, rows); });
  };
  shop.desktop.work = [&](controls::Form& form) {
    auto& window = dynamic_cast<suite::frmLookup&>(form);
    const auto key = [&] {
      window.txtsearch.SetText("");
      return Time([&] { window.txtsearch.SetText("e"); });
    };
    const Pair pair = bench::MeasurePair(kRuns, key, read);
    PrintRow("lookup, one key, " + std::to_string(window.flexMaster.Rows() - 1) + " items filled", pair.Ratio(), 2, "x",
             Detail(pair, "bare statement"));
  };
  lookup->Call("Show");
}

void MeasureTour(const std::string& program, const std::string& tourFolder) {
  const std::string folder = TemporaryFile("tour");
  std::filesystem::create_directory(folder);
  std::filesystem::copy_file(tourFolder + "/ShopSetting.txt", folder + "/ShopSetting.txt");
  const bench::ChildCost cost = bench::OfProgram(program, "--app-folder " + folder + " --now '2024-03-15 09:30:00' --script " +
                                                              tourFolder + "/tour.txt >" + folder + "/out.txt");
  bench::MeasureTerminal(program, folder);
  std::filesystem::remove_all(folder);
  PrintRow("the tour's processor time", cost.processorMilliseconds < 0 ? -1 : cost.processorMilliseconds / 1000, 1, "s", "");
}

/// The measurements by name, for running one alone.
struct Measurement {
  const char* name;
  void (*run)();
};

constexpr Measurement kMeasurements[] = {{"register", MeasureRegister},   {"save", MeasureSaves},
                                         {"open", MeasureOpening},        {"proposal", MeasureProposal},
                                         {"typeahead", MeasureTypeAhead}, {"fetch", MeasureFetchDialog},
                                         {"lookup", MeasureLookup},       {"counter", bench::MeasureCounter}};

}  // namespace

/// measure [program tour-folder]: everything. measure NAME: one measurement alone.
int main(int argc, char** argv) {
  const std::string only = argc == 2 ? argv[1] : "";
  bench::PrintHeading();
  for (const Measurement& measurement : kMeasurements) {
    if (only.empty() || only == measurement.name) measurement.run();
  }
  if (argc == 3) MeasureTour(argv[1], argv[2]);
  return 0;
}
