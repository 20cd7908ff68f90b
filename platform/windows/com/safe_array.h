#pragma once

#include "base/late/value.h"
#include "platform/windows/com/variant.h"

namespace windows {

/// A one- or two-dimensional automation array of elements of `type`; lower bounds are dropped. Error 13 for more dimensions.
late::ArrayPtr FromSafeArray(SAFEARRAY& array, VARTYPE type);
/// A new array with lower bounds 0 and elements of `type`, each converted as the runtime does; the caller destroys it.
SAFEARRAY* ToSafeArray(const late::Array& array, VARTYPE type);

/// One element of an array, in variant.cpp with the other places where values lie.
late::Value FromElement(unsigned short type, const void* place);
void WriteElement(unsigned short type, void* place, const late::Value& value);

}  // namespace windows
