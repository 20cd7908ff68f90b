#include "base/vb/error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vb {
namespace {

struct NumberedText {
  long number;
  std::string_view text;
};

constexpr std::array kTexts = {
    NumberedText{5, "Invalid procedure call or argument"},
    NumberedText{6, "Overflow"},
    NumberedText{7, "Out of memory"},
    NumberedText{9, "Subscript out of range"},
    NumberedText{11, "Division by zero"},
    NumberedText{13, "Type mismatch"},
    NumberedText{51, "Internal error"},
    NumberedText{52, "Bad file name or number"},
    NumberedText{53, "File not found"},
    NumberedText{55, "File already open"},
    NumberedText{57, "Device I/O error"},
    NumberedText{58, "File already exists"},
    NumberedText{61, "Disk full"},
    NumberedText{62, "Input past end of file"},
    NumberedText{68, "Device unavailable"},
    NumberedText{70, "Permission denied"},
    NumberedText{71, "Disk not ready"},
    NumberedText{75, "Path/File access error"},
    NumberedText{76, "Path not found"},
    NumberedText{91, "Object variable or With block variable not set"},
    NumberedText{94, "Invalid use of Null"},
    NumberedText{380, "Invalid property value"},
    NumberedText{381, "Invalid property array index"},
    NumberedText{400, "Form already displayed; can't show modally"},
    NumberedText{424, "Object required"},
    NumberedText{429, "ActiveX component can't create object"},
    NumberedText{438, "Object doesn't support this property or method"},
    NumberedText{449, "Argument not optional"},
    NumberedText{450, "Wrong number of arguments or invalid property assignment"},
    NumberedText{458, "Variable uses an Automation type not supported"},
};

}  // namespace

RunTimeError::RunTimeError(long number, std::string description, std::string source)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

std::string_view ErrorText(long number) {
  const auto found = std::ranges::find(kTexts, number, &NumberedText::number);
  return found == kTexts.end() ? "Application-defined or object-defined error" : found->text;
}

void Raise(long number) {
  throw RunTimeError(number, std::string(ErrorText(number)));
}

void Raise(long number, std::string description, std::string source) {
  throw RunTimeError(number, std::move(description), std::move(source));
}

}  // namespace vb
