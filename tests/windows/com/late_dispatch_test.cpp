#include "platform/windows/com/late_dispatch.h"

#include <gtest/gtest.h>

#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"
#include "tests/windows/com/shelf.h"
#include "tests/windows/com/witness.h"

using late::Value;
using windows::Bstr;
using windows::ComPtr;
using windows::DispatchOf;
using windows::FromVariant;

namespace {

/// A COM client of one of our objects.
class OwnObject : public testing::Test {
 protected:
  DISPID Id(const wchar_t* name) {
    auto* asked = const_cast<wchar_t*>(name);
    DISPID id = 0;
    found = dispatch->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }

  /// Arguments in the order written; the value put last.
  HRESULT Invoke(const wchar_t* name, WORD flags, std::vector<VARIANT> arguments = {}) {
    std::reverse(arguments.begin(), arguments.end());
    DISPID valuePut = DISPID_PROPERTYPUT;
    const bool put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    DISPPARAMS parameters{arguments.data(), put ? &valuePut : nullptr, static_cast<UINT>(arguments.size()), put ? 1u : 0u};
    VARIANT answer{};
    info = {};
    const DISPID id = *name ? Id(name) : DISPID_VALUE;
    const HRESULT outcome =
        dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, put ? nullptr : &answer, &info, nullptr);
    if (SUCCEEDED(outcome)) result = FromVariant(answer);
    VariantClear(&answer);
    return outcome;
  }

  static VARIANT Long(LONG number) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
  }

  std::shared_ptr<Shelf> shelf = std::make_shared<Shelf>();
  ComPtr<IDispatch> dispatch = DispatchOf(shelf);
  Value result;
  EXCEPINFO info{};
  HRESULT found = S_OK;
};

constexpr WORD kRead = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

}  // namespace

TEST_F(OwnObject, IsFoundByNameInAnyLetterCase) {
  EXPECT_EQ(Id(L"Kept"), Id(L"kEPT"));
  EXPECT_EQ(found, S_OK);
  EXPECT_EQ(Id(L"Nowhere"), DISPID_UNKNOWN);
  EXPECT_EQ(found, DISP_E_UNKNOWNNAME);
}

TEST_F(OwnObject, TakesAndGivesProperties) {
  ASSERT_EQ(Invoke(L"Kept", DISPATCH_PROPERTYPUT, {Long(5)}), S_OK);
  EXPECT_EQ(shelf->kept.ToInt32(), 5);
  for (const WORD flags : {WORD{DISPATCH_PROPERTYGET}, WORD{DISPATCH_METHOD}, kRead}) {
    ASSERT_EQ(Invoke(L"Kept", flags), S_OK);
    EXPECT_EQ(result.ToInt32(), 5);
  }
  ASSERT_EQ(Invoke(L"", kRead), S_OK);
  EXPECT_EQ(result.ToInt32(), 5);
}

TEST_F(OwnObject, TakesAnObjectWithSetAndWithout) {
  const auto witness = windows::MakeCom<Witness>();
  for (const WORD flags : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF},
                           static_cast<WORD>(DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)}) {
    shelf->kept = {};
    VARIANT object{};
    object.vt = VT_DISPATCH;
    object.pdispVal = witness.Get();
    ASSERT_EQ(Invoke(L"Kept", flags, {object}), S_OK);
    EXPECT_EQ(shelf->kept.ToObject(), windows::ObjectOf(witness.Get()));
  }
}

TEST_F(OwnObject, LeftOutArgumentsAreMissingAndEmptyOnesAreThere) {
  VARIANT missing{};
  missing.vt = VT_ERROR;
  missing.scode = DISP_E_PARAMNOTFOUND;
  ASSERT_EQ(Invoke(L"Describe", kRead, {Long(1), missing, VARIANT{}, Long(4), Long(5), Long(6)}), S_OK);
  EXPECT_EQ(result.ToText(), "6 1 -  4 5 6");
}

TEST_F(OwnObject, WritesBackInTheCallersType) {
  std::int16_t key = 65;
  VARIANT typed{};
  typed.vt = VT_BYREF | VT_I2;
  typed.piVal = &key;
  shelf->kept = std::int32_t{0};
  ASSERT_EQ(Invoke(L"Change", DISPATCH_METHOD, {typed}), S_OK);
  EXPECT_EQ(key, 0);

  VARIANT place{};
  place.vt = VT_BSTR;
  place.bstrVal = SysAllocString(L"before");
  VARIANT script{};
  script.vt = VT_BYREF | VT_VARIANT;
  script.pvarVal = &place;
  shelf->kept = "after";
  ASSERT_EQ(Invoke(L"Change", DISPATCH_METHOD, {script}), S_OK);
  EXPECT_EQ(FromVariant(place).ToText(), "after");
  VariantClear(&place);

  // What does not fit the caller's place is an error of the call, and the place stays.
  shelf->kept = std::int32_t{70000};
  ASSERT_EQ(Invoke(L"Change", DISPATCH_METHOD, {typed}), DISP_E_EXCEPTION);
  EXPECT_EQ(static_cast<unsigned>(info.scode), 0x800A0006u);
  EXPECT_EQ(key, 0);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
}

