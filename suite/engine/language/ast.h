#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "suite/engine/values/types.h"

/// A statement of the dialect as the parser understood it, before names and types are looked up.
namespace suite::ast {

struct Query;

enum class ExprKind : std::uint8_t {
  Literal,  // `token`
  Null,
  Column,   // `qualifier`, `name`
  Unary,    // `op` '-' '+' '~'
  Binary,   // `op` + - * / % & | ^
  Compare,  // `op` = < > L G N
  And,
  Or,
  Not,
  Like,     // text, pattern, [escape]
  In,       // value, candidates...
  InQuery,  // value, query
  Between,  // value, low, high
  IsNull,
  Exists,
  Case,      // [operand when `flag`], (when, then)..., [else when `hasElse`]
  Function,  // `name`, arguments
  Cast,      // value, [style]; `type`
  Scalar,    // query
  Star,      // the argument of count(*)
};

struct Expr {
  ExprKind kind = ExprKind::Null;
  char op = 0;
  bool negated = false;  ///< not like, not in, not between, is not null
  bool flag = false;     ///< distinct aggregate; a case with operand
  bool hasElse = false;
  std::uint32_t token = 0;  ///< where it begins: literals and messages
  std::string qualifier;
  std::string name;  ///< functions in lower case
  Type type;
  std::vector<std::unique_ptr<Expr>> children;
  std::unique_ptr<Query> query;

  bool IsPredicate() const { return (kind >= ExprKind::Compare && kind <= ExprKind::Exists); }
};
using ExprPtr = std::unique_ptr<Expr>;

struct SelectItem {
  ExprPtr value;          ///< none for a star
  std::string qualifier;  ///< of a star
  std::string alias;
};

struct OrderItem {
  ExprPtr value;
  bool descending = false;
};

enum class JoinKind : std::uint8_t { Inner, Left, Right, Full, Cross };

struct Source {
  std::string name;  ///< of a table or view
  std::string alias;
  std::uint32_t token = 0;
  std::unique_ptr<Query> query;         ///< of a derived table
  std::unique_ptr<Source> left, right;  ///< of a join
  JoinKind join = JoinKind::Inner;
  ExprPtr on;
};

struct Select {
  bool distinct = false;
  ExprPtr top;
  std::vector<SelectItem> items;
  std::vector<std::unique_ptr<Source>> from;
  ExprPtr where;
  std::vector<ExprPtr> group;
  ExprPtr having;
};

/// Selects joined by union, ordered as a whole.
struct Query {
  std::vector<Select> parts;
  std::vector<bool> all;  ///< between part n and n + 1
  std::vector<OrderItem> order;
  std::uint32_t token = 0;
};

struct ColumnDefinition {
  std::string name;
  Type type;
  bool nullable = true;
  bool primary = false;
  bool unique = false;
  bool rowIdentifier = false;
  bool identity = false;
  ExprPtr initial;
};

struct Key {
  bool primary = false;
  std::vector<std::string> columns;
};

struct ProcedureParameter {
  std::string name;
  Type type;
  bool hasDefault = false;
  ExprPtr initial;
};

enum class StatementKind : std::uint8_t {
  Query,
  Insert,
  Update,
  Delete,
  CreateTable,
  CreateView,
  CreateIndex,
  CreateProcedure,
  AddColumn,
  Drop,
  Execute,
  Begin,
  Commit,
  Rollback,
  If,
  Block,
  CountRows,
  CountNoRows,
  Nothing,  // a setting that has no meaning here
};

struct Statement {
  StatementKind kind = StatementKind::Nothing;
  std::uint32_t token = 0;
  std::uint32_t end = 0;   ///< the token behind it
  std::string name;        ///< table, view, index, procedure
  std::string target;      ///< table of an index
  std::string objectType;  ///< of a drop
  bool unique = false;
  std::vector<std::string> columns;  ///< of an insert, a view, an index, an update
  std::vector<std::vector<ExprPtr>>
      rows;  ///< of an insert's values; one row of new values for an update; arguments of an execute
  std::unique_ptr<Query> query;
  ExprPtr where;  ///< also the condition of an if
  std::vector<ColumnDefinition> definitions;
  std::vector<Key> keys;
  std::vector<ProcedureParameter> parameters;
  std::vector<std::unique_ptr<Statement>> inner;  ///< of a block; then and else of an if
};
using StatementPtr = std::unique_ptr<Statement>;

}  // namespace suite::ast
