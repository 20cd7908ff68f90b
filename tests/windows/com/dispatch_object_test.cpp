#include "platform/windows/com/dispatch_object.h"

#include <gtest/gtest.h>

#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"
#include "tests/windows/com/shelf.h"
#include "tests/windows/com/witness.h"

using late::Value;
using windows::Bstr;
using windows::ComPtr;
using windows::ObjectOf;

namespace {

class ForeignObject : public testing::Test {
 protected:
  vb::RunTimeError Raised(const std::function<void()>& work) {
    try {
      work();
    } catch (const vb::RunTimeError& error) {
      return error;
    }
    return {0, "nothing was raised"};
  }

  ComPtr<Witness> witness = windows::MakeCom<Witness>();
  late::ObjectPtr object = ObjectOf(witness.Get());
};

}  // namespace

TEST_F(ForeignObject, IsAskedOnceForANameAndCalledAsAScriptWould) {
  object->Call("Open", {"select 1", std::int32_t{3}});
  object->Get("Open");
  ASSERT_EQ(witness->asked, std::vector<std::string>{"Open"});
  EXPECT_EQ(witness->calls[0].flags, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
  EXPECT_EQ(witness->calls[0].types, (std::vector<VARTYPE>{VT_BSTR, VT_I4}));
  EXPECT_EQ(witness->calls[0].id, witness->calls[1].id);
  object->Get("");
  EXPECT_EQ(witness->calls[2].id, DISPID_VALUE);
}

TEST_F(ForeignObject, GetsTheValuePutUnderItsReservedName) {
  object->Put("Item", {std::int32_t{2}}, "text");
  EXPECT_EQ(witness->calls[0].flags, DISPATCH_PROPERTYPUT);
  EXPECT_EQ(witness->calls[0].types, (std::vector<VARTYPE>{VT_I4, VT_BSTR}));
  EXPECT_EQ(witness->calls[0].named, std::vector<DISPID>{DISPID_PROPERTYPUT});
  object->PutRef("adocon", object);
  EXPECT_EQ(witness->calls[1].flags, DISPATCH_PROPERTYPUTREF);
}

TEST_F(ForeignObject, ThatHasOnlyOneFormOfAnObjectPropertyIsServedToo) {
  witness->answer = [this](DISPPARAMS&, VARIANT*, EXCEPINFO*) {
    return witness->calls.back().flags == DISPATCH_PROPERTYPUT ? S_OK : DISP_E_MEMBERNOTFOUND;
  };
  object->PutRef("adocon", object);
  EXPECT_EQ(witness->calls.size(), 2u);
}

TEST_F(ForeignObject, WritesByReferenceArgumentsBackWhateverTheirType) {
  const std::vector<std::pair<Value, VARTYPE>> places = {{Value(std::int16_t{65}), VT_I2},
                                                         {Value("text"), VT_BSTR},
                                                         {Value(2.5), VT_R8},
                                                         {Value(vb::Decimal{25, 1}), VT_DECIMAL},
                                                         {Value(vb::Date{45366}), VT_DATE},
                                                         {Value(late::ObjectPtr()), VT_DISPATCH},
                                                         {Value(), VT_VARIANT}};
  for (const auto& [before, type] : places) {
    Value place = before;
    witness->answer = [](DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) {
      windows::WriteThrough(parameters.rgvarg[0], parameters.rgvarg[0].vt == (VT_BYREF | VT_DISPATCH)
                                                      ? Value(late::ObjectPtr(std::make_shared<Shelf>()))
                                                      : Value(std::int16_t{0}));
      return S_OK;
    };
    object->Call("TextValidateNum", {Value::ByRef(place)});
    EXPECT_EQ(witness->calls.back().types[0], VT_BYREF | type);
    if (type == VT_DISPATCH) {
      EXPECT_EQ(place.ToObject()->TypeName(), "Shelf");
    } else {
      EXPECT_EQ(place.ToDouble(), 0) << type;
    }
  }
}

TEST_F(ForeignObject, ManyArgumentsKeepTheirOrder) {
  std::string seen;
  witness->answer = [&](DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) {
    for (UINT i = parameters.cArgs; i-- > 0;) seen += windows::FromVariant(parameters.rgvarg[i]).TextOrEmpty() + ",";
    return S_OK;
  };
  Value sixth("six");
  object->Call("ErrorTrack", {"one", std::int16_t{2}, true, Value(), late::Missing{}, Value::ByRef(sixth), 7.5, "eight"});
  EXPECT_EQ(seen, "one,2,True,,,six,7.5,eight,");
  EXPECT_EQ(witness->calls[0].types[4], VT_ERROR);
}

TEST_F(ForeignObject, RaisesItsErrorsWithNumberSourceAndText) {
  struct Case {
    unsigned code;
    WORD shortCode;
    long number;
  };
  for (const auto& [code, shortCode, number] :
       {Case{0x800A0E78, 0, 3704}, Case{0x80040E14, 0, static_cast<long>(0x80040E14)}, Case{0, 1004, 1004}}) {
    witness->answer = [&](DISPPARAMS&, VARIANT*, EXCEPINFO* info) {
      info->scode = static_cast<SCODE>(code);
      info->wCode = shortCode;
      info->bstrSource = SysAllocString(L"Provider");
      info->bstrDescription = SysAllocString(L"It is closed");
      return DISP_E_EXCEPTION;
    };
    const vb::RunTimeError error = Raised([&] { object->Call("MoveNext"); });
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Source(), "Provider");
    EXPECT_EQ(error.Description(), "It is closed");
  }
}

