#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "base/workstation/workstation.h"

namespace text {

/// A workstation whose drive C, temporary folder and printer ports are files of one folder on this machine. Its character set is
/// UTF-8; file names are found without regard to case. Programs are never started: the desktop says or shows what they would have
/// opened.
class TextWorkstation : public workstation::Workstation {
 public:
  struct Settings {
    std::string applicationFolder;                 ///< the path given to the component, and the one on this machine
    std::string windowsDirectory = "C:\\WINDOWS";  ///< the editor edit.com counts as present in it
    std::optional<vb::Date> now;                   ///< the machine's own clock without it
    std::filesystem::path stateFolder;             ///< of this machine; without it no state file can be taken
    std::function<void(std::string_view commandLine, int style)> startProgram;  ///< instead of starting one
  };
  explicit TextWorkstation(Settings settings) : settings_(std::move(settings)) {}

  vb::Date Now() override;
  std::string ApplicationFolder() override { return settings_.applicationFolder; }
  std::string WindowsDirectory() override { return settings_.windowsDirectory; }
  std::string TempFolder() override { return "C:\\TEMP"; }
  bool FileExists(std::string_view path) override;
  std::unique_ptr<workstation::InputFile> OpenForInput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForOutput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForAppend(std::string_view path) override;
  void StartProgram(std::string_view commandLine, int style) override;
  bool StateFileExists(std::string_view name) override;
  std::unique_ptr<workstation::StateFile> TakeStateFile(std::string_view name) override;

  /// A whole file of the application folder; error 53 when there is none.
  std::string ReadApplicationFile(std::string_view name) const;

 private:
  /// The path on this machine of a path of the workstation; nothing for a path it does not have. Error 52 for an empty name.
  std::optional<std::filesystem::path> Locate(std::string_view path) const;
  std::filesystem::path LocateInFolder(std::string_view relative) const;
  std::unique_ptr<workstation::OutputFile> OpenToWrite(std::string_view path, bool append);

  Settings settings_;
};

}  // namespace text
