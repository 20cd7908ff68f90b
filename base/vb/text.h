#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Text rules. Text is UTF-8; every count and position is in characters (code points), positions are 1-based.
/// Bytes that are no valid UTF-8 count as one character each, so that nothing read from a file is ever lost.
namespace vb {

std::size_t Len(std::string_view text);

/// The first / last `count` characters; all of them when there are fewer. A negative count is error 5.
std::string Left(std::string_view text, long count);
std::string Right(std::string_view text, long count);
/// From the 1-based `start` to the end, or `count` characters; empty past the end. start < 1 or count < 0 is error 5.
std::string Mid(std::string_view text, long start);
std::string Mid(std::string_view text, long start, long count);

/// 1-based character position of `part`, 0 when absent; an empty part is found at 1. Case counts.
std::size_t InStr(std::string_view text, std::string_view part);
/// The same without regard to case.
std::size_t InStrNoCase(std::string_view text, std::string_view part);

/// Case conversion and folding beyond ASCII (Latin, Greek, Cyrillic, Armenian...); other characters stay.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

/// Blanks only: tabs and line breaks stay.
std::string_view Trim(std::string_view text);
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);

/// Comparison without regard to case: negative, 0 or positive.
int CompareNoCase(std::string_view a, std::string_view b);
bool EqualNoCase(std::string_view a, std::string_view b);
/// The server's comparison: without regard to case, the shorter side padded with blanks.
int CompareServer(std::string_view a, std::string_view b);

/// `count` blanks; none for a count of 0 or less.
std::string Space(long count);
std::string Replace(std::string_view text, std::string_view what, std::string_view with);
/// Doubles every apostrophe, for text that goes between single quotes in a statement.
std::string DoubleApostrophes(std::string_view text);
/// An empty text has no parts; an empty delimiter leaves the text as one part.
std::vector<std::string> Split(std::string_view text, std::string_view delimiter);
/// Takes the next line off `rest` and returns it without its end, which is CR LF, a lone CR or a lone LF. The last line needs no
/// end. Returns nothing when `rest` is empty.
std::optional<std::string_view> TakeLine(std::string_view& rest);

/// One character of UTF-8 at byte `offset`, which moves past it. An invalid byte gives 0xDC00 + byte.
char32_t NextCharacter(std::string_view text, std::size_t& offset);
void AppendCharacter(std::string& text, char32_t character);

}  // namespace vb
