#include "suite/engine/language/lexer.h"

#include <algorithm>
#include <array>

#include "suite/engine/values/errors.h"

namespace suite {
namespace {

enum CharacterClass : unsigned char { kOther, kBlank, kLetter, kDigit, kSymbol };

constexpr std::array<unsigned char, 256> kClasses = [] {
  std::array<unsigned char, 256> classes{};
  for (const char c : {' ', '\t', '\r', '\n', '\f', '\v'}) classes[static_cast<unsigned char>(c)] = kBlank;
  for (int c = 'a'; c <= 'z'; ++c) classes[static_cast<std::size_t>(c)] = kLetter;
  for (int c = 'A'; c <= 'Z'; ++c) classes[static_cast<std::size_t>(c)] = kLetter;
  for (std::size_t c = 128; c < 256; ++c) classes[c] = kLetter;
  for (const char c : {'_', '#', '@'}) classes[static_cast<unsigned char>(c)] = kLetter;
  for (int c = '0'; c <= '9'; ++c) classes[static_cast<std::size_t>(c)] = kDigit;
  for (const char c : std::string_view("()+-*/%,.;=<>!&|^~")) classes[static_cast<unsigned char>(c)] = kSymbol;
  return classes;
}();

unsigned char ClassOf(char c) {
  return kClasses[static_cast<unsigned char>(c)];
}

class Scanner {
 public:
  Scanner(std::string_view text, TokenList& result) : text_(text), result_(result) {
    result.text = text;
    result.tokens.clear();
    result.literals.clear();
    result.key.resize(2 * text.size() + 2);  // every token has a character, and adds its text and at most two more
    key_ = result.key.data();
  }

  void Run() {
    while (SkipBlanks()) Next();
    Token end;
    end.begin = end.end = static_cast<std::uint32_t>(text_.size());
    result_.tokens.push_back(end);
    result_.key.resize(static_cast<std::size_t>(key_ - result_.key.data()));
  }

 private:
  char At(std::size_t offset) const { return offset < text_.size() ? text_[offset] : '\0'; }

  /// Moves over blanks and comments; false at the end.
  bool SkipBlanks() {
    for (;;) {
      std::size_t next = position_;
      while (next < text_.size() && ClassOf(text_[next]) == kBlank) ++next;
      position_ = next;
      if (At(position_) == '-' && At(position_ + 1) == '-') {
        position_ = std::min(text_.find('\n', position_), text_.size());
      } else if (At(position_) == '/' && At(position_ + 1) == '*') {
        const std::size_t close = text_.find("*/", position_ + 2);
        if (close == std::string_view::npos) RaiseServer(kUnclosedComment, "Missing end comment mark '*/'.");
        position_ = close + 2;
      } else {
        return position_ < text_.size();
      }
    }
  }

  void Next() {
    const char c = text_[position_];
    switch (ClassOf(c)) {
      case kLetter:
        if ((c == 'N' || c == 'n') && At(position_ + 1) == '\'') {
          ++position_;
          return Quotation('\'', TokenKind::Text);
        }
        return Word();
      case kDigit:
        return Number();
      case kSymbol:
        if (c == '.' && ClassOf(At(position_ + 1)) == kDigit) return Number();
        return Symbol();
      default:
        if (c == '\'') return Quotation('\'', TokenKind::Text);
        if (c == '"') return Quotation('"', TokenKind::Quoted);
        if (c == '[') return Quotation(']', TokenKind::Quoted);
        RaiseServer(kSyntaxNear, "Incorrect syntax near '" + std::string(text_.substr(position_, 20)) + "'.");
    }
  }

  void Word() {
    Token token;
    token.kind = text_[position_] == '@' ? TokenKind::Variable : TokenKind::Word;
    token.begin = static_cast<std::uint32_t>(position_);
    std::size_t end = position_ + 1;
    while (end < text_.size()) {
      const unsigned char kind = ClassOf(text_[end]);
      if (kind != kLetter && kind != kDigit && text_[end] != '$') break;
      ++end;
    }
    position_ = end;
    Push(token);
  }

