#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/ado/constants.h"
#include "base/late/object.h"

namespace ado {

class Connection;

/// Face over a late-bound ADO Recordset. A default-made face has no object: every member raises error 91.
class Recordset {
 public:
  Recordset() = default;
  explicit Recordset(late::ObjectPtr object) : object_(std::move(object)) {}
  /// A new, closed recordset from the given factory ("ADODB.Recordset").
  static Recordset Create(late::Factory& factory);

  const late::ObjectPtr& Object() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  void Open(std::string_view source, const Connection& connection, CursorType cursor = kForwardOnly, LockType lock = kReadOnly);
  void Close();
  /// The next result of the statement, this one being given up; a face without an object after the last. The result is closed
  /// where it is a count. Raises the error that ended the statement.
  Recordset NextRecordset();
  /// Closes if it is open; for clean-up paths.
  void CloseIfOpen();
  bool IsOpen();
  void SetCursorLocation(CursorLocation location);
  /// The greatest number of rows Open may fetch; 0 is no limit.
  void SetMaxRecords(int rows);

  bool Eof();
  bool Bof();
  void MoveFirst();
  void MoveNext();
  void MoveLast();
  /// -1 for a forward-only cursor.
  long RecordCount();

  int FieldCount();
  std::string FieldName(int index);
  late::Value Field(std::string_view name);
  late::Value Field(int index);
  void SetField(std::string_view name, const late::Value& value);

  void AddNew();
  /// Adds one row with these columns in this order: one call instead of one per column. With a batch lock the row is only cached.
  void AddNew(const late::ArrayPtr& names, std::vector<late::Value> values);
  void Update();
  void UpdateBatch();
  void CancelUpdate();

  /// The next rows as (field, record), and moves past them; `rows` -1 reads to the end. Error 3021 at the end.
  late::ArrayPtr GetRows(int rows);
  /// All rows from the current one as text.
  std::string GetString(std::string_view columnDelimiter, std::string_view rowDelimiter, std::string_view nullText);

 private:
  late::Object& Target() const;

  late::ObjectPtr object_;
};

/// Reads the rest of an open recordset in blocks: `row(block, record)` is called for each record.
void ForEachRow(Recordset& recordset, const std::function<void(const late::Array& block, std::size_t record)>& row);

}  // namespace ado
