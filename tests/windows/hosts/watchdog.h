#pragma once

#include <cstdio>

#include "platform/windows/windows_gate.h"

namespace hosts {

/// Ends the process with this exit code when it has not ended by itself after so many milliseconds: longer than any machine
/// needs, so that only what hangs is ended.
constexpr UINT kHangs = 3;
constexpr DWORD kLongest = 75'000;

inline DWORD CALLBACK EndWhatHangs(void*) {
  Sleep(kLongest);
  std::fprintf(stderr, "Show never returned\n");
  std::fflush(stderr);
  TerminateProcess(GetCurrentProcess(), kHangs);
  return 0;
}

inline void StartWatchdog() {
  CloseHandle(CreateThread(nullptr, 0, EndWhatHangs, nullptr, 0, nullptr));
}

}  // namespace hosts
