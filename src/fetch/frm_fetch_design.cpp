// The fetch dialog's window: what is where, and which handler serves which event.

#include "base/controls/form.h"
#include "src/fetch/frm_fetch.h"
#include "src/lists/list_views.h"

namespace goods {

using controls::kAnchorBottom;
using controls::kAnchorLeft;
using controls::kAnchorRight;
using controls::kAnchorTop;

FrmFetch::FrmFetch(basGoodsRequest& session, ItemEntryPort& itemEntry) : ModuleForm(session, "FrmFetch"), itemEntry_(itemEntry) {
  WireEvents();
}

void FrmFetch::Design() {
  SetCaption("Fetch Item");
  SetSize(14700, 7200);  // wide enough for every column of the list
  SetResizable(true);
  SetKeyPreview(true);
  DesignFetchFrame();
  DesignBrowseFrame();

  flexMaster.Move(120, 1200, 14460, 5280);
  flexMaster.SetAnchors(kAnchorLeft | kAnchorTop | kAnchorRight | kAnchorBottom);
  flexMaster.SetFixedCols(0);  // the first column is the hidden item id, and an empty list has no other
  CmdOk.SetCaption("&Ok");
  CmdOk.Move(12120, 6660, 1200, 420);
  CmdOk.SetAnchors(kAnchorRight | kAnchorBottom);
  CmdClose.SetCaption("&Close");
  CmdClose.Move(13380, 6660, 1200, 420);
  CmdClose.SetAnchors(kAnchorRight | kAnchorBottom);
  CmdClose.SetCancel(true);

  int index = 0;
  for (controls::Control* control : std::initializer_list<controls::Control*>{
           &fraFetch, &lblFetch, &cboFetch, &txtFetch, &flexMaster, &fraBrowse, &lblsearch, &cboSearch, &txtsearch, &cboColNames,
           &optAscend, &optDescend, &CmdOk, &CmdClose}) {
    control->SetTabIndex(index++);
  }
}

void FrmFetch::DesignFetchFrame() {
  fraFetch.SetCaption("Fetch");
  fraFetch.Move(120, 60, 5400, 1020);
  lblFetch.SetContainer(&fraFetch);
  lblFetch.SetCaption("&Fetch On:");
  lblFetch.Move(120, 300, 1800, 240);
  cboFetch.SetContainer(&fraFetch);
  cboFetch.SetStyle(controls::ComboStyle::DropDownList);
  cboFetch.Move(120, 570, 2100, 315);
  txtFetch.SetContainer(&fraFetch);
  txtFetch.Move(2340, 570, 2940, 315);
  txtFetch.SetToolTipText("Press Enter to list the items that contain this text");
  // A pasted apostrophe stays in the box, so that a pasted O'Brien finds O'Brien: the filter doubles it for the statement.
  // Doubled here already, it would be doubled twice.
  txtFetch.PasteFilter = [](std::string_view text) { return std::string(text); };
}

void FrmFetch::DesignBrowseFrame() {
  fraBrowse.SetCaption("Browse");
  fraBrowse.Move(5640, 60, 8940, 1020);
  lblsearch.SetContainer(&fraBrowse);
  lblsearch.SetCaption("&Search On:");
  lblsearch.Move(120, 300, 1500, 240);
  cboSearch.SetContainer(&fraBrowse);
  cboSearch.SetStyle(controls::ComboStyle::DropDownList);
  cboSearch.Move(120, 570, 2100, 315);
  txtsearch.SetContainer(&fraBrowse);
  txtsearch.Move(2340, 570, 2580, 315);
  cboColNames.SetContainer(&fraBrowse);
  cboColNames.SetStyle(controls::ComboStyle::DropDownList);
  cboColNames.SetToolTipText("Sort on");
  cboColNames.Move(5040, 570, 2400, 315);
  optAscend.SetContainer(&fraBrowse);
  optAscend.SetCaption("Ascending");
  optAscend.Move(7560, 300, 1260, 300);
  optAscend.SetValue(true);
  optDescend.SetContainer(&fraBrowse);
  optDescend.SetCaption("Descending");
  optDescend.Move(7560, 600, 1260, 300);
}

void FrmFetch::WireEvents() {
  On(Loading, "Form_Load", &FrmFetch::Form_Load);
  On(Activated, "Form_Activate", &FrmFetch::Form_Activate);
  On(KeyPress, "Form_KeyPress", &FrmFetch::Form_KeyPress);

  On(cboFetch.Click, "cboFetch_Click", [this] {
    if (cboFetch.ListIndex() >= 0) strFetchField_ = cboFetch.Text();
  });
  On(txtFetch.KeyPress, "txtFetch_KeyPress", &FrmFetch::txtFetch_KeyPress);
  On(txtFetch.KeyUp, "txtFetch_KeyUp", &FrmFetch::txtFetch_KeyUp);

  On(txtsearch.KeyUp, "txtsearch_KeyUp", &FrmFetch::txtsearch_KeyUp);
  On(cboColNames.Click, "cboColNames_Click", &FrmFetch::cboColNames_Click);
  // A changed direction takes effect with the next choice of a column: with none chosen, each of them is such a choice.
  On(optAscend.Click, "optAscend_Click", [this] { cboColNames.SetListIndex(-1); });
  On(optDescend.Click, "optDescend_Click", [this] { cboColNames.SetListIndex(-1); });
  for (controls::Control* control :
       std::initializer_list<controls::Control*>{&cboFetch, &cboColNames, &cboSearch, &optAscend, &optDescend, &txtsearch}) {
    On(control->KeyPress, control->Name() + "_KeyPress", [this](int& character) { SendTabOnEnter(*this, character); });
  }

  On(flexMaster.KeyDown, "flexMaster_KeyDown", &FrmFetch::flexMaster_KeyDown);
  On(flexMaster.KeyPress, "flexMaster_KeyPress", &FrmFetch::flexMaster_KeyPress);
  On(flexMaster.HeadingClick, "flexMaster_HeadingClick", &FrmFetch::flexMaster_HeadingClick);
  On(flexMaster.DblClick, "flexMaster_DblClick", &FrmFetch::Confirm);
  On(CmdOk.Click, "CmdOk_Click", &FrmFetch::Confirm);
  On(CmdClose.Click, "CmdClose_Click", [this] { Unload(); });
}

}  // namespace goods
