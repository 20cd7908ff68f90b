#pragma once

#include "base/late/object.h"
#include "platform/windows/com/com_object.h"

namespace windows {

/// Walks a collection for For Each: a late-bound object with Count and Item. Items count from 0 or from 1; which, the collection
/// itself says by refusing item 0.
class ValueEnumerator final : public ComObject<ValueEnumerator, IEnumVARIANT> {
 public:
  explicit ValueEnumerator(late::ObjectPtr collection);

  void* Find(REFIID id);

  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* values, ULONG* fetched) override;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  HRESULT STDMETHODCALLTYPE Reset() override;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override;

 private:
  late::ObjectPtr collection_;
  std::int32_t first_ = 0;
  std::int32_t count_ = 0;
  std::int32_t next_ = 0;
};

}  // namespace windows
