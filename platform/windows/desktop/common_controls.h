#pragma once

// clang-format off
#include "platform/windows/windows_gate.h"  // before the headers that build on it
#include <commctrl.h>
// clang-format on
