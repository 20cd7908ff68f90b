#include "platform/windows/com/safe_array.h"

#include <memory>
#include <new>

#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"

namespace windows {
namespace {

struct Destroyer {
  void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};

/// Locks an array's elements for direct access.
class Elements {
 public:
  explicit Elements(SAFEARRAY& array) : array_(array), size_(SafeArrayGetElemsize(&array)) {
    void* first = nullptr;
    Check(SafeArrayAccessData(&array_, &first));
    first_ = static_cast<BYTE*>(first);
  }
  Elements(const Elements&) = delete;
  Elements& operator=(const Elements&) = delete;
  ~Elements() { SafeArrayUnaccessData(&array_); }

  BYTE* operator[](std::size_t index) const { return first_ + index * size_; }

 private:
  SAFEARRAY& array_;
  std::size_t size_;
  BYTE* first_ = nullptr;
};

std::size_t Extent(SAFEARRAY& array, UINT dimension) {
  LONG lower = 0;
  LONG upper = 0;
  Check(SafeArrayGetLBound(&array, dimension, &lower));
  Check(SafeArrayGetUBound(&array, dimension, &upper));
  return upper < lower ? 0 : static_cast<std::size_t>(upper - lower) + 1;
}

}  // namespace

late::ArrayPtr FromSafeArray(SAFEARRAY& array, VARTYPE type) {
  const UINT dimensions = SafeArrayGetDim(&array);
  if (dimensions < 1 || dimensions > 2) vb::Raise(vb::kTypeMismatch);
  const std::size_t rows = Extent(array, 1);
  const std::size_t columns = dimensions == 2 ? Extent(array, 2) : 1;
  late::ArrayPtr made = late::Array::Table(rows, columns);
  made->dimensions = static_cast<int>(dimensions);
  const Elements elements(array);
  for (std::size_t i = 0; i < made->items.size(); ++i) made->items[i] = FromElement(type, elements[i]);
  return made;
}

SAFEARRAY* ToSafeArray(const late::Array& array, VARTYPE type) {
  // Bounds are given from the first dimension on; the system keeps the elements with the first index running fastest.
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(array.rows), 0}, {static_cast<ULONG>(array.columns), 0}};
  std::unique_ptr<SAFEARRAY, Destroyer> unfinished(SafeArrayCreate(type, static_cast<UINT>(array.dimensions), bounds));
  if (!unfinished) throw std::bad_alloc();
  {
    const Elements elements(*unfinished);
    for (std::size_t i = 0; i < array.items.size(); ++i) WriteElement(type, elements[i], array.items[i]);
  }
  return unfinished.release();
}

}  // namespace windows
