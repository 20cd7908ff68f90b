#include "src/lists/list_views.h"

#include "base/vb/error.h"
#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/module/error_routine.h"
#include "src/module/module_name.h"

namespace goods {
namespace {

/// A name as the layout tables are searched for it: trimmed, in capitals, safe between single quotes.
std::string LayoutKey(std::string_view name) {
  return vb::DoubleApostrophes(vb::UCase(vb::Trim(name)));
}

std::string LayoutQuery(std::string_view transactionName, std::string_view listName, std::string_view moduleName) {
  return "select * from alistviewdetails where lvwdid=(select lvwid from alistviewheader where  "
         " ltrim(rtrim(upper(lvwtransname)))='" +
         LayoutKey(transactionName) + "' and ltrim(rtrim(upper(lvwname)))='" + LayoutKey(listName) +
         "' and ltrim(rtrim(upper(lvwmodulename)))='" + LayoutKey(moduleName) + "')";
}

/// List-view alignment codes: 0 left, 1 right, 2 centre. Error 380 for any other.
controls::ColumnAlignment AlignmentOf(std::int32_t code) {
  if (code < 0 || code > 2) vb::Raise(vb::kInvalidPropertyValue);
  return static_cast<controls::ColumnAlignment>(code);
}

}  // namespace

void ApplyListviewLayout(basGoodsRequest& session, controls::ListView& list, std::string_view transactionName,
                         std::string_view moduleName) {
  Trapped(session, kModuleName, "ApplyListviewLayout", [&] {
    ado::Recordset rows = ado::Recordset::Create(session.services.factory);
    rows.Open(LayoutQuery(transactionName, list.Name(), moduleName), session.gAdoCon);
    for (; !rows.Eof(); rows.MoveNext()) {
      const int column = vb::CLng(vb::Val(rows.Field("lvwcolid").TextOrEmpty()));
      // A layout that leaves a width or an alignment open keeps the one the list was drawn with.
      if (const late::Value width = rows.Field("lvwdcolwidth"); !width.IsNull()) list.SetColumnWidth(column, width.ToInt32());
      if (const late::Value align = rows.Field("lvwdcolalign"); !align.IsNull()) {
        list.SetColumnAlignment(column, AlignmentOf(align.ToInt32()));
      }
    }
    rows.Close();
  });
}

std::int32_t CountCheckedItems(const controls::ListView& list) {
  std::int32_t checked = 0;
  const std::int16_t last = vb::CInt(static_cast<double>(list.Count()));  // lines are numbered in 16 bits
  for (int line = 1; line <= last; ++line) {
    if (list.Item(line).Checked()) ++checked;
  }
  return checked;
}

void SendTabOnEnter(controls::Form& form, int character) {
  if (character == controls::kCharReturn) form.SendTab();
}

}  // namespace goods
