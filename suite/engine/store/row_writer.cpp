#include "suite/engine/store/row_writer.h"

#include <algorithm>
#include <sqlite3.h>

#include "suite/engine/values/conversion.h"
#include "suite/engine/values/errors.h"

namespace suite {

RowWriter::RowWriter(std::shared_ptr<Session> session, const std::string& table)
    : session_(std::move(session)),
      table_(session_->Names().RelationNamed(table)),
      catalogVersion_(session_->Names().Version()) {}

RowWriter::ColumnSet& RowWriter::SetOf(const std::vector<int>& columns) {
  const auto found = std::find_if(sets_.begin(), sets_.end(), [&](const ColumnSet& set) { return set.columns == columns; });
  if (found != sets_.end()) return *found;
  sets_.push_back(ColumnSet{columns, {}, {}});
  return sets_.back();
}

void RowWriter::RequireSameTable() {
  session_->PrepareToWrite();
  session_->Use();
  if (catalogVersion_ == session_->Names().Version()) return;
  const Relation* now = session_->Names().FindRelation(table_.name);
  const auto same = [](const ColumnDef& a, const ColumnDef& b) { return a.name == b.name && a.type.Pack() == b.type.Pack(); };
  if (!now || !std::equal(now->columns.begin(), now->columns.end(), table_.columns.begin(), table_.columns.end(), same)) {
    RaiseServer(kTableChanged,
                "Could not complete cursor operation because the table schema changed after the cursor was declared.");
  }
  catalogVersion_ = session_->Names().Version();
}

void RowWriter::Announce(StatementObserver::Change change, const ColumnSet& set, const std::vector<late::Value>& values) {
  StatementObserver* observer = session_->Observer();
  if (!observer) return RequireSameTable();
  std::vector<StatementObserver::ColumnValue> pairs;
  for (std::size_t i = 0; i < set.columns.size(); ++i) {
    pairs.emplace_back(table_.columns[static_cast<std::size_t>(set.columns[i])].name, values[i]);
  }
  observer->RowChange(change, table_.name, pairs);
  RequireSameTable();
}

void RowWriter::Bind(sqlite3_stmt* statement, const ColumnSet& set, const std::vector<late::Value>& values) {
  // The values and buffers stay in place until the statement has run: nothing is copied.
  buffers_.resize(std::max(buffers_.size(), set.columns.size()));
  for (std::size_t i = 0; i < set.columns.size(); ++i) {
    const ColumnDef& column = table_.columns[static_cast<std::size_t>(set.columns[i])];
    BindCell(statement, static_cast<int>(i) + 1, FromValue(values[i], column.type, buffers_[i]), false);
  }
}

void RowWriter::Run(sqlite3_stmt* statement) {
  while (session_->Step(statement)) {
  }
  sqlite3_reset(statement);
}

void RowWriter::RequireOne() const {
  if (sqlite3_changes(session_->Handle()) == 1) return;
  RaiseServer(kRowNotFound, "Row cannot be located for updating. Some values may have been changed since it was last read.");
}

std::int64_t RowWriter::Insert(ColumnSet& set, const std::vector<late::Value>& values) {
  Announce(StatementObserver::Change::Insert, set, values);
  if (!set.insert) {
    std::string columns, places;
    for (std::size_t i = 0; i < set.columns.size(); ++i) {
      columns += (i ? ", " : "") + Quoted(table_.columns[static_cast<std::size_t>(set.columns[i])].name);
      places += (i ? ", ?" : "?") + std::to_string(i + 1);
    }
    Translation translation;
    translation.sql = "INSERT INTO " + Quoted(table_.name) +
                      (set.columns.empty() ? std::string(" DEFAULT VALUES") : " (" + columns + ") VALUES (" + places + ")");
    set.insert = session_->Prepare(std::move(translation));
  }
  Bind(set.insert.Get(), set, values);
  Run(set.insert.Get());
  return sqlite3_last_insert_rowid(session_->Handle());
}

void RowWriter::Update(ColumnSet& set, const std::vector<late::Value>& values, std::int64_t rowId) {
  Announce(StatementObserver::Change::Update, set, values);
  const int last = static_cast<int>(set.columns.size()) + 1;
  if (!set.update) {
    Translation translation;
    for (std::size_t i = 0; i < set.columns.size(); ++i) {
      translation.sql += (i ? ", " : "UPDATE " + Quoted(table_.name) + " SET ") +
                         Quoted(table_.columns[static_cast<std::size_t>(set.columns[i])].name) + " = ?" + std::to_string(i + 1);
    }
    translation.sql += " WHERE rowid = ?" + std::to_string(last);
    set.update = session_->Prepare(std::move(translation));
  }
  Bind(set.update.Get(), set, values);
  sqlite3_bind_int64(set.update.Get(), last, rowId);
  Run(set.update.Get());
  RequireOne();
}

void RowWriter::Delete(std::int64_t rowId) {
  Announce(StatementObserver::Change::Delete, ColumnSet{}, {});
  if (!delete_) {
    Translation translation;
    translation.sql = "DELETE FROM " + Quoted(table_.name) + " WHERE rowid = ?1";
    delete_ = session_->Prepare(std::move(translation));
  }
  sqlite3_bind_int64(delete_.Get(), 1, rowId);
  Run(delete_.Get());
  RequireOne();
}

}  // namespace suite
