#include "platform/windows/desktop/metrics.h"

#include <algorithm>
#include <cstdlib>

namespace windows {
namespace {

HFONT MessageFont(int dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, ScreenDpi());
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

int Brightness(COLORREF color) {
  return (GetRValue(color) * 299 + GetGValue(color) * 587 + GetBValue(color) * 114) / 1000;
}

}  // namespace

int ScreenDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : 96;
}

int FittingDpi(int dpi, SIZE room, int width, int height) {
  constexpr int kUsual = 96;  // 100 %
  const auto fitting = [](LONG pixels, int twips) { return static_cast<int>(pixels * 1440 / std::max(1, twips)); };
  return std::max(std::min({dpi, fitting(room.cx, width), fitting(room.cy, height)}), std::min(dpi, kUsual));
}

Metrics::Metrics(int dpi) : dpi_(dpi), font_(MessageFont(dpi)) {}

COLORREF ScreenColor(controls::Color color) {
  if ((color & 0x80000000u) != 0) return GetSysColor(static_cast<int>(color & 0xFFu));
  return color & 0xFFFFFFu;
}

bool IsReadable(COLORREF text, COLORREF background) {
  return std::abs(Brightness(text) - Brightness(background)) >= 70;
}

COLORREF TextOn(COLORREF background) {
  return Brightness(background) < 128 ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

}  // namespace windows
