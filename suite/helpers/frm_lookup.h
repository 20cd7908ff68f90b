#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/form.h"
#include "base/controls/text_box.h"
#include "suite/helpers/lookup_rows.h"

namespace suite {

/// One column of the lookup.
struct LookupColumn {
  std::string caption;
  int width = 1440;  ///< twips; 0 is hidden
};

/// The lookup's window: rows at once, filtered as one types, sorted by a click on a heading or by the sort list. Enter, double
/// click and OK take the current row; Esc and Close cancel.
class frmLookup : public controls::Form {
 public:
  explicit frmLookup(controls::Desktop& desktop);

  /// Shows the rows modally. The number of the row taken, nothing when the user cancelled. `rows` outlives the call.
  std::optional<std::size_t> Pick(LookupRows& rows, std::vector<LookupColumn> columns, std::size_t defaultColumn,
                                  const std::string& caption, const std::string& messageTitle);

  controls::Label lblsearch{*this, "lblsearch"};
  controls::TextBox txtsearch{*this, "txtsearch"};
  controls::Label lblin{*this, "lblin"};
  controls::ComboBox cboSearch{*this, "cboSearch"};
  controls::Label lblsort{*this, "lblsort"};
  controls::ComboBox cboColNames{*this, "cboColNames"};
  controls::FlexGrid flexMaster{*this, "flexMaster"};
  controls::Label lblcount{*this, "lblcount"};
  controls::CommandButton cmdOk{*this, "cmdOk"};
  controls::CommandButton cmdClose{*this, "cmdClose"};

 protected:
  void Design() override;
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override;

 private:
  void Form_Load();
  void txtsearch_KeyDown(int& keyCode, int shift);
  void txtsearch_KeyPress(int& character);
  void flexMaster_Click();
  void flexMaster_DblClick();
  void flexMaster_KeyPress(int& character);
  void cboColNames_Click();
  void FilterRows();
  void SortBy(std::size_t column);
  void FillGrid();
  void Take();
  /// The row under the grid's current row, nothing on the placeholder row of an empty list.
  std::optional<std::size_t> CurrentRow() const;
  std::size_t SearchColumn() const;

  LookupRows* rows_ = nullptr;
  std::vector<LookupColumn> columns_;
  std::size_t defaultColumn_ = 0;
  std::size_t sortColumn_ = static_cast<std::size_t>(-1);
  bool ascending_ = true;
  std::string caption_;
  std::string messageTitle_;
  std::optional<std::size_t> taken_;
};

}  // namespace suite
