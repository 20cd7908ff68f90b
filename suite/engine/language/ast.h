#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "suite/engine/values/types.h"

/// A statement of the dialect as the parser understood it, before names and types are looked up.
namespace suite::ast {

struct Query;
struct Expr;
using ExprPtr = std::unique_ptr<Expr>;
using QueryPtr = std::unique_ptr<Query>;

enum class UnaryOperator : std::uint8_t { Plus, Minus, BitNot };
enum class BinaryOperator : std::uint8_t { Add, Subtract, Multiply, Divide, Remainder, BitAnd, BitOr, BitXor };
enum class Comparison : std::uint8_t { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

// Values.

struct Literal {
  std::uint32_t token;
};
struct Null {};
struct ColumnName {
  std::string qualifier;  ///< empty when there is none
  std::string name;
};
struct Unary {
  UnaryOperator op;
  ExprPtr operand;
};
struct Binary {
  BinaryOperator op;
  ExprPtr left, right;
};
struct Case {
  struct Branch {
    ExprPtr when;  ///< a value to compare with the operand, or a condition
    ExprPtr then;
  };
  ExprPtr operand;  ///< may be missing
  std::vector<Branch> branches;
  ExprPtr otherwise;  ///< may be missing
};
struct Function {
  std::string name;  ///< in lower case
  bool distinct = false;
  std::vector<ExprPtr> arguments;
};
struct CountAll {    ///< count(*)
  bool big = false;  ///< count_big(*)
};
/// dateadd and its kind: the first argument names a part of a date.
struct DateFunction {
  std::string name;  ///< in lower case
  std::string part;  ///< in lower case
  std::vector<ExprPtr> arguments;
};
struct Cast {
  Type type;
  int style = 0;
  ExprPtr value;
};
struct Scalar {
  QueryPtr query;
};

// Conditions.

struct Compare {
  Comparison op;
  ExprPtr left, right;
};
struct And {
  std::vector<ExprPtr> terms;
};
struct Or {
  std::vector<ExprPtr> terms;
};
struct Not {
  ExprPtr term;
};
struct Like {
  bool negated = false;
  ExprPtr text, pattern;
  ExprPtr escape;  ///< may be missing
};
struct In {
  bool negated = false;
  ExprPtr value;
  std::vector<ExprPtr> candidates;
};
struct InQuery {
  bool negated = false;
  ExprPtr value;
  QueryPtr query;
};
struct Between {
  bool negated = false;
  ExprPtr value, low, high;
};
struct IsNull {
  bool negated = false;
  ExprPtr value;
};
struct Exists {
  QueryPtr query;
};

using Node = std::variant<Literal, Null, ColumnName, Unary, Binary, Case, Function, CountAll, DateFunction, Cast, Scalar, Compare,
                          And, Or, Not, Like, In, InQuery, Between, IsNull, Exists>;

template <class T, class... Others>
inline constexpr bool kIsOneOf = (std::is_same_v<T, Others> || ...);

struct Expr {
  std::uint32_t token = 0;  ///< where messages about it point
  Node node;

  /// The node when it is of this kind; null otherwise.
  template <class Kind>
  const Kind* If() const {
    return std::get_if<Kind>(&node);
  }
  /// A condition, where the others are values.
  bool IsPredicate() const {
    return std::visit(
        [](const auto& each) {
          return kIsOneOf<std::decay_t<decltype(each)>, Compare, And, Or, Not, Like, In, InQuery, Between, IsNull, Exists>;
        },
        node);
  }
};

/// Calls the function that fits the node.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

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
  ExprPtr defaultValue;
};

struct Key {
  bool primary = false;
  std::vector<std::string> columns;
};

struct ProcedureParameter {
  std::string name;
  Type type;
  bool hasDefault = false;
  ExprPtr defaultValue;
};

struct Statement;
using StatementPtr = std::unique_ptr<Statement>;

// Statements on rows.

struct QueryStatement {
  QueryPtr query;
};
struct Insert {
  std::string table;
  std::vector<std::string> columns;        ///< none: all of the table
  std::vector<std::vector<ExprPtr>> rows;  ///< or
  QueryPtr query;
};
struct Update {
  struct Assignment {
    std::string column;
    ExprPtr value;
  };
  std::string table;
  std::vector<Assignment> assignments;
  ExprPtr where;  ///< may be missing
};
struct Delete {
  std::string table;
  ExprPtr where;  ///< may be missing
};
struct Execute {
  std::string procedure;
  std::vector<ExprPtr> arguments;  ///< literals, signed or not, and null
};

// Definitions.

struct CreateTable {
  std::string name;
  std::vector<ColumnDefinition> columns;
  std::vector<Key> keys;
};
struct CreateView {
  std::string name;
  std::vector<std::string> columns;  ///< none: the query's own names
  QueryPtr query;
};
struct CreateIndex {
  bool unique = false;
  std::string name;
  std::string table;
  std::vector<std::string> columns;
};
struct CreateProcedure {
  std::string name;
  std::vector<ProcedureParameter> parameters;
};
struct AddColumns {
  std::string table;
  std::vector<ColumnDefinition> columns;
};
struct Drop {
  std::string objectType;  ///< table, view, procedure, index
  std::string name;
  std::string table;  ///< of an index
};

// Control.

struct Begin {};
struct Commit {};
struct Rollback {};
struct If {
  ExprPtr condition;
  StatementPtr then;
  StatementPtr otherwise;  ///< may be missing
};
struct Block {
  std::vector<StatementPtr> statements;
};
struct SetNoCount {
  bool on;
};
struct SetDateOrder {
  DateOrder order = DateOrder::MonthDayYear;
};
struct OtherSetting {};  ///< one that has no meaning here

using StatementNode =
    std::variant<QueryStatement, Insert, Update, Delete, Execute, CreateTable, CreateView, CreateIndex, CreateProcedure,
                 AddColumns, Drop, Begin, Commit, Rollback, If, Block, SetNoCount, SetDateOrder, OtherSetting>;

struct Statement {
  std::uint32_t token = 0;
  std::uint32_t end = 0;  ///< the token after it
  StatementNode node;
};

}  // namespace suite::ast
