#include "suite/engine/translation/catalog.h"

#include "base/vb/text.h"
#include "suite/engine/values/errors.h"

namespace suite {

int Relation::Find(std::string_view column) const {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (vb::EqualNoCase(columns[i].name, column)) return static_cast<int>(i);
  }
  return -1;
}

Catalog::Catalog() {
  Clear();
}

const Relation* Catalog::FindRelation(std::string_view name) const {
  const auto found = relations_.find(vb::LCase(name));
  return found == relations_.end() ? nullptr : &found->second;
}

const Relation& Catalog::RelationNamed(std::string_view name) const {
  const Relation* relation = FindRelation(name);
  if (!relation) RaiseServer(kInvalidObject, "Invalid object name '" + std::string(name) + "'.");
  return *relation;
}

const ProcedureDef* Catalog::FindProcedure(std::string_view name) const {
  const auto found = procedures_.find(vb::LCase(name));
  return found == procedures_.end() ? nullptr : &found->second;
}

void Catalog::Add(Relation relation) {
  ++version_;
  std::string key = vb::LCase(relation.name);
  relations_.insert_or_assign(std::move(key), std::move(relation));
}

void Catalog::Add(ProcedureDef procedure) {
  ++version_;
  std::string key = vb::LCase(procedure.name);
  procedures_.insert_or_assign(std::move(key), std::move(procedure));
}

void Catalog::RemoveRelation(std::string_view name) {
  ++version_;
  relations_.erase(vb::LCase(name));
}

void Catalog::RemoveProcedure(std::string_view name) {
  ++version_;
  procedures_.erase(vb::LCase(name));
}

void Catalog::Clear() {
  relations_.clear();
  procedures_.clear();
  const auto column = [](const char* name, Type type) { return ColumnDef{name, type, true, false}; };
  Add(Relation{"syscolumns",
               false,
               {column("id", Type::Of(Kind::Int)), column("name", Type::TextOf(128)), column("colid", Type::Of(Kind::SmallInt)),
                column("colstat", Type::Of(Kind::SmallInt)), column("length", Type::Of(Kind::SmallInt)),
                column("isnullable", Type::Of(Kind::Int))}});
  Add(Relation{"sysobjects",
               false,
               {column("id", Type::Of(Kind::Int)), column("name", Type::TextOf(128)), column("xtype", Type::TextOf(2))}});
}

}  // namespace suite
