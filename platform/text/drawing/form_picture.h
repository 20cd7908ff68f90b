#pragma once

#include <string>
#include <vector>

#include "base/controls/form.h"
#include "platform/text/drawing/canvas.h"
#include "platform/text/drawing/surface.h"

namespace text {

/// A loaded form as a person sees it, about a hundred columns wide at most.
std::vector<std::string> DrawForm(const controls::Form& form);

/// The same on any surface.
Canvas DrawForm(const controls::Form& form, const Surface& surface);

inline constexpr int kMinTwipsPerColumn = 80;

/// The twips of a column when the form is to be about `columns` wide.
int TwipsPerColumn(const controls::Form& form, int columns, int min = kMinTwipsPerColumn);

}  // namespace text
