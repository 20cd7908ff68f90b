#include "src/register/frm_master.h"

#include "src/editor/frm_request.h"
#include "src/lists/list_views.h"
#include "src/printing/frm_print.h"
#include "src/register/frm_cancel_reason.h"

namespace goods {

frmMaster::frmMaster(basGoodsRequest& session) : ModuleForm(session, "frmMaster") {
  On(Loading, "Form_Load", &frmMaster::Form_Load);
  On(Activated, "Form_Activate", &frmMaster::Form_Activate);
  On(KeyDown, "Form_KeyDown", &frmMaster::Form_KeyDown);
  On(Unloading, "Form_Unload", &frmMaster::Form_Unload);
  WireCommands();
  WireGrid();
  WireBrowse();
}

frmMaster::~frmMaster() = default;

void frmMaster::WireCommands() {
  On(cmdnew.Click, "cmdnew_Click", &frmMaster::cmdnew_Click);
  On(CmdEdit.Click, "CmdEdit_Click", &frmMaster::CmdEdit_Click);
  On(CmdDelete.Click, "CmdDelete_Click", &frmMaster::CmdDelete_Click);
  On(Cmdprev.Click, "Cmdprev_Click", &frmMaster::Cmdprev_Click);
  On(CmdClose.Click, "CmdClose_Click", &frmMaster::CmdClose_Click);
  On(mnurefresh.Click, "mnurefresh_Click", &frmMaster::mnurefresh_Click);
}

void frmMaster::WireGrid() {
  On(flexMaster.RowColChange, "flexMaster_RowColChange", &frmMaster::flexMaster_RowColChange);
  On(flexMaster.SelChange, "flexMaster_SelChange", &frmMaster::flexMaster_SelChange);
  On(flexMaster.HeadingClick, "flexMaster_HeadingClick", &frmMaster::flexMaster_HeadingClick);
  On(flexMaster.DblClick, "flexMaster_DblClick", &frmMaster::flexMaster_DblClick);
  On(flexMaster.KeyDown, "flexMaster_KeyDown", &frmMaster::flexMaster_KeyDown);
  On(flexMaster.KeyPress, "flexMaster_KeyPress", &frmMaster::flexMaster_KeyPress);
  On(flexMaster.MouseMove, "flexMaster_MouseMove", &frmMaster::flexMaster_MouseMove);
  On(flexMaster.MouseUp, "flexMaster_MouseUp", &frmMaster::flexMaster_MouseUp);
}

void frmMaster::WireBrowse() {
  On(cboColNames.Click, "cboColNames_Click", &frmMaster::cboColNames_Click);
  On(optAscend.Click, "optAscend_Click", &frmMaster::SortDirection_Click);
  On(optDescend.Click, "optDescend_Click", &frmMaster::SortDirection_Click);
  On(txtsearch.KeyUp, "txtsearch_KeyUp", &frmMaster::txtsearch_KeyUp);
  controls::Control* const moveOnWithEnter[] = {&cboColNames, &cboSearch, &txtsearch, &optAscend, &optDescend};
  for (controls::Control* control : moveOnWithEnter) {
    On(control->KeyPress, control->Name() + "_KeyPress", [this](int& character) { SendTabOnEnter(*this, character); });
  }
}

}  // namespace goods
