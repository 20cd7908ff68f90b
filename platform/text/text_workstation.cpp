#include "platform/text/text_workstation.h"

#include <cerrno>
#include <chrono>
#include <ctime>
#include <fstream>
#include <sstream>
#include <system_error>

#include "base/vb/error.h"
#include "base/vb/file_error.h"
#include "base/vb/text.h"
#include "base/workstation/printer_port.h"
#include "base/workstation/text_file.h"
#include "platform/text/text_state_file.h"

namespace text {
namespace {

namespace fs = std::filesystem;

class TextOutput : public workstation::OutputFile {
 public:
  TextOutput(std::ofstream stream, std::string_view path) : stream_(std::move(stream)), path_(path) {}
  void Write(std::string_view text) override { stream_.write(text.data(), static_cast<std::streamsize>(text.size())); }
  void Close() override {
    stream_.close();
    if (stream_.fail()) vb::RaiseFileError(vb::kPathFileAccess, path_);
  }

 private:
  std::ofstream stream_;
  std::string path_;
};

std::string WithSlashes(std::string_view path) {
  return vb::Replace(path, "\\", "/");
}

bool StartsWithNoCase(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && vb::EqualNoCase(text.substr(0, start.size()), start);
}

/// The entry of a folder with that name in whatever case; the name itself when there is none.
fs::path FindNoCase(const fs::path& folder, const std::string& name) {
  std::error_code ignored;
  if (fs::exists(folder / name, ignored)) return folder / name;
  for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored)) {
    if (vb::EqualNoCase(entry->path().filename().string(), name)) return entry->path();
  }
  return folder / name;
}

std::string ReadAll(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  return std::move(content).str();
}

}  // namespace

vb::Date TextWorkstation::Now() {
  if (settings_.now) return *settings_.now;
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&now, &local);
  return vb::MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

std::filesystem::path TextWorkstation::LocateInFolder(std::string_view relative) const {
  fs::path found = settings_.applicationFolder;
  for (const std::string& name : vb::Split(relative, "/")) {
    if (!name.empty() && name != ".") found = name == ".." ? found / name : FindNoCase(found, name);
  }
  return found;
}

std::optional<std::filesystem::path> TextWorkstation::Locate(std::string_view path) const {
  path = vb::Trim(path);
  if (path.empty()) vb::Raise(vb::kBadFileName);
  if (const std::string port = workstation::PrinterPort(path); !port.empty()) return LocateInFolder(port);
  const std::string plain = WithSlashes(path);
  const std::string folder = WithSlashes(settings_.applicationFolder) + '/';
  if (StartsWithNoCase(plain, folder)) return LocateInFolder(std::string_view(plain).substr(folder.size()));
  if (StartsWithNoCase(plain, "C:/TEMP/")) return LocateInFolder(std::string_view(plain).substr(3));
  if (StartsWithNoCase(plain, "C:/") && plain.find('/', 3) == std::string::npos) {
    return LocateInFolder(std::string_view(plain).substr(3));
  }
  if (plain.find_first_of(":/") == std::string::npos) return LocateInFolder(plain);
  return std::nullopt;
}

bool TextWorkstation::FileExists(std::string_view path) {
  const std::string plain = WithSlashes(vb::Trim(path));
  if (StartsWithNoCase(plain, WithSlashes(settings_.windowsDirectory) + '/')) {
    return vb::EqualNoCase(fs::path(plain).filename().string(), "edit.com");
  }
  std::error_code ignored;
  const auto file = Locate(path);
  return file && fs::is_regular_file(*file, ignored);
}

std::unique_ptr<workstation::InputFile> TextWorkstation::OpenForInput(std::string_view path) {
  const auto file = Locate(path);
  std::error_code ignored;
  if (!file) vb::RaiseFileError(vb::kPathNotFound, path);
  if (!fs::is_regular_file(*file, ignored)) vb::RaiseFileError(vb::kFileNotFound, path);
  return std::make_unique<workstation::TextFile>(ReadAll(*file));
}

std::unique_ptr<workstation::OutputFile> TextWorkstation::OpenToWrite(std::string_view path, bool append) {
  const auto file = Locate(path);
  if (!file) vb::RaiseFileError(vb::kPathNotFound, path);
  std::error_code ignored;
  if (vb::EqualNoCase(file->parent_path().filename().string(), "TEMP")) fs::create_directories(file->parent_path(), ignored);
  if (!fs::is_directory(file->parent_path(), ignored)) vb::RaiseFileError(vb::kPathNotFound, path);
  errno = 0;
  std::ofstream stream(*file, append ? std::ios::binary | std::ios::app : std::ios::binary | std::ios::trunc);
  if (!stream) vb::RaiseFileError(errno == EACCES || errno == EROFS ? vb::kPermissionDenied : vb::kPathFileAccess, path);
  return std::make_unique<TextOutput>(std::move(stream), path);
}

std::unique_ptr<workstation::OutputFile> TextWorkstation::OpenForOutput(std::string_view path) {
  return OpenToWrite(path, false);
}

std::unique_ptr<workstation::OutputFile> TextWorkstation::OpenForAppend(std::string_view path) {
  return OpenToWrite(path, true);
}

void TextWorkstation::StartProgram(std::string_view commandLine, int style) {
  if (settings_.startProgram) settings_.startProgram(commandLine, style);
}

bool TextWorkstation::StateFileExists(std::string_view name) {
  return text::StateFileExists(settings_.stateFolder, name);
}

std::unique_ptr<workstation::StateFile> TextWorkstation::TakeStateFile(std::string_view name) {
  return text::TakeStateFile(settings_.stateFolder, name);
}

std::string TextWorkstation::ReadApplicationFile(std::string_view name) const {
  const fs::path file = LocateInFolder(WithSlashes(name));
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) vb::Raise(vb::kFileNotFound, "no file " + std::string(name));
  return ReadAll(file);
}

}  // namespace text
