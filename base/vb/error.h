#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace vb {

/// The classic runtime's error numbers that the component raises or meets.
enum ErrorNumber : long {
  kInvalidCall = 5,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kInternalError = 51,
  kBadFileName = 52,
  kFileNotFound = 53,
  kInputPastEnd = 62,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidUseOfNull = 94,
  kInvalidPropertyValue = 380,
  kInvalidPropertyIndex = 381,
  kCannotCreateObject = 429,
  kMemberNotFound = 438,
  kArgumentNotOptional = 449,
  kWrongArgumentCount = 450,
};

/// A run-time error: number, source and description are fields, so that no caller parses a message.
class RunTimeError : public std::exception {
 public:
  RunTimeError(long number, std::string description, std::string source = {});

  long Number() const { return number_; }
  const std::string& Source() const { return source_; }
  const std::string& Description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  long number_;
  std::string source_;
  std::string description_;
};

/// The runtime's own text for an error number; "Application-defined or object-defined error" for unknown ones.
std::string_view ErrorText(long number);

/// Raises the error with the runtime's own text, or with `description` where one is given.
[[noreturn]] void Raise(long number);
[[noreturn]] void Raise(long number, std::string description, std::string source = {});

}  // namespace vb
