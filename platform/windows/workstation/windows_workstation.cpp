#include "platform/windows/workstation/windows_workstation.h"

#include <algorithm>
#include <array>

#include "base/vb/error.h"
#include "base/vb/file_error.h"
#include "base/workstation/printer_port.h"
#include "base/workstation/text_file.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_gate.h"
#include "platform/windows/workstation/file_handle.h"
#include "platform/windows/workstation/windows_state_file.h"

namespace windows {
namespace {

std::string FromAnsi(std::string_view bytes) {
  if (bytes.empty()) return {};
  const int size = static_cast<int>(bytes.size());
  std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
  return Utf8(text);
}

std::string ToAnsi(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  std::string bytes(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
                    '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
  return bytes;
}

class Writer : public workstation::OutputFile {
 public:
  Writer(std::string_view path, DWORD disposition)
      : file_(path, disposition == OPEN_ALWAYS ? FILE_APPEND_DATA : GENERIC_WRITE, disposition) {}
  void Write(std::string_view text) override { file_.WriteAll(ToAnsi(Wide(text))); }
  void Close() override {
    if (!file_.Close()) file_.RaiseLastError();
  }

 private:
  FileHandle file_;
};

std::string FolderOfModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&FolderOfModule), &module);
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
  const std::wstring_view whole(path.data(), length);
  return Utf8(whole.substr(0, whole.find_last_of(L'\\')));
}

}  // namespace

WindowsWorkstation::WindowsWorkstation(std::string applicationFolder)
    : applicationFolder_(applicationFolder.empty() ? FolderOfModule() : std::move(applicationFolder)) {}

vb::Date WindowsWorkstation::Now() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return vb::MakeDate(now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond);
}

std::string WindowsWorkstation::WindowsDirectory() {
  std::array<wchar_t, 260> path{};
  const UINT length = GetWindowsDirectoryW(path.data(), static_cast<UINT>(path.size()));
  return Utf8(std::wstring_view(path.data(), std::min<std::size_t>(length, path.size() - 1)));
}

std::string WindowsWorkstation::TempFolder() {
  std::array<wchar_t, MAX_PATH + 1> path{};
  const DWORD length = GetTempPathW(static_cast<DWORD>(path.size()), path.data());
  std::wstring_view folder(path.data(), std::min<std::size_t>(length, path.size() - 1));
  if (folder.ends_with(L'\\')) folder.remove_suffix(1);
  return Utf8(folder);
}

bool WindowsWorkstation::FileExists(std::string_view path) {
  const DWORD attributes = GetFileAttributesW(Wide(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::unique_ptr<workstation::InputFile> WindowsWorkstation::OpenForInput(std::string_view path) {
  return std::make_unique<workstation::TextFile>(FileHandle(path, GENERIC_READ, OPEN_EXISTING).ReadAll(), FromAnsi);
}

std::unique_ptr<workstation::OutputFile> WindowsWorkstation::OpenForOutput(std::string_view path) {
  // A printer port opens as what it is; no file of its name is made.
  return std::make_unique<Writer>(path, workstation::PrinterPort(path).empty() ? CREATE_ALWAYS : OPEN_EXISTING);
}

std::unique_ptr<workstation::OutputFile> WindowsWorkstation::OpenForAppend(std::string_view path) {
  return std::make_unique<Writer>(path, OPEN_ALWAYS);
}

void WindowsWorkstation::StartProgram(std::string_view commandLine, int style) {
  std::wstring command = Wide(commandLine);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = static_cast<WORD>(style == 3 ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)) {
    vb::RaiseFileError(GetLastError() == ERROR_ACCESS_DENIED ? vb::kPermissionDenied : vb::kFileNotFound, commandLine);
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

bool WindowsWorkstation::StateFileExists(std::string_view name) {
  return windows::StateFileExists(name);
}

std::unique_ptr<workstation::StateFile> WindowsWorkstation::TakeStateFile(std::string_view name) {
  return windows::TakeStateFile(name);
}

}  // namespace windows
