#include "tests/support/test_workstation.h"

#include <fstream>
#include <gtest/gtest.h>

#include "base/vb/error.h"

namespace support {
namespace {

class Reader : public workstation::InputFile {
 public:
  explicit Reader(std::string text) : text_(std::move(text)) {}
  std::optional<std::string> ReadLine() override {
    if (position_ >= text_.size()) return std::nullopt;
    const std::size_t end = text_.find_first_of("\r\n", position_);
    std::string line = text_.substr(position_, end == std::string::npos ? std::string::npos : end - position_);
    position_ = end == std::string::npos ? text_.size() : end + 1;
    if (end != std::string::npos && text_[end] == '\r' && position_ < text_.size() && text_[position_] == '\n') ++position_;
    return line;
  }

 private:
  std::string text_;
  std::size_t position_ = 0;
};

class Writer : public workstation::OutputFile {
 public:
  explicit Writer(std::string& file) : file_(file) {}
  void Write(std::string_view text) override { file_ += text; }
  void Close() override {}

 private:
  std::string& file_;
};

}  // namespace

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
  return std::make_unique<Reader>(found->second);
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
