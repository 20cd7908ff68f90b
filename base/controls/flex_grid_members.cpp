// The late-bound face of the grid.

#include "base/controls/control_members.h"
#include "base/controls/flex_grid.h"

namespace controls {

namespace {

using late::Arguments;

late::Value TextOf(FlexGrid& self, Arguments& a) {
  return self.TextMatrix(a[0].ToInt32(), a[1].ToInt32());
}
void SetTextOf(FlexGrid& self, Arguments& a) {
  self.SetTextMatrix(a[0].ToInt32(), a[1].ToInt32(), a[2].ToText());
}

struct Cell {
  long row, col;
};

/// The cell of two indexes, or the current one when there are none; `count` is the number of indexes given.
Cell CellOf(const FlexGrid& self, const Arguments& a, std::size_t count) {
  if (count == 0) return {self.Row(), self.Col()};
  return {a[0].ToInt32(), a[1].ToInt32()};
}

late::Member<FlexGrid> CellColor(std::string_view name, Color (FlexGrid::*get)(long, long) const,
                                 void (FlexGrid::*put)(long, long, Color)) {
  return {name,
          [get](FlexGrid& self, Arguments& a) {
            const Cell cell = CellOf(self, a, a.Count());
            return members::Out((self.*get)(cell.row, cell.col));
          },
          [put](FlexGrid& self, Arguments& a) {
            const Cell cell = CellOf(self, a, a.Count() - 1);
            (self.*put)(cell.row, cell.col, members::In<Color>(a[a.Count() - 1]));
          },
          0, 2};
}

late::Value AddByName(FlexGrid& self, Arguments& a) {
  self.AddItem(a[0].ToText(), a.Or(1, std::int32_t{-1}).ToInt32());
  return {};
}

late::Value RemoveByName(FlexGrid& self, Arguments& a) {
  self.RemoveItem(a[0].ToInt32());
  return {};
}

}  // namespace

const Control::LateMember* FlexGrid::FindMember(std::string_view name) const {
  using members::Indexed;
  using members::Property;
  using members::ReadOnly;
  using G = FlexGrid;
  static const members::MemberList<G, LateMember> list = {
      Property<G>("Rows", &G::Rows, &G::SetRows),
      Property<G>("Cols", &G::Cols, &G::SetCols),
      Property<G>("FixedRows", &G::FixedRows, &G::SetFixedRows),
      Property<G>("FixedCols", &G::FixedCols, &G::SetFixedCols),
      Property<G>("Row", &G::Row, &G::SetRow),
      Property<G>("Col", &G::Col, &G::SetCol),
      Property<G>("RowSel", &G::RowSel, &G::SetRowSel),
      Property<G>("ColSel", &G::ColSel, &G::SetColSel),
      Property<G>("TopRow", &G::TopRow, &G::SetTopRow),
      {"TextMatrix", TextOf, SetTextOf, 2, 2},
      Property<G>("Text", &G::Text, &G::SetText),
      Property<G>("", &G::Text, &G::SetText),
      {"AddItem", AddByName, {}, 1, 2},
      {"RemoveItem", RemoveByName, {}, 1, 1},
      members::Method<G>("Clear", &G::Clear),
      Property<G>("FormatString", &G::FormatString, &G::SetFormatString),
      Indexed<G>("ColWidth", &G::ColWidth, &G::SetColWidth),
      Indexed<G>("ColAlignment", &G::ColAlignment, &G::SetColAlignment),
      CellColor("CellForeColor", &G::CellForeColor, &G::SetCellForeColor),
      CellColor("CellBackColor", &G::CellBackColor, &G::SetCellBackColor),
      Property<G>("BackColorSel", &G::BackColorSel, &G::SetBackColorSel),
      Property<G>("ForeColorSel", &G::ForeColorSel, &G::SetForeColorSel),
      // Write-only in the classic control; it reads 0.
      {"Sort", [](G&, Arguments&) { return late::Value(std::int32_t{0}); },
       [](G& self, Arguments& a) { self.Sort(static_cast<GridSort>(a[0].ToInt32())); }},
      {"Clip", [](G& self, Arguments&) { return late::Value(self.Clip()); },
       [](G& self, Arguments& a) { self.SetClip(a[0].ToText()); }},
      ReadOnly<G>("MouseRow", &G::MouseRow),
      ReadOnly<G>("MouseCol", &G::MouseCol),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
