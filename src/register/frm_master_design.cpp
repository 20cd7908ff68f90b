#include "src/register/frm_master.h"

namespace goods {
namespace {

using controls::kAnchorBottom;
using controls::kAnchorLeft;
using controls::kAnchorRight;
using controls::kAnchorTop;

// Twips.
constexpr int kWidth = 11400;
constexpr int kHeight = 7500;
constexpr int kMargin = 120;
constexpr int kBrowseTop = 5640;
constexpr int kButtonTop = 6660;
constexpr int kStatusTop = 7200;
constexpr int kButtonWidth = 1320;
constexpr int kButtonHeight = 420;
constexpr int kButtonGap = 120;

}  // namespace

void frmMaster::Design() {
  SetCaption("Goods Request to HQ");
  SetSize(kWidth, kHeight);
  SetResizable(true);
  SetKeyPreview(true);

  flexMaster.Move(kMargin, kMargin, kWidth - 2 * kMargin, kBrowseTop - 2 * kMargin);
  flexMaster.SetAnchors(kAnchorLeft | kAnchorTop | kAnchorRight | kAnchorBottom);
  flexMaster.SetFixedCols(0);
  flexMaster.SetRows(2);  // the heading and one empty placeholder
  flexMaster.SetCols(kRegisterFinished + 1);

  DesignBrowse();

  controls::CommandButton* const buttons[] = {&cmdnew, &CmdEdit, &CmdDelete, &Cmdprev, &CmdClose};
  const char* const captions[] = {"&New", "&Edit", "&Delete", "&Print", "&Close"};
  constexpr int kButtons = 5;
  int left = kWidth - kMargin - kButtons * kButtonWidth - (kButtons - 1) * kButtonGap;
  for (int index = 0; index < kButtons; ++index, left += kButtonWidth + kButtonGap) {
    buttons[index]->SetCaption(captions[index]);
    buttons[index]->Move(left, kButtonTop, kButtonWidth, kButtonHeight);
    buttons[index]->SetAnchors(kAnchorRight | kAnchorBottom);
  }

  lblStatus.Move(kMargin, kStatusTop, kWidth - 2 * kMargin, 240);
  lblStatus.SetAnchors(kAnchorLeft | kAnchorRight | kAnchorBottom);

  mnupopup.SetCaption("Popup");
  mnupopup.SetVisible(false);
  mnurefresh.SetCaption("&Refresh");
}

void frmMaster::DesignBrowse() {
  fraBrowse.SetCaption("Browse");
  fraBrowse.Move(kMargin, kBrowseTop, kWidth - 2 * kMargin, 900);
  fraBrowse.SetAnchors(kAnchorLeft | kAnchorRight | kAnchorBottom);

  cboColNames.SetContainer(&fraBrowse);
  cboColNames.Move(180, 360, 2400, 330);
  cboColNames.SetStyle(controls::ComboStyle::DropDownList);
  cboColNames.SetToolTipText("Sort on");

  Picture1.SetContainer(&fraBrowse);
  Picture1.Move(2760, 330, 2640, 390);
  optAscend.SetContainer(&Picture1);
  optAscend.SetCaption("Ascending");
  optAscend.Move(0, 30, 1260, 330);
  optAscend.SetValue(true);
  optDescend.SetContainer(&Picture1);
  optDescend.SetCaption("Descending");
  optDescend.Move(1320, 30, 1320, 330);

  lblsearch.SetContainer(&fraBrowse);
  lblsearch.SetCaption("&Search On:");
  lblsearch.Move(5640, 405, 960, 240);
  cboSearch.SetContainer(&fraBrowse);
  cboSearch.Move(6660, 360, 2040, 330);
  cboSearch.SetStyle(controls::ComboStyle::DropDownList);
  txtsearch.SetContainer(&fraBrowse);
  txtsearch.Move(8820, 360, 2160, 330);
  txtsearch.SetAnchors(kAnchorLeft | kAnchorTop | kAnchorRight);
}

}  // namespace goods
