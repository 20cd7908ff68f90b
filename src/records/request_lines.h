#pragma once

#include <string>
#include <vector>

#include "base/controls/list_view.h"
#include "src/records/request.h"

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

/// A quantity as the item list keeps it: three decimals.
std::string QuantityText(double quantity);

/// The lines in the editor's item list, which alone keeps them: this is a face, as cheap to copy as a reference. Lines count from
/// 1; a line that is not there is error 35600.
class RequestLines {
 public:
  /// `lvwrequest` outlives this object.
  explicit RequestLines(controls::ListView& lvwrequest) : list_(lvwrequest) {}

  int Count() const { return list_.Count(); }
  RequestLine At(int line) const;
  std::vector<RequestLine> All() const;
  /// The first line of the item; 0 for none.
  int LineOf(std::int32_t itemId) const;
  /// Error 6 where the list's text is no id.
  std::int32_t ItemId(int line) const;
  /// In base units; 0 where the list's text begins with no number.
  double Quantity(int line) const;
  /// Whether a line asks for more than 0.
  bool HasQuantity() const;

  /// Appends a line under the next number.
  void Append(const RequestLine& line);
  void Change(int line, const RequestLine& to);
  void SetQuantity(int line, double quantity);
  /// The numbers of the lines below stay as they were until Renumber().
  void Remove(int line);
  /// Numbers the lines 1, 2, 3 ... again.
  void Renumber();

  /// Makes the list these lines, numbered. What stays in it keeps its selection and colours.
  void Become(const std::vector<RequestLine>& lines);

  /// 0 for none.
  int Selected() const { return list_.SelectedItem(); }
  /// Selects a line and brings it into view.
  void GoTo(int line);

  /// The mark that makes the editor offer to save.
  void MarkChanged(bool changed = true);
  bool IsChanged() const;

  /// For helper components, which take the control itself.
  controls::ListView& List() const { return list_; }

 private:
  controls::ListView& list_;
};

}  // namespace goods
