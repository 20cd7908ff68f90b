#pragma once

#include "base/controls/form.h"
#include "platform/text/drawing/canvas.h"
#include "platform/text/drawing/surface.h"

namespace text {

/// The shown controls that stand directly on a container (null: the form itself), each near the place its twips give it, none
/// over another: what needs more room than its twips pushes its right neighbours to the right and what is below it down. Controls
/// that stick to the left and the right edge grow until the sheet has `width` columns.
Canvas DrawChildren(const controls::Form& form, const controls::Control* container, const Surface& surface, int width = 0);

}  // namespace text
