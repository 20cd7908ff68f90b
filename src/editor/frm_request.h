#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/list_view.h"
#include "base/controls/menu.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"
#include "src/counter/line_history.h"
#include "src/editor/customer_requests.h"
#include "src/editor/draft_keeping.h"
#include "src/editor/save_port.h"
#include "src/faces/common_db.h"
#include "src/lists/register_view.h"
#include "src/module/module_form.h"

namespace goods {

class frmRequestDetail;

/// The request editor: one request's header, its item lines and the customer documents it is raised for. Creates a request in
/// mode "N" of the session, shows and changes the one of gLngRequestID in any other. What is saved, and how, is request_saving's.
class frmRequest : public ModuleForm, private SavePort {
 public:
  frmRequest(basGoodsRequest& session, RegisterView& view);
  ~frmRequest() override;

  /// Pages of sstabGoodsReq.
  enum Page : int { kItemsPage = 0, kCustomerPage = 1 };

  // The header.
  controls::Label lblRequestNo{*this, "lblRequestNo"};
  controls::TextBox txtRequestNo{*this, "txtRequestNo"};
  controls::Label lblrequestDate{*this, "lblrequestDate"};
  controls::TextBox txtrequestDate{*this, "txtrequestDate"};
  controls::Frame fraRequestType{*this, "fraRequestType"};
  controls::OptionButton optgoodreq{*this, "optgoodreq"};
  controls::OptionButton optporeq{*this, "optporeq"};
  controls::Label lblRemarks{*this, "lblRemarks"};
  controls::TextBox txtRemarks{*this, "txtRemarks"};

  // The lines and the customer documents.
  controls::TabControl sstabGoodsReq{*this, "sstabGoodsReq"};
  controls::ListView lvwrequest{*this, "lvwrequest"};
  controls::ListView lvwCustomerReq{*this, "lvwCustomerReq"};

  controls::CheckBox chkcutomerrequest{*this, "chkcutomerrequest"};
  controls::CheckBox chkTransFinished{*this, "chkTransFinished"};
  controls::CommandButton cmdOK{*this, "cmdOK"};
  controls::CommandButton cmdCancel{*this, "cmdCancel"};
  controls::Label lblStatus{*this, "lblStatus"};

  // The menu of the lines.
  controls::Menu mnuPopup{*this, "mnuPopup"};
  controls::Menu mnuAdd{*this, "mnuAdd", &mnuPopup};
  controls::Menu mnuSeparator1{*this, "mnuSeparator1", &mnuPopup};
  controls::Menu mnuEdit{*this, "mnuEdit", &mnuPopup};
  controls::Menu mnuSeparator2{*this, "mnuSeparator2", &mnuPopup};
  controls::Menu mnudel{*this, "mnudel", &mnuPopup};
  controls::Menu mnuSeparator3{*this, "mnuSeparator3", &mnuPopup};
  controls::Menu mnuCancel{*this, "mnuCancel", &mnuPopup};

  /// The current line of lvwrequest, 1-based; item entry reads and moves it.
  std::int32_t lngCurrentLine = 0;

  /// The documents that an existing request is linked to, checked, followed by those on offer. The register's Edit calls it
  /// before it shows the editor, which it loads. A request without links gets an unticked box and a hidden page. Database errors
  /// are raised before the editor is loaded: shown without its links, the request would lose them at the next save.
  void ShowOwnLinks(std::int32_t requestId);

  /// A new request starts with what can be asked for again of the stored request, instead of the stock-out proposal; 0 for none.
  /// Call it before anything loads the editor.
  void StartFrom(std::int32_t requestId) { repeated_ = requestId; }

  /// Tells why the shown request can be saved no more, and makes it read-only. Once OK is grey, nothing happens.
  void ForbidSaving(std::string_view reason) override;

  /// What the editor shows, as it was typed.
  Request Entered() const;

 protected:
  void Design() override;

 private:
  void DesignHeader();
  void DesignLists();
  void DesignFooter();
  void DesignMenu();
  void WireEvents();
  void WireDraft();

  void Form_Load();
  void LoadNewRequest();
  /// Whole packs, items that are already requested, the limit of lines: where the shop's settings want it.
  void ReviewProposal();
  void AskAboutRequested();
  void TellOfLimit();
  void RepeatLines(std::int32_t requestId);
  void LoadExistingRequest();
  void Form_Activate();
  /// The focus goes to where a person begins: the remarks of a new request, the lines of a stored one.
  void GoToStart();
  void Form_QueryUnload(bool& cancel, controls::UnloadMode mode);
  void Form_Unload();
  bool IsNew() const { return Session().gStrEntryMode == "N"; }
  /// OK is grey, and the header can be read and copied but not typed into.
  void MakeReadOnly();
  /// Whether OK would store something that differs from what was loaded.
  bool IsChanged() const;

  void OfferDraft();
  void TakeUpDraft(const Request& request);
  /// Both return what is no longer there and was left out, a line each.
  std::string TakeUpLines(const std::vector<RequestLine>& lines);
  std::string TakeUpLinks(const std::vector<CustomerLink>& links);
  /// Brings the draft file up to date with what is shown. An error is reported once an editing.
  void KeepDraft();

  void txtRequestNo_KeyPress(int& character);
  void cmdOK_Click();
  void chkcutomerrequest_Click();
  void lvwCustomerReq_ItemCheck(controls::ListItem& document);
  void SetBoxQuietly(bool ticked);

  controls::Form& Window() override { return *this; }
  void GoTo(SaveField field) override;
  void ShowRequestNo(const std::string& number) override { txtRequestNo.SetText(number); }
  void Committing(std::int32_t requestId, const std::string& number) override { draft_.MarkSaving(requestId, number); }
  void TakeAsSeen(const std::string& updateTime) override { updateTime_ = updateTime; }

  void lvwrequest_DblClick();
  void lvwrequest_KeyDown(int& keyCode, int shift);
  void lvwrequest_KeyPress(int& character);
  void lvwrequest_MouseUp(controls::MouseButton button, int shift);
  void lvwrequest_Pasted(const std::string& text);
  void lvwrequest_ItemClick(controls::ListItem& line);
  void mnuAdd_Click();
  void mnuEdit_Click();
  void mnudel_Click();
  /// After every change of the lines: it can be taken back, the status line tells of it, and the draft has it.
  void LinesChanged();
  /// The same after ticking a customer document, which is taken back by unticking it.
  void DocumentsChanged();
  void TakeBackLastChange();
  void ShowStatus(std::string_view told = {});
  /// Opens item entry; once it has closed, the focus is in the list again.
  void EnterItems();

  RegisterView& view_;
  RequestLines lines_{lvwrequest};
  CommonDb objCommonDB_;
  CustomerRequests customerRequests_;
  std::shared_ptr<frmRequestDetail> itemEntry_;
  LineHistory history_;
  DraftKeeping draft_{Session(), *this};
  std::optional<RequestDraft> takenUp_;  ///< from the load to the first activation
  std::optional<Request> loaded_;        ///< from the first activation on: what is stored; a new request has no lines
  std::int32_t repeated_ = 0;            ///< the request that a new one starts from; 0 for none
  std::string updateTime_;               ///< UpdateTimeText of the stored request, as it was last seen
  bool keepOpen_ = true;                 ///< the answer to a cancelled closing; only a save clears it
  bool firstActivation_ = true;          ///< since the last load
  bool isClosed_ = false;                ///< finished, issued or cancelled: it can only be looked at
  bool settingBox_ = false;              ///< the box's Click comes from this form's own code
};

}  // namespace goods
