#include <algorithm>
#include <vector>

#include "base/vb/text.h"
#include "src/faces/grid_settings.h"
#include "src/lists/cell_text.h"
#include "src/register/frm_master.h"

namespace goods {
namespace {

constexpr int kBlockRows = 512;
constexpr int kTwipsPerCharacter = 105;
constexpr int kCellMargin = 180;
/// Room beside the columns: the scroll bar and the list's edges.
constexpr int kScrollBar = 360;
constexpr std::string_view kCancelled = "Yes";

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

}  // namespace

void frmMaster::GridPopulate(const std::string& query, std::string_view table) {
  Trap("GridPopulate", [&] {
    view_.gridQuery = query;
    FillRows(query);
    Trap("SetHeadings", [&] { SetHeadings(table); });
    MarkCancelledRequests();
    SelectWholeRow(1);
  });
}

void frmMaster::FillRows(const std::string& query) {
  flexMaster.Clear();
  flexMaster.SetRows(2);
  ado::Recordset rows = ado::Recordset::Create(Session().services.factory);
  rows.Open(query, Session().gAdoCon);
  const auto fields = static_cast<std::size_t>(rows.FieldCount());
  flexMaster.SetCols(static_cast<long>(fields));
  LongestTexts longest(fields);
  bool placeholder = true;  // the first request takes the placeholder's row
  while (!rows.Eof()) {
    const late::ArrayPtr block = rows.GetRows(kBlockRows);
    for (std::size_t record = 0; record < block->columns; ++record) {
      std::vector<std::string> cells;
      cells.reserve(fields);
      for (std::size_t field = 0; field < fields; ++field) {
        cells.push_back(CellText(std::move(block->At(field, record))));
        longest.Measure(field, cells.back());
      }
      flexMaster.AppendRow(std::move(cells));
      if (placeholder) flexMaster.RemoveItem(1);
      placeholder = false;
    }
  }
  rows.Close();
  for (std::size_t field = 0; field < fields; ++field) WidenColumn(static_cast<long>(field), longest.Characters()[field]);
}

void frmMaster::WidenColumn(long column, std::size_t characters) {
  // One long text may fill half of the list; the tool tip shows the rest.
  const int widest = flexMaster.Place().width / 2;
  const int needed = std::min(static_cast<int>(characters) * kTwipsPerCharacter + kCellMargin, widest);
  if (needed > flexMaster.ColWidth(column)) flexMaster.SetColWidth(column, needed);
}

void frmMaster::KeepColumnsInSight() {
  long widest = 0;
  int together = 0;
  for (long column = 0; column < flexMaster.Cols(); ++column) {
    together += flexMaster.ColWidth(column);
    if (flexMaster.ColWidth(column) > flexMaster.ColWidth(widest)) widest = column;
  }
  const int room = flexMaster.Place().width - kScrollBar;
  if (together <= room) return;
  flexMaster.SetColWidth(widest, std::max(flexMaster.ColWidth(widest) - (together - room), room / 4));
}

void frmMaster::SetHeadings(std::string_view table) {
  cboColNames.Clear();
  cboSearch.Clear();
  ado::Recordset headings = ado::Recordset::Create(Session().services.factory);
  headings.Open(HeadingQuery(table), Session().gAdoCon);
  // The catalogue may know more columns than the register shows.
  for (long column = 0; column < flexMaster.Cols() && !headings.Eof(); ++column, headings.MoveNext()) {
    AddHeading(column, headings.Field("columnheader").TextOrEmpty());
  }
  headings.Close();
  KeepColumnsInSight();
  const GridOwner owner = SettingsOwner();
  GridSettings(Session().services.factory).fnGridSettings(owner, flexMaster);
}

void frmMaster::AddHeading(long column, const std::string& heading) {
  flexMaster.SetTextMatrix(0, column, heading);
  WidenColumn(column, vb::Len(heading));
  if (heading.empty()) return;
  cboColNames.AddItem(heading, static_cast<std::int32_t>(column));
  cboSearch.AddItem(heading, static_cast<std::int32_t>(column));
}

void frmMaster::MarkCancelledRequests() {
  for (long row = 1; row < flexMaster.Rows(); ++row) {
    if (flexMaster.TextMatrix(row, kRegisterCancelled) == kCancelled) flexMaster.SetRowForeColor(row, controls::kRed);
  }
}

}  // namespace goods
