#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/vb/error.h"
#include "base/workstation/workstation.h"

namespace support {

/// A machine in memory: a clock that does not run, files by name, programs that are only noted.
class TestWorkstation : public workstation::Workstation {
 public:
  vb::Date now = vb::MakeDate(2024, 3, 15, 10, 30, 5);
  std::string windowsDirectory = "C:\\WINDOWS";
  std::map<std::string, std::string> files;          ///< contents as bytes, by path
  std::set<std::string> refusedPaths;                ///< opening these for output is error 70
  std::vector<std::pair<std::string, int>> started;  ///< command lines with their window styles
  std::map<std::string, std::string> stateFiles;     ///< contents by name
  std::set<std::string> takenStateFiles;             ///< by this process or, put there by a test, by another one
  bool hasStateFolder = true;                        ///< else taking and replacing a state file is error 75
  bool startsPrograms = true;                        ///< else starting one is error 53

  /// The keys of the shipped ShopSetting.txt.
  static std::set<std::string> ShippedSettings();
  /// Puts ShopSetting.txt into the application folder: one "key :=value" a line. A key that the shipped file lacks fails the
  /// test.
  void WriteSettings(const std::map<std::string, std::string>& settings);

  vb::Date Now() override { return now; }
  std::string ApplicationFolder() override { return "C:\\shop"; }
  std::string WindowsDirectory() override { return windowsDirectory; }
  std::string TempFolder() override { return "C:\\temp"; }
  bool FileExists(std::string_view path) override { return files.contains(std::string(path)); }
  std::unique_ptr<workstation::InputFile> OpenForInput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForOutput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForAppend(std::string_view path) override;
  bool StateFileExists(std::string_view name) override { return stateFiles.contains(std::string(name)); }
  std::unique_ptr<workstation::StateFile> TakeStateFile(std::string_view name) override;
  void StartProgram(std::string_view commandLine, int style) override {
    if (!startsPrograms) vb::Raise(vb::kFileNotFound);
    started.emplace_back(commandLine, style);
  }
};

}  // namespace support