TEST_F(ForeignObject, FillsInItsErrorLate) {
  witness->answer = [](DISPPARAMS&, VARIANT*, EXCEPINFO* info) {
    info->pfnDeferredFillIn = [](EXCEPINFO* later) STDAPICALLTYPE -> HRESULT {
      later->scode = static_cast<SCODE>(0x800A000D);
      later->bstrDescription = SysAllocString(L"later");
      return S_OK;
    };
    return DISP_E_EXCEPTION;
  };
  const vb::RunTimeError error = Raised([&] { object->Get("Value"); });
  EXPECT_EQ(error.Number(), vb::kTypeMismatch);
  EXPECT_EQ(error.Description(), "later");
}

TEST_F(ForeignObject, RefusalsOfTheCallItselfGetTheRuntimesNumbers) {
  const vb::RunTimeError unknown = Raised([&] { object->Call("Nowhere"); });
  EXPECT_EQ(unknown.Number(), vb::kMemberNotFound);
  EXPECT_NE(unknown.Description().find("Nowhere"), std::string::npos);
  EXPECT_FALSE(object->Has("Nowhere"));
  EXPECT_TRUE(object->Has("Anything"));
  for (const auto& [result, number] : {std::pair{DISP_E_BADPARAMCOUNT, long{vb::kWrongArgumentCount}},
                                       std::pair{DISP_E_PARAMNOTOPTIONAL, long{vb::kArgumentNotOptional}},
                                       std::pair{DISP_E_TYPEMISMATCH, long{vb::kTypeMismatch}}}) {
    witness->answer = [result = result](DISPPARAMS&, VARIANT*, EXCEPINFO*) { return result; };
    EXPECT_EQ(Raised([&] { object->Call("Anything"); }).Number(), number);
  }
}

TEST_F(ForeignObject, ThatStandsForItselfIsNoValue) {
  witness->answer = [this](DISPPARAMS&, VARIANT* result, EXCEPINFO*) {
    result->vt = VT_DISPATCH;
    result->pdispVal = ComPtr<IDispatch>(witness.Get()).Detach();
    return S_OK;
  };
  EXPECT_EQ(Raised([&] { Value(object).ToText(); }).Number(), 458);
  EXPECT_LT(witness->calls.size(), 1000u) << "the host's stack is no limit";
}

TEST_F(ForeignObject, CrossingBackIsTheSameObject) {
  EXPECT_EQ(ObjectOf(witness.Get()), object);
  std::vector<IUnknown*> seen;
  witness->answer = [&](DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) {
    seen.push_back(parameters.rgvarg[0].punkVal);
    return S_OK;
  };
  object->Call("Take", {object});
  EXPECT_EQ(seen[0], static_cast<IUnknown*>(witness.Get()));
}

TEST_F(ForeignObject, IsLetGoWithItsWrapper) {
  object.reset();
  EXPECT_EQ(witness->AddRef(), 2u);
  EXPECT_EQ(witness->Release(), 1u);
}

TEST(ErrorInformation, SurvivesAMethodThatReturnsAResult) {
  const HRESULT result = windows::Guard("tq8v4461", IID_IDispatch, [] { vb::Raise(3704, "It is closed", "ADODB.Recordset"); });
  EXPECT_EQ(static_cast<unsigned>(result), 0x800A0E78u);
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  BSTR text = nullptr;
  info->GetDescription(&text);
  EXPECT_EQ(Bstr(text).Text(), "It is closed");
  info->GetSource(&text);
  EXPECT_EQ(Bstr(text).Text(), "ADODB.Recordset");
  EXPECT_EQ(windows::ErrorNumberOf(result), 3704);
  EXPECT_EQ(windows::Guard("", IID_IDispatch, [] { throw 1; }), static_cast<HRESULT>(0x800A0033));
  EXPECT_EQ(windows::Guard("", IID_IDispatch, [] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
}
