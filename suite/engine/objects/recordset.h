#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/late/object.h"
#include "suite/engine/objects/connection.h"
#include "suite/engine/objects/cursor.h"
#include "suite/engine/store/row_writer.h"

namespace suite {

/// The ADO Recordset object.
class Recordset : public late::TableObject<Recordset>, private OpenRows {
 public:
  Recordset() = default;
  ~Recordset() override;

  static const late::MemberTable<Recordset>& Members();
  std::string TypeName() const override { return "Recordset"; }

  /// A recordset as Execute gives it: forward-only and read-only; closed when the result has no rows.
  static std::shared_ptr<Recordset> OfResult(std::shared_ptr<Connection> connection, std::shared_ptr<Session> session,
                                             RunResult result, std::string source);

  // For the fields.
  std::size_t FieldCount() { return Rows().Columns().size(); }
  const ResultColumn& Column(std::size_t index) { return Rows().Columns()[index]; }
  /// By name (the first of that name) or position; error 3265 when there is none.
  std::size_t ColumnAt(const late::Value& which);
  late::Value FieldValue(std::size_t column);
  void SetField(std::size_t column, late::Value value);

 private:
  friend struct RecordsetMembers;
  enum class Edit { None = 0, Changing = 1, Adding = 2 };
  /// A row set, and sent unless a batch lock holds it back. A new one becomes part of the cursor's rows only when somebody looks:
  /// a save that only appends pays for no second copy.
  struct Pending {
    StatementObserver::Change change;
    RowWriter::ColumnSet* set;
    std::vector<late::Value> values;
    std::int64_t rowId;  ///< of a new row that is not sent: a negative one of its own
    bool sent = false;
    bool shown = false;
  };

  // recordset_open.cpp
  void Open(late::Arguments& arguments);
  void OpenSource();
  void Close();
  void Requery();
  void ConnectionClosed() override;
  void ReadAhead() override;
  void TransactionEnded() override;
  bool IsUnread() const override;
  void TakeResult(RunResult result, bool updatable);
  late::Value NextRecordset(late::Arguments& arguments);
  void RequireAlive() const;
  void SetConnection(const late::Value& connection);
  std::string CommandText() const;
  void RequireClosed() const;
  Cursor& Rows();

  // recordset_move.cpp
  bool Eof();
  bool Bof();
  std::int64_t RecordCount();
  void Move(late::Arguments& arguments);
  late::Value Bookmark();
  void SetBookmark(const late::Value& value);
  std::int64_t AbsolutePosition();
  late::Value GetRows(late::Arguments& arguments);
  late::Value GetString(late::Arguments& arguments);
  std::vector<int> FieldList(const late::Arguments& arguments, std::size_t index);

  // recordset_edit.cpp
  void AddNew(late::Arguments& arguments);
  void Update(late::Arguments& arguments);
  void UpdateBatch();
  void CancelUpdate();
  void CancelBatch();
  void Delete();
  void FinishEdit();
  void RequireRowHandle();
  void AddRow(const late::Array& names, const late::Array& values);
  void Keep(Pending pending);
  void Send(Pending& pending);
  void SendRow(Pending& pending);
  void ShowNew();
  RowWriter& Writer();
  int TableColumn(std::size_t column);
  late::Value Typed(std::size_t column, const late::Value& value);

  std::shared_ptr<Connection> connection_;
  std::shared_ptr<Session> session_;
  std::string source_;
  int cursorType_ = 0;
  int lockType_ = 1;
  int cursorLocation_ = 0;  ///< 0: the connection's
  int maxRecords_ = 0;
  int options_ = -1;
  bool onServer_ = false;  ///< of the open rows
  bool dead_ = false;      ///< the rows were on the server and ended with a transaction
  std::unique_ptr<Cursor> cursor_;
  std::shared_ptr<LaterResults> later_;
  std::unique_ptr<RowWriter> writer_;
  Edit edit_ = Edit::None;
  std::vector<std::pair<std::size_t, late::Value>> edits_;  ///< fields set, in that order
  std::vector<Pending> pending_;
  std::int64_t provisionalId_ = 0;
  std::vector<std::string> lastColumnNames_;  ///< of the last AddNew, and their columns
  RowWriter::ColumnSet* lastSet_ = nullptr;
};

}  // namespace suite
