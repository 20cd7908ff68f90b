#include "platform/windows/com/variant.h"

#include <limits>
#include <new>
#include <type_traits>

#include "base/late/object.h"
#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/com/safe_array.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

constexpr int kCurrencyScale = 4;
constexpr int kGreatestScale = 18;

BSTR Allocate(std::wstring_view text) {
  const BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (!made) throw std::bad_alloc();
  return made;
}

/// Exactly where it fits the runtime's decimal, else the nearest double.
late::Value FromDecimal(const DECIMAL& decimal) {
  std::uint64_t units = decimal.Lo64;
  int scale = decimal.scale;
  while (scale > kGreatestScale && units % 10 == 0 && decimal.Hi32 == 0) {
    units /= 10;
    --scale;
  }
  const bool negative = decimal.sign & DECIMAL_NEG;
  // The least number has no positive counterpart; unsigned negation holds for it, too.
  const std::uint64_t greatest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
  if (decimal.Hi32 == 0 && scale <= kGreatestScale && units <= greatest) {
    return vb::Decimal{static_cast<std::int64_t>(negative ? 0 - units : units), scale};
  }
  double nearest = 0;
  Check(VarR8FromDec(const_cast<DECIMAL*>(&decimal), &nearest));
  return nearest;
}

DECIMAL ToDecimal(const vb::Decimal& decimal) {
  DECIMAL made{};
  made.sign = static_cast<BYTE>(decimal.units < 0 ? DECIMAL_NEG : 0);
  made.scale = static_cast<BYTE>(decimal.scale);
  // Unsigned negation holds for the least number, too.
  made.Lo64 = decimal.units < 0 ? 0 - static_cast<std::uint64_t>(decimal.units) : static_cast<std::uint64_t>(decimal.units);
  return made;
}

DECIMAL DecimalOf(const late::Value& value) {
  if (const auto* decimal = value.If<vb::Decimal>()) return ToDecimal(*decimal);
  if (const auto* currency = value.If<late::Currency>()) return ToDecimal({currency->units, kCurrencyScale});
  DECIMAL made{};
  Check(VarDecFromR8(value.ToDouble(), &made));
  return made;
}

CY CurrencyOf(const late::Value& value) {
  CY made{};
  if (const auto* currency = value.If<late::Currency>()) {
    made.int64 = currency->units;
  } else if (const auto* decimal = value.If<vb::Decimal>()) {
    DECIMAL exact = ToDecimal(*decimal);
    Check(VarCyFromDec(&exact, &made));
  } else {
    Check(VarCyFromR8(value.ToDouble(), &made));
  }
  return made;
}

late::Value FromError(SCODE code) {
  if (code == DISP_E_PARAMNOTFOUND) return late::Missing{};
  vb::Raise(vb::kTypeMismatch);
}

/// One scalar of type `type`, from a VARIANT, a reference or an array.
late::Value FromPlace(VARTYPE type, const void* place) {
  const auto at = [place]<class T>(std::type_identity<T>) { return *static_cast<const T*>(place); };
  switch (type) {
    case VT_I1:
      return static_cast<std::int16_t>(at(std::type_identity<signed char>{}));
    case VT_UI1:
      return static_cast<std::int16_t>(at(std::type_identity<BYTE>{}));
    case VT_I2:
      return at(std::type_identity<std::int16_t>{});
    case VT_UI2:
      return static_cast<std::int32_t>(at(std::type_identity<std::uint16_t>{}));
    case VT_INT:
    case VT_I4:
      return at(std::type_identity<std::int32_t>{});
    case VT_UINT:
    case VT_UI4:
      return static_cast<std::int64_t>(at(std::type_identity<std::uint32_t>{}));
    case VT_I8:
      return at(std::type_identity<std::int64_t>{});
    case VT_UI8: {
      const auto number = at(std::type_identity<std::uint64_t>{});
      if (number > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) return static_cast<double>(number);
      return static_cast<std::int64_t>(number);
    }
    case VT_R4:
      return static_cast<double>(at(std::type_identity<float>{}));
    case VT_R8:
      return at(std::type_identity<double>{});
    case VT_CY:
      return late::Currency{at(std::type_identity<CY>{}).int64};
    case VT_DATE:
      return vb::Date{at(std::type_identity<double>{})};
    case VT_DECIMAL:
      return FromDecimal(*static_cast<const DECIMAL*>(place));
    case VT_BOOL:
      return at(std::type_identity<VARIANT_BOOL>{}) != VARIANT_FALSE;
    case VT_ERROR:
      return FromError(at(std::type_identity<SCODE>{}));
    case VT_BSTR: {
      const BSTR text = at(std::type_identity<BSTR>{});
      return Utf8(std::wstring_view(text, SysStringLen(text)));
    }
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return ObjectOf(at(std::type_identity<IUnknown*>{}));
    case VT_VARIANT:
      return FromVariant(*static_cast<const VARIANT*>(place));
    default:
      vb::Raise(vb::kTypeMismatch);
  }
}

