#pragma once

#include "base/late/object.h"
#include "platform/windows/com/com_error.h"

namespace windows {

/// IDispatch::GetIDsOfNames for a late-bound object. Identifiers are the module's own, the same for a name on every object.
HRESULT FindMembers(const late::Object& object, OLECHAR** names, UINT count, DISPID* ids) noexcept;

/// IDispatch::Invoke for a late-bound object: by-reference arguments are written back in the caller's types, errors go into
/// `info`. DISPID_VALUE is the default member, DISPID_NEWENUM walks a collection that has Count and Item.
HRESULT InvokeMember(const late::ObjectPtr& object, DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                     EXCEPINFO* info) noexcept;

/// The same for a member whose name the caller has found itself.
HRESULT InvokeMemberNamed(late::Object& object, std::string_view member, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* info) noexcept;

}  // namespace windows
