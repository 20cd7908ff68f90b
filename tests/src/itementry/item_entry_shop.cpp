#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {

void EditorForm::Design() {
  for (const auto* heading : {"Sl No.", "Item Code", "Item Name", "Qty.", "Item ID", "Request Remarks", "Unit", "Part Code"}) {
    lvwrequest.AddColumn(heading, 1000);
  }
}

ItemEntryShop::ItemEntryShop() {
  shop.LogOn();
  form = std::make_shared<goods::frmRequestDetail>(session, goods::RequestLines(editor->lvwrequest), editor->lngCurrentLine);
}

void ItemEntryShop::LogOnTo(std::int32_t shopId) {
  session.gIntShopID = shopId;
  shop.LogOn();
}

void ItemEntryShop::Add(Work work) {
  editor->lngCurrentLine = LineCount();
  Open("N", std::move(work));
}

void ItemEntryShop::Edit(int line, Work work) {
  editor->lngCurrentLine = line;
  editor->lvwrequest.Select(line);
  Open("E", std::move(work));
}

void ItemEntryShop::Open(std::string_view mode, Work work) {
  session.gStrDetailMode = mode;
  shop.desktop.ExpectForm("frmRequestDetail", [&](controls::Form&) { work(); });
  form->Show();
  shop.desktop.Verify();
}

void ItemEntryShop::GivenLine(std::int32_t itemId, std::string_view quantity, std::string_view comments) {
  const std::string item = std::to_string(itemId);
  controls::ListItem& line = editor->lvwrequest.Add(std::to_string(LineCount() + 1));
  line.SetSubItem(goods::kLineItemCode, shop.Row("select ItemCode from aItem where ItemId=" + item));
  line.SetSubItem(goods::kLineItemName, shop.Row("select ItemDescription from smpItemDescription where ItemID=" + item));
  line.SetSubItem(goods::kLineQty, quantity);
  line.SetSubItem(goods::kLineItemId, item);
  line.SetSubItem(goods::kLineRemarks, comments);
  line.SetSubItem(goods::kLineUnit, "unit");
}

void ItemEntryShop::Scan(std::string_view code) {
  support::Enter(form->txtitemcode, code);
  support::Press(form->txtitemcode, "Enter");
}

void ItemEntryShop::Refused(std::string_view message) {
  shop.desktop.ExpectMessage(std::string(message), controls::Answer::Ok, controls::kInformation);
}

void ItemEntryShop::ExpectError(std::string_view description, std::string_view routine, long number) {
  shop.desktop.ExpectMessage(
      std::string(description) + "\n(frmRequestDetail " + std::string(routine) + ", " + std::to_string(number) + ")",
      controls::Answer::Ok, controls::kExclamation);
}

std::string ItemEntryShop::Line(int line) {
  const controls::ListItem& item = editor->lvwrequest.Item(line);
  std::string text = item.Text();
  for (int column = goods::kLineItemCode; column <= goods::kLinePartCode; ++column) text += "|" + item.SubItem(column);
  return text;
}

std::string ItemEntryShop::EnabledNavigation() {
  std::string enabled;
  if (form->cmdFirst.Enabled()) enabled += "First ";
  if (form->Cmdprev.Enabled()) enabled += "Prev ";
  if (form->cmdNext.Enabled()) enabled += "Next ";
  if (form->cmdLast.Enabled()) enabled += "Last ";
  return enabled.empty() ? enabled : enabled.substr(0, enabled.size() - 1);
}

std::string ItemEntryShop::ChosenItem() {
  return form->cboItem.ListIndex() == -1 ? std::string() : form->cboItem.List(form->cboItem.ListIndex());
}

std::string ItemEntryShop::Packings() {
  std::string text;
  for (int line = 1; line <= form->lvwpacktype.Count(); ++line) {
    const controls::ListItem& packing = form->lvwpacktype.Item(line);
    text += (line > 1 ? " " : "") + packing.SubItem(1) + "=" + packing.SubItem(2);
  }
  return text;
}

}  // namespace itementry_test
