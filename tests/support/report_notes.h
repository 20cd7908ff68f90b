#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/late/object.h"

namespace support {

/// A report server, or an object of its own, that notes every call and every property put, with the way from the report to it:
/// "ParameterFields.Item(1).SetCurrentValue|5", "PrintWindowOptions.HasZoomControl=True". What it returns notes too.
class ReportNotes : public late::Object {
 public:
  using Calls = std::shared_ptr<std::vector<std::string>>;
  explicit ReportNotes(Calls calls, std::string way = {}) : calls_(std::move(calls)), way_(std::move(way)) {}

  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override {
    std::string call = way_ + std::string(member);
    if (access == late::Access::Get) {
      if (!arguments.empty()) call += "(" + arguments[0].TextOrEmpty() + ")";
      return late::ObjectPtr(std::make_shared<ReportNotes>(calls_, call + "."));
    }
    for (const late::Value& argument : arguments) call += (access == late::Access::Call ? "|" : "=") + argument.TextOrEmpty();
    calls_->push_back(call);
    return member == "OpenReport" ? late::Value(late::ObjectPtr(std::make_shared<ReportNotes>(calls_))) : late::Value();
  }
  bool Has(std::string_view) const override { return true; }
  std::string TypeName() const override { return "ReportNotes"; }

 private:
  Calls calls_;
  std::string way_;
};

}  // namespace support
