#include "platform/windows/workstation/file_handle.h"

#include <vector>

#include "base/vb/error.h"
#include "base/vb/file_error.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

constexpr DWORD kReadBlock = 64 * 1024;

long FileErrorNumber(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
      return vb::kFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_INVALID_DRIVE:
      return vb::kPathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return vb::kPermissionDenied;
    case ERROR_INVALID_NAME:
      return vb::kBadFileName;
    default:
      return vb::kPathFileAccess;
  }
}

}  // namespace

void RaiseFileError(DWORD systemError, std::string_view path) {
  vb::RaiseFileError(FileErrorNumber(systemError), path);
}

FileHandle::FileHandle(std::string_view path, DWORD access, DWORD disposition, Options options) : path_(path) {
  if (path.empty()) vb::Raise(vb::kBadFileName);
  handle_ = CreateFileW(Wide(path).c_str(), access, options.share, nullptr, disposition, options.attributes, nullptr);
  if (handle_ == INVALID_HANDLE_VALUE) RaiseLastError();
}

bool FileHandle::Close() {
  const bool closed = handle_ == INVALID_HANDLE_VALUE || CloseHandle(handle_) != 0;
  handle_ = INVALID_HANDLE_VALUE;
  return closed;
}

void FileHandle::WriteAll(std::string_view bytes) const {
  while (!bytes.empty()) {
    DWORD written = 0;
    if (!WriteFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) || written == 0) RaiseLastError();
    bytes.remove_prefix(written);
  }
}

std::string FileHandle::ReadAll() const {
  std::string bytes;
  std::vector<char> block(kReadBlock);
  for (DWORD read = kReadBlock; read > 0;) {
    if (!ReadFile(handle_, block.data(), kReadBlock, &read, nullptr)) RaiseLastError();
    bytes.append(block.data(), read);
  }
  return bytes;
}

}  // namespace windows
