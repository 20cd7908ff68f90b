// Walking through the editor's lines.

#include <algorithm>

#include "base/vb/format.h"
#include "src/itementry/frm_request_detail.h"

namespace goods {

void frmRequestDetail::cmdFirst_Click() {
  GoToLine(1);
  EnableNavigation(false, true);
}

void frmRequestDetail::Cmdprev_Click() {
  // Never before the first line; a person may be there without having used these buttons.
  const int line = std::max(std::min(lngCurrentLine_ - 1, lines_.Count()), 1);
  GoToLine(line);
  EnableNavigation(line > 1, true);
}

void frmRequestDetail::cmdNext_Click() {
  const int line = lngCurrentLine_ + 1;
  if (line > lines_.Count()) return;
  GoToLine(line);
  EnableNavigation(true, line < lines_.Count());
}

void frmRequestDetail::cmdLast_Click() {
  GoToLine(lines_.Count());
  EnableNavigation(true, false);
}

void frmRequestDetail::GoToLine(int line) {
  Session().gStrDetailMode = "E";
  lngCurrentLine_ = line;
  lines_.GoTo(line);
  ShowLineToChange();
  ShowScanning();  // who walks through the lines does not scan
  ShowStatus();
}

void frmRequestDetail::ShowLineToChange() {
  cmdFetch.SetEnabled(false);
  LoadCurrentLine();
  if (txtitemcode.Enabled() && txtitemcode.Visible()) txtitemcode.SetEnabled(false);
}

void frmRequestDetail::EnableNavigation(bool backwards, bool forwards) {
  cmdFirst.SetEnabled(backwards);
  Cmdprev.SetEnabled(backwards);
  cmdNext.SetEnabled(forwards);
  cmdLast.SetEnabled(forwards);
}

void frmRequestDetail::LoadCurrentLine() {
  const int selected = lines_.Selected();
  if (selected == 0) return;
  const RequestLine line = lines_.At(selected);
  for (controls::Control* control : std::initializer_list<controls::Control*>{&optStockoutitems, &optAvaingodnotinshop, &optall,
                                                                              &optItemsNotInShop, &cboItem}) {
    control->SetEnabled(false);
  }
  txtitemcode.SetText(line.itemCode);

  // The line shows its own name where the item's cannot be read: a form left showing the line before would overwrite this one.
  std::string description;
  Trap("LoadCurrentLine", [&] {
    objCommonDB_.strTableName("vwitemdescription");
    description = objCommonDB_.fnReturnField("itemdescription", " itemid = " + std::to_string(line.itemId)).TextOrEmpty();
  });
  if (description.empty()) description = line.itemName;
  cboItem.Clear();
  cboItem.AddItem(description, line.itemId);
  cboItem.SetListIndex(0);

  txtQuantity.SetText(Session().gBlnIntegerQuantity ? vb::FormatText(line.quantity, "#0") : line.quantity);
  txtreqcomments.SetText(line.remarks);
  txtpartcode.SetText(line.partCode);
  FillPackTypeinList(SelectedItemId());
  Calcpacktypeqty();
  RememberLoadedValues();
}

void frmRequestDetail::RememberLoadedValues() {
  cboItem.SetTag(cboItem.Text());
  txtQuantity.SetTag(txtQuantity.Text());
  txtreqcomments.SetTag(txtreqcomments.Text());
}

}  // namespace goods
