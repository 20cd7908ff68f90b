#pragma once

#include <string>
#include <vector>

#include "suite/engine/language/ast.h"
#include "suite/engine/language/lexer.h"
#include "suite/engine/language/literal.h"
#include "suite/engine/translation/catalog.h"

namespace suite {

struct ResultColumn {
  std::string name;
  Type type;
  bool nullable = true;
  int tableColumn = -1;  ///< position in the base table when it is one of its columns unchanged
};

/// A statement as SQLite SQL.
struct Translation {
  std::string sql;
  std::vector<Parameter> parameters;  ///< for ?1, ?2, ...
  std::vector<ResultColumn> columns;  ///< of a query
  std::string table;                  ///< the one table that rows of this query belong to; empty when it cannot be updated
  bool rowIds = false;                ///< the last column of the store's statement is the row's own id, beyond `columns`
};

/// Looks up names and types and writes a statement for the store. One instance translates one statement.
/// With `inlineLiterals` the literals are written into the text (stored definitions cannot have parameters).
class Translator {
 public:
  Translator(const Catalog& catalog, const TokenList& tokenList, std::vector<int>& structural, bool inlineLiterals = false)
      : catalog_(catalog), tokenList_(tokenList), structural_(structural), inline_(inlineLiterals) {}

  /// A select; with `rowIds` and a single base table the row's own id is selected as well.
  Translation Query(const ast::Query& query, bool rowIds);
  Translation Insert(const ast::Insert& statement);
  Translation Update(const ast::Update& statement);
  Translation Delete(const ast::Delete& statement);
  /// A query of one row and column: 1 when the condition holds, else 0.
  Translation Condition(const ast::Expr& predicate);
  /// The columns with types, default values and keys, as the store's "create table".
  Translation Table(const std::string& name, const std::vector<ast::ColumnDefinition>& columns,
                    const std::vector<ast::Key>& keys);
  Translation View(const ast::CreateView& view);

 private:
  /// A value expression as SQLite SQL.
  struct SqlValue {
    std::string sql;
    Type type;
    int parameter = -1;     ///< a bare literal: its slot, whose type may still be settled
    bool collated = false;  ///< compares as the server compares
    bool chain = false;     ///< sums or joined texts in one pair of brackets, which a further one may enter
    bool nullable = true;
    int tableColumn = -1;
  };
  struct SourceInfo {
    std::string alias;
    bool table = false;  ///< a base table
    std::string name;
    std::vector<ColumnDef> columns;
  };
  struct Scope {
    Scope* outer = nullptr;
    std::vector<SourceInfo> sources;
    bool grouped = false;
    bool inAggregate = false;
    const std::vector<ast::ExprPtr>* group = nullptr;
  };
  struct Place {
    Scope* scope = nullptr;
    std::size_t source = 0;
    std::size_t column = 0;
  };
  /// One select of a union, before its columns are brought to the common types.
  struct Part {
    std::vector<SqlValue> items;
    std::vector<ResultColumn> columns;
    std::string tail;  ///< from ... having
    std::string limit;
    std::string rowId;
    std::string table;
    bool distinct = false;
  };

  // Values (translator_expression.cpp)
  SqlValue Value(const ast::Expr& expr, Scope& scope);
  SqlValue ValueUngrouped(const ast::Expr& expr, Scope& scope);
  SqlValue Literal(const ast::Literal& literal);
  SqlValue Column(const ast::ColumnName& name, Scope& scope);
  SqlValue Unary(const ast::Expr& expr, const ast::Unary& sign, Scope& scope);
  SqlValue Case(const ast::Case& choice, Scope& scope);
  std::string CaseCondition(const ast::Case& choice, const ast::Expr& when, Scope& scope);
  SqlValue Scalar(const ast::Scalar& subquery, Scope& scope);
  Place Resolve(const ast::ColumnName& name, Scope& scope) const;
  /// Whether two expressions are the same text for a group by. Those with a query never are.
  bool Same(const ast::Expr& a, const ast::Expr& b, Scope& scope);
  bool SameLiteral(const ast::Literal& a, const ast::Literal& b);

