#pragma once

#include <stdexcept>
#include <string>

#include "platform/windows/windows_gate.h"

namespace person {

/// How long somebody waits for a window, in milliseconds: long enough for a machine busy with other things, so that only what
/// never comes fails.
constexpr ULONGLONG kPatience = 90'000;
constexpr DWORD kLook = 15;

/// Looks again and again until the condition holds; throws std::runtime_error with the complaint when it never does.
template <class Condition, class Complaint>
void WaitUntil(const Condition& holds, const Complaint& complaint) {
  const ULONGLONG end = GetTickCount64() + kPatience;
  while (!holds()) {
    if (GetTickCount64() > end) throw std::runtime_error(complaint());
    Sleep(kLook);
  }
}

}  // namespace person
