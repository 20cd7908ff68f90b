#pragma once

#include "base/controls/form.h"
#include "platform/console/drawing/canvas.h"

namespace console {

/// The shown controls that stand directly on a container (null: the form itself), each near the place its twips give it, none
/// over another: what needs more room than its twips pushes its right neighbours to the right and what is below it down.
Canvas DrawChildren(const controls::Form& form, const controls::Control* container, int twipsPerColumn);

}  // namespace console
