#include "base/vb/letter_case.h"

#include <array>
#include <cstdint>

namespace vb {
namespace {

/// Upper-case letters first, first + step ... last; each one's lower-case letter is `distance` further on.
struct CaseRange {
  std::int32_t first, last, distance, step;
};

constexpr std::array kRanges = {
    CaseRange{0x0041, 0x005A, 32, 1},
    // Latin-1, Latin Extended-A. The dotted capital I and the dotless small i have no one-to-one counterpart.
    CaseRange{0x00C0, 0x00D6, 32, 1},
    CaseRange{0x00D8, 0x00DE, 32, 1},
    CaseRange{0x0100, 0x012E, 1, 2},
    CaseRange{0x0132, 0x0136, 1, 2},
    CaseRange{0x0139, 0x0147, 1, 2},
    CaseRange{0x014A, 0x0176, 1, 2},
    CaseRange{0x0178, 0x0178, -121, 1},
    CaseRange{0x0179, 0x017D, 1, 2},
    // Greek
    CaseRange{0x0386, 0x0386, 38, 1},
    CaseRange{0x0388, 0x038A, 37, 1},
    CaseRange{0x038C, 0x038C, 64, 1},
    CaseRange{0x038E, 0x038F, 63, 1},
    CaseRange{0x0391, 0x03A1, 32, 1},
    CaseRange{0x03A3, 0x03AB, 32, 1},
    // Cyrillic
    CaseRange{0x0400, 0x040F, 80, 1},
    CaseRange{0x0410, 0x042F, 32, 1},
    CaseRange{0x0460, 0x0480, 1, 2},
    CaseRange{0x048A, 0x04BE, 1, 2},
    CaseRange{0x04C0, 0x04C0, 15, 1},
    CaseRange{0x04C1, 0x04CD, 1, 2},
    CaseRange{0x04D0, 0x052E, 1, 2},
    // Armenian
    CaseRange{0x0531, 0x0556, 48, 1},
    // Latin Extended Additional, full-width Latin
    CaseRange{0x1E00, 0x1E94, 1, 2},
    CaseRange{0x1EA0, 0x1EFE, 1, 2},
    CaseRange{0xFF21, 0xFF3A, 32, 1},
};

constexpr char32_t kFinalSigma = 0x03C2;
constexpr char32_t kSmallSigma = 0x03C3;
constexpr char32_t kCapitalSigma = 0x03A3;

bool IsUpperOf(const CaseRange& range, std::int32_t character) {
  return character >= range.first && character <= range.last && (character - range.first) % range.step == 0;
}

}  // namespace

char32_t UpperCharacter(char32_t character) {
  if (character == kFinalSigma) return kCapitalSigma;
  const auto code = static_cast<std::int32_t>(character);
  for (const CaseRange& range : kRanges) {
    if (IsUpperOf(range, code - range.distance)) return static_cast<char32_t>(code - range.distance);
  }
  return character;
}

char32_t LowerCharacter(char32_t character) {
  const auto code = static_cast<std::int32_t>(character);
  for (const CaseRange& range : kRanges) {
    if (IsUpperOf(range, code)) return static_cast<char32_t>(code + range.distance);
  }
  return character;
}

char32_t FoldCharacter(char32_t character) {
  return character == kFinalSigma ? kSmallSigma : LowerCharacter(character);
}

}  // namespace vb
