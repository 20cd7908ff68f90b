#include <algorithm>

#include "base/ado/constants.h"
#include "suite/engine/objects/recordset.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {

using Change = StatementObserver::Change;

namespace {

constexpr std::string_view kSource = "ADODB.Recordset";

}  // namespace

RowWriter& Recordset::Writer() {
  RequireAlive();
  if (!cursor_) RaiseAdo(ado::kObjectClosed, kSource);
  if (lockType_ == ado::kReadOnly || !cursor_->Source().rowIds) RaiseAdo(ado::kFeatureNotAvailable, kSource);
  if (!writer_) writer_ = std::make_unique<RowWriter>(session_, cursor_->Source().table);
  return *writer_;
}

int Recordset::TableColumn(std::size_t column) {
  const int position = cursor_->Columns()[column].tableColumn;
  if (position < 0) RaiseAdo(ado::kFeatureNotAvailable, kSource);
  return position;
}

late::Value Recordset::Typed(std::size_t column, const late::Value& value) {
  // The field reads back as the value converted to the column's type.
  std::string buffer;
  const Type& type = cursor_->Columns()[column].type;
  const Cell cell = FromValue(value, type, buffer);
  switch (cell.form) {
    case Cell::Form::Null:
      return late::Null{};
    case Cell::Form::Text:
      return cell.text;
    case Cell::Form::Real:
      return cell.real;
    case Cell::Form::Integer:
      break;
  }
  switch (type.kind) {
    case Kind::Bit:
      return cell.integer != 0;
    case Kind::TinyInt:
    case Kind::SmallInt:
      return static_cast<std::int16_t>(cell.integer);
    case Kind::Int:
      return static_cast<std::int32_t>(cell.integer);
    case Kind::Decimal:
      return vb::Decimal{cell.integer, type.scale};
    case Kind::DateTime:
      return FromMilliseconds(cell.integer);
    default:
      return cell.integer;
  }
}

late::Value Recordset::FieldValue(std::size_t column) {
  if (edit_ != Edit::None) {
    const auto found = std::find_if(edits_.begin(), edits_.end(), [&](const auto& edit) { return edit.first == column; });
    if (found != edits_.end()) return Typed(column, found->second);
    if (edit_ == Edit::Adding) return late::Null{};
  }
  return Rows().Value(column);
}

/// A cursor on the server holds one changed row until it is sent; batches belong to the client.
void Recordset::RequireRowHandle() {
  const auto unsent = [](const Pending& pending) { return !pending.sent; };
  if (!onServer_ || lockType_ != ado::kBatchOptimistic || std::none_of(pending_.begin(), pending_.end(), unsent)) return;
  RaiseProvider(kRowsNotReleased, "Row handles must all be released before new ones can be obtained.");
}

void Recordset::SetField(std::size_t column, late::Value value) {
  Writer();
  if (edit_ == Edit::None) RequireRowHandle();
  if (edit_ == Edit::None && !Rows().OnRow()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  TableColumn(column);
  Typed(column, value);  // a value of the wrong type is refused at once
  if (edit_ == Edit::None) edit_ = Edit::Changing;
  const auto found = std::find_if(edits_.begin(), edits_.end(), [&](const auto& edit) { return edit.first == column; });
  if (found != edits_.end()) {
    found->second = std::move(value);
  } else {
    edits_.emplace_back(column, std::move(value));
  }
}

void Recordset::AddNew(late::Arguments& arguments) {
  Writer();
  FinishEdit();
  RequireRowHandle();
  if (!arguments.Has(0)) {
    edit_ = Edit::Adding;
    edits_.clear();
    return;
  }
  const auto asArray = [](const late::Value& value) {
    return value.Is<late::ArrayPtr>() ? value.ToArray() : late::Array::List({value});
  };
  const late::ArrayPtr names = asArray(arguments[0]), values = asArray(arguments[1]);
  if (names->items.size() != values->items.size()) RaiseAdo(ado::kArgumentError, kSource);
  AddRow(*names, *values);
}

void Recordset::AddRow(const late::Array& names, const late::Array& values) {
  const auto same = [](const late::Value& name, const std::string& text) {
    const auto* given = name.If<std::string>();
    return given && *given == text;
  };
  if (!lastSet_ || !std::equal(names.items.begin(), names.items.end(), lastColumnNames_.begin(), lastColumnNames_.end(), same)) {
    std::vector<int> columns;
    lastColumnNames_.clear();
    for (const late::Value& name : names.items) {
      const std::size_t column = ColumnAt(name);
      const int position = TableColumn(column);
      if (std::find(columns.begin(), columns.end(), position) != columns.end()) RaiseAdo(ado::kArgumentError, kSource);
      columns.push_back(position);
      lastColumnNames_.push_back(cursor_->Columns()[column].name);
      if (const auto* text = name.If<std::string>()) lastColumnNames_.back() = *text;
    }
    lastSet_ = &Writer().SetOf(columns);
  }
  Keep(Pending{Change::Insert, lastSet_, values.items, 0});
}

void Recordset::Keep(Pending pending) {
  if (pending.change == Change::Insert) pending.rowId = --provisionalId_;
  if (lockType_ != ado::kBatchOptimistic) Send(pending);
  pending_.push_back(std::move(pending));
}

void Recordset::Send(Pending& pending) {
  connection_->Noting([&] { session_->Guarded([&] { SendRow(pending); }); });
}

void Recordset::SendRow(Pending& pending) {
  RowWriter& writer = Writer();
  switch (pending.change) {
    case Change::Insert: {
      const std::int64_t provisional = pending.rowId;
      pending.rowId = writer.Insert(*pending.set, pending.values);
      if (pending.shown) cursor_->SetRowId(provisional, pending.rowId);
      break;
    }
    case Change::Update:
      writer.Update(*pending.set, pending.values, pending.rowId);
      break;
    case Change::Delete:
      writer.Delete(pending.rowId);
      break;
  }
  pending.sent = true;
}

void Recordset::ShowNew() {
  for (Pending& pending : pending_) {
    if (pending.shown) continue;
    pending.shown = true;
    if (pending.change != Change::Insert) continue;
    Cursor::Row row;
    row.id = pending.rowId;
    const auto& columns = cursor_->Columns();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const auto& set = pending.set->columns;
      const auto found = std::find(set.begin(), set.end(), columns[i].tableColumn);
      row.values.push_back(found == set.end() ? late::Value(late::Null{})
                                              : Typed(i, pending.values[static_cast<std::size_t>(found - set.begin())]));
    }
    cursor_->Added(std::move(row));
  }
  std::erase_if(pending_, [](const Pending& pending) { return pending.sent && pending.shown; });
}