  // Operators and conversions (translator_operator.cpp)
  SqlValue Binary(const ast::Expr& expr, const ast::Binary& binary, Scope& scope);
  SqlValue Arithmetic(ast::BinaryOperator op, SqlValue left, SqlValue right);
  SqlValue Bitwise(ast::BinaryOperator op, const SqlValue& left, const SqlValue& right);
  SqlValue DateArithmetic(ast::BinaryOperator op, const SqlValue& left, const SqlValue& right);
  SqlValue Divide(ast::BinaryOperator op, SqlValue left, SqlValue right);
  SqlValue Coerce(SqlValue value, const Type& target, int style = 0);
  SqlValue CoerceAssigned(SqlValue value, const Type& target);
  SqlValue CastTo(SqlValue value, const Type& target, int style);
  static std::string Collated(const SqlValue& value);

  // Conditions (translator_predicate.cpp)
  std::string Predicate(const ast::Expr& expr, Scope& scope);
  std::string Chain(const std::vector<ast::ExprPtr>& terms, const char* word, Scope& scope);
  std::string Compare(const ast::Compare& comparison, Scope& scope);
  std::string Like(const ast::Like& like, Scope& scope);
  std::string In(const ast::In& in, Scope& scope);
  std::string InQuery(const ast::InQuery& in, Scope& scope);
  std::string Between(const ast::Between& between, Scope& scope);

  // Functions (translator_function.cpp)
  struct FunctionEntry;
  struct FunctionUse {
    const ast::Expr& expr;
    const ast::Function& function;
    const FunctionEntry& entry;
  };
  static const FunctionEntry* FindFunction(std::string_view name);
  static bool IsAggregate(const ast::Expr& expr);
  SqlValue Function(const ast::Expr& expr, const ast::Function& function, Scope& scope);
  SqlValue StoreFunction(const FunctionUse& use, Scope& scope);
  SqlValue CountAll(const ast::CountAll& count, Scope& scope);
  static void RequireAggregateAllowed(const std::string& name, const Scope& scope);
  SqlValue Aggregate(const FunctionUse& use, Scope& scope);
  SqlValue Average(const std::string& argument, const Type& type);
  SqlValue IsNull(const FunctionUse& use, Scope& scope);
  SqlValue Coalesce(const FunctionUse& use, Scope& scope);
  SqlValue NullIf(const FunctionUse& use, Scope& scope);
  SqlValue IsNumeric(const FunctionUse& use, Scope& scope);
  SqlValue Rounding(const FunctionUse& use, Scope& scope);
  SqlValue DateFunction(const ast::DateFunction& function, Scope& scope);

  // Selects (translator_select.cpp)
  std::string QueryText(const ast::Query& query, Scope* outer, std::vector<ResultColumn>& columns,
                        const std::vector<Type>* targets = nullptr, Translation* updatable = nullptr);
  Part SelectPart(const ast::Select& select, Scope* outer, const ast::Query* orderedBy, std::string& order);
  void Items(const ast::Select& select, Scope& scope, Part& part);
  void Star(const std::string& qualifier, Scope& scope, Part& part);
  std::string Tail(const ast::Select& select, Scope& scope);
  void Sources(const ast::Source& source, Scope& scope);
  std::string SourceText(const ast::Source& source, Scope& scope);
  std::string OrderText(const ast::Query& query, Scope* scope, const std::vector<ResultColumn>& columns);
  std::string PartText(Part& part, const std::vector<Type>& types, bool assigned);
  static bool HasAggregate(const ast::Expr& expr);

  [[noreturn]] void Unknown(const ast::Expr& expr, const std::string& what) const;
  std::string Near(std::uint32_t token) const;
  Translation Finish(std::string sql);

  const Catalog& catalog_;
  const TokenList& tokenList_;
  std::vector<int>& structural_;
  bool inline_;
  std::vector<Parameter> parameters_;
  std::vector<std::pair<std::uint32_t, std::string>> derivedTexts_;
};

/// A name as the store quotes it.
std::string Quoted(std::string_view name);

}  // namespace suite
