#include "suite/engine/objects/error_list.h"

#include "base/ado/constants.h"

namespace suite {

const late::MemberTable<ErrorList>& ErrorList::Members() {
  using Arguments = late::Arguments;
  using Value = late::Value;
  const auto item = [](ErrorList& self, Arguments& arguments) -> Value {
    const std::int32_t index = arguments[0].ToInt32();
    if (index < 0 || static_cast<std::size_t>(index) >= self.errors_.size()) RaiseAdo(ado::kItemNotFound, "ADODB.Errors");
    return std::make_shared<ErrorItem>(self.errors_[static_cast<std::size_t>(index)]);
  };
  static const late::MemberTable<ErrorList> table = {
      {"", item, nullptr, 1, 1},
      {"Item", item, nullptr, 1, 1},
      {"Count", [](ErrorList& self, Arguments&) -> Value { return static_cast<std::int32_t>(self.errors_.size()); }, nullptr},
      {"Clear", [](ErrorList& self, Arguments&) -> Value { return self.errors_.clear(), Value(); }, nullptr},
  };
  return table;
}

const late::MemberTable<ErrorItem>& ErrorItem::Members() {
  using Arguments = late::Arguments;
  using Value = late::Value;
  const auto description = [](ErrorItem& self, Arguments&) -> Value { return self.error_.Description(); };
  static const late::MemberTable<ErrorItem> table = {
      {"", description, nullptr},
      {"Description", description, nullptr},
      {"Number", [](ErrorItem& self, Arguments&) -> Value { return static_cast<std::int32_t>(self.error_.Number()); }, nullptr},
      {"NativeError", [](ErrorItem& self, Arguments&) -> Value { return std::int32_t{self.error_.NativeError()}; }, nullptr},
      {"SQLState", [](ErrorItem& self, Arguments&) -> Value { return self.error_.SqlState(); }, nullptr},
      {"Source", [](ErrorItem& self, Arguments&) -> Value { return self.error_.Source(); }, nullptr},
  };
  return table;
}

}  // namespace suite
