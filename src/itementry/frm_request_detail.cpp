// Loading and activation, the list options, the keys of the whole form, and the fields of one line.

#include "src/itementry/frm_request_detail.h"

#include "base/vb/format.h"
#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/itementry/item_lists.h"
#include "src/itementry/line_rules.h"
#include "src/itementry/packing_types.h"
#include "src/itementry/stock_availability.h"
#include "src/lists/list_views.h"

namespace goods {

void frmRequestDetail::Form_Load() {
  firstActivation_ = true;
  itemCode_.clear();
  CreateHelpers();
  if (lines_.Count() < 2) EnableNavigation(false, false);
  // In front of what is read: after a database error, too, no shop is offered a list that is not for it.
  if (!Session().gBlnRequestForNonShopItem) optItemsNotInShop.SetVisible(false);
  ArrangeOptionButtons();
  PrepareAnswers();

  const std::string shopId = std::to_string(Session().gIntShopID);
  objCommonDB_.strTableName("ashops");
  const std::string settings = objCommonDB_.fnReturnField("miscsettings13", "shopid=" + shopId).TextOrEmpty();
  showAvailability_ = vb::InStr(settings, "d") > 0;
  lblavail.SetVisible(showAvailability_);
  txtavailqty.SetVisible(showAvailability_);

  objCommonDB_.strTableName("apackagesettings");
  txtitemcode.SetEnabled(!objCommonDB_.fnReturnField("allowitemcodeduplication").TrueOrFalse());
}

void frmRequestDetail::CreateHelpers() {
  objCommonDB_ = CommonDb();
  objCommonGen_ = CommonGen();
  objFetch_ = ItemFetch();
  objCommonDB_ = CommonDb(Session().services.factory, Session().gAdoCon);
  // Without these the form still takes lines: their absence is reported now, and again when one of them is asked for something.
  Trap("Form_Load", [&] { objCommonGen_ = CommonGen(Session().services.factory); });
  Trap("Form_Load", [&] { objFetch_ = ItemFetch(Session().services.factory); });
  Trap("Form_Load", [&] { Session().gObjFormColor.Applyformcolor(*this); });
}

void frmRequestDetail::ArrangeOptionButtons() {
  if (Session().gBlnRequestForNonShopItem) return;
  // Closes the gap of the hidden option; each of the others reaches to the next.
  picOptions.SetLeft(990);
  picOptions.SetWidth(7765);
  optStockoutitems.SetLeft(0);
  optStockoutitems.SetWidth(1485);
  optAvaingodnotinshop.SetLeft(1485);
  optAvaingodnotinshop.SetWidth(4095);
  optall.SetLeft(5580);
  optall.SetWidth(2185);
}

void frmRequestDetail::Form_Activate() {
  // Without the aliases the options keep their own captions; the form is there for the line.
  Trap("Form_Activate", [&] { ReadAliases(); });
  if (firstActivation_) {
    if (IsAdding()) cboItem.Clear();
    RememberLoadedValues();
    SelectFetchModeOption();
    if (IsScanning()) Trap("Form_Activate", [&] { scans_.Start(); });
    ShowScanning();
    firstActivation_ = false;
  }
  // A lookup of this form that closes activates the form, too: what is entered then stays as it is.
  if (!fetching_) {
    if (Session().gStrDetailMode != "E") {
      cboItem.SetListIndex(cboItem.ListCount() > 0 ? 0 : -1);
    } else {
      ShowLineToChange();
    }
  }
  ShowStatus();
  FocusEntryField();
}

void frmRequestDetail::ReadAliases() {
  basGoodsRequest& session = Session();
  objCommonDB_.strTableName("apackagesettings");
  session.gBlnAliasEnabled = objCommonDB_.fnReturnField("alias").TrueOrFalse();
  if (!session.gBlnAliasEnabled) return;
  objCommonDB_.strTableName("aalias");
  session.gStrGodownAlias = objCommonDB_.fnReturnField("Alias", "aliasid =2").TextOrEmpty();
  session.gStrShopAlias = objCommonDB_.fnReturnField("Alias", "aliasid =1").TextOrEmpty();
  optAvaingodnotinshop.SetCaption("Available in " + session.gStrGodownAlias + " Not available in " + session.gStrShopAlias);
  optall.SetCaption("All I&tems in " + session.gStrShopAlias);
  optItemsNotInShop.SetCaption("Items &not in " + session.gStrShopAlias);
}

void frmRequestDetail::SelectFetchModeOption() {
  switch (ListOfFetchMode(Session().gStrFetchMode)) {
    case ItemListMode::StockOut:
      optStockoutitems.SetValue(true);
      break;
    case ItemListMode::InGodownNotInShop:
      optAvaingodnotinshop.SetValue(true);
      break;
    case ItemListMode::NotInShop:
      // The mode may come from a shop that offers the list; here it may be hidden.
      (optItemsNotInShop.Visible() ? optItemsNotInShop : optall).SetValue(true);
      break;
    case ItemListMode::AllInShop:
      optall.SetValue(true);
      break;
  }
}

void frmRequestDetail::FocusEntryField() {
  if (cboItem.ListIndex() != -1) {
    FocusFirstOf({&txtQuantity});
  } else {
    FocusFirstOf({&txtitemcode, &cboItem});
  }
}

void frmRequestDetail::FocusFirstOf(std::initializer_list<controls::Control*> candidates) {
  for (controls::Control* candidate : candidates) {
    if (!candidate->CanFocus()) continue;
    candidate->SetFocus();
    return;
  }
}

void frmRequestDetail::EnterTo(controls::CommandButton& button, int& character) {
  character = 0;  // the Enter that leads to a button does not press it
  FocusFirstOf({&button});
}

void frmRequestDetail::Form_KeyDown(int& keyCode, int shift) {
  if (keyCode == controls::kKeyF8 && shift == 0) return ToggleScanning();
  if (keyCode != controls::kKeyF3 || !cmdFetch.Enabled()) return;
  if (shift == 0) {
    keyCode = 0;
    cmdFetch_Click();
  } else if (shift == controls::kShift) {
    keyCode = 0;
    ShowFetchDialog();
  }
}

void frmRequestDetail::OptionClicked() {
  if (!IsAdding()) return;
  ClearEntryFields();
  cboItem.Clear();
}

void frmRequestDetail::OptionKeyPressed(int& character) {
  if (character == controls::kCharReturn) EnterTo(cmdFetch, character);
}

void frmRequestDetail::ClearEntryFields() {
  for (controls::TextBox* box : {&txtavailqty, &txtitemcode, &txtpartcode, &txtQuantity, &txtreqcomments}) box->SetText("");
  lvwpacktype.Clear();
  ForgetAnswers();
}

void frmRequestDetail::cboItem_Click() {
  if (cboItem.ListIndex() == -1 || restoring_) return;
  chosenEntry_ = cboItem.ListIndex();
  const std::int32_t itemId = SelectedItemId();
  if (IsAdding()) ProposeReorderQuantity(itemId);
  if (txtavailqty.Visible()) ShowAvailableQuantity(itemId);
}

std::string frmRequestDetail::ReorderQuantity(std::int32_t itemId) {
  objCommonDB_.strTableName("aShopItemDetail");
  return objCommonDB_
      .fnReturnField("reorderquantity",
                     "shopid=" + std::to_string(Session().gIntShopID) + " and itemid=" + std::to_string(itemId))
      .TextOrEmpty();
}

void frmRequestDetail::ProposeReorderQuantity(std::int32_t itemId) {
  txtQuantity.SetText(ReorderQuantity(itemId));
  txtQuantity.SelectAll();  // where the focus is there already, too, what is typed takes the place of the proposal
}

void frmRequestDetail::ShowAvailableQuantity(std::int32_t itemId) {
  Trap("GetAvailableQuantity",
       [&] { txtavailqty.SetText(vb::NumberText(GetAvailableQuantity(Session(), objCommonDB_, std::to_string(itemId)))); });
}

void frmRequestDetail::txtQuantity_KeyPress(int& character) {
  if (character == ',') character = '.';  // the decimal sign of many keyboards
  if (character == '.' && Session().gBlnIntegerQuantity) {
    character = 0;
    Tell("Only Integer Quantity is allowed");
  } else if (character == '-') {
    character = 0;
  } else if (character == '+' || character == controls::kCharLineFeed) {
    character = 0;
    if (cmdOk.Enabled()) cmdOk.Click.Fire();
  } else if (character == controls::kCharReturn) {
    if (SelectedItemId() > 0) Calcpacktypeqty();
    SendTabOnEnter(*this, character);
  } else {
    objCommonGen_.TextValidateNum(txtQuantity, character, 18, 3);
    if (character == 0) Desktop().Beep();
  }
}

void frmRequestDetail::txtreqcomments_KeyPress(int& character) {
  if (character == controls::kCharReturn) EnterTo(cmdOk, character);
}

std::int32_t frmRequestDetail::SelectedItemId() const {
  const int index = cboItem.ListIndex();
  return index == -1 ? 0 : cboItem.ItemData(index);
}

double frmRequestDetail::EnteredQuantity() const {
  return QuantityTyped(txtQuantity.Text());
}

void frmRequestDetail::FillPackTypeinList(std::int32_t itemId) {
  Trap("FillPackTypeinList", [&] { FillPackingTypes(objCommonDB_, lvwpacktype, itemId); });
  ShowAnswers(itemId);
}

void frmRequestDetail::Calcpacktypeqty() {
  if (lvwpacktype.Count() > 0) {
    Trap("Calcpacktypeqty", [&] { CountPacks(objCommonDB_, lvwpacktype, SelectedItemId(), EnteredQuantity()); });
  }
  ExplainQuantity();
}

}  // namespace goods
