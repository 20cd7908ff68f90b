#pragma once

#include "suite/engine/store/session.h"

namespace suite {

/// Carries out create, alter and drop. Every definition's text is kept in the database (table sysobjects) in the server's
/// dialect; reading them back is how the catalog is made when a database is opened.
class Definitions {
 public:
  explicit Definitions(Session& session) : session_(session), catalog_(session.store_->catalog) {}

  /// Makes the engine's own tables in a new database.
  void Prepare();
  void Load();
  void Run(const TokenList& tokenList, ast::Statement& statement);

 private:
  /// `text` is the definition in the server's dialect, as it is kept.
  void CreateTable(const TokenList& tokenList, ast::CreateTable& table, std::string_view text);
  void CreateView(const TokenList& tokenList, const ast::CreateView& view, std::string_view text);
  void CreateIndex(const ast::CreateIndex& index);
  void CreateProcedure(const TokenList& tokenList, const ast::CreateProcedure& procedure, std::string_view text);
  void AddColumns(const TokenList& tokenList, const ast::AddColumns& add, const ast::Statement& statement);
  void Drop(const ast::Drop& drop);
  /// Adds what a kept definition says; one that defines nothing is passed over.
  void AddToCatalog(const TokenList& tokenList, ast::Statement& statement);
  void AddView(const TokenList& tokenList, const ast::CreateView& view);
  void AddProcedure(const TokenList& tokenList, const ast::CreateProcedure& procedure);
  /// The table's shape from its definition, keys made not null. Errors 2705 and 1911.
  static Relation ShapeOf(ast::CreateTable& table);
  void Change(const TokenList& tokenList, ast::Statement& statement);
  void Remember(const std::string& name, const char* type, std::string_view text, const Relation* relation);
  void RememberColumns(const Relation& relation);
  std::string TextOf(const std::string& name);
  void RefuseExisting(const std::string& name) const;
  void Execute(const std::string& sql);

  Session& session_;
  Catalog& catalog_;
};

}  // namespace suite
