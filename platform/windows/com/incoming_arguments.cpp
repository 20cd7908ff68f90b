#include "platform/windows/com/incoming_arguments.h"

#include <type_traits>

namespace windows {
namespace {

/// Whether the two are the same value of the same type; arrays and objects by identity.
bool Same(const late::Value& left, const late::Value& right) {
  if (left.Alternatives().index() != right.Alternatives().index()) return false;
  return std::visit(
      [&](const auto& value) {
        using T = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<T, late::Currency>) {
          return value.units == right.If<T>()->units;
        } else if constexpr (std::is_same_v<T, vb::Decimal>) {
          return value.units == right.If<T>()->units && value.scale == right.If<T>()->scale;
        } else if constexpr (std::is_empty_v<T>) {
          return true;
        } else {
          return value == *right.If<T>();
        }
      },
      left.Alternatives());
}

}  // namespace

IncomingArguments::IncomingArguments(const DISPPARAMS& parameters, bool put) : count_(parameters.cArgs) {
  if (count_ > few_.size()) many_.resize(count_);
  const std::span<late::Value> values = All();
  for (std::size_t i = 0; i < count_; ++i) {
    const VARIANTARG& passed = parameters.rgvarg[count_ - 1 - i];
    values[i] = FromVariant(passed);
    if ((passed.vt & VT_BYREF) && !(put && i + 1 == count_)) {
      if (referred_.empty()) referred_.reserve(count_);  // places must not move once they are referred to
      referred_.push_back({&passed, values[i]});
      values[i] = late::Value::ByRef(referred_.back().value);
    }
  }
}

void IncomingArguments::WriteBack() {
  for (const Referred& argument : referred_) {
    if (!Same(argument.value, FromVariant(*argument.reference))) WriteThrough(*argument.reference, argument.value);
  }
}

}  // namespace windows
