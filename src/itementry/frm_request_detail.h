#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/list_view.h"
#include "base/controls/text_box.h"
#include "src/counter/item_answers.h"
#include "src/faces/common_db.h"
#include "src/faces/common_gen.h"
#include "src/faces/item_fetch.h"
#include "src/fetch/item_entry_port.h"
#include "src/itementry/scans.h"
#include "src/module/module_form.h"
#include "src/records/request_lines.h"

namespace goods {

class FrmFetch;

/// Enters the lines of a goods request one at a time: adds to the editor's item list in mode "N" of gStrDetailMode, walks through
/// it and changes it in mode "E". Has no data of its own to hand back. Numbers, saves and checks nothing of the request itself.
class frmRequestDetail : public ModuleForm, private ItemEntryPort {
 public:
  /// `lines` are in the editor's item list, `lngCurrentLine` is the editor's current one, 1-based; both outlive this form.
  frmRequestDetail(basGoodsRequest& session, RequestLines lines, std::int32_t& lngCurrentLine);
  ~frmRequestDetail() override;

  controls::CommandButton cmdOk{*this, "cmdOk"};
  controls::CommandButton cmdCancel{*this, "cmdCancel"};
  controls::CommandButton cmdLast{*this, "cmdLast"};
  controls::CommandButton Cmdprev{*this, "Cmdprev"};
  controls::CommandButton cmdFirst{*this, "cmdFirst"};
  controls::Frame Frame1{*this, "Frame1"};
  controls::PictureBox picOptions{*this, "picOptions"};
  controls::OptionButton optItemsNotInShop{*this, "optItemsNotInShop"};
  controls::OptionButton optall{*this, "optall"};
  controls::OptionButton optAvaingodnotinshop{*this, "optAvaingodnotinshop"};
  controls::OptionButton optStockoutitems{*this, "optStockoutitems"};
  controls::TextBox txtpartcode{*this, "txtpartcode"};
  controls::TextBox txtitemcode{*this, "txtitemcode"};
  controls::TextBox txtreqcomments{*this, "txtreqcomments"};
  controls::CommandButton cmdFetch{*this, "cmdFetch"};
  controls::TextBox txtavailqty{*this, "txtavailqty"};
  controls::ComboBox cboItem{*this, "cboItem"};
  controls::TextBox txtQuantity{*this, "txtQuantity"};
  controls::ListView lvwpacktype{*this, "lvwpacktype"};
  controls::ListView lvwscans{*this, "lvwscans"};  ///< in its place while scanning
  controls::Label lblStatus{*this, "lblStatus"};
  // Beneath it, where the shop's settings want them.
  controls::Label lblRequested{*this, "lblRequested"};
  controls::Label lblStock{*this, "lblStock"};
  controls::Label lblExplained{*this, "lblExplained"};
  controls::Label Label3{*this, "Label3"};
  controls::Label lblpartcode{*this, "lblpartcode"};
  controls::Label lblcomments{*this, "lblcomments"};
  controls::Label lblavail{*this, "lblavail"};
  controls::Label Label2{*this, "Label2"};
  controls::Label Label1{*this, "Label1"};
  controls::CommandButton cmdNext{*this, "cmdNext"};

  /// After a line was appended to the request or changed.
  controls::Event<> LineEntered;

 private:
  void Design() override;
  void DesignOptions();
  void DesignEntryFields();
  void DesignButtons();
  void DesignTabOrder();
  void WireEntryFields();
  void WireButtons();

  // The window.
  void Form_Load();
  void CreateHelpers();
  void Form_Activate();
  void ReadAliases();
  void SelectFetchModeOption();
  void ArrangeOptionButtons();
  void FocusEntryField();
  /// Moves the focus to the first of these that can take it.
  void FocusFirstOf(std::initializer_list<controls::Control*> candidates);
  void EnterTo(controls::CommandButton& button, int& character);
  void Form_KeyDown(int& keyCode, int shift);
  void OptionClicked();
  void OptionKeyPressed(int& character);

  // One line's fields.
  void ClearEntryFields();
  void cboItem_Click();
  void ProposeReorderQuantity(std::int32_t itemId);
  void ShowAvailableQuantity(std::int32_t itemId);
  void txtQuantity_KeyPress(int& character);
  void txtreqcomments_KeyPress(int& character);
  bool IsAdding() const { return Session().gStrDetailMode == "N"; }
  /// 0 when no item is selected.
  std::int32_t SelectedItemId() const;
  double EnteredQuantity() const;

  // Finding the item.
  void cboItem_KeyPress(int& character);
  void cboItem_Validate(bool& cancel);
  void txtitemcode_KeyPress(int& character);
  void cmdFetch_Click();
  void ShowFetchDialog();
  void FillItemList();
  void TakeFetchedRow();
  void TakeItem(const PickedItem& item);
  void RefuseItemCode();
  void ForgetItem();
  std::optional<PickedItem> FindTypedCode(std::string_view code);
  ItemListMode SelectedList() const override;
  bool TakeItemCode(const PickedItem& item) override;
  void TakeStockOutItem(const PickedItem& item) override;
  void TakeManyItems(const std::vector<PickedItem>& items) override;
  /// Why the item is refused; empty when it became a line.
  std::string TakeOneOfMany(const PickedItem& item, double limit);
  std::string ReorderQuantity(std::int32_t itemId);
  void FillPackTypeinList(std::int32_t itemId) override;
  void Calcpacktypeqty();

  // Scanning.
  void ToggleScanning();
  bool IsScanning() const;
  void ShowScanning();
  void TakeScan(std::string_view code);
  /// False when there is none to take back, and the form may close.
  bool TakeBackScan();
  void ScansChanged();
  void ShowStatus(std::string_view told = {});

  // What is asked about the item.
  void PrepareAnswers();
  void ShowAnswers(std::int32_t itemId);
  void ForgetAnswers();
  void ExplainQuantity();

  // The lines.
  void cmdOk_Click();
  bool RefusesEntry();
  bool IsDuplicateItem() const;
  bool AddLine(double limit);
  void RewriteLine();
  void ClearForNextLine();
  void ShowNextLineOrClose();
  bool DiffersFromLoaded() const;
  void cmdFirst_Click();
  void Cmdprev_Click();
  void cmdNext_Click();
  void cmdLast_Click();
  void GoToLine(int line);
  /// Shows the selected line for change: its item is no longer looked up.
  void ShowLineToChange();
  void EnableNavigation(bool backwards, bool forwards);
  void LoadCurrentLine();
  void RememberLoadedValues();

  RequestLines lines_;
  std::int32_t& lngCurrentLine_;
  CommonDb objCommonDB_;
  CommonGen objCommonGen_;
  ItemFetch objFetch_;
  std::shared_ptr<FrmFetch> frmFetch_;
  ItemAnswers answers_{Session()};
  Scans scans_{Session(), objCommonDB_, lines_};
  bool firstActivation_ = true;
  bool showAvailability_ = false;
  bool fetching_ = false;   ///< a lookup of this form is up: its closing activates this form in mid-routine
  bool restoring_ = false;  ///< an entry of the combo comes back without being chosen again
  int chosenEntry_ = -1;    ///< of the combo, before its text was typed over
  std::string itemCode_;    ///< of the chosen item, for the line's item code column
};

}  // namespace goods
