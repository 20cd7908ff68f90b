#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "src/records/request.h"

namespace goods {

/// The last changes of a request's lines, so that they can be taken back one after the other: at most eight.
class LineHistory {
 public:
  using Lines = std::vector<RequestLine>;

  /// Forgets every change; the lines are these now.
  void Start(Lines lines);
  /// The lines were changed to these by the user: a change that can be taken back. The same lines again are none.
  void NoteChange(Lines lines);
  /// The lines were changed to these by something that cannot be taken back here. Earlier changes still can: what came between
  /// then stays.
  void NoteOther(Lines lines) { lines_ = std::move(lines); }

  struct TakenBack {
    Lines lines;       ///< what the lines are to be
    std::string told;  ///< what was taken back, "Taken out again: POT Cooking pot, 2.500"
  };
  /// Nothing when there is no change left.
  std::optional<TakenBack> TakeBack();

 private:
  struct Change {
    Lines before, after;
  };

  Lines lines_;
  std::deque<Change> changes_;
};

}  // namespace goods
