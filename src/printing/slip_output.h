#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/workstation/workstation.h"

namespace goods {

/// The file or port that a slip is written to, line by line with CR LF.
class SlipOutput {
 public:
  explicit SlipOutput(std::unique_ptr<workstation::OutputFile> file) : file_(std::move(file)) {}

  void Line(std::string_view text) {
    file_->Write(pageBreak_ ? "\f" + std::string(text) + "\r\n" : std::string(text) + "\r\n");
    pageBreak_ = false;
  }
  /// The next line begins a new page of the printer.
  void BreakPage() { pageBreak_ = true; }
  void Close() { file_->Close(); }

 private:
  std::unique_ptr<workstation::OutputFile> file_;
  bool pageBreak_ = false;
};

}  // namespace goods
