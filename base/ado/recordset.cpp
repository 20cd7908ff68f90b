#include "base/ado/recordset.h"

#include "base/ado/connection.h"
#include "base/vb/error.h"

namespace ado {
namespace {

constexpr std::int32_t kClipString = 2;  // the only format that GetString knows
constexpr std::int32_t kAllRows = -1;
constexpr int kBlockRows = 512;

late::Value Number(int value) {
  return late::Value(static_cast<std::int32_t>(value));
}

}  // namespace

late::Object& Recordset::Target() const {
  if (!object_) vb::Raise(vb::kObjectNotSet);
  return *object_;
}

Recordset Recordset::Create(late::Factory& factory) {
  return Recordset(factory.Create("ADODB.Recordset"));
}

void Recordset::Open(std::string_view source, const Connection& connection, CursorType cursor, LockType lock) {
  if (!connection) vb::Raise(vb::kObjectNotSet);
  Target().Call("Open", {source, connection.Object(), Number(cursor), Number(lock), Number(kCommandText)});
}

void Recordset::Close() {
  Target().Call("Close");
}

Recordset Recordset::NextRecordset() {
  const late::Value next = Target().Call("NextRecordset");
  const late::ObjectPtr* object = next.If<late::ObjectPtr>();
  return Recordset(object ? *object : nullptr);
}

void Recordset::CloseIfOpen() {
  if (object_ && IsOpen()) Close();
}

bool Recordset::IsOpen() {
  return (Target().Get("State").ToInt32() & kOpen) != 0;
}
void Recordset::SetCursorLocation(CursorLocation location) {
  Target().Put("CursorLocation", Number(location));
}
void Recordset::SetMaxRecords(int rows) {
  Target().Put("MaxRecords", Number(rows));
}

bool Recordset::Eof() {
  return Target().Get("EOF").ToBool();
}
bool Recordset::Bof() {
  return Target().Get("BOF").ToBool();
}
void Recordset::MoveFirst() {
  Target().Call("MoveFirst");
}
void Recordset::MoveNext() {
  Target().Call("MoveNext");
}
void Recordset::MoveLast() {
  Target().Call("MoveLast");
}
long Recordset::RecordCount() {
  return Target().Get("RecordCount").ToInt32();
}

int Recordset::FieldCount() {
  return Target().Get("Fields").ToObject()->Get("Count").ToInt32();
}

std::string Recordset::FieldName(int index) {
  return Target().Get("Fields").ToObject()->Get("Item", {Number(index)}).ToObject()->Get("Name").ToText();
}

// Collect is a hidden member of the classic recordset: a field's value in one call instead of three.
late::Value Recordset::Field(std::string_view name) {
  return Target().Get("Collect", {name});
}
late::Value Recordset::Field(int index) {
  return Target().Get("Collect", {Number(index)});
}
void Recordset::SetField(std::string_view name, const late::Value& value) {
  Target().Put("Collect", {name}, value);
}

void Recordset::AddNew() {
  Target().Call("AddNew");
}

void Recordset::AddNew(const late::ArrayPtr& names, std::vector<late::Value> values) {
  Target().Call("AddNew", {names, late::Array::List(std::move(values))});
}

void Recordset::Update() {
  Target().Call("Update");
}
void Recordset::UpdateBatch() {
  Target().Call("UpdateBatch");
}
void Recordset::CancelUpdate() {
  Target().Call("CancelUpdate");
}

late::ArrayPtr Recordset::GetRows(int rows) {
  return Target().Call("GetRows", {Number(rows)}).ToArray();
}

std::string Recordset::GetString(std::string_view columnDelimiter, std::string_view rowDelimiter, std::string_view nullText) {
  return Target().Call("GetString", {kClipString, kAllRows, columnDelimiter, rowDelimiter, nullText}).ToText();
}

void ForEachRow(Recordset& recordset, const std::function<void(const late::Array& block, std::size_t record)>& row) {
  while (!recordset.Eof()) {
    const late::ArrayPtr block = recordset.GetRows(kBlockRows);
    for (std::size_t record = 0; record < block->columns; ++record) row(*block, record);
  }
}

}  // namespace ado
