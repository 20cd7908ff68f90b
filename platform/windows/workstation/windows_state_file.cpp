#include "platform/windows/workstation/windows_state_file.h"

#include <array>
#include <optional>
#include <shlobj.h>
#include <string>
#include <utility>

#include "base/vb/error.h"
#include "base/vb/file_error.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/workstation/file_handle.h"

namespace windows {
namespace {

constexpr const char* kOwnFolder = "\\GoodsRequest";
constexpr const char* kLockEnding = ".lock";

bool Exists(std::string_view path) {
  return GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// Of this machine, not of the profile that roams: a draft belongs to the place where it was typed. Empty when the system has
/// none.
std::string StateFolder() {
  std::array<wchar_t, MAX_PATH> path{};
  if (SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK) return {};
  return Utf8(path.data()) + kOwnFolder;
}

class WindowsStateFile : public workstation::StateFile {
 public:
  /// Error 70 when another process has the file.
  explicit WindowsStateFile(std::string path)
      : path_(std::move(path)),
        // Nobody else opens it as long as it is open, and the system deletes it with its handle, also when the process is ended.
        lock_(path_ + kLockEnding, GENERIC_WRITE, OPEN_ALWAYS, {0, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE}) {}

  std::optional<std::string> Read() override {
    if (!Exists(path_)) return std::nullopt;
    return FileHandle(path_, GENERIC_READ, OPEN_EXISTING).ReadAll();
  }

  void Replace(std::string_view text) override {
    const std::string fresh = path_ + ".new";
    try {
      WriteFlushed(fresh, text);
      Rename(fresh, path_, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    } catch (const vb::RunTimeError&) {
      DeleteFileW(Wide(fresh).c_str());
      throw;
    }
  }

  void Remove() override {
    if (!DeleteFileW(Wide(path_).c_str()) && Exists(path_)) RaiseFileError(GetLastError(), path_);
  }

  std::string SetAside() override {
    std::string kept = path_ + ".unreadable";
    for (int number = 2; Exists(kept); ++number) kept = path_ + ".unreadable" + std::to_string(number);
    Rename(path_, kept, 0);
    return kept;
  }

 private:
  static void WriteFlushed(const std::string& path, std::string_view text) {
    const FileHandle file(path, GENERIC_WRITE, CREATE_ALWAYS);
    file.WriteAll(text);
    if (!FlushFileBuffers(file.Get())) file.RaiseLastError();
  }
  static void Rename(const std::string& from, const std::string& to, DWORD flags) {
    if (!MoveFileExW(Wide(from).c_str(), Wide(to).c_str(), flags)) RaiseFileError(GetLastError(), to);
  }

  std::string path_;
  FileHandle lock_;
};

}  // namespace

bool StateFileExists(std::string_view name) {
  const std::string folder = StateFolder();
  return !folder.empty() && Exists(folder + "\\" + std::string(name));
}

std::unique_ptr<workstation::StateFile> TakeStateFile(std::string_view name) {
  const std::string folder = StateFolder();
  if (folder.empty()) vb::RaiseFileError(vb::kPathNotFound, name);
  if (!CreateDirectoryW(Wide(folder).c_str(), nullptr) && GetLastError() != ERROR_ALREADY_EXISTS) {
    RaiseFileError(GetLastError(), folder);
  }
  const std::string path = folder + "\\" + std::string(name);
  try {
    return std::make_unique<WindowsStateFile>(path);
  } catch (const vb::RunTimeError&) {
    if (Exists(path + kLockEnding)) return nullptr;  // only a process that has it open keeps that file from being opened
    throw;
  }
}

}  // namespace windows
