#pragma once

#include <string>

#include "base/late/value.h"
#include "suite/engine/language/ast.h"
#include "suite/engine/language/lexer.h"
#include "suite/engine/values/conversion.h"

namespace suite {

/// A literal lifted out of a statement, and the type that its place in the statement asks for.
struct Parameter {
  int literal = 0;
  Type type;
  int style = 0;
};

/// The type a literal has by itself. Text has no length limit.
Type LiteralType(const Token& token);
/// The literal's value as the parameter's type; the text belongs to the token list or to `buffer`.
Cell LiteralCell(const TokenList& tokenList, const Parameter& parameter, std::string& buffer, DateOrder order);
/// The same as text of a stored definition, which cannot have parameters. A date's month comes before its day.
std::string LiteralText(const TokenList& tokenList, const Parameter& parameter);
/// A procedure's argument (a literal, signed or not, or null); Missing when there is none.
late::Value ArgumentValue(const TokenList& tokenList, const ast::Expr* argument);

}  // namespace suite
