#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "base/late/value.h"
#include "platform/windows/com/variant.h"

namespace windows {

/// The arguments of one call into a COM object. By-reference ones are passed as a place of the type their value has now, as a
/// compiled late-bound caller would; the usual few need no allocation.
class OutgoingArguments {
 public:
  explicit OutgoingArguments(std::span<late::Value> arguments);

  /// With `put`, the last argument is the value put.
  DISPPARAMS* Parameters(bool put);
  /// Hands what the callee wrote to the by-reference arguments.
  void WriteBack();

 private:
  struct Slot {
    Variant passed;  ///< what the callee sees
    Variant place;   ///< what a by-reference one points to
  };

  Slot& SlotOf(std::size_t index) { return many_.empty() ? few_[index] : many_[index]; }

  std::span<late::Value> arguments_;
  std::array<Slot, 4> few_;
  std::vector<Slot> many_;
  std::array<VARIANTARG, 4> fewPassed_{};
  std::vector<VARIANTARG> manyPassed_;
  DISPID valuePut_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
};

}  // namespace windows
