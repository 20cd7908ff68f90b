#include "src/register/register_fill.h"

#include <algorithm>
#include <vector>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/faces/grid_settings.h"
#include "src/lists/cell_text.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

constexpr int kBlockRows = 512;
constexpr int kTwipsPerCharacter = 105;
constexpr int kCellMargin = 180;
/// Room beside the columns: the scroll bar and the list's edges.
constexpr int kScrollBar = 360;

std::string HeadingQuery(std::string_view table) {
  return "select tc.columnheader,tc.columnname from atables t,"
         "atablecolumns tc where t.tableid = tc.tableid and "
         "tablename ='" +
         std::string(table) + "'";
}

/// The longest text of each column, in characters. Characters are only counted where the bytes could make a new record.
class LongestTexts {
 public:
  explicit LongestTexts(std::size_t columns) : characters_(columns, 0) {}
  void Measure(std::size_t column, std::string_view text) {
    if (text.size() > characters_[column]) characters_[column] = std::max(characters_[column], vb::Len(text));
  }
  const std::vector<std::size_t>& Characters() const { return characters_; }

 private:
  std::vector<std::size_t> characters_;
};

/// Appends the recordset's rows to the grid; the first one takes the placeholder's place.
LongestTexts AppendRows(ado::Recordset& rows, controls::FlexGrid& grid) {
  const auto fields = static_cast<std::size_t>(rows.FieldCount());
  grid.SetCols(static_cast<long>(fields));
  LongestTexts longest(fields);
  bool placeholder = true;
  while (!rows.Eof()) {
    const late::ArrayPtr block = rows.GetRows(kBlockRows);
    for (std::size_t record = 0; record < block->columns; ++record) {
      std::vector<std::string> cells;
      cells.reserve(fields);
      for (std::size_t field = 0; field < fields; ++field) {
        cells.push_back(CellText(std::move(block->At(field, record))));
        longest.Measure(field, cells.back());
      }
      grid.AppendRow(std::move(cells));
      if (placeholder) grid.RemoveItem(1);
      placeholder = false;
    }
  }
  return longest;
}

/// Whose settings of which grid. Error 6 for a user id beyond 16 bits.
GridOwner OwnerOf(const basGoodsRequest& session) {
  return {vb::CInt(static_cast<double>(session.gIntUserID)), session.gIntCompanyID, session.gLngInterfaceID};
}

}  // namespace

std::string RegisterQuery(std::int32_t shopId, vb::Date fromDate) {
  return "select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks, "
         " CASE GRHcancel when 1 then 'Yes' when 0 then 'No' end ,"
         " CASE GRHtransfinished when 1 then 'Yes' when 0 then 'No' end from " +
         std::string(kRegisterTable) + " where GRHshopid=" + std::to_string(shopId) + "  and grhrequestdate >'" +
         vb::FormatDate(fromDate, "yyyymmdd") + "' order by GRHrequestID";
}

void RegisterFill::FillRows(const std::string& query) {
  flexMaster_.Clear();
  flexMaster_.SetRows(2);
  const LongestTexts longest = ReadQuery(session_, query, [this](ado::Recordset& rows) { return AppendRows(rows, flexMaster_); });
  long column = 0;
  for (const std::size_t characters : longest.Characters()) WidenColumn(column++, characters);
}

void RegisterFill::WidenColumn(long column, std::size_t characters) {
  // One long text may fill half of the list; the tool tip shows the rest.
  const int widest = flexMaster_.Place().width / 2;
  const int needed = std::min(static_cast<int>(characters) * kTwipsPerCharacter + kCellMargin, widest);
  if (needed > flexMaster_.ColWidth(column)) flexMaster_.SetColWidth(column, needed);
}

void RegisterFill::NarrowWidestColumn() {
  long widest = 0;
  int together = 0;
  for (long column = 0; column < flexMaster_.Cols(); ++column) {
    together += flexMaster_.ColWidth(column);
    if (flexMaster_.ColWidth(column) > flexMaster_.ColWidth(widest)) widest = column;
  }
  const int room = flexMaster_.Place().width - kScrollBar;
  if (together <= room) return;
  flexMaster_.SetColWidth(widest, std::max(flexMaster_.ColWidth(widest) - (together - room), room / 4));
}

void RegisterFill::SetHeadings(std::string_view table) {
  cboColNames_.Clear();
  cboSearch_.Clear();
  ReadQuery(session_, HeadingQuery(table), [this](ado::Recordset& headings) {
    // The catalogue may know more columns than the register shows.
    for (long column = 0; column < flexMaster_.Cols() && !headings.Eof(); ++column, headings.MoveNext()) {
      AddHeading(column, headings.Field("columnheader").TextOrEmpty());
    }
  });
  NarrowWidestColumn();
  const GridOwner owner = OwnerOf(session_);
  GridSettings(session_.services.factory).fnGridSettings(owner, flexMaster_);
}

void RegisterFill::StoreColumnWidths() {
  const GridOwner owner = OwnerOf(session_);
  GridSettings(session_.services.factory).fnSaveGridSettings(owner, flexMaster_);
}

void RegisterFill::AddHeading(long column, const std::string& heading) {
  flexMaster_.SetTextMatrix(0, column, heading);
  WidenColumn(column, vb::Len(heading));
  if (heading.empty()) return;
  cboColNames_.AddItem(heading, static_cast<std::int32_t>(column));
  cboSearch_.AddItem(heading, static_cast<std::int32_t>(column));
}

}  // namespace goods
