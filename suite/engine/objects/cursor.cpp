#include "suite/engine/objects/cursor.h"

#include <algorithm>
#include <sqlite3.h>

#include "base/ado/constants.h"
#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::string_view kSource = "ADODB.Recordset";

}  // namespace

bool Cursor::Fetch() {
  if (state_ == State::Done) return false;
  if (!ahead_.empty()) {
    ahead_.pop_front();
    if (ahead_.empty()) return state_ = State::Done, false;
    ++read_;
    return true;
  }
  state_ = State::Reading;
  do {
    if ((maxRows_ > 0 && read_ >= maxRows_) || !session_->Step(rows_.Get())) {
      Finish();
      return false;
    }
  } while (!addedIds_.empty() && addedIds_.contains(sqlite3_column_int64(rows_.Get(), static_cast<int>(Columns().size()))));
  ++read_;
  if (keeps_) kept_.push_back(ReadRow());
  return true;
}

void Cursor::Finish() {
  state_ = State::Done;
  sqlite3_reset(rows_.Get());
  if (!keeps_) return;
  if (onAdded_) position_ = static_cast<std::int64_t>(kept_.size() + added_.size()) - 1;
  onAdded_ = false;
  std::move(added_.begin(), added_.end(), std::back_inserter(kept_));
  added_.clear();
}

Cursor::Row Cursor::ReadRow() {
  Row row;
  const auto& columns = Columns();
  row.values.reserve(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i)
    row.values.push_back(ToValue(rows_.Get(), static_cast<int>(i), columns[i].type));
  if (Source().rowIds) row.id = sqlite3_column_int64(rows_.Get(), static_cast<int>(columns.size()));
  return row;
}

void Cursor::Start() {
  if (state_ == State::NotStarted) Fetch();
}

void Cursor::ReadAhead() {
  if (state_ != State::Reading || !ahead_.empty()) return;
  if (keeps_) return ReadAll();
  do {
    ahead_.push_back(ReadRow());
  } while ((maxRows_ <= 0 || read_ + static_cast<std::int64_t>(ahead_.size()) <= maxRows_) && session_->Step(rows_.Get()));
  sqlite3_reset(rows_.Get());
}

late::Value Cursor::Streamed(std::size_t column) const {
  if (!ahead_.empty()) return ahead_.front().values[column];
  return ToValue(rows_.Get(), static_cast<int>(column), Columns()[column].type);
}

void Cursor::FetchTo(std::size_t index) {
  while (kept_.size() <= index && Fetch()) {
  }
}

void Cursor::ReadAll() {
  while (Fetch()) {
  }
}

std::int64_t Cursor::Count() {
  ReadAll();
  return std::count_if(kept_.begin(), kept_.end(), [](const Row& row) { return !row.deleted; });
}

bool Cursor::Eof() {
  if (onAdded_) return false;
  Start();
  if (!keeps_) return state_ == State::Done;
  if (position_ >= 0) FetchTo(static_cast<std::size_t>(position_));
  return position_ >= static_cast<std::int64_t>(kept_.size());
}

bool Cursor::Bof() {
  if (onAdded_) return false;
  Start();
  if (!keeps_) return state_ == State::Done && read_ == 0;
  return position_ < 0 || (kept_.empty() && state_ == State::Done);
}

bool Cursor::Deleted() {
  return keeps_ && !onAdded_ && position_ >= 0 && position_ < static_cast<std::int64_t>(kept_.size()) &&
         kept_[static_cast<std::size_t>(position_)].deleted;
}

