#pragma once

#include <string>
#include <utility>

#include "base/vb/error.h"
#include "platform/windows/windows_gate.h"

namespace windows {

/// An error on its way through COM.
struct ComError {
  HRESULT result = E_FAIL;
  std::string source;
  std::string description;
};

/// The exception being handled, as COM has it. Numbers of the classic runtime and of ADO (16 bits) become 0x800A0000 + number,
/// negative ones are a provider's own HRESULTs. To be called inside a catch block.
ComError CurrentError(std::string_view defaultSource) noexcept;

/// The number a run-time error gets for an HRESULT: the reverse of the above, and the runtime's numbers for the system's own.
long ErrorNumberOf(HRESULT result);
/// The system's text for an HRESULT where the runtime has none of its own.
std::string ErrorTextOf(HRESULT result);

/// Raises what an HRESULT means; nothing for a success. With `target`, the rich error information that the object left on this
/// thread is taken along when the object says that it leaves any for this interface.
void Check(HRESULT result);
void Check(HRESULT result, IUnknown* target, REFIID interfaceId);
/// Raises the error of a failed Invoke and frees its texts.
[[noreturn]] void RaiseExcepInfo(EXCEPINFO& info);

void FillExcepInfo(EXCEPINFO& info, const ComError& error) noexcept;
/// Leaves the error on this thread for the caller of a method that returns an HRESULT.
void LeaveErrorInfo(const ComError& error, REFIID interfaceId) noexcept;

/// The one door out of COM: runs `work` and turns whatever it throws into an HRESULT with rich error information.
template <class Work>
HRESULT Guard(std::string_view source, REFIID interfaceId, Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
    return S_OK;
  } catch (...) {
    const ComError error = CurrentError(source);
    LeaveErrorInfo(error, interfaceId);
    return error.result;
  }
}

}  // namespace windows
