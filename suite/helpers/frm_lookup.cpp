#include "suite/helpers/frm_lookup.h"

#include "base/vb/text.h"
#include "suite/helpers/form_color_stand_in.h"

namespace suite {

using namespace controls;

frmLookup::frmLookup(controls::Desktop& desktop) : Form(desktop, "frmLookup") {
  On(Loading, "Form_Load", &frmLookup::Form_Load);
  On(txtsearch.Change, "txtsearch_Change", &frmLookup::FilterRows);
  On(txtsearch.KeyDown, "txtsearch_KeyDown", &frmLookup::txtsearch_KeyDown);
  On(txtsearch.KeyPress, "txtsearch_KeyPress", &frmLookup::txtsearch_KeyPress);
  On(cboSearch.Click, "cboSearch_Click", &frmLookup::FilterRows);
  On(cboColNames.Click, "cboColNames_Click", &frmLookup::cboColNames_Click);
  On(flexMaster.Click, "flexMaster_Click", &frmLookup::flexMaster_Click);
  On(flexMaster.DblClick, "flexMaster_DblClick", &frmLookup::flexMaster_DblClick);
  On(flexMaster.KeyPress, "flexMaster_KeyPress", &frmLookup::flexMaster_KeyPress);
  On(cmdOk.Click, "cmdOk_Click", &frmLookup::Take);
  On(cmdClose.Click, "cmdClose_Click", [this] { Unload(); });
}

std::optional<std::size_t> frmLookup::Pick(LookupRows& rows, std::vector<LookupColumn> columns, std::size_t defaultColumn,
                                           const std::string& caption, const std::string& messageTitle) {
  rows_ = &rows;
  rows_->Restart();
  columns_ = std::move(columns);
  defaultColumn_ = defaultColumn < columns_.size() ? defaultColumn : 0;
  caption_ = caption;
  messageTitle_ = messageTitle;
  sortColumn_ = static_cast<std::size_t>(-1);
  ascending_ = true;
  taken_.reset();
  Show(Desktop().ActiveForm());
  rows_ = nullptr;
  return taken_;
}

void frmLookup::Design() {
  SetSize(11400, 6900);
  SetResizable(true);
  lblsearch.SetCaption("&Search:");
  lblsearch.Move(180, 210, 720, 240);
  txtsearch.Move(960, 165, 3600, 330);
  lblin.SetCaption("&in");
  lblin.Move(4680, 210, 240, 240);
  cboSearch.SetStyle(ComboStyle::DropDownList);
  cboSearch.Move(4980, 165, 2280, 330);
  lblsort.SetCaption("Sor&t by:");
  lblsort.Move(7500, 210, 780, 240);
  cboColNames.SetStyle(ComboStyle::DropDownList);
  cboColNames.Move(8340, 165, 2880, 330);
  flexMaster.Move(180, 660, 11040, 5340);
  flexMaster.SetAnchors(kAnchorLeft | kAnchorTop | kAnchorRight | kAnchorBottom);
  lblcount.Move(180, 6330, 6000, 240);
  lblcount.SetAnchors(kAnchorLeft | kAnchorBottom);
  cmdOk.SetCaption("&OK");
  cmdOk.Move(8700, 6240, 1200, 420);
  cmdClose.SetCaption("&Close");
  cmdClose.Move(10020, 6240, 1200, 420);
  cmdClose.SetCancel(true);
  for (Control* button : std::initializer_list<Control*>{&cmdOk, &cmdClose}) button->SetAnchors(kAnchorRight | kAnchorBottom);
}

void frmLookup::Form_Load() {
  SetCaption(caption_);
  FormColorStandIn::Applyformcolor(*this, Desktop());
  flexMaster.SetFixedCols(0);
  flexMaster.SetCols(static_cast<long>(columns_.size()));
  int searched = 0;  // the first column shown, where the one to search first is none of them
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    flexMaster.SetTextMatrix(0, static_cast<long>(column), columns_[column].caption);
    flexMaster.SetColWidth(static_cast<long>(column), columns_[column].width);
    if (columns_[column].width == 0) continue;
    cboSearch.AddItem(columns_[column].caption, static_cast<std::int32_t>(column));
    cboColNames.AddItem(columns_[column].caption, static_cast<std::int32_t>(column));
    if (column == defaultColumn_) searched = cboSearch.NewIndex();
  }
  if (cboSearch.ListCount() > 0) {
    cboSearch.SetListIndex(searched);  // fills the grid
  } else {
    FilterRows();
  }
  txtsearch.SetFocus();
}

