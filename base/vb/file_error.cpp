#include "base/vb/file_error.h"

#include <string>

#include "base/vb/error.h"

namespace vb {

void RaiseFileError(long number, std::string_view file) {
  std::string description(ErrorText(number));
  if (!file.empty()) description.append(": ").append(file);
  Raise(number, std::move(description));
}

}  // namespace vb
