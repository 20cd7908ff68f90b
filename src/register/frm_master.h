#pragma once

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

namespace goods {

class frmcancelreason;
class frmPrint;
class frmRequest;
struct GridOwner;

/// The register: the shop's requests of a recent date range, one row each, and the commands on the selected one. Owns the editor,
/// the print dialog and the reason dialog.
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
  void ReadSettings();
  /// Lower bound of the list: the process date less the configured days, or the last close when that lies further back. The zero
  /// date after an error.
  vb::Date fnPopulateDate();

  // Filling the grid.
  /// Fills the grid from the query; an empty result leaves one empty placeholder row. `table` names the headings.
  void GridPopulate(const std::string& query, std::string_view table);
  void FillRows(const std::string& query);
  void SetHeadings(std::string_view table);
  void AddHeading(long column, const std::string& heading);
  void WidenColumn(long column, std::size_t characters);
  /// Where the columns are wider than the list, the widest gives way to the others, down to a quarter of the list.
  void KeepColumnsInSight();
  void MarkCancelledRequests();
  /// Whose settings of the grid are applied and stored. Error 6 for a user id beyond 16 bits.
  GridOwner SettingsOwner() const;

  // Rights.
  void USerRights();
  void EnableCommands(bool enabled);
  /// Whether the user has the right of that letter; the letter is trimmed and put in capitals in place. False after an error.
  bool fnUSerRights(std::string& letter);
  bool HasRight(std::string letter) { return fnUSerRights(letter); }

  // What the current row allows.
  void Form_Activate();
  void flexMaster_RowColChange();
  void flexMaster_SelChange();
  bool IsOnRequest() const;  ///< whether the current row holds a request
  /// Text of the current row; "" outside the grid.
  std::string CurrentCell(long column) const;
  std::int32_t CurrentRequestId() const;
  void SelectWholeRow(long row);
  void ApplySelectionColor();

  // Commands.
  void cmdnew_Click();
  void CmdEdit_Click();
  void CmdDelete_Click();
  void Cmdprev_Click();
  void CmdClose_Click();
  void mnurefresh_Click();
  /// The focus goes to the list again once a command's form has closed.
  void ReturnToList();
  /// The editor, not loaded: an opening that failed on its way must not show through in the next one.
  frmRequest& FreshEditor();

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
  void SortGrid(long column);

  // Cancelling a request.
  bool RefusesToDelete();
  /// What the user types as reason; empty when there is none.
  std::string AskReason();
  void MarkRequestCancelled(std::string_view remark);
  void RemoveRequestRaisedFromShopItemDetail();
  bool EditorAllowsSaving() const;

  RegisterView view_{flexMaster, {}};
  SearchAnswer searchAnswer_{txtsearch};
  CommonDb objCommonDB_;
  std::string mainTable_ = "mosGoodsRequestHeader";
  std::int32_t editedRequest_ = 0;  ///< the request last opened for editing
  long evaluatedRow_ = 1;           ///< the row that the buttons were last judged by

  std::shared_ptr<frmRequest> editor_;
  std::shared_ptr<frmPrint> printDialog_;
  std::shared_ptr<frmcancelreason> reasonDialog_;
};

}  // namespace goods
