#include "platform/windows/com/outgoing_arguments.h"

namespace windows {
namespace {

/// Points `passed` at the value inside `place`, whatever its type.
void Refer(VARIANT& passed, VARIANT& place) {
  switch (place.vt) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR:
      passed.pvarVal = &place;
      passed.vt = VT_BYREF | VT_VARIANT;
      return;
    case VT_DECIMAL:
      passed.pdecVal = &place.decVal;
      break;
    default:
      passed.byref = &place.byref;
      break;
  }
  passed.vt = static_cast<VARTYPE>(place.vt | VT_BYREF);
}

}  // namespace

OutgoingArguments::OutgoingArguments(std::span<late::Value> arguments) : arguments_(arguments) {
  const std::size_t count = arguments.size();
  if (count > few_.size()) {
    many_ = std::vector<Slot>(count);
    manyPassed_.resize(count);
  }
  VARIANTARG* passed = many_.empty() ? fewPassed_.data() : manyPassed_.data();
  for (std::size_t i = 0; i < count; ++i) {
    Slot& slot = SlotOf(i);
    if (arguments[i].IsByRef()) {
      ToVariant(arguments[i], slot.place.Get());
      Refer(slot.passed.Get(), slot.place.Get());
    } else {
      ToVariant(arguments[i], slot.passed.Get());
    }
    passed[count - 1 - i] = slot.passed.Get();  // automation wants them in reverse; the slot keeps the ownership
  }
  parameters_.rgvarg = passed;
  parameters_.cArgs = static_cast<UINT>(count);
}

DISPPARAMS* OutgoingArguments::Parameters(bool put) {
  if (put) {
    parameters_.rgdispidNamedArgs = &valuePut_;
    parameters_.cNamedArgs = 1;
  }
  return &parameters_;
}

void OutgoingArguments::WriteBack() {
  for (std::size_t i = 0; i < arguments_.size(); ++i) {
    if (arguments_[i].IsByRef()) arguments_[i].Deref() = SlotOf(i).place.Value();
  }
}

}  // namespace windows
