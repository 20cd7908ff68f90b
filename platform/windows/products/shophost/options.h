#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/vb/date.h"

namespace windows {

/// What the host's command line asks for.
struct Options {
  std::string connection;  ///< a real ADO connection string; empty for the embedded database
  std::string database;    ///< file of the embedded database; empty for the user's own
  bool unattended = false;
  std::optional<std::int32_t> company;
  std::optional<std::int32_t> shop;
  std::optional<std::int32_t> user;
  std::optional<vb::Date> date;
};

/// Reads the switches (UTF-8, without the program's name). Error 5 with a sentence for the user when one cannot be read.
Options ReadOptions(const std::vector<std::string>& words);

}  // namespace windows
