#include "platform/windows/com/variant.h"

#include <gtest/gtest.h>

#include "base/late/object.h"
#include "base/vb/error.h"

using late::Value;
using windows::Bstr;
using windows::FromVariant;
using windows::Variant;

namespace {

Value ThereAndBack(const Value& value, VARTYPE type) {
  Variant there(value);
  EXPECT_EQ(there.Get().vt, type);
  return there.Value();
}

long NumberRaised(const auto& work) {
  try {
    work();
  } catch (const vb::RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace

TEST(Variant, EveryKindOfValueComesBackAsItself) {
  EXPECT_TRUE(ThereAndBack(Value(), VT_EMPTY).IsEmpty());
  EXPECT_TRUE(ThereAndBack(late::Null{}, VT_NULL).IsNull());
  EXPECT_TRUE(ThereAndBack(late::Missing{}, VT_ERROR).IsMissing());
  EXPECT_EQ(*ThereAndBack(true, VT_BOOL).If<bool>(), true);
  EXPECT_EQ(*ThereAndBack(std::int16_t{-5}, VT_I2).If<std::int16_t>(), -5);
  EXPECT_EQ(*ThereAndBack(std::int32_t{70000}, VT_I4).If<std::int32_t>(), 70000);
  EXPECT_EQ(*ThereAndBack(0.1, VT_R8).If<double>(), 0.1);
  EXPECT_EQ(ThereAndBack(late::Currency{-12345}, VT_CY).If<late::Currency>()->units, -12345);
  EXPECT_EQ(*ThereAndBack(vb::MakeDate(2024, 3, 15, 13, 45), VT_DATE).If<vb::Date>(), vb::MakeDate(2024, 3, 15, 13, 45));
  EXPECT_EQ(*ThereAndBack("B\xC3\xBC"
                          "cher \xF0\x9F\x8D\x9E",
                          VT_BSTR)
                 .If<std::string>(),
            "B\xC3\xBC"
            "cher \xF0\x9F\x8D\x9E");
  EXPECT_EQ(*ThereAndBack(std::string("a\0b", 3), VT_BSTR).If<std::string>(), std::string("a\0b", 3));
  EXPECT_EQ(*ThereAndBack(late::ObjectPtr(), VT_DISPATCH).If<late::ObjectPtr>(), nullptr);
}

TEST(Variant, DecimalsKeepEveryDigitAndTheirScale) {
  for (const vb::Decimal number : {vb::Decimal{0, 3}, vb::Decimal{-2500, 3}, vb::Decimal{999999999999999999, 18},
                                   vb::Decimal{std::numeric_limits<std::int64_t>::min(), 0}}) {
    const Value back = ThereAndBack(number, VT_DECIMAL);
    EXPECT_EQ(back.If<vb::Decimal>()->units, number.units);
    EXPECT_EQ(back.If<vb::Decimal>()->scale, number.scale);
  }
  VARIANT large{};
  large.decVal.Hi32 = 1;  // 2^64
  large.vt = VT_DECIMAL;
  EXPECT_EQ(*FromVariant(large).If<double>(), 18446744073709551616.0);
}

TEST(Variant, OtherServersTypesBecomeTheNearestOfOurs) {
  VARIANT variant{};
  variant.vt = VT_UI1;
  variant.bVal = 200;
  EXPECT_EQ(*FromVariant(variant).If<std::int16_t>(), 200);
  variant.vt = VT_I8;
  variant.llVal = 5;
  EXPECT_EQ(*FromVariant(variant).If<std::int32_t>(), 5);
  variant.llVal = 5'000'000'000;
  EXPECT_EQ(*FromVariant(variant).If<double>(), 5e9);
  variant.vt = VT_R4;
  variant.fltVal = 0.5f;
  EXPECT_EQ(*FromVariant(variant).If<double>(), 0.5);
  variant.vt = VT_BSTR;
  variant.bstrVal = nullptr;
  EXPECT_EQ(*FromVariant(variant).If<std::string>(), "");
  variant.vt = VT_ERROR;
  variant.scode = E_FAIL;
  EXPECT_EQ(NumberRaised([&] { FromVariant(variant); }), vb::kTypeMismatch);
}

TEST(Variant, ATableKeepsFieldsAndRecordsApart) {
  const late::ArrayPtr table = late::Array::Table(2, 3);
  for (std::size_t record = 0; record < 3; ++record) {
    table->At(0, record) = static_cast<std::int32_t>(record);
    table->At(1, record) = "name " + std::to_string(record);
  }
  Variant there{Value(table)};
  ASSERT_EQ(there.Get().vt, VT_ARRAY | VT_VARIANT);
  // A client addresses it as (field, record).
  LONG place[2] = {1, 2};
  VARIANT cell{};
  ASSERT_EQ(SafeArrayGetElement(there.Get().parray, place, &cell), S_OK);
  EXPECT_EQ(*FromVariant(cell).If<std::string>(), "name 2");
  VariantClear(&cell);
  const late::ArrayPtr back = there.Value().ToArray();
  EXPECT_EQ(back->dimensions, 2);
  EXPECT_EQ(back->rows, 2u);
  EXPECT_EQ(back->columns, 3u);
  EXPECT_EQ(back->At(0, 2).ToInt32(), 2);
  EXPECT_EQ(late::Array::List({})->items.size(), Variant(Value(late::Array::List({}))).Value().ToArray()->items.size());
}

TEST(Variant, ArraysOfOtherTypesAreReadWhateverTheirLowerBound) {
  SAFEARRAYBOUND bound{2, 5};
  SAFEARRAY* bytes = SafeArrayCreate(VT_UI1, 1, &bound);
  LONG index = 6;
  BYTE element = 7;
  SafeArrayPutElement(bytes, &index, &element);
  VARIANT variant{};
  variant.vt = VT_ARRAY | VT_UI1;
  variant.parray = bytes;
  const late::ArrayPtr read = FromVariant(variant).ToArray();
  VariantClear(&variant);
  ASSERT_EQ(read->items.size(), 2u);
  EXPECT_EQ(read->items[1].ToInt32(), 7);

  SAFEARRAYBOUND bounds[3] = {{1, 0}, {1, 0}, {1, 0}};
  variant.vt = VT_ARRAY | VT_I4;
  variant.parray = SafeArrayCreate(VT_I4, 3, bounds);
  EXPECT_EQ(NumberRaised([&] { FromVariant(variant); }), vb::kTypeMismatch);
  VariantClear(&variant);
}

TEST(WriteThrough, ThePlaceKeepsItsTypeAndFreesWhatItHad) {
  std::int16_t number = 13;
  VARIANT reference{};
  reference.vt = VT_BYREF | VT_I2;
  reference.piVal = &number;
  windows::WriteThrough(reference, "0");
  EXPECT_EQ(number, 0);
  EXPECT_EQ(NumberRaised([&] { windows::WriteThrough(reference, 40000.0); }), vb::kOverflow);
  EXPECT_EQ(NumberRaised([&] { windows::WriteThrough(reference, late::Null{}); }), vb::kInvalidUseOfNull);
  EXPECT_EQ(number, 0);

  BSTR text = SysAllocString(L"old");
  reference.vt = VT_BYREF | VT_BSTR;
  reference.pbstrVal = &text;
  windows::WriteThrough(reference, std::int32_t{25});
  EXPECT_STREQ(text, L"25");
  SysFreeString(text);

  VARIANT inner{};
  inner.vt = VT_BSTR;
  inner.bstrVal = SysAllocString(L"old");
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &inner;
  windows::WriteThrough(reference, vb::Decimal{2500, 3});
  EXPECT_EQ(inner.vt, VT_DECIMAL);
  EXPECT_EQ(FromVariant(reference).ToText(), "2.5");

  BYTE small = 1;
  reference.vt = VT_BYREF | VT_UI1;
  reference.pbVal = &small;
  windows::WriteThrough(reference, std::int32_t{200});
  EXPECT_EQ(small, 200);
  EXPECT_EQ(NumberRaised([&] { windows::WriteThrough(reference, std::int32_t{300}); }), vb::kOverflow);
}
