#include "src/lists/register_row.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/vb/text.h"
#include "src/lists/cell_text.h"
#include "src/module/error_routine.h"
#include "src/module/module_name.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

/// The register's query narrowed to the condition, without its order.
std::string RowQuery(const std::string& gridQuery, std::string_view condition) {
  std::string query = gridQuery;
  if (const std::size_t order = vb::InStrNoCase(query, "order by")) query = vb::Left(query, static_cast<long>(order) - 1);
  query += vb::InStrNoCase(query, "where") ? " and " : " where ";
  query += condition;
  return query;
}

/// The query's first record as cells; none when it finds nothing.
std::vector<std::string> ReadRow(basGoodsRequest& session, const std::string& query) {
  std::vector<std::string> cells;
  for (late::Value& field : FirstRow(session, query)) cells.push_back(CellText(std::move(field)));
  return cells;
}

void WriteCells(controls::FlexGrid& grid, long row, const std::vector<std::string>& cells) {
  const long columns = std::min(grid.Cols(), static_cast<long>(cells.size()));
  for (long column = 0; column < columns; ++column) {
    grid.SetTextMatrix(row, column, cells[static_cast<std::size_t>(column)]);
  }
}

void AddNewRequest(controls::FlexGrid& grid, std::vector<std::string> cells) {
  const bool onlyPlaceholder = grid.Rows() == 2 && grid.TextMatrix(1, kRegisterId).empty();
  if (onlyPlaceholder) {
    WriteCells(grid, 1, cells);
    return;
  }
  grid.AppendRow(std::move(cells));
  const long added = grid.Rows() - 1;
  grid.SetRow(added);
  grid.SetTopRow(added);
}

/// The grid's row of the request; 0, a heading, when it is not listed.
long RowOf(const controls::FlexGrid& grid, std::int32_t requestId) {
  const std::string id = std::to_string(requestId);
  for (long row = 1; row < grid.Rows(); ++row) {
    if (grid.TextMatrix(row, kRegisterId) == id) return row;
  }
  return 0;
}

}  // namespace

void UpdateEditedRow(basGoodsRequest& session, RegisterView& view, std::string_view condition, std::int32_t requestId,
                     std::string_view done) {
  try {
    std::vector<std::string> cells = ReadRow(session, RowQuery(view.gridQuery, condition));
    if (cells.empty()) return;
    if (session.gStrEntryMode == "E") {
      if (const long row = RowOf(view.flexMaster, requestId)) WriteCells(view.flexMaster, row, cells);
    } else {
      AddNewRequest(view.flexMaster, std::move(cells));
    }
  } catch (const vb::RunTimeError& error) {
    const std::string before = done.empty() ? "" : std::string(done) + " Its row in the list could not be refreshed:\r\n\r\n";
    ReportError(session, kModuleName, "UpdateEditedRow", {error.Number(), before + error.Description(), error.Source()});
  }
}

void ShowRemarksInRow(RegisterView& view, std::int32_t requestId, std::string_view remarks) {
  if (const long row = RowOf(view.flexMaster, requestId)) view.flexMaster.SetTextMatrix(row, kRegisterRemarks, remarks);
}

}  // namespace goods
