#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/ado/recordset.h"
#include "base/late/object.h"

namespace itementry_test {

/// What the recording lookups of one test share: what they were told, and what their user does.
struct LookupDiary {
  std::vector<std::string> told;  ///< "member=value" in the order of the calls; arrays as their items with commas
  ado::Recordset handed;          ///< the recordset of the last hand-over
  bool cancelled = true;
  std::function<void()> onShow;              ///< what the user does while the lookup shows
  std::function<void(late::Value&)> onTake;  ///< what the lookup does with the by-reference recordset
};

/// A stand-in of the suite's item lookup that writes down what it is told.
class RecordingLookup : public late::Object {
 public:
  explicit RecordingLookup(std::shared_ptr<LookupDiary> diary) : diary_(std::move(diary)) {}

  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override;
  bool Has(std::string_view) const override { return true; }
  std::string TypeName() const override { return "clsFetch"; }

 private:
  std::shared_ptr<LookupDiary> diary_;
};

/// Puts the recording lookup in the place of the shop's own.
std::shared_ptr<LookupDiary> InstallRecordingLookup(late::ClassRegistry& registry);

}  // namespace itementry_test
