#include "base/ado/constants.h"
#include "base/vb/text.h"
#include "suite/engine/objects/recordset.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::string_view kSource = "ADODB.Recordset";
constexpr std::int64_t kPositionBof = -2, kPositionEof = -3;
constexpr int kClipString = 2;
constexpr int kFromFirst = 1;

}  // namespace

std::size_t Recordset::ColumnAt(const late::Value& which) {
  const auto& columns = Rows().Columns();
  if (const auto* name = which.If<std::string>()) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (columns[i].name.size() == name->size() && vb::EqualNoCase(columns[i].name, *name)) return i;
    }
    RaiseAdo(ado::kItemNotFound, kSource);
  }
  const std::int32_t index = which.ToInt32();
  if (index < 0 || static_cast<std::size_t>(index) >= columns.size()) RaiseAdo(ado::kItemNotFound, kSource);
  return static_cast<std::size_t>(index);
}

bool Recordset::Eof() {
  return edit_ != Edit::Adding && Rows().Eof();
}

bool Recordset::Bof() {
  return edit_ != Edit::Adding && Rows().Bof();
}

std::int64_t Recordset::RecordCount() {
  Cursor& rows = Rows();
  if (cursorType_ == ado::kForwardOnly || cursorType_ == ado::kDynamic) return -1;
  return rows.Count();
}

void Recordset::Move(late::Arguments& arguments) {
  FinishEdit();
  Cursor& rows = Rows();
  std::int64_t base = rows.Position();
  if (arguments.Has(1)) {
    const double bookmark = arguments[1].ToDouble();
    base = bookmark == kFromFirst ? 0 : static_cast<std::int64_t>(bookmark) == 2 ? rows.Count() - 1 : base;
  }
  const std::int32_t count = arguments[0].ToInt32();
  if ((count > 0 && rows.Eof()) || (count < 0 && rows.Bof())) RaiseAdo(ado::kNoCurrentRecord, kSource);
  rows.MoveTo(base + count);
}

late::Value Recordset::Bookmark() {
  if (!Rows().OnRow()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  if (!cursor_->KeepsRows()) RaiseAdo(ado::kFeatureNotAvailable, kSource);
  return static_cast<double>(cursor_->Position() + 1);
}

void Recordset::SetBookmark(const late::Value& value) {
  FinishEdit();
  if (!Rows().KeepsRows()) RaiseAdo(ado::kFeatureNotAvailable, kSource);
  const auto position = static_cast<std::int64_t>(value.ToDouble()) - 1;
  if (position < 0) RaiseAdo(ado::kArgumentError, kSource);
  cursor_->MoveTo(position);
}

std::int64_t Recordset::AbsolutePosition() {
  Cursor& rows = Rows();
  if (rows.Bof()) return kPositionBof;
  return rows.Eof() ? kPositionEof : rows.Position() + 1;
}

std::vector<int> Recordset::FieldList(const late::Arguments& arguments, std::size_t index) {
  std::vector<int> columns;
  if (!arguments.Has(index)) {
    for (std::size_t i = 0; i < FieldCount(); ++i) columns.push_back(static_cast<int>(i));
    return columns;
  }
  const late::Value& fields = arguments[index];
  if (const auto* list = fields.If<late::ArrayPtr>()) {
    for (const late::Value& field : (*list)->items) columns.push_back(static_cast<int>(ColumnAt(field)));
  } else {
    columns.push_back(static_cast<int>(ColumnAt(fields)));
  }
  return columns;
}

late::Value Recordset::GetRows(late::Arguments& arguments) {
  FinishEdit();
  Cursor& rows = Rows();
  if (arguments.Has(1) && arguments[1].IsNumber()) {
    const std::int32_t start = arguments[1].ToInt32();
    if (start == kFromFirst) rows.MoveFirst();
    if (start < 0 || start > kFromFirst) RaiseAdo(ado::kArgumentError, kSource);
  }
  return rows.Take(arguments.Or(0, std::int32_t{-1}).ToInt32(), FieldList(arguments, 2));
}

late::Value Recordset::GetString(late::Arguments& arguments) {
  FinishEdit();
  if (arguments.Or(0, std::int32_t{kClipString}).ToInt32() != kClipString) RaiseAdo(ado::kArgumentError, kSource);
  const std::string columnDelimiter = arguments.Or(2, "\t").ToText();
  const std::string rowDelimiter = arguments.Or(3, "\r").ToText();
  const std::string nullText = arguments.Or(4, "").ToText();
  constexpr std::int64_t kBlock = 256;
  std::int64_t left = arguments.Or(1, std::int32_t{-1}).ToInt32();
  std::vector<int> columns;
  for (std::size_t i = 0; i < FieldCount(); ++i) columns.push_back(static_cast<int>(i));
  std::string text;
  do {
    const late::ArrayPtr block = Rows().Take(left < 0 ? kBlock : std::min(left, kBlock), columns);
    for (std::size_t row = 0; row < block->columns; ++row) {
      for (std::size_t column = 0; column < block->rows; ++column) {
        if (column) text += columnDelimiter;
        const late::Value& value = block->At(column, row);
        text += value.IsNull() ? nullText : value.ToText();
      }
      text += rowDelimiter;
    }
    if (left > 0) left -= static_cast<std::int64_t>(block->columns);
  } while (left != 0 && !Rows().Eof());
  return text;
}

}  // namespace suite