  void Number() {
    Token token;
    token.kind = TokenKind::Integer;
    token.begin = static_cast<std::uint32_t>(position_);
    while (ClassOf(At(position_)) == kDigit) ++position_;
    if (At(position_) == '.') {
      token.kind = TokenKind::Decimal;
      const std::size_t point = position_++;
      while (ClassOf(At(position_)) == kDigit) ++position_;
      token.scale = static_cast<std::uint8_t>(std::min<std::size_t>(position_ - point - 1, 255));
    }
    std::size_t exponent = position_;
    if (At(exponent) == 'e' || At(exponent) == 'E') {
      ++exponent;
      if (At(exponent) == '+' || At(exponent) == '-') ++exponent;
      if (ClassOf(At(exponent)) == kDigit) {
        token.kind = TokenKind::Float;
        while (ClassOf(At(exponent)) == kDigit) ++exponent;
        position_ = exponent;
      }
    }
    PushLiteral(token);
  }

  void Quotation(char close, TokenKind kind) {
    Token token;
    token.kind = kind;
    token.begin = static_cast<std::uint32_t>(++position_);
    for (;;) {
      position_ = text_.find(close, position_);
      if (position_ == std::string_view::npos) {
        RaiseServer(kUnclosedQuotationMark,
                    "Unclosed quotation mark before the character string '" + std::string(text_.substr(token.begin)) + "'.");
      }
      if (At(position_ + 1) != close) break;
      token.escaped = true;
      position_ += 2;
    }
    token.end = static_cast<std::uint32_t>(position_++);
    if (kind == TokenKind::Text) {
      PushLiteral(token, token.end);
    } else {
      Push(token, token.end);
    }
  }

  /// The server allows blanks inside its two-character comparisons ("< =").
  char Second() const {
    std::size_t offset = position_ + 1;
    while (ClassOf(At(offset)) == kBlank) ++offset;
    return At(offset);
  }

  void Symbol() {
    Token token;
    token.kind = TokenKind::Symbol;
    token.begin = static_cast<std::uint32_t>(position_);
    token.symbol = text_[position_];
    if (token.symbol == '<' || token.symbol == '>' || token.symbol == '!') {
      const char second = Second();
      const char combined = Combined(token.symbol, second);
      if (combined) {
        token.symbol = combined;
        position_ = text_.find(second, position_ + 1);
      } else if (token.symbol == '!') {
        RaiseServer(kSyntaxNear, "Incorrect syntax near '!'.");
      }
    }
    ++position_;
    Push(token);
  }

  static char Combined(char first, char second) {
    if (first == '<') return second == '=' ? kLessOrEqual : second == '>' ? kNotEqual : '\0';
    if (first == '>') return second == '=' ? kGreaterOrEqual : '\0';
    return second == '=' ? kNotEqual : second == '<' ? kGreaterOrEqual : second == '>' ? kLessOrEqual : '\0';
  }

  void Push(Token& token, std::uint32_t end = 0) {
    token.end = end ? end : static_cast<std::uint32_t>(position_);
    key_ = std::copy_n(text_.data() + token.begin, token.end - token.begin, key_);
    *key_++ = token.kind == TokenKind::Quoted ? '\x02' : '\x01';
    result_.tokens.push_back(token);
  }

  /// A literal leaves only its kind in the key. A decimal's scale is part of its type and so of the key.
  void PushLiteral(Token& token, std::uint32_t end = 0) {
    token.end = end ? end : static_cast<std::uint32_t>(position_);
    token.literal = static_cast<int>(result_.literals.size());
    result_.literals.push_back(static_cast<std::uint32_t>(result_.tokens.size()));
    *key_++ = static_cast<char>(3 + static_cast<int>(token.kind));
    if (token.kind == TokenKind::Decimal) *key_++ = static_cast<char>(token.scale);
    result_.tokens.push_back(token);
  }

  std::string_view text_;
  TokenList& result_;
  std::size_t position_ = 0;
  char* key_ = nullptr;  ///< where the next token's part of the key goes
};

}  // namespace

std::string TokenList::ValueOf(const Token& token) const {
  const std::string_view raw = TextOf(token);
  if (!token.escaped) return std::string(raw);
  const char close = text[token.end];
  std::string value;
  value.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    value.push_back(raw[i]);
    if (raw[i] == close) ++i;
  }
  return value;
}

void Lex(std::string_view text, TokenList& result) {
  Scanner(text, result).Run();
}

bool EqualWord(std::string_view word, std::string_view lowerCase) {
  if (word.size() != lowerCase.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    const char c = word[i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lowerCase[i]) return false;
  }
  return true;
}

}  // namespace suite
