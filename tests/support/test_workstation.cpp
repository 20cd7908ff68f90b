#include "tests/support/test_workstation.h"

#include <fstream>
#include <gtest/gtest.h>

#include "base/vb/error.h"
#include "base/workstation/text_file.h"

namespace support {
namespace {

class Writer : public workstation::OutputFile {
 public:
  explicit Writer(std::string& file) : file_(file) {}
  void Write(std::string_view text) override { file_ += text; }
  void Close() override {}

 private:
  std::string& file_;
};

class TestStateFile : public workstation::StateFile {
 public:
  TestStateFile(TestWorkstation& workstation, std::string name) : workstation_(workstation), name_(std::move(name)) {
    workstation_.takenStateFiles.insert(name_);
  }
  ~TestStateFile() override { workstation_.takenStateFiles.erase(name_); }
  std::optional<std::string> Read() override {
    const auto found = workstation_.stateFiles.find(name_);
    return found == workstation_.stateFiles.end() ? std::nullopt : std::optional(found->second);
  }
  void Replace(std::string_view text) override {
    if (!workstation_.hasStateFolder) vb::Raise(vb::kPathFileAccess);
    workstation_.stateFiles[name_] = text;
  }
  void Remove() override { workstation_.stateFiles.erase(name_); }
  std::string SetAside() override {
    auto file = workstation_.stateFiles.extract(name_);
    file.key() += ".unreadable";
    return workstation_.stateFiles.insert(std::move(file)).position->first;
  }

 private:
  TestWorkstation& workstation_;
  std::string name_;
};

}  // namespace

std::unique_ptr<workstation::StateFile> TestWorkstation::TakeStateFile(std::string_view name) {
  if (!hasStateFolder) vb::Raise(vb::kPathFileAccess);
  if (takenStateFiles.contains(std::string(name))) return nullptr;
  return std::make_unique<TestStateFile>(*this, std::string(name));
}

std::set<std::string> TestWorkstation::ShippedSettings() {
  std::ifstream file(SOURCE_FOLDER "/suite/host/ShopSetting.txt");
  EXPECT_TRUE(file.is_open()) << "the shipped settings are not where they were";
  std::set<std::string> keys;
  for (std::string line; std::getline(file, line);) keys.insert(line.substr(0, line.find(" :=")));
  return keys;
}

void TestWorkstation::WriteSettings(const std::map<std::string, std::string>& settings) {
  const std::set<std::string> shipped = ShippedSettings();
  std::string text;
  for (const auto& [key, value] : settings) {
    EXPECT_TRUE(shipped.contains(key)) << "no such setting: " << key;
    text += key + " :=" + value + "\r\n";
  }
  files["C:\\shop\\ShopSetting.txt"] = text;
}

std::unique_ptr<workstation::InputFile> TestWorkstation::OpenForInput(std::string_view path) {
  const auto found = files.find(std::string(path));
  if (found == files.end()) vb::Raise(vb::kFileNotFound);
  return std::make_unique<workstation::TextFile>(found->second);
}

std::unique_ptr<workstation::OutputFile> TestWorkstation::OpenForOutput(std::string_view path) {
  if (path.empty()) vb::Raise(vb::kBadFileName);
  if (refusedPaths.contains(std::string(path))) vb::Raise(vb::kPermissionDenied);
  std::string& file = files[std::string(path)];
  file.clear();
  return std::make_unique<Writer>(file);
}

std::unique_ptr<workstation::OutputFile> TestWorkstation::OpenForAppend(std::string_view path) {
  if (refusedPaths.contains(std::string(path))) vb::Raise(vb::kPermissionDenied);
  return std::make_unique<Writer>(files[std::string(path)]);
}

}  // namespace support
