#pragma once

#include "base/controls/control.h"
#include "platform/windows/handles.h"

namespace windows {

/// The screen's resolution in dots per inch, as set by the person: 96 is 100 %.
int ScreenDpi();

/// The resolution in which a form of this size in twips fits into the room in pixels: the one given, or less where everything was
/// asked for larger than at 100 %, but never less than that.
int FittingDpi(int dpi, SIZE room, int width, int height);

/// Sizes and the font of one form's windows: twips become pixels of a resolution, texts the system's message font in it.
class Metrics {
 public:
  /// With the screen's own resolution, or a smaller one for a form that would not fit on the screen.
  explicit Metrics(int dpi);

  int Pixels(int twips) const { return MulDiv(twips, dpi_, 1440); }
  int Twips(int pixels) const { return MulDiv(pixels, 1440, dpi_); }
  HFONT Font() const { return font_.get(); }

 private:
  int dpi_;
  Owned<HFONT> font_;
};

/// The screen's colour for a model colour; system colours are looked up.
COLORREF ScreenColor(controls::Color color);

/// Whether a text of one colour can be read on the other.
bool IsReadable(COLORREF text, COLORREF background);

/// White or black, whichever can be read better on the colour.
COLORREF TextOn(COLORREF background);

/// The module (DLL or program) that this code is part of.
HINSTANCE ThisModule();

}  // namespace windows
