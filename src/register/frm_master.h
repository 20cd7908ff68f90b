#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/menu.h"
#include "base/controls/text_box.h"
#include "src/faces/common_db.h"
#include "src/lists/register_view.h"
#include "src/lists/search_answer.h"
#include "src/module/module_form.h"
#include "src/register/register_fill.h"
#include "src/register/register_grid.h"

namespace goods {

class frmcancelreason;
class frmPrint;
class frmRequest;

/// The register: the shop's requests of a recent date range, one row each, and the commands on the selected one. Owns the editor,
/// the print dialog and the reason dialog. How the list is filled is register_fill's, what cancelling means
/// request_cancellation's.
class frmMaster : public ModuleForm {
 public:
  explicit frmMaster(basGoodsRequest& session);
  ~frmMaster() override;

  controls::FlexGrid flexMaster{*this, "flexMaster"};
  controls::Frame fraBrowse{*this, "fraBrowse"};
  controls::ComboBox cboColNames{*this, "cboColNames"};
  controls::PictureBox Picture1{*this, "Picture1"};
  controls::OptionButton optAscend{*this, "optAscend"};
  controls::OptionButton optDescend{*this, "optDescend"};
  controls::Label lblsearch{*this, "lblsearch"};
  controls::ComboBox cboSearch{*this, "cboSearch"};
  controls::TextBox txtsearch{*this, "txtsearch"};
  controls::CommandButton cmdnew{*this, "cmdnew"};
  controls::CommandButton CmdEdit{*this, "CmdEdit"};
  controls::CommandButton CmdDelete{*this, "CmdDelete"};
  controls::CommandButton Cmdprev{*this, "Cmdprev"};
  controls::CommandButton CmdClose{*this, "CmdClose"};
  controls::Label lblStatus{*this, "lblStatus"};
  controls::Menu mnupopup{*this, "mnupopup"};
  controls::Menu mnurefresh{*this, "mnurefresh", &mnupopup};

 protected:
  void Design() override;

 private:
  void DesignBrowse();
  void WireCommands();
  void WireGrid();
  void WireBrowse();

  // Loading.
  void Form_Load();
  void Form_Unload();
  /// Lower bound of the list; the zero date after an error.
  vb::Date fnPopulateDate();
  /// Fills the grid with the shop's requests since the from-date.
  void GridPopulate();

  // What the user's rights and the current row allow.
  void USerRights();
  void EnableCommands(bool enabled);
  /// Whether the user has the right of that letter. False after an error.
  bool fnUSerRights(std::string_view letter);
  void Form_Activate();
  void flexMaster_RowColChange();
  void flexMaster_SelChange();

  // Commands.
  void cmdnew_Click();
  /// Starts from the lines of a stored request; 0 for none.
  void OpenNewRequest(std::int32_t repeated);
  void RepeatRequest();
  void CmdEdit_Click();
  void CmdDelete_Click();
  void Cmdprev_Click();
  void mnurefresh_Click();
  /// The editor, not loaded, with the session set for a new request (mode "N") or for the current one ("E").
  frmRequest& EditorFor(std::string_view mode);
  void ShowEditor();
  /// The focus goes to the list again once a command's form has closed.
  void ReturnToList();

  // Cancelling a request.
  bool RefusesToDelete();
  bool EditorAllowsSaving() const;
  /// What the user types as reason; empty when there is none.
  std::string AskReason();
  /// False, after telling why, when another workstation has closed the request since the user was asked.
  bool MarkRequestCancelled(std::string_view userName, std::string_view reason);
  /// Brings the request's row up to date; `done` is what UpdateEditedRow says before an error.
  void ShowCancelled(std::string_view done);
  void ShowStatus();
  const std::string& CancellationRemark(long row);

  // Grid keys and mouse.
  void flexMaster_DblClick();
  void flexMaster_KeyDown(int& keyCode, int shift);
  void flexMaster_KeyPress(int& character);
  void flexMaster_MouseMove();
  void flexMaster_MouseUp(controls::MouseButton button, int shift);

  // Search and sort.
  void Form_KeyDown(int& keyCode, int shift);
  /// The search's access key goes to the box itself, with a column to search in.
  void GoToSearch();
  void cboColNames_Click();
  void SortDirection_Click();
  void flexMaster_HeadingClick(long column);
  void txtsearch_KeyUp(int& keyCode, int shift);

  RegisterView view_{flexMaster, {}};
  RegisterGrid requests_{flexMaster};
  RegisterFill fill_{Session(), flexMaster, cboColNames, cboSearch};
  SearchAnswer searchAnswer_{txtsearch};
  std::map<std::int32_t, std::string> cancellationRemarks_;  ///< of the cancelled requests that the mouse was over, by their id
  CommonDb objCommonDB_;
  long evaluatedRow_ = 1;  ///< the row that the buttons were last judged by

  std::shared_ptr<frmRequest> editor_;
  std::shared_ptr<frmPrint> printDialog_;
  std::shared_ptr<frmcancelreason> reasonDialog_;
};

}  // namespace goods
