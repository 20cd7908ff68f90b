#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/vb/date.h"

namespace goods {

struct basGoodsRequest;

/// The table whose rows the register shows.
inline constexpr std::string_view kRegisterTable = "mosGoodsRequestHeader";

/// The shop's requests after the from-date; those of the from-date itself are left out on purpose.
std::string RegisterQuery(std::int32_t shopId, vb::Date fromDate);

/// Fills the register's grid from the database: rows, headings and column widths. The lists of columns to sort and to search on
/// follow the headings.
class RegisterFill {
 public:
  /// All outlive this object.
  RegisterFill(basGoodsRequest& session, controls::FlexGrid& flexMaster, controls::ComboBox& cboColNames,
               controls::ComboBox& cboSearch)
      : session_(session), flexMaster_(flexMaster), cboColNames_(cboColNames), cboSearch_(cboSearch) {}

  /// Shows the query's rows; an empty result leaves one empty placeholder row. Database errors are raised.
  void FillRows(const std::string& query);
  /// Gives the columns the stored headings of the table and the user's widths. Database errors are raised.
  void SetHeadings(std::string_view table);
  /// Stores the column widths as the user's.
  void StoreColumnWidths();

 private:
  void AddHeading(long column, const std::string& heading);
  void WidenColumn(long column, std::size_t characters);
  /// Where the columns are wider than the list, the widest is narrowed, down to a quarter of the list.
  void NarrowWidestColumn();

  basGoodsRequest& session_;
  controls::FlexGrid& flexMaster_;
  controls::ComboBox& cboColNames_;
  controls::ComboBox& cboSearch_;
};

}  // namespace goods
