#include "platform/windows/com/value_enumerator.h"

#include <algorithm>

#include "platform/windows/com/com_error.h"
#include "platform/windows/com/variant.h"

namespace windows {

ValueEnumerator::ValueEnumerator(late::ObjectPtr collection) : collection_(std::move(collection)) {
  count_ = collection_->Get("Count").ToInt32();
  if (count_ == 0) return;
  try {
    collection_->Get("Item", {late::Value(std::int32_t{0})});
  } catch (const vb::RunTimeError&) {
    first_ = 1;
  }
}

void* ValueEnumerator::Find(REFIID id) {
  return id == IID_IUnknown || id == IID_IEnumVARIANT ? static_cast<IEnumVARIANT*>(this) : nullptr;
}

HRESULT ValueEnumerator::Next(ULONG wanted, VARIANT* values, ULONG* fetched) {
  if (fetched) *fetched = 0;
  if (!values) return E_POINTER;
  ULONG done = 0;
  const HRESULT result = Guard("", IID_IEnumVARIANT, [&] {
    for (; done < wanted && next_ < count_; ++done, ++next_) {
      VariantInit(&values[done]);
      ToVariant(collection_->Get("Item", {late::Value(first_ + next_)}), values[done]);
    }
  });
  if (fetched) *fetched = done;
  if (FAILED(result)) return result;
  return done == wanted ? S_OK : S_FALSE;
}

HRESULT ValueEnumerator::Skip(ULONG count) {
  const auto left = static_cast<ULONG>(count_ - next_);
  next_ += static_cast<std::int32_t>(std::min(count, left));
  return count <= left ? S_OK : S_FALSE;
}

HRESULT ValueEnumerator::Reset() {
  next_ = 0;
  return S_OK;
}

HRESULT ValueEnumerator::Clone(IEnumVARIANT** copy) {
  if (!copy) return E_POINTER;
  *copy = nullptr;
  return Guard("", IID_IEnumVARIANT, [&] {
    auto made = MakeCom<ValueEnumerator>(collection_);
    made->next_ = next_;
    *copy = made.Detach();
  });
}

}  // namespace windows
