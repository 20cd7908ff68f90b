// The item entry form's window: what is where, and which handler serves which event.

#include "base/vb/format.h"
#include "src/fetch/frm_fetch.h"
#include "src/itementry/frm_request_detail.h"
#include "src/itementry/line_rules.h"
#include "src/lists/list_views.h"

namespace goods {
namespace {

/// The width of the tables' columns that codes end up in.
constexpr int kCodeLength = 50;

void Place(controls::Captioned& control, std::string_view caption, int left, int top, int width, int height) {
  control.SetCaption(caption);
  control.Move(left, top, width, height);
}

}  // namespace

frmRequestDetail::frmRequestDetail(basGoodsRequest& session, RequestLines lines, std::int32_t& lngCurrentLine)
    : ModuleForm(session, "frmRequestDetail"), lines_(lines), lngCurrentLine_(lngCurrentLine) {
  On(Loading, "Form_Load", &frmRequestDetail::Form_Load);
  On(Activated, "Form_Activate", &frmRequestDetail::Form_Activate);
  On(KeyDown, "Form_KeyDown", &frmRequestDetail::Form_KeyDown);
  WireEntryFields();
  WireButtons();
}

frmRequestDetail::~frmRequestDetail() = default;

void frmRequestDetail::Design() {
  SetCaption("Goods Request Details");
  SetSize(10400, 6900);
  SetKeyPreview(true);
  DesignOptions();
  DesignEntryFields();
  DesignButtons();
  DesignTabOrder();
}

void frmRequestDetail::DesignOptions() {
  Frame1.Move(120, 60, 10160, 720);
  picOptions.SetContainer(&Frame1);
  picOptions.Move(90, 210, 9965, 420);
  for (controls::OptionButton* option : {&optStockoutitems, &optAvaingodnotinshop, &optall, &optItemsNotInShop}) {
    option->SetContainer(&picOptions);
  }
  Place(optStockoutitems, "&Stock Out Items", 0, 30, 1920, 360);
  Place(optAvaingodnotinshop, "&Available in Godown, Not available in Shop", 1980, 30, 4140, 360);
  Place(optall, "All I&tems in Shop", 6180, 30, 1860, 360);
  Place(optItemsNotInShop, "Items &not in Shop", 8100, 30, 1865, 360);
  optItemsNotInShop.SetToolTipText("This option lists all those items that are not in the item list of the shop.");
  optall.SetToolTipText("This option lists all those items that are in the item list of the shop.");
  optAvaingodnotinshop.SetToolTipText("This option lists all those stock out items whose stocks are available in godowns.");
  optStockoutitems.SetToolTipText("This option lists all those items whose stock is less than or equal to reorder level.");
}

void frmRequestDetail::DesignEntryFields() {
  Place(Label3, "&Barcode:", 120, 990, 1200, 240);
  txtitemcode.Move(1380, 960, 2700, 315);
  txtitemcode.SetMaxLength(kCodeLength);
  Place(lblpartcode, "Part Code:", 6240, 990, 1140, 240);
  txtpartcode.Move(7440, 960, 2840, 315);
  txtpartcode.SetMaxLength(kCodeLength);
  Place(Label1, "Item:", 120, 1440, 1200, 240);
  cboItem.SetStyle(controls::ComboStyle::DropDown);
  cboItem.Move(1380, 1410, 7620, 315);
  Place(Label2, "&Quantity:", 120, 1890, 1200, 240);
  txtQuantity.Move(1380, 1860, 1800, 315);
  txtQuantity.SetRightAligned(true);
  Place(lblavail, "Available quantity :", 3600, 1890, 1860, 240);
  txtavailqty.Move(5520, 1860, 1800, 315);
  txtavailqty.SetRightAligned(true);
  txtavailqty.SetLocked(true);
  txtavailqty.SetTabStop(false);
  // Until the shop's settings show them.
  lblavail.SetVisible(false);
  txtavailqty.SetVisible(false);
  Place(lblcomments, "Co&mments:", 120, 2340, 1200, 240);
  txtreqcomments.Move(1380, 2310, 8900, 315);
  txtreqcomments.SetMaxLength(kCommentsLength);
  lvwpacktype.Move(1380, 2790, 8900, 2880);
  lvwpacktype.AddColumn("ID", 900);
  lvwpacktype.AddColumn("Packing Type", 5700);
  lvwpacktype.AddColumn("Packs", 1800, controls::ColumnAlignment::Right);
  lvwscans.Move(1380, 2790, 8900, 2880);
  lvwscans.AddColumn("Code", 2100);
  lvwscans.AddColumn("Item", 3900);
  lvwscans.AddColumn("Amount", 1200, controls::ColumnAlignment::Right);
  lvwscans.AddColumn("Total", 1200, controls::ColumnAlignment::Right);
  lvwscans.SetVisible(false);
  lblStatus.Move(120, 6540, 10160, 240);
}

void frmRequestDetail::DesignButtons() {
  Place(cmdFetch, "F&etch", 9060, 1380, 1220, 375);
  cmdFetch.SetToolTipText("Fetch items (F3), search items (Shift+F3)");
  Place(cmdFirst, "&First", 120, 5970, 1080, 420);
  Place(Cmdprev, "&Prev", 1260, 5970, 1080, 420);
  Place(cmdNext, "Ne&xt", 2400, 5970, 1080, 420);
  Place(cmdLast, "&Last", 3540, 5970, 1080, 420);
  Place(cmdOk, "&Ok", 7800, 5970, 1200, 420);
  Place(cmdCancel, "&Close", 9080, 5970, 1200, 420);
  // A half-typed item keeps the focus in its box, but nobody from leaving.
  cmdCancel.SetCausesValidation(false);
  cmdCancel.SetCancel(true);
}

void frmRequestDetail::DesignTabOrder() {
  int index = 0;
  for (controls::Control* control : std::initializer_list<controls::Control*>{&Frame1,           &picOptions,
                                                                              &optStockoutitems, &optAvaingodnotinshop,
                                                                              &optall,           &optItemsNotInShop,
                                                                              &Label3,           &txtitemcode,
                                                                              &lblpartcode,      &txtpartcode,
                                                                              &Label1,           &cboItem,
                                                                              &cmdFetch,         &Label2,
                                                                              &txtQuantity,      &lblavail,
                                                                              &txtavailqty,      &lblcomments,
                                                                              &txtreqcomments,   &cmdOk,
                                                                              &cmdCancel,        &lvwpacktype,
                                                                              &lvwscans,         &cmdFirst,
                                                                              &Cmdprev,          &cmdNext,
                                                                              &cmdLast}) {
    control->SetTabIndex(index++);
  }
}

void frmRequestDetail::WireEntryFields() {
  On(cboItem.GotFocus, "cboItem_GotFocus", [this] { chosenEntry_ = cboItem.ListIndex(); });
  On(cboItem.Click, "cboItem_Click", &frmRequestDetail::cboItem_Click);
  On(cboItem.KeyPress, "cboItem_KeyPress", &frmRequestDetail::cboItem_KeyPress);
  On(cboItem.Validate, "cboItem_Validate", &frmRequestDetail::cboItem_Validate);
  On(txtitemcode.KeyPress, "txtitemcode_KeyPress", &frmRequestDetail::txtitemcode_KeyPress);
  On(txtQuantity.GotFocus, "txtQuantity_GotFocus", [this] { txtQuantity.SelectAll(); });
  On(txtQuantity.KeyPress, "txtQuantity_KeyPress", &frmRequestDetail::txtQuantity_KeyPress);
  On(txtreqcomments.KeyPress, "txtreqcomments_KeyPress", &frmRequestDetail::txtreqcomments_KeyPress);
  On(lvwpacktype.KeyPress, "lvwpacktype_KeyPress", [this](int& character) { SendTabOnEnter(*this, character); });
  for (controls::TextBox* box : {&txtavailqty, &txtQuantity}) {
    On(box->MouseMove, box->Name() + "_MouseMove",
       [box] { box->SetToolTipText(vb::FormatText(box->Text(), "###,###,##0.000#####")); });
  }
}

void frmRequestDetail::WireButtons() {
  for (controls::OptionButton* option : {&optItemsNotInShop, &optall, &optAvaingodnotinshop, &optStockoutitems}) {
    On(option->Click, option->Name() + "_Click", &frmRequestDetail::OptionClicked);
    On(option->KeyPress, option->Name() + "_KeyPress", &frmRequestDetail::OptionKeyPressed);
  }
  On(cmdFetch.Click, "cmdFetch_Click", &frmRequestDetail::cmdFetch_Click);
  On(cmdOk.Click, "cmdOk_Click", &frmRequestDetail::cmdOk_Click);
  On(cmdCancel.Click, "cmdCancel_Click", [this] {
    if (!TakeBackScan()) Unload();
  });
  On(cmdFirst.Click, "cmdFirst_Click", &frmRequestDetail::cmdFirst_Click);
  On(Cmdprev.Click, "Cmdprev_Click", &frmRequestDetail::Cmdprev_Click);
  On(cmdNext.Click, "cmdNext_Click", &frmRequestDetail::cmdNext_Click);
  On(cmdLast.Click, "cmdLast_Click", &frmRequestDetail::cmdLast_Click);
}

}  // namespace goods
