#pragma once

#include <string>

#include "base/workstation/workstation.h"

namespace windows {

/// This machine: its clock, folders and files. Texts of files are in the system's ANSI character set.
class WindowsWorkstation : public workstation::Workstation {
 public:
  /// The application folder without a trailing separator; empty for the folder of the module that this code is part of.
  explicit WindowsWorkstation(std::string applicationFolder = {});

  vb::Date Now() override;
  std::string ApplicationFolder() override { return applicationFolder_; }
  std::string WindowsDirectory() override;
  std::string TempFolder() override;
  bool FileExists(std::string_view path) override;
  std::unique_ptr<workstation::InputFile> OpenForInput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForOutput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForAppend(std::string_view path) override;
  void StartProgram(std::string_view commandLine, int style) override;
  bool StateFileExists(std::string_view name) override;
  std::unique_ptr<workstation::StateFile> TakeStateFile(std::string_view name) override;

 private:
  std::string applicationFolder_;
};

}  // namespace windows
