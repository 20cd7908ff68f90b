#pragma once

#include <string>
#include <vector>

#include "platform/windows/com/com_object.h"
#include "platform/windows/windows_gate.h"

/// What a report server was asked, call by call in order: "Report.Preview('Title', 0)", "Options.HasZoomControl = True". A number
/// is followed by its type where that is not the 32-bit one.
struct Recording {
  std::vector<std::string> calls;
  std::string failing;     ///< the member that fails, "Application.OpenReport"; none when empty
  HRESULT failure = S_OK;  ///< with this result and the text "The server says no"
  int living = 0;          ///< objects of the server that somebody still holds
  bool shows = false;      ///< whether a preview is a window
  HWND preview = nullptr;  ///< the last one
};

/// One object of a report server of somebody else's. As strict as a compiled server: a method is called, a property read or put,
/// each with the flags and the number of arguments that belong to it, and nothing else is known.
class RecordedObject final : public windows::ComObject<RecordedObject, IDispatch> {
 public:
  enum class Kind { Application, Report, Fields, Field, Options };

  RecordedObject(Recording& recording, Kind kind, std::string name);
  ~RecordedObject() override;

  void* Find(REFIID id) { return id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                                   UINT*) override;

 private:
  Recording& recording_;
  Kind kind_;
  std::string name_;
};

/// While it lives, `progId` makes the recording server's application, as a registered server does.
class ServerOnDuty {
 public:
  ServerOnDuty(std::string_view progId, Recording& recording);
  ServerOnDuty(const ServerOnDuty&) = delete;
  ServerOnDuty& operator=(const ServerOnDuty&) = delete;
  ~ServerOnDuty();

 private:
  std::wstring key_;
  DWORD registered_ = 0;
};
