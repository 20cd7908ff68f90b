#include "platform/windows/com/com_error.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <new>

#include "platform/windows/com/com_ptr.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

constexpr unsigned kRuntimeFacility = 0x800A0000;

struct SystemError {
  HRESULT result;
  long number;
};

constexpr std::array kSystemErrors = {
    SystemError{DISP_E_UNKNOWNNAME, vb::kMemberNotFound},
    SystemError{DISP_E_MEMBERNOTFOUND, vb::kMemberNotFound},
    SystemError{DISP_E_BADPARAMCOUNT, vb::kWrongArgumentCount},
    SystemError{DISP_E_PARAMNOTOPTIONAL, vb::kArgumentNotOptional},
    SystemError{DISP_E_TYPEMISMATCH, vb::kTypeMismatch},
    SystemError{DISP_E_BADVARTYPE, vb::kTypeMismatch},
    SystemError{DISP_E_OVERFLOW, vb::kOverflow},
    SystemError{DISP_E_BADINDEX, vb::kSubscriptOutOfRange},
    SystemError{DISP_E_DIVBYZERO, vb::kDivisionByZero},
    SystemError{E_INVALIDARG, vb::kInvalidCall},
    SystemError{E_OUTOFMEMORY, 7},
    SystemError{E_ACCESSDENIED, vb::kPermissionDenied},
    SystemError{REGDB_E_CLASSNOTREG, vb::kCannotCreateObject},
    SystemError{CO_E_CLASSSTRING, vb::kCannotCreateObject},
    SystemError{CLASS_E_CLASSNOTAVAILABLE, vb::kCannotCreateObject},
    SystemError{E_NOINTERFACE, 430},
    SystemError{E_NOTIMPL, 445},
    SystemError{DISP_E_NONAMEDARGS, 446},
    SystemError{DISP_E_PARAMNOTFOUND, 448},
};

HRESULT ResultOf(long number) {
  if (number < 0) return static_cast<HRESULT>(number);
  if (number == 0 || number > 0xFFFF) return E_FAIL;
  return static_cast<HRESULT>(kRuntimeFacility | static_cast<unsigned>(number));
}

std::string Described(HRESULT result, std::string description) {
  return description.empty() ? ErrorTextOf(result) : std::move(description);
}

std::string TakeText(BSTR text) {
  const Bstr owner(text);
  return owner.Text();
}

}  // namespace

ComError CurrentError(std::string_view defaultSource) noexcept {
  try {
    try {
      throw;
    } catch (const vb::RunTimeError& error) {
      return {ResultOf(error.Number()), error.Source().empty() ? std::string(defaultSource) : error.Source(),
              error.Description()};
    } catch (const std::bad_alloc&) {
      return {E_OUTOFMEMORY, std::string(defaultSource), std::string(vb::ErrorText(7))};
    } catch (const std::exception& error) {
      return {ResultOf(vb::kInternalError), std::string(defaultSource), error.what()};
    } catch (...) {
      return {ResultOf(vb::kInternalError), std::string(defaultSource), std::string(vb::ErrorText(vb::kInternalError))};
    }
  } catch (...) {
    return {E_OUTOFMEMORY, {}, {}};  // no memory even for the texts
  }
}

long ErrorNumberOf(HRESULT result) {
  const auto bits = static_cast<unsigned>(result);
  if ((bits & 0xFFFF0000) == kRuntimeFacility) return static_cast<long>(bits & 0xFFFF);
  const auto found = std::ranges::find(kSystemErrors, result, &SystemError::result);
  return found == kSystemErrors.end() ? static_cast<long>(result) : found->number;
}

std::string ErrorTextOf(HRESULT result) {
  const long number = ErrorNumberOf(result);
  if (number > 0) return std::string(vb::ErrorText(number));
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  if (length == 0) {
    std::array<char, 32> named{};
    std::snprintf(named.data(), named.size(), "Automation error (%08lX)", static_cast<unsigned long>(result));
    return named.data();
  }
  std::wstring_view shown(text, length);
  while (!shown.empty() && shown.back() <= L' ') shown.remove_suffix(1);
  std::string result8 = Utf8(shown);
  LocalFree(text);
  return result8;
}

void Check(HRESULT result) {
  if (FAILED(result)) vb::Raise(ErrorNumberOf(result), ErrorTextOf(result));
}

void Check(HRESULT result, IUnknown* target, REFIID interfaceId) {
  if (SUCCEEDED(result)) return;
  const auto support = ComPtr<IUnknown>(target).As<ISupportErrorInfo>(IID_ISupportErrorInfo);
  ComPtr<IErrorInfo> info;
  if (!support || support->InterfaceSupportsErrorInfo(interfaceId) != S_OK || GetErrorInfo(0, info.Receive()) != S_OK)
    Check(result);
  BSTR source = nullptr;
  BSTR description = nullptr;
  info->GetSource(&source);
  info->GetDescription(&description);
  std::string sourceText = TakeText(source);
  vb::Raise(ErrorNumberOf(result), Described(result, TakeText(description)), std::move(sourceText));
}

void RaiseExcepInfo(EXCEPINFO& info) {
  if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
  std::string source = TakeText(info.bstrSource);
  std::string description = TakeText(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
  // A server gives either its own 16-bit number or a result code.
  const HRESULT result = info.wCode != 0 ? ResultOf(info.wCode) : info.scode;
  info = {};
  vb::Raise(ErrorNumberOf(result), Described(result, std::move(description)), std::move(source));
}

void FillExcepInfo(EXCEPINFO& info, const ComError& error) noexcept {
  info = {};
  info.scode = error.result;
  try {
    info.bstrSource = Bstr(error.source).Detach();
    info.bstrDescription = Bstr(error.description).Detach();
  } catch (...) {
    // The number alone then has to do.
  }
}

void LeaveErrorInfo(const ComError& error, REFIID interfaceId) noexcept {
  try {
    ComPtr<ICreateErrorInfo> made;
    if (FAILED(CreateErrorInfo(made.Receive()))) return;
    made->SetGUID(interfaceId);
    made->SetSource(Bstr(error.source).Get());
    made->SetDescription(Bstr(error.description).Get());
    if (const auto info = made.As<IErrorInfo>(IID_IErrorInfo)) SetErrorInfo(0, info.Get());
  } catch (...) {
    // The result code alone then has to do.
  }
}

}  // namespace windows
