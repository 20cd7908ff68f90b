#pragma once

#include <cstdint>
#include <string>

#include "base/controls/flex_grid.h"
#include "base/vb/date.h"

namespace goods {

/// The register's grid as a list of requests: the current one, its selection, and the order of the rows.
class RegisterGrid {
 public:
  /// The grid outlives this object.
  explicit RegisterGrid(controls::FlexGrid& flexMaster) : flexMaster_(flexMaster) {}

  /// Whether the current row holds a request.
  bool IsOnRequest() const;
  /// Whether the current row is one of the list's, the placeholder included.
  bool IsOnRow() const { return flexMaster_.Row() >= 1 && flexMaster_.Row() < flexMaster_.Rows(); }
  /// Text of the current row; "" outside the grid.
  std::string CurrentCell(long column) const;
  /// Id of the current row's request; 0 when there is none.
  std::int32_t CurrentRequestId() const;
  /// Id of the row's request; 0 when it holds none.
  std::int32_t RequestIdAt(long row) const;
  /// Whether the row holds a cancelled request; false outside the list.
  bool IsCancelled(long row) const;
  /// "16 requests, 3 cancelled, 4 finished, since 15/01/2024".
  std::string Summary(vb::Date since) const;

  void SelectWholeRow(long row);
  /// Gives the selection the colours of the current row, so that a red one never stays on a request that is not cancelled.
  void ApplySelectionColor();
  /// Shows the cancelled requests in red.
  void MarkCancelledRequests();
  /// Sorts the requests on the column: as numbers where the current row has one there, else as text. The current request stays
  /// current.
  void Sort(long column, bool ascending);

 private:
  controls::FlexGrid& flexMaster_;
};

}  // namespace goods