/// The types a late-bound caller seldom has; the system converts from the number.
void WriteNumber(VARTYPE type, void* place, const late::Value& value) {
  VARIANT number{};
  number.vt = VT_R8;
  number.dblVal = value.ToDouble();
  VARIANT converted{};
  Check(VariantChangeType(&converted, &number, 0, type));
  switch (type) {
    case VT_I1:
    case VT_UI1:
      *static_cast<BYTE*>(place) = converted.bVal;
      break;
    case VT_UI2:
      *static_cast<USHORT*>(place) = converted.uiVal;
      break;
    case VT_INT:
    case VT_UINT:
    case VT_UI4:
      *static_cast<ULONG*>(place) = converted.ulVal;
      break;
    case VT_I8:
    case VT_UI8:
      *static_cast<ULONGLONG*>(place) = converted.ullVal;
      break;
    default:
      *static_cast<float*>(place) = converted.fltVal;
      break;
  }
}

void WriteVariant(VARIANT& place, const late::Value& value) {
  if (place.vt & VT_BYREF) return WriteThrough(place, value);
  Variant made(value);
  VariantClear(&place);
  place = made.Detach();
}

void WritePlace(VARTYPE type, void* place, const late::Value& value) {
  switch (type) {
    case VT_I2:
      *static_cast<std::int16_t*>(place) = value.ToInt16();
      break;
    case VT_I4:
      *static_cast<std::int32_t*>(place) = value.ToInt32();
      break;
    case VT_R8:
      *static_cast<double*>(place) = value.ToDouble();
      break;
    case VT_DATE:
      *static_cast<double*>(place) = value.ToDate().days;
      break;
    case VT_CY:
      *static_cast<CY*>(place) = CurrencyOf(value);
      break;
    case VT_DECIMAL:
      *static_cast<DECIMAL*>(place) = DecimalOf(value);
      break;
    case VT_BOOL:
      *static_cast<VARIANT_BOOL*>(place) = value.ToBool() ? VARIANT_TRUE : VARIANT_FALSE;
      break;
    case VT_BSTR: {
      const BSTR made = Bstr(value.ToText()).Detach();
      SysFreeString(std::exchange(*static_cast<BSTR*>(place), made));
      break;
    }
    case VT_DISPATCH:
    case VT_UNKNOWN: {
      const auto* object = value.If<late::ObjectPtr>();
      if (!object) vb::Raise(vb::kTypeMismatch);
      IDispatch* made = DispatchOf(*object).Detach();
      if (IUnknown* old = std::exchange(*static_cast<IUnknown**>(place), made)) old->Release();
      break;
    }
    case VT_VARIANT:
      WriteVariant(*static_cast<VARIANT*>(place), value);
      break;
    case VT_I1:
    case VT_UI1:
    case VT_UI2:
    case VT_INT:
    case VT_UINT:
    case VT_UI4:
    case VT_I8:
    case VT_UI8:
    case VT_R4:
      WriteNumber(type, place, value);
      break;
    default:
      vb::Raise(vb::kTypeMismatch);
  }
}

