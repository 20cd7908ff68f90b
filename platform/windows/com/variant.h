#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "base/late/value.h"
#include "platform/windows/windows_gate.h"

namespace windows {

/// Owns a BSTR.
class Bstr {
 public:
  explicit Bstr(BSTR text) : text_(text) {}
  explicit Bstr(std::string_view text);
  explicit Bstr(std::wstring_view text);
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text_); }

  BSTR Get() const { return text_; }
  BSTR Detach() { return std::exchange(text_, nullptr); }
  /// As UTF-8; a null BSTR is the empty text.
  std::string Text() const;

 private:
  BSTR text_ = nullptr;
};

/// Owns a VARIANT.
class Variant {
 public:
  Variant() { VariantInit(&variant_); }
  explicit Variant(const late::Value& value);
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&variant_); }

  VARIANT& Get() { return variant_; }
  VARIANT Detach() { return std::exchange(variant_, VARIANT{}); }
  late::Value Value() const;

 private:
  VARIANT variant_{};
};

/// The value of a VARIANT of any automation type, references looked through; an object comes as a late-bound one, one of this
/// module's own as itself. Error 13 for a type that automation does not know, arrays of more than two dimensions and error
/// values other than the left-out argument, 430 for an object without IDispatch.
late::Value FromVariant(const VARIANT& variant);

/// Fills an empty VARIANT, which the caller clears; references are looked through.
void ToVariant(const late::Value& value, VARIANT& variant);

/// Puts a value where a by-reference VARIANT points, in the type that the place has; the old text, object or array is freed.
/// Conversion errors as the runtime's (6, 13, 94); the place is then unchanged.
void WriteThrough(const VARIANT& reference, const late::Value& value);

}  // namespace windows
