#include "src/printing/frm_print.h"

#include <utility>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/module/settings_reader.h"
#include "src/printing/text_viewer.h"
#include "src/printing/windows_print.h"

namespace goods {

frmPrint::frmPrint(basGoodsRequest& session, RegisterView& registerView)
    : ModuleForm(session, "frmPrint"), register_(registerView), slip_(session) {
  On(Loading, "Form_Load", &frmPrint::Form_Load);
  On(KeyPress, "Form_KeyPress", &frmPrint::Form_KeyPress);
  On(cmdOK.Click, "cmdOK_Click", &frmPrint::cmdOK_Click);
  On(cmdCancel.Click, "cmdCancel_Click", &frmPrint::cmdCancel_Click);
}

void frmPrint::Design() {
  SetCaption("Print");
  SetSize(4800, 2520);
  SetKeyPreview(true);
  fraPrint.Move(180, 120, 4440, 1620);
  for (auto* option : {&optScreen, &optPrint, &optwindowsprint}) option->SetContainer(&fraPrint);
  optScreen.SetCaption("To Screen");
  optScreen.Move(240, 300, 3960, 300);
  optPrint.SetCaption("To Printer");
  optPrint.Move(240, 720, 3960, 300);
  optwindowsprint.SetCaption("Windows Print");
  optwindowsprint.Move(240, 1140, 3960, 300);
  cmdOK.SetCaption("&OK");
  cmdOK.Move(2100, 1920, 1200, 420);
  cmdOK.SetDefault(true);
  cmdCancel.SetCaption("Cancel");
  cmdCancel.Move(3420, 1920, 1200, 420);
  int index = 0;
  for (controls::Control* control :
       std::initializer_list<controls::Control*>{&fraPrint, &optScreen, &optPrint, &optwindowsprint, &cmdOK, &cmdCancel}) {
    control->SetTabIndex(index++);
  }
}

void frmPrint::Form_Load() {
  Session().gObjFormColor.Applyformcolor(*this);
  SettingsFile settings(Session());
  const auto isOne = [&](std::string_view key) { return vb::Val(settings.FileCode(key)) == 1; };
  const bool offered = isOne("windowsprint");
  optwindowsprint.SetVisible(offered);
  optwindowsprint.SetValue(offered);
  if (!offered) (isOne("printtoscreen") ? optScreen : optPrint).SetValue(true);
  settingsFailureToldOf_ = settings.FailureToldOf();
  // The settings decide only what is offered: the dialog always opens on the screen.
  optScreen.SetValue(true);
}

void frmPrint::Form_KeyPress(int& character) {
  if (character == controls::kCharEscape) Unload();
}

void frmPrint::cmdOK_Click() {
  // A slip for the screen that fails leaves the dialog open. What fails on paper or in the report was told, and the dialog goes.
  if (optwindowsprint.Value()) {
    Trap("WIndowsprint", [&] { WIndowsprint(Session(), RequestId()); });
  } else if (!PrintAsText()) {
    return;
  }
  Unload();
}

void frmPrint::cmdCancel_Click() {
  Unload();
}

bool frmPrint::PrintAsText() {
  const controls::Hourglass wait(*this);
  const std::string viewer = TextViewer(Session());
  const bool toScreen = optScreen.Value();
  SettingsFile settings(Session(), std::exchange(settingsFailureToldOf_, false));
  const std::string file = slip_.PrintBill(RequestId(), toScreen ? SlipDestination::Screen : SlipDestination::Printer, settings);
  if (!toScreen) return true;
  if (file.empty()) return false;
  ShowTextFile(Session(), viewer, file);
  return true;
}

std::int32_t frmPrint::RequestId() const {
  const controls::FlexGrid& grid = register_.flexMaster;
  if (grid.Row() < grid.FixedRows() || grid.Row() >= grid.Rows()) return 0;
  return vb::CLng(vb::Val(grid.TextMatrix(grid.Row(), kRegisterId)));
}

}  // namespace goods
