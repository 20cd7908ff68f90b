#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "src/itementry/frm_request_detail.h"
#include "src/records/request_lines.h"
#include "tests/support/shop_fixture.h"

namespace itementry_test {

/// What item entry sees of the editor: its list of lines.
class EditorForm : public controls::Form {
 public:
  explicit EditorForm(controls::Desktop& desktop) : Form(desktop, "EditorForm") {}
  controls::ListView lvwrequest{*this, "lvwrequest"};
  std::int32_t lngCurrentLine = 0;

 protected:
  void Design() override;
  void ReportError(std::string_view, const vb::RunTimeError& error) override { throw error; }
};

/// Item entry in the sample shop, over an editor's list of lines, worked by a script.
class ItemEntryShop : public ::testing::Test {
 protected:
  ItemEntryShop();
  void TearDown() override { shop.desktop.Verify(); }

  using Work = std::function<void()>;
  /// Logs the session on to another shop of the sample.
  void LogOnTo(std::int32_t shopId);
  /// Opens the form as the editor's Add does; `work` is what the user does in it.
  void Add(Work work);
  /// Opens it as the editor's Edit does, on that line.
  void Edit(int line, Work work);
  /// A line that the editor has already.
  void GivenLine(std::int32_t itemId, std::string_view quantity, std::string_view comments = "");
  /// Types or scans a code and presses Enter.
  void Scan(std::string_view code);
  void Refused(std::string_view message);
  void ExpectError(std::string_view description, std::string_view routine, long number);

  /// A line as "Sl No.|Item Code|Item Name|Qty.|Item ID|Request Remarks|Unit|Part Code".
  std::string Line(int line);
  int LineCount() { return editor->lvwrequest.Count(); }
  bool IsMarkedChanged() { return editor->lvwrequest.Tag() == "C"; }
  /// The navigation buttons that can be clicked, as "First Prev Next Last".
  std::string EnabledNavigation();
  /// The item chosen in the combo, "" for none.
  std::string ChosenItem();
  /// The packing list as "name=packs" after each other.
  std::string Packings();

  support::Shop shop;
  goods::basGoodsRequest& session = shop.session;
  std::shared_ptr<EditorForm> editor = std::make_shared<EditorForm>(shop.desktop);
  std::shared_ptr<goods::frmRequestDetail> form;

 private:
  void Open(std::string_view mode, Work work);
};

}  // namespace itementry_test
