// What the shop's settings want of a stock-out proposal, once it is in the list.

#include <map>

#include "src/counter/counter_settings.h"
#include "src/counter/open_requests.h"
#include "src/counter/proposal_packs.h"
#include "src/counter/same_again.h"
#include "src/editor/frm_request.h"
#include "src/itementry/line_rules.h"

namespace goods {

void frmRequest::ReviewProposal() {
  const CounterSettings settings = ReadCounterSettings(Session());
  if (lines_.Count() == 0 || (!settings.showRequested && !settings.packProposals)) return;
  if (settings.packProposals) Trap("RaiseToWholePacks", [this] { RaiseToWholePacks(Session(), lines_); });
  if (settings.showRequested) Trap("AskAboutRequested", [this] { AskAboutRequested(); });
  Trap("TellOfLimit", [this] { TellOfLimit(); });
}

void frmRequest::AskAboutRequested() {
  std::map<std::int32_t, std::vector<OpenLine>> requested;
  for (OpenLine& line : OpenLines(Session(), 0)) requested[line.itemId].push_back(std::move(line));
  std::vector<int> found;
  for (int line = 1; line <= lines_.Count(); ++line) {
    if (requested.contains(lines_.ItemId(line))) found.push_back(line);
  }
  if (found.empty()) return;
  const std::string question =
      std::to_string(found.size()) + " of " + std::to_string(lines_.Count()) + " proposed items " +
      (found.size() == 1 ? "is already requested. Leave it out?" : "are already requested. Leave them out?");
  if (Tell(question, controls::kYesNo + controls::kQuestion) == controls::Answer::Yes) {
    for (auto line = found.rbegin(); line != found.rend(); ++line) lines_.Remove(*line);
    lines_.Renumber();
    return;
  }
  for (const int line : found) {
    controls::ListItem& item = lvwrequest.Item(line);
    item.SetForeColor(controls::kRed);
    const std::string told = "Already requested: " + OpenLinesToTell(requested[lines_.ItemId(line)]);
    for (int column = 1; column < lvwrequest.ColumnCount(); ++column) item.SetSubItemToolTip(column, told);
  }
}

// The limit does not cut a proposal: which of its lines are left out is the user's decision.
void frmRequest::TellOfLimit() {
  const double limit = ReadLineLimit(Session(), objCommonDB_);
  if (limit < 1 || lines_.Count() <= limit) return;
  const std::vector<RequestLine> all = lines_.All();
  const std::vector<RequestLine> beyond(all.begin() + static_cast<std::ptrdiff_t>(limit), all.end());
  Tell("These are beyond the shop's limit of " + std::to_string(static_cast<long>(limit)) + " lines:" + LinesToTell(beyond));
}

}  // namespace goods
