#pragma once

#include <cstdint>
#include <deque>
#include <set>
#include <vector>

#include "suite/engine/store/session.h"

namespace suite {

/// The rows of one open query and the place among them. Nothing is read from the store before a row is asked for. A forward-only
/// cursor keeps no row; the others keep what they have read, so that one can move back.
class Cursor {
 public:
  struct Row {
    std::vector<late::Value> values;
    std::int64_t id = 0;  ///< the store's row id; 0 when the rows cannot be updated
    bool deleted = false;
  };

  Cursor(std::shared_ptr<Session> session, StatementHandle rows, bool keepsRows, std::int64_t maxRows)
      : session_(std::move(session)), rows_(std::move(rows)), keeps_(keepsRows), maxRows_(maxRows) {}

  const std::vector<ResultColumn>& Columns() const { return rows_.Translated().columns; }
  const Translation& Source() const { return rows_.Translated(); }
  bool KeepsRows() const { return keeps_; }
  /// Whether the end of the rows has been seen.
  bool IsAtEnd() const { return state_ == State::Done; }

  /// Makes sure the first row is known.
  void Start();
  bool Eof();
  bool Bof();
  bool OnRow() { return !Eof() && !Bof() && !Deleted(); }
  /// Whether the current row was deleted through this cursor.
  bool Deleted();
  void MoveNext();
  void MovePrevious();
  void MoveFirst();
  void MoveLast();
  void MoveTo(std::int64_t position);
  /// 0-based; only for cursors that keep rows.
  std::int64_t Position();
  /// Reads to the end.
  std::int64_t Count();
  void ReadAll();
  /// Reads the rest into memory, so that the store has no open rows; nobody notices.
  void ReadAhead();

  /// A value of the current row, which must be there.
  late::Value Value(std::size_t column);
  std::int64_t RowId();
  /// Up to `count` rows (-1: all) from the current one, as (column, row); the cursor moves to the row after them.
  late::ArrayPtr Take(std::int64_t count, const std::vector<int>& columns);

  /// Notes what was sent to the store through this cursor.
  void Changed(std::size_t column, late::Value value);
  void Removed();
  void Added(Row row);
  /// A new row shown under a provisional id has been sent and has this one; 0 takes the row back.
  void SetRowId(std::int64_t provisional, std::int64_t id);

 private:
  enum class State { NotStarted, Reading, Done };

  bool Fetch();
  /// A value of the row that was fetched last, of a cursor that keeps none.
  late::Value Streamed(std::size_t column) const;
  void FetchTo(std::size_t index);
  void Finish();
  Row ReadRow();
  void TakeStreaming(std::int64_t count, const std::vector<int>& columns, std::vector<late::Value>& items);
  Row& CurrentRow();

  std::shared_ptr<Session> session_;
  StatementHandle rows_;
  bool keeps_;
  std::int64_t maxRows_;
  State state_ = State::NotStarted;
  std::int64_t read_ = 0;
  std::int64_t position_ = 0;
  std::vector<Row> kept_;
  std::deque<Row> ahead_;            ///< of a cursor that keeps no row: the current one and all after it
  std::vector<Row> added_;           ///< new rows, after all that the query returns
  std::set<std::int64_t> addedIds_;  ///< not to be met a second time when the query reaches them
  bool onAdded_ = false;             ///< the current row is the last one added
};

}  // namespace suite
