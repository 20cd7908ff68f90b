// What the editor looks like before anything is loaded into it. Positions are in twips.

#include "src/editor/frm_request.h"

namespace goods {
namespace {

constexpr int kWidth = 10800;
constexpr int kHeight = 7800;
constexpr int kMargin = 120;
constexpr int kLabelHeight = 255;
constexpr int kBoxHeight = 330;
constexpr int kLeftTopRight = controls::kAnchorLeft | controls::kAnchorTop | controls::kAnchorRight;
constexpr int kAllEdges = kLeftTopRight | controls::kAnchorBottom;
constexpr int kBottomLeft = controls::kAnchorBottom | controls::kAnchorLeft;
constexpr int kBottomRight = controls::kAnchorBottom | controls::kAnchorRight;

}  // namespace

void frmRequest::Design() {
  SetCaption("Goods Request");
  SetSize(kWidth, kHeight);
  SetResizable(true);
  DesignHeader();
  DesignLists();
  DesignFooter();
  DesignMenu();
}

void frmRequest::DesignHeader() {
  lblRequestNo.SetCaption("Request No:");
  lblRequestNo.Move(kMargin, 180, 1200, kLabelHeight);
  txtRequestNo.SetMaxLength(50);
  txtRequestNo.Move(1380, 150, 2100, kBoxHeight);
  lblrequestDate.SetCaption("Request Date:");
  lblrequestDate.Move(3720, 180, 1320, kLabelHeight);
  txtrequestDate.SetMaxLength(20);
  txtrequestDate.Move(5100, 150, 1560, kBoxHeight);
  lblRemarks.SetCaption("&Remarks:");
  lblRemarks.Move(kMargin, 660, 1200, kLabelHeight);
  txtRemarks.SetMaxLength(250);
  txtRemarks.Move(1380, 630, 5280, kBoxHeight);
  txtRemarks.SetAnchors(kLeftTopRight);

  fraRequestType.SetCaption("Request Type");
  fraRequestType.Move(6960, 90, 3720, 870);
  fraRequestType.SetAnchors(controls::kAnchorTop | controls::kAnchorRight);
  optgoodreq.SetCaption("To &Godown");
  optgoodreq.SetContainer(&fraRequestType);
  optgoodreq.Move(180, 390, 1740, kLabelHeight);
  optporeq.SetCaption("&PO Request");
  optporeq.SetContainer(&fraRequestType);
  optporeq.Move(2040, 390, 1560, kLabelHeight);
}

void frmRequest::DesignLists() {
  sstabGoodsReq.SetTabs(2);
  sstabGoodsReq.SetTabCaption(kItemsPage, "Items");
  sstabGoodsReq.SetTabCaption(kCustomerPage, "Customer Requests");
  sstabGoodsReq.SetTabVisible(kCustomerPage, false);
  sstabGoodsReq.Move(kMargin, 1080, kWidth - 2 * kMargin, 5640);
  sstabGoodsReq.SetAnchors(kAllEdges);

  lvwrequest.SetContainer(&sstabGoodsReq, kItemsPage);
  lvwrequest.Move(kMargin, 420, kWidth - 4 * kMargin, 5100);
  lvwrequest.SetAnchors(kAllEdges);
  // Together with a scroll bar they are as wide as the list.
  lvwrequest.AddColumn("Sl No.", 720);
  lvwrequest.AddColumn("Item Code", 1380);
  lvwrequest.AddColumn("Item Name", 2820);
  lvwrequest.AddColumn("Qty.", 1140, controls::ColumnAlignment::Right);
  lvwrequest.AddColumn("Item ID", 0);
  lvwrequest.AddColumn("Request Remarks", 1800);
  lvwrequest.AddColumn("Unit", 780);
  lvwrequest.AddColumn("Part Code", 1260);

  lvwCustomerReq.SetContainer(&sstabGoodsReq, kCustomerPage);
  lvwCustomerReq.Move(kMargin, 420, kWidth - 4 * kMargin, 5100);
  lvwCustomerReq.SetAnchors(kAllEdges);
  lvwCustomerReq.SetCheckBoxes(true);
  lvwCustomerReq.AddColumn("Sl No.", 900);
  lvwCustomerReq.AddColumn("Request No", 2700);
  lvwCustomerReq.AddColumn("Invoice ID", 0);
  lvwCustomerReq.AddColumn("Re-export No", 2700);
}

void frmRequest::DesignFooter() {
  chkcutomerrequest.SetCaption("C&ustomer Request");
  chkcutomerrequest.Move(kMargin, 6960, 2160, 300);
  chkcutomerrequest.SetAnchors(kBottomLeft);
  chkTransFinished.SetCaption("Confirm &Finished");
  chkTransFinished.Move(2400, 6960, 2160, 300);
  chkTransFinished.SetAnchors(kBottomLeft);
  lblStatus.Move(kMargin, 7500, kWidth - 2 * kMargin, kLabelHeight);
  lblStatus.SetAnchors(kBottomLeft | controls::kAnchorRight);
  cmdOK.SetCaption("&OK");
  cmdOK.Move(8160, 6900, 1200, 420);
  cmdOK.SetAnchors(kBottomRight);
  cmdCancel.SetCaption("&Close");
  cmdCancel.SetCancel(true);
  cmdCancel.Move(9480, 6900, 1200, 420);
  cmdCancel.SetAnchors(kBottomRight);
}

void frmRequest::DesignMenu() {
  mnuPopup.SetCaption("Popup");
  mnuPopup.SetVisible(false);
  mnuAdd.SetCaption("&Add");
  mnuSeparator1.SetCaption("-");
  mnuEdit.SetCaption("&Edit");
  mnuSeparator2.SetCaption("-");
  mnudel.SetCaption("&Delete");
  mnuSeparator3.SetCaption("-");
  mnuCancel.SetCaption("&Cancel Menu");
}

}  // namespace goods