void Cursor::MoveNext() {
  if (Eof()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  if (!keeps_) {
    onAdded_ = false;
    Fetch();
    return;
  }
  if (onAdded_) ReadAll();
  do {
    ++position_;
  } while (!Eof() && Deleted());
}

void Cursor::MovePrevious() {
  if (!keeps_) RaiseAdo(ado::kIllegalOperation, kSource);
  if (onAdded_) ReadAll();
  if (Bof()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  do {
    --position_;
  } while (!Bof() && Deleted());
}

void Cursor::MoveFirst() {
  if (keeps_) {
    if (onAdded_) ReadAll();
    position_ = 0;
    while (!Eof() && Deleted()) ++position_;
    return;
  }
  onAdded_ = false;
  if (state_ == State::NotStarted || (state_ == State::Reading && read_ <= 1)) return Start();
  // Going back to the first row of a forward-only cursor runs the query again.
  ahead_.clear();
  sqlite3_reset(rows_.Get());
  state_ = State::NotStarted;
  read_ = 0;
  Start();
}

void Cursor::MoveLast() {
  if (!keeps_) RaiseAdo(ado::kIllegalOperation, kSource);
  ReadAll();
  position_ = std::max<std::int64_t>(static_cast<std::int64_t>(kept_.size()) - 1, 0);
  while (position_ > 0 && Deleted()) --position_;
}

void Cursor::MoveTo(std::int64_t position) {
  if (!keeps_) {
    if (position < read_ - 1) RaiseAdo(ado::kIllegalOperation, kSource);
    Start();
    while (read_ - 1 < position && state_ != State::Done) Fetch();
    return;
  }
  if (onAdded_) ReadAll();
  position_ = std::max<std::int64_t>(position, -1);
  if (Eof()) position_ = static_cast<std::int64_t>(kept_.size());
}

std::int64_t Cursor::Position() {
  if (!keeps_) {
    Start();
    return state_ == State::Done ? read_ : read_ - 1;
  }
  if (onAdded_) ReadAll();
  Eof();
  return position_;
}

Cursor::Row& Cursor::CurrentRow() {
  if (onAdded_) return added_.back();
  return kept_[static_cast<std::size_t>(position_)];
}

late::Value Cursor::Value(std::size_t column) {
  if (!OnRow()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  if (keeps_ || onAdded_) return CurrentRow().values[column];
  return Streamed(column);
}

std::int64_t Cursor::RowId() {
  if (!OnRow()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  if (keeps_ || onAdded_) return CurrentRow().id;
  if (!ahead_.empty()) return ahead_.front().id;
  return sqlite3_column_int64(rows_.Get(), static_cast<int>(Columns().size()));
}

void Cursor::Changed(std::size_t column, late::Value value) {
  if (keeps_ || onAdded_) CurrentRow().values[column] = std::move(value);
}

void Cursor::Removed() {
  if (onAdded_) ReadAll();
  if (keeps_) CurrentRow().deleted = true;
}

void Cursor::Added(Row row) {
  if (row.id != 0) addedIds_.insert(row.id);
  if (!keeps_) {
    added_.clear();
    added_.push_back(std::move(row));
    onAdded_ = true;
    return;
  }
  if (state_ == State::Done) {
    kept_.push_back(std::move(row));
    position_ = static_cast<std::int64_t>(kept_.size()) - 1;
    return;
  }
  added_.push_back(std::move(row));
  onAdded_ = true;
}

void Cursor::SetRowId(std::int64_t provisional, std::int64_t id) {
  for (std::vector<Row>* rows : {&added_, &kept_}) {
    for (Row& row : *rows) {
      if (row.id != provisional) continue;
      row.id = id;
      row.deleted = id == 0;
      if (id != 0) addedIds_.insert(id);
      return;
    }
  }
}

late::ArrayPtr Cursor::Take(std::int64_t count, const std::vector<int>& columns) {
  if (Eof() || Bof()) RaiseAdo(ado::kNoCurrentRecord, kSource);
  auto block = std::make_shared<late::Array>();
  block->dimensions = 2;
  block->rows = columns.size();
  if (count > 0) block->items.reserve(columns.size() * static_cast<std::size_t>(std::min<std::int64_t>(count, 4096)));
  if (!keeps_) {
    TakeStreaming(count, columns, block->items);
  } else {
    for (std::int64_t taken = 0; (count < 0 || taken < count) && !Eof(); ++taken) {
      const Row& row = CurrentRow();
      for (const int column : columns) block->items.push_back(row.values[static_cast<std::size_t>(column)]);
      MoveNext();
    }
  }
  block->columns = columns.empty() ? 0 : block->items.size() / columns.size();
  return block;
}

void Cursor::TakeStreaming(std::int64_t count, const std::vector<int>& columns, std::vector<late::Value>& items) {
  onAdded_ = false;
  for (std::int64_t taken = 0; (count < 0 || taken < count) && state_ != State::Done; ++taken) {
    for (const int column : columns) items.push_back(Streamed(static_cast<std::size_t>(column)));
    Fetch();
  }
}

}  // namespace suite
