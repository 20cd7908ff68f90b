// Nanoseconds of one late-bound member call: a plain IDispatch call, the same through the bridge from our side, and a COM
// client's call of one of our objects.
#include <chrono>
#include <cstdio>
#include <functional>

#include "platform/windows/com/com_object.h"
#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/com/variant.h"

namespace {

constexpr int kCalls = 200'000;

/// A COM object with one property, as cheap as one can be.
class Plain final : public windows::ComObject<Plain, IDispatch> {
 public:
  void* Find(REFIID id) { return id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
    *ids = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                                   UINT*) override {
    result->vt = VT_I4;
    result->lVal = parameters->rgvarg[0].lVal + 1;
    return S_OK;
  }
};

/// The same as a late-bound object of ours.
class Own : public late::TableObject<Own> {
 public:
  static const late::MemberTable<Own>& Members() {
    static const late::MemberTable<Own> table{
        {"Next", [](Own&, late::Arguments& arguments) { return late::Value(arguments[0].ToInt32() + 1); }, nullptr, 1, 1}};
    return table;
  }
  std::string TypeName() const override { return "Own"; }
};

LONG CallDirectly(IDispatch& dispatch, DISPID id, LONG number) {
  VARIANT argument{};
  argument.vt = VT_I4;
  argument.lVal = number;
  DISPPARAMS parameters{&argument, nullptr, 1, 0};
  VARIANT result{};
  dispatch.Invoke(id, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, &result, nullptr, nullptr);
  return result.lVal;
}

void Measure(const char* what, const std::function<LONG(LONG)>& call) {
  LONG sum = 0;
  const auto start = std::chrono::steady_clock::now();
  for (LONG i = 0; i < kCalls; ++i) sum += call(i) - i;
  const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
  std::printf("%-50s %8.0f ns%s\n", what, taken.count() / kCalls, sum == kCalls ? "" : "  WRONG RESULT");
}

}  // namespace

int main() {
  const auto plain = windows::MakeCom<Plain>();
  Measure("plain IDispatch call", [&](LONG i) { return CallDirectly(*plain.Get(), 1, i); });
  const late::ObjectPtr foreign = windows::ObjectOf(plain.Get());
  Measure("our call of a COM object", [&](LONG i) {
    return static_cast<LONG>(foreign->Call("Next", {late::Value(static_cast<std::int32_t>(i))}).ToInt32());
  });
  const late::ObjectPtr own = std::make_shared<Own>();
  Measure("our call of our own object, no COM",
          [&](LONG i) { return static_cast<LONG>(own->Call("Next", {late::Value(static_cast<std::int32_t>(i))}).ToInt32()); });
  const auto face = windows::DispatchOf(own);
  wchar_t name[] = L"Next";
  wchar_t* names = name;
  DISPID id = 0;
  face->GetIDsOfNames(IID_NULL, &names, 1, 0, &id);
  Measure("a COM client's call of our object", [&](LONG i) { return CallDirectly(*face.Get(), id, i); });
}