void Recordset::FinishEdit() {
  if (edit_ == Edit::None) return;
  late::Arguments none({});
  Update(none);
}

void Recordset::Update(late::Arguments& arguments) {
  Writer();
  if (arguments.Has(0)) {
    if (const auto* names = arguments[0].If<late::ArrayPtr>()) {
      const late::ArrayPtr values = arguments[1].ToArray();
      if ((*names)->items.size() != values->items.size()) RaiseAdo(ado::kArgumentError, kSource);
      for (std::size_t i = 0; i < values->items.size(); ++i) SetField(ColumnAt((*names)->items[i]), values->items[i]);
    } else {
      SetField(ColumnAt(arguments[0]), arguments[1]);
    }
  }
  if (edit_ == Edit::None) return;
  std::vector<int> columns;
  Pending pending{edit_ == Edit::Adding ? Change::Insert : Change::Update, nullptr, {}, 0};
  for (const auto& [column, value] : edits_) {
    columns.push_back(TableColumn(column));
    pending.values.push_back(value);
  }
  pending.set = &Writer().SetOf(columns);
  if (pending.change == Change::Update) pending.rowId = Rows().RowId();
  Keep(std::move(pending));  // when it fails the edit stays as it was
  if (edit_ == Edit::Changing) {
    for (const auto& [column, value] : edits_) cursor_->Changed(column, Typed(column, value));
  }
  edit_ = Edit::None;
  edits_.clear();
}

void Recordset::UpdateBatch() {
  FinishEdit();
  Writer();
  const auto unsent = [](const Pending& pending) { return !pending.sent; };
  if (std::none_of(pending_.begin(), pending_.end(), unsent)) return;
  // All rows or none: after a failure every row is still pending, under the id it had.
  const std::vector<Pending>::difference_type count = std::count_if(pending_.begin(), pending_.end(), unsent);
  std::vector<std::pair<Pending*, std::int64_t>> sent;
  sent.reserve(static_cast<std::size_t>(count));
  try {
    session_->Atomically([&] {
      for (Pending& pending : pending_) {
        if (pending.sent) continue;
        const std::int64_t id = pending.rowId;
        Send(pending);
        sent.emplace_back(&pending, id);
      }
    });
  } catch (...) {
    for (const auto& [pending, id] : sent) {
      if (pending->shown && pending->change == Change::Insert) cursor_->SetRowId(pending->rowId, id);
      pending->rowId = id;
      pending->sent = false;
    }
    throw;
  }
  std::erase_if(pending_, [](const Pending& pending) { return pending.shown || pending.change != Change::Insert; });
}

void Recordset::CancelUpdate() {
  RequireAlive();
  if (!cursor_) RaiseAdo(ado::kObjectClosed, kSource);
  edit_ = Edit::None;
  edits_.clear();
}

void Recordset::CancelBatch() {
  CancelUpdate();
  for (const Pending& pending : pending_) {
    if (pending.sent) continue;
    if (pending.shown && pending.change == Change::Insert) cursor_->SetRowId(pending.rowId, 0);
  }
  std::erase_if(pending_, [](const Pending& pending) { return !pending.sent; });
}

void Recordset::Delete() {
  Writer();
  if (edit_ == Edit::Adding) return CancelUpdate();
  if (!Rows().OnRow()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  CancelUpdate();
  RequireRowHandle();
  Keep(Pending{Change::Delete, nullptr, {}, Rows().RowId()});
  cursor_->Removed();
}

}  // namespace suite
