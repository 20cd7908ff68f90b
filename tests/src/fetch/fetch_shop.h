#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "src/fetch/frm_fetch.h"
#include "tests/support/shop_fixture.h"

namespace fetch_test {

/// An item entry form as the fetch dialog sees it: writes down what it is handed.
class ItemEntryDiary : public goods::ItemEntryPort {
 public:
  goods::ItemListMode list = goods::ItemListMode::AllInShop;
  bool refuses = false;
  std::vector<std::string> lines;

  goods::ItemListMode SelectedList() const override { return list; }
  bool TakeItemCode(const goods::PickedItem& item) override {
    lines.push_back("code " + item.itemCode);
    return !refuses;
  }
  void TakeStockOutItem(const goods::PickedItem& item) override {
    lines.push_back("item " + std::to_string(item.itemId) + " " + item.itemDescription + " [" + item.partCode + "]");
  }
  void TakeManyItems(const std::vector<goods::PickedItem>& items) override {
    for (const goods::PickedItem& item : items) lines.push_back("one of many " + item.itemCode);
  }
  void FillPackTypeinList(std::int32_t itemId) override { lines.push_back("packings " + std::to_string(itemId)); }
};

/// The fetch dialog in the sample shop, worked by a script.
class FetchShop : public ::testing::Test {
 protected:
  FetchShop() { shop.LogOn(); }
  void TearDown() override { shop.desktop.Verify(); }

  void Open(goods::ItemListMode list, const std::function<void()>& work) {
    entry.list = list;
    shop.desktop.ExpectForm("FrmFetch", [&](controls::Form&) { work(); });
    dialog->Show();
    shop.desktop.Verify();
  }
  void Filter(std::string_view text) {
    support::Enter(dialog->txtFetch, text);
    support::Press(dialog->txtFetch, "Enter");
  }
  /// One column of the rows shown, each followed by a semicolon.
  std::string Column(goods::FrmFetch::Column column) {
    std::string text;
    for (long row = 1; row < dialog->flexMaster.Rows(); ++row) text += dialog->flexMaster.TextMatrix(row, column) + ";";
    return text;
  }
  long RowsShown() { return dialog->flexMaster.Rows() - 1; }

  support::Shop shop;
  ItemEntryDiary entry;
  std::shared_ptr<goods::FrmFetch> dialog = std::make_shared<goods::FrmFetch>(shop.session, entry);
};

}  // namespace fetch_test
