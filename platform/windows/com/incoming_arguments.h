#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "base/late/value.h"
#include "platform/windows/com/variant.h"

namespace windows {

/// The arguments of one call from a COM client, in the order in which they are written.
class IncomingArguments {
 public:
  /// With `put`, the last one is the value put, which is never written back.
  IncomingArguments(const DISPPARAMS& parameters, bool put);

  std::span<late::Value> All() { return many_.empty() ? std::span(few_).first(count_) : std::span(many_); }
  /// Hands what the callee wrote to the caller's places, in the types those have. Untouched ones are left alone.
  void WriteBack();

 private:
  /// A by-reference argument: where it came from, what it was, what it is now.
  struct Referred {
    const VARIANTARG* reference = nullptr;
    late::Value value;
  };

  std::size_t count_;
  std::array<late::Value, 4> few_;
  std::vector<late::Value> many_;
  std::vector<Referred> referred_;
};

}  // namespace windows
