#pragma once

#include <memory>
#include <string>

#include "suite/engine/objects/recordset.h"

namespace suite {

/// The Fields collection of a recordset.
class Fields : public late::TableObject<Fields> {
 public:
  explicit Fields(std::shared_ptr<Recordset> recordset) : recordset_(std::move(recordset)) {}
  static const late::MemberTable<Fields>& Members();
  std::string TypeName() const override { return "Fields"; }

 private:
  std::shared_ptr<Recordset> recordset_;
};

/// One column of the current row.
class Field : public late::TableObject<Field> {
 public:
  Field(std::shared_ptr<Recordset> recordset, std::size_t column) : recordset_(std::move(recordset)), column_(column) {}
  static const late::MemberTable<Field>& Members();
  std::string TypeName() const override { return "Field"; }

 private:
  /// ADO's number of the column's type.
  std::int32_t TypeNumber();
  std::int32_t DefinedSize();

  std::shared_ptr<Recordset> recordset_;
  std::size_t column_;
};

}  // namespace suite
