#pragma once

#include <string>

#include "base/controls/text_box.h"

namespace goods {

/// How a search box tells that nothing begins with its text: the text turns red, and the system's alarm sounds once a text.
class SearchAnswer {
 public:
  /// The box outlives this.
  explicit SearchAnswer(controls::TextBox& box) : box_(box) {}

  void Tell(bool found);
  /// The box is as it was designed: its form was loaded again.
  void Forget();

 private:
  controls::TextBox& box_;
  controls::Color ownColor_ = controls::kWindowText;
  std::string missed_;  // the text that nothing begins with
};

}  // namespace goods
