#pragma once

/// Upper and lower case of single characters, one to one. Characters without a counterpart come back as they are.
namespace vb {

char32_t UpperCharacter(char32_t character);
char32_t LowerCharacter(char32_t character);
/// What two letters that differ in case alone have in common; the final sigma counts as a sigma.
char32_t FoldCharacter(char32_t character);

constexpr char UpperAscii(char byte) {
  return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}
constexpr char LowerAscii(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

}  // namespace vb
