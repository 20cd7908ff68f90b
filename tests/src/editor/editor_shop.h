#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "src/editor/frm_request.h"
#include "src/records/request_lines.h"
#include "tests/support/shop_fixture.h"

namespace editor_test {

/// A form with nothing but the register's grid: what the editor brings up to date after a save.
class GridForm : public controls::Form {
 public:
  explicit GridForm(controls::Desktop& desktop) : Form(desktop, "GridForm") {}
  controls::FlexGrid flexMaster{*this, "flexMaster"};

 protected:
  void Design() override { flexMaster.SetCols(6); }
  void ReportError(std::string_view, const vb::RunTimeError& error) override { throw error; }
};

/// A small shop (two shops, six items, a few customer documents and one stored request) and its editor, worked by a script. The
/// request GR/7 has the id 7 and two lines.
class EditorShop : public ::testing::Test {
 protected:
  EditorShop() : EditorShop(false) {}
  explicit EditorShop(bool replication);
  void TearDown() override { desktop.Verify(); }

  using Work = std::function<void()>;
  /// Opens the editor as the register's New does; `work` is what the user does in it.
  void New(Work work, controls::Answer stockOutItems = controls::Answer::No);
  /// Opens it as the register's Edit does.
  void Edit(std::int32_t requestId, Work work);

  /// The closing of a changed request asks, and the user does not want it.
  void ExpectNoSaving();

  /// Appends a line as item entry does.
  void AddLine(std::int32_t itemId, std::string_view quantity, std::string_view remarks = "");
  /// The lines as "Sl No.|Item Code|Qty.|Item ID".
  std::vector<std::string> Lines();
  /// The customer documents as "[x] Request No" or "[ ] Request No".
  std::vector<std::string> Documents();
  /// Ticks the box and checks the documents of these numbers.
  void CheckDocuments(std::initializer_list<std::string_view> numbers);
  void CheckDocument(std::string_view number, bool checked = true);
  void ExpectError(std::string_view description, std::string_view routine, long number);

  /// All that a save may touch, row by row.
  std::vector<std::string> Everything();

  support::Shop shop;
  support::ScriptedDesktop& desktop = shop.desktop;
  support::StatementLog& log = shop.log;
  goods::basGoodsRequest& session = shop.session;
  std::shared_ptr<GridForm> registerForm;
  std::unique_ptr<goods::RegisterView> view;
  std::shared_ptr<goods::frmRequest> editor;
};

}  // namespace editor_test
