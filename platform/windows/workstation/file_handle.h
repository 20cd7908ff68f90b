#pragma once

#include <string>
#include <string_view>

#include "platform/windows/windows_gate.h"

namespace windows {

/// Raises the classic file error for what the system says about the file: 53 not found, 70 permission denied, 75 path/file
/// access, 76 path not found, 52 bad name.
[[noreturn]] void RaiseFileError(DWORD systemError, std::string_view path);

/// A system file handle that closes itself.
class FileHandle {
 public:
  struct Options {
    DWORD share = FILE_SHARE_READ;
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
  };
  /// Opens the file. Error 52 for an empty path, else as RaiseFileError.
  FileHandle(std::string_view path, DWORD access, DWORD disposition, Options options);
  FileHandle(std::string_view path, DWORD access, DWORD disposition) : FileHandle(path, access, disposition, Options{}) {}
  ~FileHandle() { Close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  HANDLE Get() const { return handle_; }
  /// Whether the system closed it without complaint.
  bool Close();
  void WriteAll(std::string_view bytes) const;
  std::string ReadAll() const;
  /// What the system said last about this file.
  [[noreturn]] void RaiseLastError() const { RaiseFileError(GetLastError(), path_); }

 private:
  std::string path_;
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

}  // namespace windows
