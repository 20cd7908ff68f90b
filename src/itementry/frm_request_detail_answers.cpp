// Beneath the packing list: what is on its way of the item, what the shop has, and what speaks for the quantity. Only where the
// shop's settings want it; without them the form is as it was designed.

#include "src/itementry/frm_request_detail.h"
#include "src/itementry/packing_types.h"

namespace goods {
namespace {

constexpr int kListHeightWithAnswers = 2070;
constexpr int kFirstAnswerTop = 4890;
constexpr int kAnswerHeight = 255;

}  // namespace

void frmRequestDetail::PrepareAnswers() {
  answers_.Use(ReadCounterSettings(Session()));
  const controls::Position list = lvwpacktype.Place();
  if (answers_.AreWanted()) {
    for (controls::ListView* shown : {&lvwpacktype, &lvwscans})
      shown->Move(list.left, list.top, list.width, kListHeightWithAnswers);
  }
  int top = kFirstAnswerTop;
  for (controls::Label* label : {&lblRequested, &lblStock, &lblExplained}) {
    label->Move(list.left, top, list.width, kAnswerHeight);
    label->SetVisible(answers_.AreWanted());
    top += kAnswerHeight;
  }
}

void frmRequestDetail::ShowAnswers(std::int32_t itemId) {
  if (!answers_.AreWanted()) return;
  Trap("ShowAnswers", [&] { answers_.Ask(itemId); });
  lblRequested.SetPlainCaption(answers_.Requested());
  lblStock.SetPlainCaption(answers_.Stock());
  ExplainQuantity();
}

void frmRequestDetail::ForgetAnswers() {
  answers_.Forget();
  for (controls::Label* label : {&lblRequested, &lblStock, &lblExplained}) label->SetCaption("");
}

void frmRequestDetail::ExplainQuantity() {
  std::vector<PackCount> packs;
  for (int line = 1; line <= lvwpacktype.Count(); ++line) {
    const controls::ListItem& packing = lvwpacktype.Item(line);
    packs.push_back({packing.SubItem(kPackingName), packing.SubItem(kPackingCount)});
  }
  lblExplained.SetPlainCaption(answers_.Explain(EnteredQuantity(), txtavailqty.Text(), packs));
}

}  // namespace goods
