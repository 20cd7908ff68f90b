// Scanning: every code that is found becomes a line at once, and the eyes stay on the goods.

#include <algorithm>

#include "base/vb/number.h"
#include "src/itementry/frm_request_detail.h"

namespace goods {
namespace {

constexpr std::size_t kScansShown = 8;

}  // namespace

void frmRequestDetail::ToggleScanning() {
  if (!IsAdding() || !txtitemcode.Enabled()) return;
  Session().isScanning = !Session().isScanning;
  if (Session().isScanning) scans_.Start();
  ShowScanning();
  FocusFirstOf({&txtitemcode});
}

bool frmRequestDetail::IsScanning() const {
  return Session().isScanning && IsAdding() && txtitemcode.Enabled();
}

void frmRequestDetail::ShowScanning() {
  SetCaption(std::string("Goods Request Details") + (IsScanning() ? " - scanning" : ""));
  lvwpacktype.SetVisible(!IsScanning());
  lvwscans.SetVisible(IsScanning());
  lvwscans.Clear();
  const auto& scans = scans_.All();
  const std::size_t shown = std::min(scans.size(), kScansShown);
  // The last one on top.
  std::for_each(scans.rbegin(), scans.rbegin() + static_cast<std::ptrdiff_t>(shown), [this](const Scans::Scan& scan) {
    controls::ListItem& entry = lvwscans.Add(scan.code);
    entry.SetSubItem(1, scan.item);
    entry.SetSubItem(2, vb::NumberText(scan.amount));
    entry.SetSubItem(3, vb::NumberText(scan.total));
  });
}

void frmRequestDetail::TakeScan(std::string_view code) {
  std::string refusal;
  try {
    refusal = scans_.Take(code);
  } catch (const vb::RunTimeError&) {
    txtitemcode.SelectAll();
    throw;
  }
  // No message box: the next scan would answer it unseen, and be lost.
  if (!refusal.empty()) {
    Desktop().Beep();
    txtitemcode.SelectAll();  // the next scan takes the place of this one
    ShowStatus(std::string(code) + ": " + refusal);
    return;
  }
  txtitemcode.SetText("");
  ScansChanged();
}

bool frmRequestDetail::TakeBackScan() {
  if (!IsScanning() || !txtitemcode.HasFocus() || !txtitemcode.Text().empty() || !scans_.TakeBackLast()) return false;
  ScansChanged();
  return true;
}

void frmRequestDetail::ScansChanged() {
  lngCurrentLine_ = lines_.Selected();
  EnableNavigation(lines_.Count() > 1, lines_.Count() > 1);
  lines_.MarkChanged();
  ShowScanning();
  ShowStatus();
  LineEntered.Fire();
}

void frmRequestDetail::ShowStatus(std::string_view told) {
  const int lines = lines_.Count();
  std::string status = IsAdding() ? "Line " + std::to_string(lines + 1) + ", new"
                                  : "Line " + std::to_string(lines_.Selected()) + " of " + std::to_string(lines);
  if (!told.empty()) status.append(" - ").append(told);
  lblStatus.SetPlainCaption(status);
}

}  // namespace goods
