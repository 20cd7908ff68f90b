#include "tests/windows/products/person/program.h"

#include <array>

#include "platform/windows/wide_text.h"
#include "tests/windows/products/person/patience.h"

namespace person {
namespace {

constexpr DWORD kEndingTime = 10'000;  // milliseconds

/// A new file that a started program may write to.
HANDLE SharedFile() {
  std::array<wchar_t, MAX_PATH> folder{};
  std::array<wchar_t, MAX_PATH> name{};
  GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
  GetTempFileNameW(folder.data(), L"say", 0, name.data());
  SECURITY_ATTRIBUTES shared{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  return CreateFileW(name.data(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &shared,
                     CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

}  // namespace

Program::Program(const std::string& commandLine) : complaint_(SharedFile()) {
  std::wstring line = windows::Wide(commandLine);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = complaint_;
  start.hStdError = complaint_;
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process_)) {
    CloseHandle(complaint_);
    throw std::runtime_error("cannot start: " + commandLine);
  }
}

Program::~Program() {
  if (!HasEnded()) TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, kEndingTime);  // its files are free only then
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
  CloseHandle(complaint_);
}

bool Program::HasEnded() const {
  return WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0;
}

DWORD Program::ExitCode() {
  WaitUntil([&] { return HasEnded(); }, [] { return "the program does not end"; });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

std::string Program::Complaint() {
  std::string text(4096, '\0');
  DWORD length = 0;
  SetFilePointer(complaint_, 0, nullptr, FILE_BEGIN);
  if (!ReadFile(complaint_, text.data(), static_cast<DWORD>(text.size()), &length, nullptr)) length = 0;
  text.resize(length);
  return text;
}

}  // namespace person
