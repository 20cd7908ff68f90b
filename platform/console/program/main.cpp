#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <unistd.h>

#include "base/vb/error.h"
#include "platform/console/options.h"
#include "platform/console/program/live_session.h"
#include "platform/console/program/shop_session.h"
#include "platform/terminal/screen.h"

namespace {

enum ExitStatus { kDone = 0, kCommandFailed = 1, kWrongOptions = 2 };

int RunLive(const console::Options& options) {
  const std::string error = console::RunLiveSession(options);
  if (error.empty()) return kDone;
  std::cerr << "goods-request: " << error << "\n";
  return kCommandFailed;
}

int Run(const console::Options& options) {
  if (options.help) {
    std::cout << console::UsageText();
    return kDone;
  }
  if (options.live) {
    const auto obstacle = terminal::Screen::WhyNot();
    if (!obstacle) return RunLive(options);
    std::cerr << "goods-request: " << *obstacle << "; the forms are driven by commands instead\n";
  }
  std::ifstream script;
  if (!options.script.empty()) {
    script.open(options.script, std::ios::binary);
    if (!script) throw console::OptionError("cannot read " + options.script);
  }
  const bool terminal = options.script.empty() && isatty(STDIN_FILENO) != 0;
  console::Output output(std::cout);
  try {
    console::ShopSession session(options, options.script.empty() ? std::cin : script, terminal, output);
    session.Run();
  } catch (const vb::RunTimeError& error) {
    output.Error(std::to_string(error.Number()) + " " + error.Description());
  }
  return output.Errors() > 0 && !terminal ? kCommandFailed : kDone;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return Run(console::ParseOptions({arguments + 1, arguments + count}));
  } catch (const console::OptionError& error) {
    std::cerr << "goods-request: " << error.what() << "\n\n" << console::UsageText();
    return kWrongOptions;
  } catch (const std::exception& error) {
    std::cerr << "goods-request: " << error.what() << "\n";
    return kCommandFailed;
  }
}
