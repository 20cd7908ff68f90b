#include "src/fetch/frm_fetch.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/vb/text.h"
#include "src/fetch/fetch_queries.h"
#include "src/fetch/item_type_filter.h"
#include "src/lists/cell_text.h"
#include "src/lists/grid_search.h"
#include "src/lists/heading_sort.h"
#include "src/lists/list_views.h"

namespace goods {
namespace {

constexpr int kHourglassPointer = 11;
constexpr int kDescriptionEntry = 1;  // of the lists of columns to filter on and to search in

/// The hourglass on the grid. Does not touch a grid whose form was unloaded meanwhile: that would load it again.
class GridHourglass {
 public:
  explicit GridHourglass(controls::FlexGrid& grid) : grid_(grid) { grid_.SetMousePointer(kHourglassPointer); }
  ~GridHourglass() {
    if (grid_.Owner().IsLoaded()) grid_.SetMousePointer(0);
  }
  GridHourglass(const GridHourglass&) = delete;
  GridHourglass& operator=(const GridHourglass&) = delete;

 private:
  controls::FlexGrid& grid_;
};

std::string LoadHeadings() {
  return "|<Item Code" + vb::Space(39) + "|< Item Description" + vb::Space(94) + "|<Brand" + vb::Space(50) + "|< Model No" +
         vb::Space(8) + "|< Part_Code";
}

std::string FilledHeadings() {
  return "|Item Code" + vb::Space(39) + "| Item Description" + vb::Space(97) + "|Brand" + vb::Space(50) + "| Model No" +
         vb::Space(6) + "| Part Code";
}

std::string EmptyHeadings() {
  return "|Item Code" + vb::Space(39) + "| Item Description" + vb::Space(62) + "|Brand" + vb::Space(50) + "| Model No" +
         vb::Space(7) + "| Part Code";
}

/// A sort column's meaning: the grid columns to sort on.
struct SortRange {
  long first;
  long last;
};

SortRange SortRangeOf(std::int32_t itemData) {
  switch (itemData) {
    case 4:
      return {1, 2};
    case 5:
      return {2, 3};
    case 6:
      return {1, 3};
    case 7:
      return {5, 5};
    default:
      return {itemData, itemData};
  }
}

using Rows = std::vector<std::vector<std::string>>;

/// The rows that a procedure gives, after the counts that it may give first; a face without an object when there are none.
ado::Recordset FirstRows(ado::Recordset result) {
  while (result && !result.IsOpen()) result = result.NextRecordset();
  return result;
}

/// The rest of the recordset, block by block; the blocks' texts are taken over, not copied.
Rows ReadRows(ado::Recordset& recordset) {
  constexpr int kBlockRows = 1024;
  Rows rows;
  while (!recordset.Eof()) {
    const late::ArrayPtr block = recordset.GetRows(kBlockRows);
    for (std::size_t record = 0; record < block->columns; ++record) {
      std::vector<std::string>& cells = rows.emplace_back();
      cells.reserve(block->rows);
      for (std::size_t field = 0; field < block->rows; ++field) cells.push_back(CellText(std::move(block->At(field, record))));
    }
  }
  return rows;
}

}  // namespace

void FrmFetch::Form_Load() {
  strFetchField_.clear();
  objCommonDB_ = CommonDb(Session().services.factory, Session().gAdoCon);
  // The dialog serves without these, too; their absence is reported.
  Trap("Form_Load", [&] { objCommonGen_ = CommonGen(Session().services.factory); });
  Trap("Form_Load", [&] { Session().gObjFormColor.Applyformcolor(*this); });
  flexMaster.SetFormatString(LoadHeadings());
  flexMaster.SetColWidth(kItemId, 0);
  FillLists();
  GoToLastRow();
  SelectAllColumns();
  BuildBaseQuery();
}

void FrmFetch::FillLists() {
  for (const auto* field : {"ItemCode", "ItemDescription", "Brand", "ModelNo", "Part_Code"}) cboFetch.AddItem(field);
  cboColNames.AddItem("ItemCode", 1);
  cboColNames.AddItem("ItemDescription", 2);
  cboColNames.AddItem("ItemCode,ItemDescription", 3);  // sorts on column 3, the brand: users know it so
  cboColNames.AddItem("Part_code", 7);
  cboSearch.AddItem("ItemCode", kItemCode);
  cboSearch.AddItem("ItemDescription", kItemDescription);
  cboSearch.AddItem("Brand", kBrand);
  cboSearch.AddItem("ModelNo", kModelNo);
  cboSearch.AddItem("Part_Code", kPartCode);
}

void FrmFetch::BuildBaseQuery() {
  basGoodsRequest& session = Session();
  strFetchQuery_.clear();
  switch (itemEntry_.SelectedList()) {
    case ItemListMode::StockOut:
      session.gStrItemTypeFilter = ListItemTypeFilter(objCommonDB_, session.gIntShopID);
      strFetchQuery_ = StockOutBaseQuery(session.gStrStockView, session.gStrItemTypeFilter, session.gIntShopID);
      break;
    case ItemListMode::AllInShop:
      strFetchQuery_ = AllItemsBaseQuery(session.gStrItemTypeFilter, session.gIntShopID);
      break;
    case ItemListMode::NotInShop:
      strFetchQuery_ = NotInShopBaseQuery(session.gIntShopID);
      break;
    case ItemListMode::InGodownNotInShop:
      break;  // the procedure brings its own query: it gets only the filter
  }
}

void FrmFetch::Form_Activate() {
  objCommonDB_.strTableName("lossettings");
  const late::Value preferred = objCommonDB_.fnReturnField("defaultfetch", "ShopID=" + std::to_string(Session().gIntShopID));
  if (!preferred.IsNull() && !preferred.IsEmpty()) objCommonGen_.SelectComboItemByName(cboFetch, preferred.ToText());
  if (cboFetch.ListIndex() < 0) cboFetch.SetListIndex(kDescriptionEntry);
  txtFetch.SetFocus();
}

void FrmFetch::Form_KeyPress(int& character) {
  if (character != controls::kCharCtrlD) return;
  character = 0;
  flexMaster.SetFocus();
}

void FrmFetch::txtFetch_KeyPress(int& character) {
  const controls::Hourglass hourglass(*this);
  const GridHourglass gridHourglass(flexMaster);
  if (character == controls::kCharApostrophe) character = 0;
  if (character == controls::kCharReturn) RunFilter();
}

void FrmFetch::RunFilter() {
  // Where the load could not build the list's query, there is none to filter: now it may be built.
  if (strFetchQuery_.empty()) BuildBaseQuery();
  const std::string text = vb::DoubleApostrophes(vb::Trim(txtFetch.Text()));
  strFetchField_ = FilterColumn(strFetchField_);
  // An empty filter lists everything of the mode, also the items without a brand, model or part code.
  const std::string column = text.empty() ? FilterColumn("ItemDescription") : strFetchField_;
  // After a database error the text stays in the box as the user gave it, ready for another try.
  if (!GridPopulate(FilteredQuery(strFetchQuery_, column, text, IsGodownList()))) return;
  txtFetch.SetText("");
  SelectAllColumns();
}

bool FrmFetch::GridPopulate(std::string_view query) {
  return Trap("GridPopulate", [&] {
    basGoodsRequest& session = Session();
    ado::Recordset recordset;
    if (IsGodownList()) {
      recordset = FirstRows(session.gAdoCon.Execute(GodownItemsCall(session.gIntShopID, query)));
    } else {
      recordset = ado::Recordset::Create(session.services.factory);
      recordset.Open(query, session.gAdoCon);
    }
    // Everything is read before the grid is touched: a list that breaks off half-way leaves the old one in place.
    const long columns = recordset ? recordset.FieldCount() : 0;
    Rows rows;
    if (recordset) {
      rows = ReadRows(recordset);
      recordset.Close();
    }

    flexMaster.ShowSortedBy(-1, true);
    flexMaster.SetFormatString(FilledHeadings());
    if (rows.empty()) {
      ShowEmptyGrid();
      return;
    }
    flexMaster.SetColWidth(kItemId, 0);
    flexMaster.SetRows(flexMaster.FixedRows());
    flexMaster.SetCols(columns);
    flexMaster.ReserveRows(static_cast<long>(rows.size()) + 1);
    for (std::vector<std::string>& cells : rows) flexMaster.AppendRow(std::move(cells));
    GoToLastRow();
  });
}

void FrmFetch::ShowEmptyGrid() {
  flexMaster.SetRows(2);
  flexMaster.SetCols(1);
  flexMaster.Clear();
  flexMaster.SetFormatString(EmptyHeadings());
  flexMaster.SetColWidth(kItemId, 0);
}

void FrmFetch::GoToLastRow() {
  flexMaster.SetRow(flexMaster.Rows() - 1);
  flexMaster.SetTopRow(flexMaster.Rows() - 1);
}

void FrmFetch::SelectAllColumns() {
  flexMaster.SetCol(kItemId);
  flexMaster.SetColSel(flexMaster.Cols() - 1);
}

void FrmFetch::txtFetch_KeyUp(int& keyCode, int) {
  if (keyCode != controls::kKeyUp && keyCode != controls::kKeyDown) return;
  flexMaster.SetRow(flexMaster.Row());
  SelectAllColumns();
  flexMaster.SetRowSel(flexMaster.Rows() - 1);
  flexMaster.SetFocus();
}

void FrmFetch::txtsearch_KeyUp(int&, int) {
  if (vb::Trim(txtsearch.Text()).empty()) return;
  if (cboSearch.ListIndex() < 0) cboSearch.SetListIndex(kDescriptionEntry);
  SearchInGrid(flexMaster, cboSearch.ItemData(cboSearch.ListIndex()), txtsearch.Text());
}

void FrmFetch::cboColNames_Click() {
  if (cboColNames.ListIndex() < 0) return;
  const controls::Hourglass hourglass(*this);
  const SortRange range = SortRangeOf(cboColNames.ItemData(cboColNames.ListIndex()));
  SortGrid(range.first, range.last);
  GoToLastRow();
  SelectAllColumns();
}

void FrmFetch::SortGrid(long firstColumn, long lastColumn) {
  flexMaster.SetRow(flexMaster.Row());  // gives a selection over several rows up, so that all of them are sorted
  flexMaster.SetCol(firstColumn);
  flexMaster.SetColSel(lastColumn);
  flexMaster.Sort(optAscend.Value() ? controls::GridSort::GenericAscending : controls::GridSort::GenericDescending);
  flexMaster.ShowSortedBy(-1, true);  // the list beside it says what it is sorted on
}

int FrmFetch::SortEntryOf(long column) const {
  for (int entry = 0; entry < cboColNames.ListCount(); ++entry) {
    const SortRange range = SortRangeOf(cboColNames.ItemData(entry));
    if (range.first == column && range.last == column) return entry;
  }
  return -1;
}

void FrmFetch::flexMaster_HeadingClick(long column) {
  const controls::Hourglass hourglass(*this);
  const std::string current = flexMaster.TextMatrix(flexMaster.Row(), kItemId);
  const bool ascending = SetHeadingDirection(flexMaster, column, optAscend, optDescend);
  // The list follows the click; its choice sorts. A column that it does not name is sorted all the same.
  cboColNames.SetListIndex(-1);
  const int entry = SortEntryOf(column);
  if (entry >= 0) {
    cboColNames.SetListIndex(entry);
  } else {
    SortGrid(column, column);
  }
  flexMaster.ShowSortedBy(column, ascending);
  for (long row = flexMaster.FixedRows(); row < flexMaster.Rows(); ++row) {
    if (flexMaster.TextMatrix(row, kItemId) != current) continue;
    flexMaster.SetRow(row);
    flexMaster.SetTopRow(row);
    break;
  }
  SelectAllColumns();
}

void FrmFetch::flexMaster_KeyPress(int& character) {
  if (character == controls::kCharReturn) Confirm();
}

void FrmFetch::flexMaster_KeyDown(int& keyCode, int shift) {
  if (keyCode == controls::kKeySpace && shift == 0) {
    const controls::FlexGrid::RowRange selected = flexMaster.SelectedRows();
    const bool tick = !flexMaster.IsTicked(flexMaster.Row());
    for (long row = std::max(selected.first, flexMaster.FixedRows()); row <= selected.last; ++row) Tick(row, tick);
  } else if (keyCode == 'A' && shift == controls::kCtrl) {
    for (long row = flexMaster.FixedRows(); row < flexMaster.Rows(); ++row) Tick(row, true);
  }
}

// The empty row of a list that has found nothing holds no item.
void FrmFetch::Tick(long row, bool ticked) {
  flexMaster.SetTicked(row, ticked && flexMaster.Cols() > kPartCode && !flexMaster.TextMatrix(row, kItemCode).empty());
}

PickedItem FrmFetch::ItemOf(long row) const {
  return {vb::CLng(vb::Val(flexMaster.TextMatrix(row, kItemId))), flexMaster.TextMatrix(row, kItemCode),
          flexMaster.TextMatrix(row, kItemDescription), flexMaster.TextMatrix(row, kPartCode)};
}

bool FrmFetch::TakeTicked() {
  std::vector<PickedItem> items;
  for (const long row : flexMaster.TickedRows()) items.push_back(ItemOf(row));
  if (items.empty()) return false;
  const GridHourglass gridHourglass(flexMaster);
  itemEntry_.TakeManyItems(items);
  return true;
}

void FrmFetch::Confirm() {
  if (TakeTicked()) {
    Unload();
    return;
  }
  const long row = flexMaster.Row();
  if (flexMaster.TextMatrix(row, kItemCode).empty()) return;
  const GridHourglass gridHourglass(flexMaster);
  PickedItem item = ItemOf(row);
  if (item.itemId > 0) {
    bool taken = itemEntry_.TakeItemCode(item);
    if (itemEntry_.SelectedList() == ItemListMode::StockOut) {
      objCommonDB_.strTableName("aitem where itemid=" + std::to_string(item.itemId));
      item.partCode = objCommonDB_.fnReturnField("part_code").TextOrEmpty();
      itemEntry_.TakeStockOutItem(item);
      taken = true;
    }
    if (taken) itemEntry_.FillPackTypeinList(item.itemId);
  }
  Unload();
}

}  // namespace goods
