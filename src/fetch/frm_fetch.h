#pragma once

#include <string>
#include <string_view>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/text_box.h"
#include "src/faces/common_db.h"
#include "src/faces/common_gen.h"
#include "src/fetch/item_entry_port.h"
#include "src/module/module_form.h"

namespace goods {

/// The item fetch dialog: lists the items of the option set in item entry, lets the user filter, sort and search them, and puts
/// the chosen one into the item entry form. Knows of that form what ItemEntryPort offers.
class FrmFetch : public ModuleForm {
 public:
  /// `itemEntry` outlives this form.
  FrmFetch(basGoodsRequest& session, ItemEntryPort& itemEntry);

  /// Columns of the grid.
  enum Column : long { kItemId = 0, kItemCode = 1, kItemDescription = 2, kBrand = 3, kModelNo = 4, kPartCode = 5 };

  controls::Frame fraBrowse{*this, "fraBrowse"};
  controls::OptionButton optDescend{*this, "optDescend"};
  controls::OptionButton optAscend{*this, "optAscend"};
  controls::ComboBox cboSearch{*this, "cboSearch"};
  controls::TextBox txtsearch{*this, "txtsearch"};
  controls::ComboBox cboColNames{*this, "cboColNames"};
  controls::Label lblsearch{*this, "lblsearch"};
  controls::Frame fraFetch{*this, "fraFetch"};
  controls::TextBox txtFetch{*this, "txtFetch"};
  controls::ComboBox cboFetch{*this, "cboFetch"};
  controls::Label lblFetch{*this, "lblFetch"};
  controls::CommandButton CmdOk{*this, "CmdOk"};
  controls::CommandButton CmdClose{*this, "CmdClose"};
  controls::FlexGrid flexMaster{*this, "flexMaster"};

  /// Fills the grid with the query's rows; in the godown mode `query` is the condition passed to the stored procedure. A database
  /// error is reported and leaves the grid as it was. Whether the grid was filled.
  bool GridPopulate(std::string_view query);

 private:
  void Design() override;
  void DesignFetchFrame();
  void DesignBrowseFrame();
  void WireEvents();

  void Form_Load();
  void FillLists();
  void BuildBaseQuery();
  void Form_Activate();
  void Form_KeyPress(int& character);
  void txtFetch_KeyPress(int& character);
  void RunFilter();
  void txtFetch_KeyUp(int& keyCode, int shift);
  void txtsearch_KeyUp(int& keyCode, int shift);
  void cboColNames_Click();
  void SortGrid(long firstColumn, long lastColumn);
  /// The entry of the sort list that sorts on this column alone; -1 when there is none.
  int SortEntryOf(long column) const;
  void flexMaster_HeadingClick(long column);
  void flexMaster_KeyPress(int& character);
  void flexMaster_KeyDown(int& keyCode, int shift);
  void Tick(long row, bool ticked);
  /// False where nothing is ticked.
  bool TakeTicked();
  PickedItem ItemOf(long row) const;
  void Confirm();

  void ShowEmptyGrid();
  void GoToLastRow();
  void SelectAllColumns();
  bool IsGodownList() const { return itemEntry_.SelectedList() == ItemListMode::InGodownNotInShop; }

  ItemEntryPort& itemEntry_;
  CommonDb objCommonDB_;
  CommonGen objCommonGen_;
  std::string strFetchField_;
  std::string strFetchQuery_;
};

}  // namespace goods
