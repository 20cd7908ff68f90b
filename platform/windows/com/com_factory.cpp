#include "platform/windows/com/com_factory.h"

#include <algorithm>

#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

[[noreturn]] void RaiseCannotCreate(std::string_view progId, HRESULT result) {
  std::string text(vb::ErrorText(vb::kCannotCreateObject));
  text.append(": '").append(progId).append("'");
  // A class that is there and fails has its own reason, which the user needs to know.
  if (ErrorNumberOf(result) != vb::kCannotCreateObject) text.append(" (").append(ErrorTextOf(result)).append(")");
  vb::Raise(vb::kCannotCreateObject, std::move(text), std::string(progId));
}

}  // namespace

const CLSID& ComFactory::Find(std::string_view progId) {
  const auto known = std::ranges::find(known_, progId, &Known::progId);
  if (known != known_.end()) return known->id;
  CLSID id{};
  const HRESULT result = CLSIDFromProgID(Wide(progId).c_str(), &id);
  if (FAILED(result)) RaiseCannotCreate(progId, result);
  known_.push_back({std::string(progId), id});
  return known_.back().id;
}

late::ObjectPtr ComFactory::Create(std::string_view progId) {
  ComPtr<IDispatch> made;
  void* found = nullptr;
  const HRESULT result =
      CoCreateInstance(Find(progId), nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, &found);
  if (FAILED(result)) RaiseCannotCreate(progId, result);
  made = ComPtr<IDispatch>::Adopt(static_cast<IDispatch*>(found));
  return ObjectOf(made.Get());
}

}  // namespace windows
