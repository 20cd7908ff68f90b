#pragma once

#include <string>
#include <vector>

#include "suite/host/frm_log_on.h"

namespace windows {

/// What the host's command line asks for.
struct Options {
  std::string connection;  ///< a real ADO connection string; empty for the embedded database
  std::string database;    ///< file of the embedded database; empty for the user's own
  bool unattended = false;
  bool help = false;  ///< nothing but the usage is wanted
  suite::LogOnPresets logOn;
};

/// The program's switches, for who asks or errs.
extern const char* const kUsage;

/// Reads the switches (UTF-8, without the program's name). Error 5 with a sentence for the user when one cannot be read.
Options ReadOptions(const std::vector<std::string>& words);

}  // namespace windows
