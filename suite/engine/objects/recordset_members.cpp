#include "base/ado/constants.h"
#include "base/vb/error.h"
#include "suite/engine/objects/fields.h"
#include "suite/engine/objects/recordset.h"
#include "suite/engine/values/errors.h"

namespace suite {

/// The members by their classic names.
struct RecordsetMembers {
  using Self = Recordset;
  using Arguments = late::Arguments;
  using Value = late::Value;

  static std::shared_ptr<Recordset> Shared(Self& self) { return std::static_pointer_cast<Recordset>(self.shared_from_this()); }

  static Value Item(Self& self, Arguments& arguments) {
    return std::make_shared<Field>(Shared(self), self.ColumnAt(arguments[0]));
  }
  static void PutItem(Self& self, Arguments& arguments) { self.SetField(self.ColumnAt(arguments[0]), arguments[1].Deref()); }

  /// A setting that can only change while the recordset is closed.
  static late::Member<Recordset> Setting(std::string_view name, int Recordset::*setting) {
    return {name, [setting](Self& self, Arguments&) -> Value { return std::int32_t{self.*setting}; },
            [setting](Self& self, Arguments& arguments) {
              self.RequireClosed();
              self.*setting = arguments[0].ToInt32();
            }};
  }
  static late::Member<Recordset> Method(std::string_view name, void (Recordset::*method)(), int maxArguments = 0) {
    return {name,
            [method](Self& self, Arguments&) -> Value {
              (self.*method)();
              return {};
            },
            nullptr, 0, maxArguments};
  }
  static late::Member<Recordset> Moving(std::string_view name, void (Cursor::*move)()) {
    return {name,
            [move](Self& self, Arguments&) -> Value {
              self.FinishEdit();
              (self.Rows().*move)();
              return {};
            },
            nullptr};
  }
  static void PutPosition(Self& self, Arguments& arguments) { self.SetBookmark(arguments[0]); }
  static void PutConnection(Self& self, Arguments& arguments) { self.SetConnection(arguments[0]); }
};

const late::MemberTable<Recordset>& Recordset::Members() {
  using M = RecordsetMembers;
  using Self = Recordset;
  using Arguments = late::Arguments;
  using Value = late::Value;
  static const late::MemberTable<Recordset> table = {
      {"", M::Item, M::PutItem, 1, 1},
      {"Collect", [](Self& self, Arguments& arguments) { return self.FieldValue(self.ColumnAt(arguments[0])); }, M::PutItem, 1,
       1},
      late::Collection<Self>("Fields",
                             [](Self& self) {
                               self.Rows();
                               return std::make_shared<Fields>(M::Shared(self));
                             }),
      {"Open", [](Self& self, Arguments& arguments) -> Value { return self.Open(arguments), Value(); }, nullptr, 0, 5},
      M::Method("Close", &Recordset::Close),
      M::Method("Requery", &Recordset::Requery, 1),
      {"NextRecordset", [](Self& self, Arguments& arguments) { return self.NextRecordset(arguments); }, nullptr, 0, 1},
      {"EOF", [](Self& self, Arguments&) -> Value { return self.Eof(); }, nullptr},
      {"BOF", [](Self& self, Arguments&) -> Value { return self.Bof(); }, nullptr},
      M::Moving("MoveFirst", &Cursor::MoveFirst),
      M::Moving("MoveNext", &Cursor::MoveNext),
      M::Moving("MovePrevious", &Cursor::MovePrevious),
      M::Moving("MoveLast", &Cursor::MoveLast),
      {"Move", [](Self& self, Arguments& arguments) -> Value { return self.Move(arguments), Value(); }, nullptr, 1, 2},
      {"RecordCount", [](Self& self, Arguments&) -> Value { return self.RecordCount(); }, nullptr},
      {"AbsolutePosition", [](Self& self, Arguments&) -> Value { return self.AbsolutePosition(); }, M::PutPosition},
      {"Bookmark", [](Self& self, Arguments&) -> Value { return self.Bookmark(); }, M::PutPosition},
      {"AddNew", [](Self& self, Arguments& arguments) -> Value { return self.AddNew(arguments), Value(); }, nullptr, 0, 2},
      {"Update", [](Self& self, Arguments& arguments) -> Value { return self.Update(arguments), Value(); }, nullptr, 0, 2},
      M::Method("UpdateBatch", &Recordset::UpdateBatch, 1),
      M::Method("CancelUpdate", &Recordset::CancelUpdate),
      M::Method("CancelBatch", &Recordset::CancelBatch, 1),
      M::Method("Delete", &Recordset::Delete, 1),
      {"GetRows", [](Self& self, Arguments& arguments) { return self.GetRows(arguments); }, nullptr, 0, 3},
      {"GetString", [](Self& self, Arguments& arguments) { return self.GetString(arguments); }, nullptr, 0, 5},
      {"State",
       [](Self& self, Arguments&) -> Value { return std::int32_t{self.cursor_ || self.dead_ ? ado::kOpen : ado::kClosed}; },
       nullptr},
      {"EditMode", [](Self& self, Arguments&) -> Value { return static_cast<std::int32_t>(self.edit_); }, nullptr},
      {"Source", [](Self& self, Arguments&) -> Value { return self.source_; },
       [](Self& self, Arguments& arguments) {
         self.RequireClosed();
         self.source_ = arguments[0].ToText();
       }},
      {"ActiveConnection", [](Self& self, Arguments&) -> Value { return late::ObjectPtr(self.connection_); }, M::PutConnection},
      M::Setting("CursorType", &Recordset::cursorType_),
      M::Setting("LockType", &Recordset::lockType_),
      M::Setting("MaxRecords", &Recordset::maxRecords_),
      {"CursorLocation",
       [](Self& self, Arguments&) -> Value {
         return std::int32_t{self.cursorLocation_ ? self.cursorLocation_ : ado::kUseServer};
       },
       [](Self& self, Arguments& arguments) {
         self.RequireClosed();
         self.cursorLocation_ = arguments[0].ToInt32();
       }},
  };
  return table;
}

}  // namespace suite
