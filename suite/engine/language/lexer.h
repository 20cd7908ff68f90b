#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace suite {

enum class TokenKind : std::uint8_t { Word, Quoted, Text, Integer, Decimal, Float, Symbol, Variable, End };

/// Operators of more than one character; the others are their own character.
inline constexpr char kLessOrEqual = 'L', kGreaterOrEqual = 'G', kNotEqual = 'N';

/// A piece of the statement, by its place in the text. Small and flat: a statement is cut up on every execution.
struct Token {
  TokenKind kind = TokenKind::End;
  char symbol = 0;          ///< of a Symbol
  bool escaped = false;     ///< a Text or Quoted with a doubled quotation mark inside
  std::uint8_t scale = 0;   ///< digits after the point of a Decimal
  std::uint32_t begin = 0;  ///< without the quotation marks
  std::uint32_t end = 0;
  int literal = -1;  ///< position among the statement's literals
};

/// A statement cut into tokens, with its literals kept apart from the rest. `key` is the token sequence without the literals'
/// values: two statements with the same key differ in their literals alone. The vectors are reused from one statement to the
/// next.
struct TokenList {
  std::string_view text;
  std::vector<Token> tokens;            ///< ends with an End
  std::vector<std::uint32_t> literals;  ///< their tokens
  std::string key;

  std::string_view TextOf(const Token& token) const { return text.substr(token.begin, token.end - token.begin); }
  /// A Text's or Quoted's value with doubled quotation marks made single.
  std::string ValueOf(const Token& token) const;
};

/// Cuts a statement into tokens. Error 105 for an unclosed quotation mark, 102 for a character the dialect does not have.
void Lex(std::string_view text, TokenList& result);

bool EqualWord(std::string_view word, std::string_view lowerCase);

}  // namespace suite
