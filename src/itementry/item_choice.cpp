// How the item of a line is found: by its code, by its name, in the item lookup, in the fetch dialog.

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "src/fetch/frm_fetch.h"
#include "src/itementry/frm_request_detail.h"
#include "src/itementry/item_lists.h"
#include "src/itementry/item_lookup.h"
#include "src/itementry/line_rules.h"

namespace goods {
namespace {

/// Sets a flag for as long as it lives.
class FlagSet {
 public:
  explicit FlagSet(bool& flag) : flag_(flag) { flag_ = true; }
  ~FlagSet() { flag_ = false; }
  FlagSet(const FlagSet&) = delete;
  FlagSet& operator=(const FlagSet&) = delete;

 private:
  bool& flag_;
};

}  // namespace

void frmRequestDetail::txtitemcode_KeyPress(int& character) {
  // Codes go into statements between single quotes.
  if (character == controls::kCharApostrophe) character = 0;
  if (character != controls::kCharReturn) return;
  const std::string code(vb::Trim(txtitemcode.Text()));
  if (code.empty()) {
    EnterTo(cmdFetch, character);
  } else if (IsScanning()) {
    TakeScan(code);
  } else if (const auto found = FindTypedCode(code)) {
    TakeItem(*found);
  } else {
    RefuseItemCode();
  }
}

std::optional<PickedItem> frmRequestDetail::FindTypedCode(std::string_view code) {
  try {
    return FindItemByCode(Session(), objCommonDB_, code);
  } catch (const vb::RunTimeError&) {
    ForgetItem();  // as after a refusal: the box shows a code that the item from before does not have
    throw;
  }
}

void frmRequestDetail::TakeItem(const PickedItem& item) {
  // One entry at a time: the line's item code belongs to the item found last, which a person could not tell from older entries.
  cboItem.Clear();
  cboItem.AddItem(item.itemDescription, item.itemId);
  objCommonGen_.SelectComboItemByValue(cboItem, item.itemId);
  itemCode_ = item.itemCode;
  txtpartcode.SetText(item.partCode);
  FillPackTypeinList(item.itemId);
  FocusFirstOf({&txtQuantity});
}

void frmRequestDetail::cboItem_KeyPress(int& character) {
  if (character != controls::kCharReturn) return;
  objCommonGen_.SelectComboItemByName(cboItem, cboItem.Text());
  EnterTo(cmdFetch, character);
}

void frmRequestDetail::cboItem_Validate(bool& cancel) {
  cancel = cboItem.ListIndex() == -1 && !cboItem.Text().empty();
  if (!cancel) return;
  Desktop().Beep();
  if (!IsAdding()) return;
  // The entry from before comes back, so that the next attempt leaves. It was not chosen again: the quantity typed for it stays.
  {
    const FlagSet restoring(restoring_);
    cboItem.SetListIndex(chosenEntry_ < cboItem.ListCount() ? chosenEntry_ : -1);
  }
  cboItem.SelectAll();
}

void frmRequestDetail::ForgetItem() {
  cboItem.Clear();
  itemCode_.clear();
  txtpartcode.SetText("");
  txtavailqty.SetText("");
  lvwpacktype.Clear();
  ForgetAnswers();
}

void frmRequestDetail::RefuseItemCode() {
  // No line may take an item that the box beside it does not show.
  ForgetItem();
  Tell(kUnknownCode);
  txtitemcode.SelectAll();  // the next scan takes the place of this one
  FocusFirstOf({&txtitemcode});
}

void frmRequestDetail::cmdFetch_Click() {
  {
    const FlagSet fetching(fetching_);
    FillItemList();
    Desktop().DoEvents();
  }
  if (IsLoaded() && cboItem.ListIndex() != -1) FocusFirstOf({&txtQuantity});
}

void frmRequestDetail::ShowFetchDialog() {
  {
    const FlagSet fetching(fetching_);
    if (!frmFetch_) frmFetch_ = std::make_shared<FrmFetch>(Session(), static_cast<ItemEntryPort&>(*this));
    frmFetch_->Show(this);
    Desktop().DoEvents();
  }
  if (IsLoaded() && cboItem.ListIndex() != -1) FocusFirstOf({&txtQuantity});
}

void frmRequestDetail::FillItemList() {
  Trap("FillItemList", [&] {
    // A lookup that was missing when the form was loaded is asked for again, and reported missing again.
    if (!objFetch_) objFetch_ = ItemFetch(Session().services.factory);
    if (ShowItemList(Session(), objCommonDB_, objFetch_, SelectedList())) TakeFetchedRow();
  });
}

void frmRequestDetail::TakeFetchedRow() {
  ado::Recordset& rows = Session().gRsFetchItems;
  const PickedItem item{rows.Field("itemid").ToInt32(), rows.Field("itemcode").TextOrEmpty(),
                        rows.Field("itemdescription").TextOrEmpty(), rows.Field("part_code").TextOrEmpty()};
  cboItem.Clear();
  cboItem.AddItem(item.itemDescription, item.itemId);
  cboItem.SetListIndex(cboItem.NewIndex());
  txtitemcode.SetText(item.itemCode);
  itemCode_ = item.itemCode;
  txtpartcode.SetText(item.partCode);
  FillPackTypeinList(item.itemId);
}

ItemListMode frmRequestDetail::SelectedList() const {
  if (optStockoutitems.Value()) return ItemListMode::StockOut;
  if (optAvaingodnotinshop.Value()) return ItemListMode::InGodownNotInShop;
  if (optItemsNotInShop.Value()) return ItemListMode::NotInShop;
  return ItemListMode::AllInShop;
}

bool frmRequestDetail::TakeItemCode(const PickedItem& item) {
  // The box changes once the server has answered: after an error it still shows the code of the item that is chosen.
  const auto found = FindItemByCode(Session(), objCommonDB_, vb::Trim(item.itemCode));
  const bool refused = !found && !MayItemCodesRepeat(objCommonDB_);
  txtitemcode.SetText(item.itemCode);
  if (refused) {
    // An item of the stock-out list comes as it is, whether its code is found or not: nothing is refused.
    if (SelectedList() == ItemListMode::StockOut) {
      ForgetItem();
    } else {
      RefuseItemCode();
    }
    return false;
  }
  // The code may be another item's barcode or shortcut, or no item's alone: the row that the user picked decides.
  TakeItem(found && found->itemId == item.itemId ? *found : item);
  return true;
}

void frmRequestDetail::TakeStockOutItem(const PickedItem& item) {
  cboItem.Clear();
  cboItem.AddItem(item.itemDescription, item.itemId);
  cboItem.SetListIndex(cboItem.NewIndex());
  itemCode_ = item.itemCode;
  txtpartcode.SetText(item.partCode);
}

}  // namespace goods
