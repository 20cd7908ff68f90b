// Taking the entered line over into the editor's list.

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/itementry/frm_request_detail.h"
#include "src/itementry/line_rules.h"
#include "src/records/item_lookups.h"

namespace goods {
void frmRequestDetail::cmdOk_Click() {
  const double limit = ReadLineLimit(Session(), objCommonDB_);
  if (RefusesEntry()) return;
  if (IsAdding()) {
    if (!AddLine(limit)) return;
    if (DiffersFromLoaded()) lines_.MarkChanged();
    LineEntered.Fire();
    ClearForNextLine();
  } else {
    RewriteLine();
    if (DiffersFromLoaded()) lines_.MarkChanged();
    LineEntered.Fire();
    ShowNextLineOrClose();
  }
}

bool frmRequestDetail::RefusesEntry() {
  const std::string_view badQuantity = QuantityRefusal(Session(), txtQuantity.Text());
  if (cboItem.ListIndex() == -1) {
    Tell("Select an item");
    FocusFirstOf({&cboItem});
    cboItem.SelectAll();
  } else if (!badQuantity.empty()) {
    Tell(badQuantity);
    FocusFirstOf({&txtQuantity});
    if (badQuantity == kQuantityTooLarge) txtQuantity.SelectAll();
  } else if (IsDuplicateItem()) {
    Tell(cboItem.Text() + std::string(kAlreadyExists));
    FocusFirstOf({&cboItem});
    cboItem.SelectAll();
  } else {
    return false;
  }
  return true;
}

bool frmRequestDetail::IsDuplicateItem() const {
  return IsAdding() && lines_.LineOf(SelectedItemId()) > 0;
}

bool frmRequestDetail::AddLine(double limit) {
  const int number = lines_.Count() + 1;
  if (limit >= 1 && number > limit) {
    Tell(kNoMoreItems);
    return false;
  }
  const std::int32_t itemId = SelectedItemId();
  const std::string unit = GetItemUnitCode(Session(), itemId);

  ++lngCurrentLine_;
  lines_.Append({itemCode_, cboItem.Text(), QuantityText(EnteredQuantity()), itemId, std::string(vb::Trim(txtreqcomments.Text())),
                 unit, std::string(vb::Trim(txtpartcode.Text()))});
  if (number > 1) EnableNavigation(true, true);
  lines_.GoTo(number);
  return true;
}

void frmRequestDetail::RewriteLine() {
  const std::int32_t itemId = SelectedItemId();
  objCommonDB_.strTableName("aitem");
  const std::string partCode = objCommonDB_.fnReturnField("part_code", "itemid=" + std::to_string(itemId)).TextOrEmpty();

  // A changed line keeps its item code and unit, and takes the part code from the item: unlike an added one.
  RequestLine line = lines_.At(lines_.Selected());
  line.itemName = cboItem.Text();
  line.quantity = QuantityText(EnteredQuantity());
  line.itemId = itemId;
  line.partCode = partCode;
  line.remarks = vb::Trim(txtreqcomments.Text());
  lines_.Change(lines_.Selected(), line);
}

void frmRequestDetail::ClearForNextLine() {
  cboItem.SetListIndex(-1);
  ClearEntryFields();
  cboItem.SetEnabled(true);
  optStockoutitems.SetEnabled(true);
  optAvaingodnotinshop.SetEnabled(true);
  ShowStatus();
  FocusFirstOf({&txtitemcode, &cboItem});
}

void frmRequestDetail::ShowNextLineOrClose() {
  const int next = lines_.Selected() + 1;
  if (next > lines_.Count()) {
    Unload();
    return;
  }
  GoToLine(next);
  EnableNavigation(true, next < lines_.Count());
  FocusFirstOf({&txtQuantity});
}

bool frmRequestDetail::DiffersFromLoaded() const {
  // Comments count as well: a line whose comments alone were changed is lost unless the editor offers to save.
  return EnteredQuantity() != QuantityTyped(txtQuantity.Tag()) || vb::Trim(cboItem.Text()) != vb::Trim(cboItem.Tag()) ||
         vb::Trim(txtreqcomments.Text()) != vb::Trim(txtreqcomments.Tag());
}

}  // namespace goods