TEST_F(OwnObject, FailuresOfTheCallAreTheDispatchCodes) {
  EXPECT_EQ(Invoke(L"Item", kRead), DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(Invoke(L"Item", kRead, {Long(1), Long(2)}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(Invoke(L"Count", DISPATCH_PROPERTYPUT, {Long(1)}), DISP_E_MEMBERNOTFOUND);
  DISPID name = 77;
  VARIANT argument = Long(1);
  DISPPARAMS named{&argument, &name, 1, 1};
  EXPECT_EQ(dispatch->Invoke(Id(L"Item"), IID_NULL, 0, kRead, &named, nullptr, nullptr, nullptr), DISP_E_NONAMEDARGS);
}

TEST_F(OwnObject, FailuresOfTheMemberCarryNumberSourceAndText) {
  for (const auto& [number, code] : {std::pair{3704L, 0x800A0E78u}, std::pair{static_cast<long>(0x80040E14), 0x80040E14u}}) {
    ASSERT_EQ(Invoke(L"Fail", kRead, {Long(number)}), DISP_E_EXCEPTION);
    EXPECT_EQ(static_cast<unsigned>(info.scode), code);
    EXPECT_EQ(Bstr(info.bstrSource).Text(), "Shelves");
    EXPECT_EQ(Bstr(info.bstrDescription).Text(), "Shelf is full");
  }
  // A member that is missing deeper down is not this one missing.
  ASSERT_EQ(Invoke(L"FailDeeper", kRead), DISP_E_EXCEPTION);
  EXPECT_EQ(static_cast<unsigned>(info.scode), 0x800A01B6u);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
}

TEST_F(OwnObject, IsWalkedFromItsFirstItem) {
  DISPPARAMS none{};
  VARIANT answer{};
  ASSERT_EQ(dispatch->Invoke(DISPID_NEWENUM, IID_NULL, 0, kRead, &none, &answer, nullptr, nullptr), S_OK);
  const auto walk = ComPtr<IUnknown>::Adopt(answer.punkVal).As<IEnumVARIANT>(IID_IEnumVARIANT);
  ASSERT_TRUE(walk);
  VARIANT items[5]{};
  ULONG fetched = 0;
  EXPECT_EQ(walk->Next(5, items, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 3u);
  EXPECT_EQ(FromVariant(items[0]).ToText() + FromVariant(items[2]).ToText(), "ac");
  for (VARIANT& item : items) VariantClear(&item);
}

TEST_F(OwnObject, HasOneFaceAndComesBackAsItself) {
  EXPECT_EQ(DispatchOf(shelf).Get(), dispatch.Get());
  EXPECT_EQ(windows::ObjectOf(dispatch.Get()), shelf);
  const auto named = dispatch.As<IProvideClassInfo>(IID_IProvideClassInfo);
  // Some callers ask the class for its name, others its interface.
  ComPtr<ITypeInfo> type;
  ASSERT_EQ(named->GetClassInfo(type.Receive()), S_OK);
  ComPtr<ITypeInfo> interfaceType;
  ASSERT_EQ(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, interfaceType.Receive()), S_OK);
  for (ITypeInfo* asked : {type.Get(), interfaceType.Get()}) {
    BSTR name = nullptr;
    asked->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    EXPECT_EQ(Bstr(name).Text(), "Shelf");
  }
}

TEST_F(OwnObject, MayBePartOfALargerOneThatItKeepsAlive) {
  struct Form {
    Shelf control;
  };
  auto form = std::make_shared<Form>();
  const std::weak_ptr<Form> watched = form;
  const late::ObjectPtr control(form, &form->control);
  dispatch = DispatchOf(control);
  form.reset();
  EXPECT_EQ(windows::ObjectOf(dispatch.Get()), control);
  DISPPARAMS none{};
  VARIANT walk{};
  EXPECT_EQ(dispatch->Invoke(DISPID_NEWENUM, IID_NULL, 0, kRead, &none, &walk, nullptr, nullptr), S_OK);
  VariantClear(&walk);
  EXPECT_FALSE(watched.expired());
}

TEST_F(OwnObject, IsFreedWithItsLastReferenceAndCanBeDisconnectedBefore) {
  std::weak_ptr<Shelf> watched = shelf;
  shelf.reset();
  EXPECT_FALSE(watched.expired());
  windows::DisconnectLateObjects();
  EXPECT_TRUE(watched.expired());
  EXPECT_EQ(Invoke(L"Kept", kRead), RPC_E_DISCONNECTED);
  dispatch.Reset();
  EXPECT_TRUE(windows::ModuleLifetime::CanUnload());
}
