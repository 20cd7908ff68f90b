#include "tests/platform/console/order_form.h"

#include <cctype>

#include "base/controls/keys.h"

namespace console {

OrderForm::OrderForm(controls::Desktop& desktop, std::string name) : Form(desktop, std::move(name)) {
  WireEvents();
  PublishField("lngCurrentLine", [] { return late::Value(3); });
}

void OrderForm::WireEvents() {
  On(cmdOK.Click, "cmdOK_Click", [this] {
    notes.push_back("saved " + txtName.Text());
    if (MsgBox("Save Changes?", controls::kYesNoCancel | controls::kQuestion | controls::kDefaultButton2, "Shop") ==
        controls::Answer::Yes) {
      Unload();
    }
  });
  On(cmdMore.Click, "cmdMore_Click", [this] {
    if (!more) more = std::make_shared<OrderForm>(Desktop(), "frmMore");
    more->Show(this);
    notes.push_back("back from more");
  });
  On(cmdClose.Click, "cmdClose_Click", [this] { Unload(); });
  On(txtQty.KeyPress, "txtQty_KeyPress", [this](int& character) {
    if (character == 'x') {
      MsgBox("No letters", controls::kInformation, "Shop");
    }
    if (character >= ' ' && !std::isdigit(character)) character = 0;
  });
  On(txtName.LostFocus, "txtName_LostFocus", [this] { notes.push_back("left txtName"); });
  On(txtName.KeyDown, "txtName_KeyDown", [this](int& code, int) {
    if (code == controls::kKeyF1 + 2) notes.push_back("F3");
  });
  On(cboUnit.Click, "cboUnit_Click", [this] { notes.push_back("unit " + cboUnit.Text()); });
  On(lvwLines.ItemCheck, "lvwLines_ItemCheck", [this](controls::ListItem& line) { notes.push_back("checked " + line.Text()); });
  On(flexStock.DblClick, "flexStock_DblClick", [this] { notes.push_back("double click " + std::to_string(flexStock.Row())); });
  On(flexStock.MouseMove, "flexStock_MouseMove",
     [this] { flexStock.SetToolTipText(flexStock.TextMatrix(flexStock.MouseRow(), flexStock.MouseCol())); });
  On(flexStock.MouseDown, "flexStock_MouseDown", [this](int button, int) {
    if (button == controls::kRightButton) PopupMenu(mnuPopup);
  });
  On(mnuAdd.Click, "mnuAdd_Click", [this] { notes.push_back("add"); });
  On(QueryUnload, "Form_QueryUnload", [this](bool& stay, int) {
    stay = refusals > 0;
    if (stay) --refusals;
  });
}

void OrderForm::Design() {
  SetCaption("Order \"A\"");
  SetSize(6400, 5000);
  PlaceHeader();
  PlaceLists();
  cmdOK.SetCaption("&OK");
  cmdOK.Move(120, 4500, 1000, 375);
  cmdMore.SetCaption("&More");
  cmdMore.Move(1320, 4500, 1000, 375);
  cmdMore.SetEnabled(Name() == "frmOrder");
  cmdHidden.SetCaption("Hidden");
  cmdHidden.Move(2520, 4500, 1000, 375);
  cmdHidden.SetVisible(false);
  cmdClose.SetCaption("&Close");
  cmdClose.SetCancel(true);
  cmdClose.Move(3720, 4500, 1000, 375);
  mnuPopup.SetVisible(false);
  mnuAdd.SetCaption("&Add");
  mnuDelete.SetCaption("&Delete");
  mnuDelete.SetEnabled(false);
}

void OrderForm::PlaceHeader() {
  lblName.SetCaption("&Name:");
  lblName.Move(120, 180, 800, 195);
  txtName.Move(960, 120, 2400, 315);
  lblQty.SetCaption("Quantity:");
  lblQty.Move(120, 540, 800, 195);
  txtQty.Move(960, 480, 1200, 315);
  txtQty.SetRightAligned(true);
  txtQty.SetMaxLength(5);
  cboUnit.Move(2280, 480, 1080, 315);
  cboUnit.SetStyle(controls::ComboStyle::DropDownList);
  cboUnit.AddItem("PCS", 1);
  cboUnit.AddItem("BOX", 2);
  fraKind.SetCaption("Kind");
  fraKind.Move(3600, 60, 1560, 900);
  optShop.SetCaption("&Shop");
  optShop.Move(120, 240, 1200, 240);
  optShop.SetContainer(&fraKind);
  optGodown.SetCaption("&Godown");
  optGodown.Move(120, 540, 1200, 240);
  optGodown.SetContainer(&fraKind);
  chkUrgent.SetCaption("&Urgent");
  chkUrgent.Move(5280, 480, 1000, 255);
}

void OrderForm::PlaceLists() {
  tabLists.Move(120, 1080, 6000, 3000);
  tabLists.SetTabs(3);
  tabLists.SetTabCaption(0, "Stock");
  tabLists.SetTabCaption(1, "Lines");
  tabLists.SetTabCaption(2, "Secret");
  tabLists.SetTabVisible(2, false);
  flexStock.SetContainer(&tabLists, 0);
  flexStock.Move(120, 400, 5000, 1250);
  flexStock.SetFixedCols(0);
  flexStock.SetFormatString("<Code|<Item|>Stock");
  flexStock.SetColWidth(1, 2000);
  flexStock.SetRows(1);
  for (int i = 1; i <= 9; ++i) {
    flexStock.AddItem("C" + std::to_string(i) + "\tItem number " + std::to_string(i) + '\t' + std::to_string(i * 10));
  }
  flexStock.SetRow(2);
  flexStock.SetRowForeColor(3, controls::kRed);
  lvwLines.SetContainer(&tabLists, 1);
  lvwLines.Move(120, 400, 5000, 1250);
  lvwLines.SetCheckBoxes(true);
  lvwLines.AddColumn("Sl No.", 700);
  lvwLines.AddColumn("Item", 2400);
  lvwLines.AddColumn("Id", 0);
  lvwLines.Add("1").SetSubItem(1, "Cup");
  lvwLines.Add("2").SetSubItem(1, "Saucer, 12\"");
  lvwLines.Item(2).SetChecked(true);
  lvwLines.Item(2).SetSubItemToolTip(1, "Saucer in full");
}

void OrderForm::ReportError(std::string_view routine, const vb::RunTimeError& error) {
  notes.push_back(std::string(routine) + ": " + error.Description());
}

}  // namespace console
