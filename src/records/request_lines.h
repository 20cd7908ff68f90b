#pragma once

#include "base/controls/list_view.h"

namespace goods {

/// Columns of the editor's item list; 0 is the line's own text.
enum RequestLineColumn : int {
  kLineSlNo = 0,
  kLineItemCode = 1,
  kLineItemName = 2,
  kLineQty = 3,
  kLineItemId = 4,
  kLineRemarks = 5,
  kLineUnit = 6,
  kLinePartCode = 7,
};

/// The editor's item list as the item entry form sees it: the list, its changed mark and the current line.
struct RequestLines {
  controls::ListView& lvwrequest;
  std::int32_t& lngCurrentLine;  ///< 1-based

  /// The mark that makes the editor offer to save.
  void MarkChanged() { lvwrequest.SetTag("C"); }
};

}  // namespace goods
