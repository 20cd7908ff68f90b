// Walking through the editor's lines.

#include <algorithm>

#include "base/vb/format.h"
#include "base/vb/number.h"
#include "src/itementry/frm_request_detail.h"

namespace goods {

void frmRequestDetail::cmdFirst_Click() {
  GoToLine(1);
  EnableNavigation(false, true);
}

void frmRequestDetail::Cmdprev_Click() {
  // Never in front of the first line, where a person may be without having come by these buttons.
  const int line = std::max(std::min(lines_.lngCurrentLine - 1, lines_.lvwrequest.Count()), 1);
  GoToLine(line);
  EnableNavigation(line > 1, true);
}

void frmRequestDetail::cmdNext_Click() {
  const int line = lines_.lngCurrentLine + 1;
  if (line > lines_.lvwrequest.Count()) return;
  GoToLine(line);
  EnableNavigation(true, line < lines_.lvwrequest.Count());
}

void frmRequestDetail::cmdLast_Click() {
  GoToLine(lines_.lvwrequest.Count());
  EnableNavigation(true, false);
}

void frmRequestDetail::GoToLine(int line) {
  Session().gStrDetailMode = "E";
  lines_.lngCurrentLine = line;
  lines_.lvwrequest.Select(line);
  lines_.lvwrequest.EnsureVisible(line);
  ShowLineToChange();
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
  const int selected = lines_.lvwrequest.SelectedItem();
  if (selected == 0) return;
  const controls::ListItem& line = lines_.lvwrequest.Item(selected);
  for (controls::Control* control : std::initializer_list<controls::Control*>{&optStockoutitems, &optAvaingodnotinshop, &optall,
                                                                              &optItemsNotInShop, &cboItem}) {
    control->SetEnabled(false);
  }
  txtitemcode.SetText(line.SubItem(kLineItemCode));

  // The line shows its own name where the item's cannot be read: a form left showing the line before would overwrite this one.
  const std::string& itemId = line.SubItem(kLineItemId);
  std::string description;
  Trap("LoadCurrentLine", [&] {
    objCommonDB_.strTableName("vwitemdescription");
    description = objCommonDB_.fnReturnField("itemdescription", " itemid = " + itemId).TextOrEmpty();
  });
  if (description.empty()) description = line.SubItem(kLineItemName);
  cboItem.Clear();
  cboItem.AddItem(description, vb::CLng(vb::Val(itemId)));
  cboItem.SetListIndex(0);

  const std::string& quantity = line.SubItem(kLineQty);
  txtQuantity.SetText(Session().gBlnIntegerQuantity ? vb::FormatText(quantity, "#0") : quantity);
  txtreqcomments.SetText(line.SubItem(kLineRemarks));
  txtpartcode.SetText(line.SubItem(kLinePartCode));
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