struct Filler {
  VARIANT& variant;

  void operator()(late::Empty) const {}
  void operator()(late::Null) const { variant.vt = VT_NULL; }
  void operator()(late::Missing) const {
    variant.vt = VT_ERROR;
    variant.scode = DISP_E_PARAMNOTFOUND;
  }
  void operator()(bool flag) const {
    variant.vt = VT_BOOL;
    variant.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(std::int16_t number) const {
    variant.vt = VT_I2;
    variant.iVal = number;
  }
  void operator()(std::int32_t number) const {
    variant.vt = VT_I4;
    variant.lVal = number;
  }
  void operator()(double number) const {
    variant.vt = VT_R8;
    variant.dblVal = number;
  }
  void operator()(late::Currency amount) const {
    variant.vt = VT_CY;
    variant.cyVal.int64 = amount.units;
  }
  void operator()(const vb::Decimal& number) const {
    variant.decVal = ToDecimal(number);
    variant.vt = VT_DECIMAL;  // shares the decimal's reserved word, so it is set last
  }
  void operator()(vb::Date date) const {
    variant.vt = VT_DATE;
    variant.date = date.days;
  }
  void operator()(const std::string& text) const {
    variant.bstrVal = Bstr(text).Detach();
    variant.vt = VT_BSTR;
  }
  void operator()(const late::ObjectPtr& object) const {
    variant.pdispVal = DispatchOf(object).Detach();
    variant.vt = VT_DISPATCH;
  }
  void operator()(const late::ArrayPtr& array) const {
    if (!array) vb::Raise(vb::kTypeMismatch);
    variant.parray = ToSafeArray(*array, VT_VARIANT);
    variant.vt = VT_ARRAY | VT_VARIANT;
  }
  void operator()(late::Value* target) const { std::visit(*this, target->Alternatives()); }
};

}  // namespace

Bstr::Bstr(std::string_view text) : text_(Allocate(Wide(text))) {}
Bstr::Bstr(std::wstring_view text) : text_(Allocate(text)) {}

std::string Bstr::Text() const {
  return Utf8(std::wstring_view(text_, SysStringLen(text_)));
}

Variant::Variant(const late::Value& value) {
  ToVariant(value, variant_);
}

late::Value Variant::Value() const {
  return FromVariant(variant_);
}

late::Value FromVariant(const VARIANT& variant) {
  const auto type = static_cast<VARTYPE>(variant.vt & VT_TYPEMASK);
  const bool byReference = variant.vt & VT_BYREF;
  if (variant.vt & VT_ARRAY) {
    SAFEARRAY* array = byReference ? (variant.pparray ? *variant.pparray : nullptr) : variant.parray;
    return array ? late::Value(FromSafeArray(*array, type)) : late::Value();
  }
  if (type == VT_EMPTY) return {};
  if (type == VT_NULL) return late::Null{};
  if (byReference) return variant.byref ? FromPlace(type, variant.byref) : late::Value();
  // A decimal fills the whole VARIANT; every other type is at the value's offset.
  return FromPlace(type, type == VT_DECIMAL ? static_cast<const void*>(&variant.decVal) : &variant.byref);
}

late::Value FromElement(unsigned short type, const void* place) {
  return FromPlace(type, place);
}

void WriteElement(unsigned short type, void* place, const late::Value& value) {
  WritePlace(type, place, value);
}

void ToVariant(const late::Value& value, VARIANT& variant) {
  std::visit(Filler{variant}, value.Alternatives());
}

void WriteThrough(const VARIANT& reference, const late::Value& value) {
  if (!(reference.vt & VT_BYREF) || !reference.byref) return;
  const auto type = static_cast<VARTYPE>(reference.vt & VT_TYPEMASK);
  if (!(reference.vt & VT_ARRAY)) return WritePlace(type, reference.byref, value);
  SAFEARRAY* made = ToSafeArray(*value.ToArray(), type);
  if (SAFEARRAY* old = std::exchange(*reference.pparray, made)) SafeArrayDestroy(old);
}

}  // namespace windows
