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
  void Run(const Lexed& lexed, ast::Statement& statement);

 private:
  void CreateTable(const Lexed& lexed, ast::Statement& statement);
  void CreateView(const Lexed& lexed, ast::Statement& statement);
  void CreateIndex(const ast::Statement& statement);
  void CreateProcedure(const Lexed& lexed, ast::Statement& statement);
  void AddColumn(const Lexed& lexed, const ast::Statement& statement);
  void Drop(const ast::Statement& statement);
  void AddToCatalog(const Lexed& lexed, ast::Statement& statement);
  /// The table's shape from its definition, keys made not null. Errors 2705 and 1911.
  static Relation ShapeOf(ast::Statement& statement);
  void Change(const Lexed& lexed, ast::Statement& statement);
  void Remember(const std::string& name, const char* type, std::string_view text, const Relation* relation);
  void RememberColumns(const Relation& relation);
  std::string TextOf(const std::string& name);
  void RefuseExisting(const std::string& name) const;
  void Store(const std::string& sql);

  Session& session_;
  Catalog& catalog_;
};

}  // namespace suite
