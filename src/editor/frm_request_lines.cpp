// What a person does in the list of item lines.

#include <algorithm>

#include "base/vb/format.h"
#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/editor/frm_request.h"
#include "src/editor/pasted_lines.h"
#include "src/itementry/frm_request_detail.h"

namespace goods {
namespace {

constexpr std::size_t kManyLines = 50;  // to paste: further ones show how far it is
constexpr std::string_view kQuantityPicture = "###,###,##0.000";

}  // namespace

void frmRequest::lvwrequest_DblClick() {
  (lines_.Count() > 0 ? mnuEdit : mnuAdd).Click.Fire();
}

void frmRequest::lvwrequest_KeyDown(int& keyCode, int shift) {
  if (keyCode == controls::kKeyF10) {
    (lines_.HasQuantity() ? mnuEdit : mnuAdd).Click.Fire();
  } else if (keyCode == controls::kKeyDelete) {
    mnudel.Click.Fire();
  } else if (keyCode == 'Z' && shift == controls::kCtrl) {
    TakeBackLastChange();
  }
}

void frmRequest::lvwrequest_KeyPress(int& character) {
  if (character == controls::kCharReturn) {
    lvwrequest_DblClick();
  } else if (character == controls::kCharLineFeed) {
    mnuAdd.Click.Fire();
  }
}

void frmRequest::lvwrequest_MouseUp(controls::MouseButton button, int) {
  if (button != controls::kRightButton || !cmdOK.Enabled()) return;
  const bool hasLines = lines_.HasQuantity();
  mnuEdit.SetEnabled(hasLines);
  mnudel.SetEnabled(hasLines);
  PopupMenu(mnuPopup);
}

void frmRequest::lvwrequest_Pasted(const std::string& text) {
  if (!cmdOK.Enabled() || vb::Trim(text).empty()) return;
  PastedLines pasted(Session(), objCommonDB_, lines_);
  std::optional<vb::RunTimeError> failure;
  {
    const controls::Hourglass busy(*this);
    const std::string caption = Caption();
    failure = pasted.Take(text, [&](std::size_t done, std::size_t all) {
      if (all > kManyLines && done % kManyLines == 0)
        SetCaption(caption + " - " + std::to_string(done) + " of " + std::to_string(all));
    });
    SetCaption(caption);
  }
  if (pasted.Added() > 0) lines_.MarkChanged();
  LinesChanged();
  if (const std::string refused = pasted.RefusedTable(); !refused.empty()) Desktop().PutOnClipboard(refused);
  Tell(pasted.Outcome());
  if (failure) throw vb::RunTimeError(*failure);
}

void frmRequest::lvwrequest_ItemClick(controls::ListItem& line) {
  line.SetSubItemToolTip(kLineQty, vb::Format(vb::Val(line.SubItem(kLineQty)), kQuantityPicture));
}

void frmRequest::mnuAdd_Click() {
  if (!cmdOK.Enabled()) return;
  Session().gStrDetailMode = "N";
  lngCurrentLine = lines_.Count();  // item entry moves it on to each line that it appends
  EnterItems();
}

void frmRequest::mnuEdit_Click() {
  if (!cmdOK.Enabled()) return;
  Session().gStrDetailMode = "E";
  if (lines_.Selected() == 0) return;
  lngCurrentLine = lines_.Selected();
  EnterItems();
}

void frmRequest::mnudel_Click() {
  const int line = lines_.Selected();
  if (!cmdOK.Enabled() || line == 0) return;
  const std::string question = "Are you sure you want to delete \r" + lines_.At(line).itemName;
  if (Tell(question, controls::kYesNo + controls::kQuestion + controls::kDefaultButton2) != controls::Answer::Yes) return;
  lines_.Remove(line);
  lines_.Renumber();
  lines_.MarkChanged();
  LinesChanged();
}

void frmRequest::LinesChanged() {
  history_.NoteChange(lines_.All());
  ShowStatus();
  KeepDraft();
}

void frmRequest::DocumentsChanged() {
  history_.NoteOther(lines_.All());
  ShowStatus();
  KeepDraft();
}

void frmRequest::TakeBackLastChange() {
  if (!cmdOK.Enabled()) return;
  const auto back = history_.TakeBack();
  if (!back) return ShowStatus("Nothing left to take back");
  const std::vector<RequestLine> now = lines_.All();
  lines_.Become(back->lines);
  const auto [firstChanged, _] = std::ranges::mismatch(now, back->lines);
  if (lines_.Count() > 0) lines_.GoTo(std::min(static_cast<int>(firstChanged - now.begin()) + 1, lines_.Count()));
  lines_.MarkChanged(!loaded_ || back->lines != loaded_->lines);
  ShowStatus(back->told);
  KeepDraft();
}

void frmRequest::ShowStatus(std::string_view told) {
  std::string status = std::to_string(lines_.Count()) + (lines_.Count() == 1 ? " line" : " lines");
  if (Session().lineLimit >= 1) status += ", limit " + vb::NumberText(Session().lineLimit);
  if (!told.empty()) status.append(" - ").append(told);
  lblStatus.SetPlainCaption(status);
}

void frmRequest::EnterItems() {
  if (!itemEntry_) {
    itemEntry_ = std::make_shared<frmRequestDetail>(Session(), lines_, lngCurrentLine);
    On(itemEntry_->LineEntered, "LineEntered", &frmRequest::LinesChanged);
  }
  itemEntry_->Show(this);
  if (IsShown() && lvwrequest.CanFocus()) lvwrequest.SetFocus();
}

}  // namespace goods