void frmLookup::ReportError(std::string_view routine, const vb::RunTimeError& error) {
  MsgBox(error.Description() + "\n(frmLookup " + std::string(routine) + ", " + std::to_string(error.Number()) + ")", kExclamation,
         messageTitle_);
}

void frmLookup::txtsearch_KeyDown(int& keyCode, int shift) {
  // The box keeps the focus while the arrows walk the grid below it.
  if (keyCode != kKeyUp && keyCode != kKeyDown && keyCode != kKeyPageUp && keyCode != kKeyPageDown) return;
  if (flexMaster.NavigationKey(keyCode, shift)) keyCode = 0;
}

void frmLookup::txtsearch_KeyPress(int& character) {
  if (character != kCharReturn) return;
  character = 0;
  Take();
}

void frmLookup::flexMaster_Click() {
  if (flexMaster.MouseRow() < flexMaster.FixedRows() && flexMaster.MouseCol() >= 0) {
    SortBy(static_cast<std::size_t>(flexMaster.MouseCol()));
  }
}

void frmLookup::flexMaster_DblClick() {
  // On a heading it is two clicks that sort.
  if (flexMaster.MouseRow() >= flexMaster.FixedRows()) Take();
}

void frmLookup::flexMaster_KeyPress(int& character) {
  if (character == kCharReturn) Take();
}

void frmLookup::cboColNames_Click() {
  if (cboColNames.ListIndex() >= 0) SortBy(static_cast<std::size_t>(cboColNames.ItemData(cboColNames.ListIndex())));
}

void frmLookup::FilterRows() {
  if (rows_ == nullptr) return;
  const std::string typed(vb::Trim(txtsearch.Text()));
  rows_->Filter(SearchColumn(), typed);
  FillGrid();
  if (rows_->Shown().empty()) return;
  const std::size_t place = typed.empty() ? 0 : rows_->FirstBeginningWith(SearchColumn(), typed);
  flexMaster.SetRow(flexMaster.FixedRows() + static_cast<long>(place));
  flexMaster.SetTopRow(flexMaster.Row());
}

void frmLookup::SortBy(std::size_t column) {
  // The same column again turns the order round.
  ascending_ = column != sortColumn_ || !ascending_;
  sortColumn_ = column;
  const Hourglass wait(*this);
  rows_->SortBy(column, ascending_);
  flexMaster.ShowSortedBy(static_cast<long>(column), ascending_);
  FilterRows();
}

void frmLookup::FillGrid() {
  flexMaster.SetRows(flexMaster.FixedRows());
  flexMaster.ReserveRows(static_cast<long>(rows_->Shown().size()) + 1);
  for (const std::size_t row : rows_->Shown()) flexMaster.AppendRow(std::vector<std::string>(rows_->Row(row)));
  if (rows_->Shown().empty()) flexMaster.SetRows(flexMaster.FixedRows() + 1);
  lblcount.SetCaption(std::to_string(rows_->Shown().size()) + " of " + std::to_string(rows_->Count()));
}

void frmLookup::Take() {
  const std::optional<std::size_t> row = CurrentRow();
  if (!row) return;
  taken_ = row;
  Unload();
}

std::optional<std::size_t> frmLookup::CurrentRow() const {
  const long place = flexMaster.Row() - flexMaster.FixedRows();
  if (rows_ == nullptr || place < 0 || place >= static_cast<long>(rows_->Shown().size())) return std::nullopt;
  return rows_->Shown()[static_cast<std::size_t>(place)];
}

std::size_t frmLookup::SearchColumn() const {
  const int index = cboSearch.ListIndex();
  return index < 0 ? defaultColumn_ : static_cast<std::size_t>(cboSearch.ItemData(index));
}

}  // namespace suite
