#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/vb/date.h"

namespace console {

/// What the program is asked for on its command line.
struct Options {
  std::string database;  ///< "" is in memory
  bool empty = false;
  bool replication = false;
  std::optional<long> requests;
  std::optional<long> items;
  std::optional<long> company, shop, user;
  std::optional<vb::Date> date;
  std::string title = "Shop";
  std::string applicationFolder;  ///< "" is the current folder
  std::string windowsDirectory = "C:\\WINDOWS";
  std::optional<vb::Date> now;
  std::string script;  ///< "" is the standard input
  std::string init;
  bool trace = false;
  bool echo = false;
  bool reportServer = false;
  bool live = false;
  bool help = false;
};

class OptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An OptionError names what is wrong.
Options ParseOptions(const std::vector<std::string>& arguments);
std::string UsageText();

}  // namespace console
