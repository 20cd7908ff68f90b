#pragma once

#include "base/controls/control.h"
#include "platform/windows/windows_gate.h"

namespace windows {

/// Sizes and the font of one form's windows: twips become pixels of the screen's resolution, texts the system's message font.
class Metrics {
 public:
  Metrics();
  ~Metrics();
  Metrics(const Metrics&) = delete;
  Metrics& operator=(const Metrics&) = delete;

  int Pixels(int twips) const { return MulDiv(twips, dpi_, 1440); }
  int Twips(int pixels) const { return MulDiv(pixels, 1440, dpi_); }
  HFONT Font() const { return font_; }
  int Dpi() const { return dpi_; }

 private:
  int dpi_;
  HFONT font_;
};

/// The screen's colour for a model colour; system colours are looked up.
COLORREF ScreenColor(controls::Color color);

/// Whether a text of one colour can be read on the other.
bool IsReadable(COLORREF text, COLORREF background);

/// The module (DLL or program) that this code is part of.
HINSTANCE ThisModule();

}  // namespace windows
