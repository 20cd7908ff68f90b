#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "suite/engine/language/ast.h"
#include "suite/engine/language/lexer.h"

namespace suite {

/// Reads the dialect. What it does not know is error 102 ("Incorrect syntax near '...'") or 156 (near a keyword): nothing unknown
/// passes. Numbers that shape the statement itself (lengths, styles, row counts, ordinals) are noted as structural: a statement
/// with another such number is another statement.
class Parser {
 public:
  explicit Parser(const TokenList& tokenList, std::size_t position = 0) : tokenList_(tokenList), position_(position) {}

  bool AtEnd() const { return Peek().kind == TokenKind::End; }
  std::size_t Position() const { return position_; }
  /// Skips the semicolons between statements.
  void SkipSeparators();
  /// One statement. A procedure may be named without exec only as the batch's first.
  ast::StatementPtr Statement(bool first);

  const std::vector<int>& Structural() const { return structural_; }

 private:
  /// One level of nesting, as long as it lives. Error 191 beyond the limit: the stack has one, too.
  class Nesting {
   public:
    explicit Nesting(Parser& parser);
    ~Nesting() { --parser_.depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    Parser& parser_;
  };

  // Tokens (parser.cpp)
  const Token& Peek(std::size_t ahead = 0) const;
  bool PeekWord(std::string_view word, std::size_t ahead = 0) const;
  bool PeekSymbol(char symbol, std::size_t ahead = 0) const;
  bool TakeWord(std::string_view word);
  bool TakeSymbol(char symbol);
  void ExpectWord(std::string_view word);
  void ExpectSymbol(char symbol);
  [[noreturn]] void Unexpected() const;
  [[noreturn]] void UnexpectedAt(std::uint32_t token) const;
  std::string Name();
  /// A name with an optional owner ("dbo.") before it, which is dropped.
  std::string ObjectName();
  bool NameFollows() const;
  int StructuralNumber(int max);
  void MarkStructural(const Token& token);
  /// A type; character types without a length get the one given.
  Type TypeNamed(int lengthWhenNone);
  std::vector<std::string> NameList();
  std::uint32_t Here() const { return static_cast<std::uint32_t>(position_); }
  static ast::ExprPtr Node(std::uint32_t token, ast::Node node) {
    return std::make_unique<ast::Expr>(ast::Expr{token, std::move(node)});
  }

  // Expressions (parser_expression.cpp)
  ast::ExprPtr Value();
  ast::ExprPtr Predicate();
  void RequirePredicate(const ast::Expr& expr) const;
  template <class Chain>
  ast::ExprPtr Joined(std::string_view word, ast::ExprPtr (Parser::*term)());
  template <std::size_t N>
  ast::ExprPtr LeftToRight(const std::array<std::pair<char, ast::BinaryOperator>, N>& operators,
                           ast::ExprPtr (Parser::*operand)());
  ast::ExprPtr Or();
  ast::ExprPtr And();
  ast::ExprPtr NotTerm();
  ast::ExprPtr Comparison();
  ast::ExprPtr ComparisonTail(ast::ExprPtr left);
  ast::ExprPtr InTail(std::uint32_t token, bool negated, ast::ExprPtr value);
  ast::ExprPtr Sum();
  ast::ExprPtr Product();
  ast::ExprPtr Sign();
  ast::ExprPtr Primary();
  ast::ExprPtr WordPrimary();
  std::vector<ast::ExprPtr> Arguments();
  ast::ExprPtr Function(std::string name);
  ast::ExprPtr DateFunction(std::string name);
  ast::ExprPtr CaseExpression();
  ast::ExprPtr CastExpression(bool convert);
  ast::ExprPtr ColumnReference();

  // Selects (parser_select.cpp)
  std::unique_ptr<ast::Query> Query();
  ast::Select Select();
  ast::SelectItem Item();
  std::string OptionalAlias();
  std::unique_ptr<ast::Source> JoinTree();
  std::unique_ptr<ast::Source> SourceItem();
  void Hints();
  std::vector<ast::OrderItem> OrderBy();

  // Statements (parser_statement.cpp, parser_definition.cpp)
  ast::StatementNode StatementBody(bool first);
  ast::Insert Insert();
  ast::Update Update();
  ast::Delete Delete();
  ast::Execute ExecuteProcedure();
  ast::StatementNode Begin();
  void TransactionWord();
  ast::If If();
  ast::StatementNode Set();
  ast::StatementNode Create();
  ast::CreateTable CreateTable();
  ast::CreateView CreateView();
  ast::CreateIndex CreateIndex(bool unique);
  ast::CreateProcedure CreateProcedure();
  ast::AddColumns Alter();
  ast::Drop Drop();
  ast::ColumnDefinition Column();
  bool ColumnOption(ast::ColumnDefinition& column);
  bool TableKey(ast::CreateTable& table);
  void SkipClustering();

  const TokenList& tokenList_;
  std::size_t position_;
  std::vector<int> structural_;
  int depth_ = 0;
};

bool IsReserved(std::string_view word);

}  // namespace suite
