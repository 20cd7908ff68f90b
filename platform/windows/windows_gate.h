#pragma once

// The one place that includes windows.h and the headers of COM, which include it themselves; every file of the Windows side
// comes through here.
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#ifndef STRICT
#define STRICT
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0A00
#endif
// clang-format off
#include <windows.h>
#include <objbase.h>
#include <oleauto.h>
#include <ocidl.h>
// clang-format on
