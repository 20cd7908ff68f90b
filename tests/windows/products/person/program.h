#pragma once

#include <string>

#include "platform/windows/windows_gate.h"

namespace person {

/// A program in a process of its own, whose windows somebody works. A program that is still there when this goes is ended.
class Program {
 public:
  /// Starts the command line. Throws std::runtime_error when it cannot be started.
  explicit Program(const std::string& commandLine);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  DWORD Id() const { return process_.dwProcessId; }
  bool HasEnded() const;
  /// Waits for the end and gives the exit code. Throws std::runtime_error when it does not come.
  DWORD ExitCode();
  /// What it wrote to its outputs, which are complaints as a rule, once it has ended.
  std::string Complaint();

 private:
  PROCESS_INFORMATION process_{};
  HANDLE complaint_ = INVALID_HANDLE_VALUE;  // a file that goes with its handle
};

}  // namespace person
