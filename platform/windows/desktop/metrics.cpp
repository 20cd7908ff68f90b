#include "platform/windows/desktop/metrics.h"

#include <cstdlib>

namespace windows {
namespace {

int ScreenDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : 96;
}

HFONT MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

int Brightness(COLORREF color) {
  return (GetRValue(color) * 299 + GetGValue(color) * 587 + GetBValue(color) * 114) / 1000;
}

}  // namespace

Metrics::Metrics() : dpi_(ScreenDpi()), font_(MessageFont()) {}

Metrics::~Metrics() {
  DeleteObject(font_);
}

COLORREF ScreenColor(controls::Color color) {
  if ((color & 0x80000000u) != 0) return GetSysColor(static_cast<int>(color & 0xFFu));
  return color & 0xFFFFFFu;
}

bool IsReadable(COLORREF text, COLORREF background) {
  return std::abs(Brightness(text) - Brightness(background)) >= 70;
}

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

}  // namespace windows
