#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/late/value.h"
#include "suite/engine/values/types.h"

namespace suite {

struct ColumnDef {
  std::string name;
  Type type;
  bool nullable = true;
  bool rowIdentifier = false;
};

/// A table or a view, as statements see it.
struct Relation {
  std::string name;
  bool view = false;
  std::vector<ColumnDef> columns;

  /// Without regard to case; -1 when there is none.
  int Find(std::string_view column) const;
};

struct ProcedureDef {
  struct Parameter {
    std::string name;
    Type type;
    bool hasDefault = false;
    late::Value defaultValue;
  };
  std::string name;
  std::vector<Parameter> parameters;
};

/// What the database holds, by name without regard to case. The version grows with every change, so that translated statements
/// know when they are stale.
class Catalog {
 public:
  Catalog();

  const Relation* FindRelation(std::string_view name) const;
  /// Error 208 when there is no such table or view.
  const Relation& RelationNamed(std::string_view name) const;
  const ProcedureDef* FindProcedure(std::string_view name) const;
  void Add(Relation relation);
  void Add(ProcedureDef procedure);
  void RemoveRelation(std::string_view name);
  void RemoveProcedure(std::string_view name);
  /// Back to the system tables alone.
  void Clear();
  std::int64_t Version() const { return version_; }

 private:
  std::map<std::string, Relation> relations_;
  std::map<std::string, ProcedureDef> procedures_;
  std::int64_t version_ = 0;
};

}  // namespace suite
