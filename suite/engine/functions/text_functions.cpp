#include <sqlite3.h>

#include "base/vb/text.h"
#include "suite/engine/functions/server_functions.h"

namespace suite {
namespace {

bool IsAscii(std::string_view text) {
  for (const char c : text) {
    if ((c & 0x80) != 0) return false;
  }
  return true;
}

[[noreturn]] void RaiseLength(const char* function) {
  RaiseServer(kInvalidLength, std::string("Invalid length parameter passed to the ") + function + " function.");
}

void Len(const FunctionCall& call) {
  call.Return(static_cast<std::int64_t>(vb::Len(vb::RTrim(call.Text(0)))));
}

void DataLength(const FunctionCall& call) {
  call.Return(static_cast<std::int64_t>(call.Text(0).size()));
}

void Left(const FunctionCall& call) {
  const std::int64_t count = call.Integer(1);
  if (count < 0) RaiseLength("left");
  const std::string_view text = call.Text(0);
  if (IsAscii(text)) return call.Return(text.substr(0, static_cast<std::size_t>(count)));
  call.Return(vb::Left(text, static_cast<long>(count)));
}

void Right(const FunctionCall& call) {
  const std::int64_t count = call.Integer(1);
  if (count < 0) RaiseLength("right");
  const std::string_view text = call.Text(0);
  const auto wanted = static_cast<std::size_t>(count);
  if (IsAscii(text)) return call.Return(text.size() <= wanted ? text : text.substr(text.size() - wanted));
  call.Return(vb::Right(text, static_cast<long>(count)));
}

/// 1-based; a start before the text's takes its share off the length, as on the server.
void Substring(const FunctionCall& call) {
  std::int64_t start = call.Integer(1);
  std::int64_t length = call.Integer(2);
  if (length < 0) RaiseLength("substring");
  if (start < 1) {
    length = std::max<std::int64_t>(0, length + start - 1);
    start = 1;
  }
  const std::string_view text = call.Text(0);
  if (!IsAscii(text)) return call.Return(vb::Mid(text, static_cast<long>(start), static_cast<long>(length)));
  const auto offset = static_cast<std::size_t>(start - 1);
  call.Return(offset >= text.size() ? std::string_view() : text.substr(offset, static_cast<std::size_t>(length)));
}

void Upper(const FunctionCall& call) {
  call.Return(vb::UCase(call.Text(0)));
}
void Lower(const FunctionCall& call) {
  call.Return(vb::LCase(call.Text(0)));
}

void CharIndex(const FunctionCall& call) {
  const std::int64_t start = call.Count() > 2 ? std::max<std::int64_t>(call.Integer(2), 1) : 1;
  const std::string text = vb::Mid(call.Text(1), static_cast<long>(start));
  if (call.Text(0).empty()) return call.Return(std::int64_t{0});
  const std::size_t found = vb::InStrNoCase(text, call.Text(0));
  call.Return(found == 0 ? std::int64_t{0} : static_cast<std::int64_t>(found) + start - 1);
}

/// Replaces without regard to case, as the server's collation asks.
void Replace(const FunctionCall& call) {
  const std::string_view what = call.Text(1), with = call.Text(2);
  std::string rest(call.Text(0)), result;
  if (what.empty()) return call.Return(rest);
  for (std::size_t found = vb::InStrNoCase(rest, what); found != 0; found = vb::InStrNoCase(rest, what)) {
    result += vb::Left(rest, static_cast<long>(found) - 1);
    result += with;
    rest = vb::Mid(rest, static_cast<long>(found + vb::Len(what)));
  }
  call.Return(result + rest);
}

void Reverse(const FunctionCall& call) {
  const std::string_view text = call.Text(0);
  std::string result;
  for (std::size_t end = text.size(); end > 0;) {
    std::size_t begin = end - 1;
    while (begin > 0 && (text[begin] & 0xC0) == 0x80) --begin;
    result += text.substr(begin, end - begin);
    end = begin;
  }
  call.Return(result);
}

void Replicate(const FunctionCall& call) {
  const std::int64_t count = call.Integer(1);
  if (count < 0) return call.ReturnNull();
  constexpr std::size_t kLongestText = 8000;
  std::string result;
  for (std::int64_t i = 0; i < count && result.size() < kLongestText; ++i) result += call.Text(0);
  call.Return(result);
}

void Space(const FunctionCall& call) {
  call.Integer(0) < 0 ? call.ReturnNull() : call.Return(vb::Space(static_cast<long>(call.Integer(0))));
}

void Char(const FunctionCall& call) {
  const std::int64_t code = call.Integer(0);
  if (code < 1 || code > 255) return call.ReturnNull();
  std::string text;
  vb::AppendCharacter(text, static_cast<char32_t>(code));
  call.Return(text);
}

void Ascii(const FunctionCall& call) {
  std::size_t offset = 0;
  if (call.Text(0).empty()) return call.ReturnNull();
  call.Return(static_cast<std::int64_t>(vb::NextCharacter(call.Text(0), offset)));
}

void Like(const FunctionCall& call) {
  call.Return(std::int64_t{MatchLike(call.Text(0), call.Text(1), call.Count() > 2 ? call.Text(2) : std::string_view())});
}

void IsNumeric(const FunctionCall& call) {
  call.Return(std::int64_t{!call.IsNull(0) && IsServerNumeric(call.Text(0))});
}

}  // namespace

bool IsServerNumeric(std::string_view text) {
  std::string_view rest = vb::Trim(text);
  if (rest.empty()) return false;
  // Signs and a currency sign may come first, even alone.
  std::size_t prefix = 0;
  while (prefix < rest.size() && (rest[prefix] == '+' || rest[prefix] == '-' || rest[prefix] == '$')) ++prefix;
  if (prefix > 2) return false;
  const bool money = rest.substr(0, prefix).find('$') != std::string_view::npos;
  rest.remove_prefix(prefix);
  bool point = false, digit = false;
  std::size_t i = 0;
  for (; i < rest.size(); ++i) {
    const char c = rest[i];
    if (c >= '0' && c <= '9') {
      digit = true;
    } else if (c == '.' && !point) {
      point = true;
    } else if (c != ',' || point) {
      break;
    }
  }
  if (i == rest.size()) return true;
  if (money || !digit || (rest[i] != 'e' && rest[i] != 'E' && rest[i] != 'd' && rest[i] != 'D')) return false;
  ++i;
  if (i < rest.size() && (rest[i] == '+' || rest[i] == '-')) ++i;
  return rest.find_first_not_of("0123456789", i) == std::string_view::npos;
}

std::vector<detail::FunctionEntry> detail::TextFunctions() {
  return {{"srv_len", 1, Len},
          {"srv_datalength", 1, DataLength},
          {"srv_left", 2, Left},
          {"srv_right", 2, Right},
          {"srv_substring", 3, Substring},
          {"srv_upper", 1, Upper},
          {"srv_lower", 1, Lower},
          {"srv_charindex", -1, CharIndex},
          {"srv_replace", 3, Replace},
          {"srv_reverse", 1, Reverse},
          {"srv_replicate", 2, Replicate},
          {"srv_space", 1, Space},
          {"srv_char", 1, Char},
          {"srv_ascii", 1, Ascii},
          {"srv_like", -1, Like},
          {"srv_isnumeric", 1, IsNumeric, true, true}};
}

}  // namespace suite
