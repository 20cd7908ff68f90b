#include "suite/engine/objects/fields.h"

#include "base/vb/text.h"

namespace suite {

const late::MemberTable<Fields>& Fields::Members() {
  using Arguments = late::Arguments;
  const auto item = [](Fields& self, Arguments& arguments) -> late::Value {
    return std::make_shared<Field>(self.recordset_, self.recordset_->ColumnAt(arguments[0]));
  };
  const auto put = [](Fields& self, Arguments& arguments) {
    self.recordset_->SetField(self.recordset_->ColumnAt(arguments[0]), arguments[1].Deref());
  };
  static const late::MemberTable<Fields> table = {
      {"", item, put, 1, 1},
      {"Item", item, put, 1, 1},
      {"Count", [](Fields& self, Arguments&) -> late::Value { return static_cast<std::int32_t>(self.recordset_->FieldCount()); },
       nullptr},
  };
  return table;
}

std::int32_t Field::TypeNumber() {
  const Type& type = recordset_->Column(column_).type;
  switch (type.kind) {
    case Kind::Bit:
      return 11;
    case Kind::TinyInt:
      return 17;
    case Kind::SmallInt:
      return 2;
    case Kind::Int:
      return 3;
    case Kind::BigInt:
      return 20;
    case Kind::Decimal:
      return 131;
    case Kind::Float:
      return 5;
    case Kind::DateTime:
      return 135;
    case Kind::Guid:
      return 72;
    default:
      return type.fixed ? 129 : 200;
  }
}

std::int32_t Field::DefinedSize() {
  const Type& type = recordset_->Column(column_).type;
  switch (type.kind) {
    case Kind::Bit:
    case Kind::TinyInt:
      return type.kind == Kind::Bit ? 2 : 1;
    case Kind::SmallInt:
      return 2;
    case Kind::Int:
      return 4;
    case Kind::Decimal:
      return 19;
    case Kind::DateTime:
      return 16;
    case Kind::Text:
      return type.length;
    default:
      return 8;
  }
}

const late::MemberTable<Field>& Field::Members() {
  using Arguments = late::Arguments;
  const auto value = [](Field& self, Arguments&) { return self.recordset_->FieldValue(self.column_); };
  const auto put = [](Field& self, Arguments& arguments) { self.recordset_->SetField(self.column_, arguments[0].Deref()); };
  static const late::MemberTable<Field> table = {
      {"", value, put},
      {"Value", value, put},
      {"Name", [](Field& self, Arguments&) -> late::Value { return self.recordset_->Column(self.column_).name; }, nullptr},
      {"Type", [](Field& self, Arguments&) -> late::Value { return self.TypeNumber(); }, nullptr},
      {"DefinedSize", [](Field& self, Arguments&) -> late::Value { return self.DefinedSize(); }, nullptr},
      {"ActualSize",
       [](Field& self, Arguments&) -> late::Value {
         const late::Value current = self.recordset_->FieldValue(self.column_);
         if (current.IsNull()) return std::int32_t{0};
         const auto* text = current.If<std::string>();
         return text ? static_cast<std::int32_t>(vb::Len(*text)) : self.DefinedSize();
       },
       nullptr},
      {"Precision",
       [](Field& self, Arguments&) -> late::Value { return std::int32_t{self.recordset_->Column(self.column_).type.precision}; },
       nullptr},
      {"NumericScale",
       [](Field& self, Arguments&) -> late::Value { return std::int32_t{self.recordset_->Column(self.column_).type.scale}; },
       nullptr},
  };
  return table;
}

}  // namespace suite
