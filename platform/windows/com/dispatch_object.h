#pragma once

#include <string>
#include <vector>

#include "base/late/object.h"
#include "platform/windows/com/com_ptr.h"

namespace windows {

/// A COM object as a late-bound one: members by name through its IDispatch. The dispatch identifiers it once gave are kept.
class DispatchObject : public late::Object {
 public:
  explicit DispatchObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}
  ~DispatchObject() override;

  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override;
  bool Has(std::string_view member) const override;
  /// The class's name from its type information; "Object" when it gives none.
  std::string TypeName() const override;

  const ComPtr<IDispatch>& Dispatch() const { return dispatch_; }

 private:
  struct Known {
    std::string name;
    DISPID id;
  };

  /// The member's identifier; DISPID_UNKNOWN when there is no such member. The empty name is the default member.
  DISPID Find(std::string_view member) const;

  ComPtr<IDispatch> dispatch_;
  mutable std::vector<Known> known_;
};

/// The late-bound object of a COM object: Nothing for null, this module's own object as itself, else a DispatchObject, the
/// same one as long as it is in use. Error 430 when it has no IDispatch.
late::ObjectPtr ObjectOf(IUnknown* unknown);

}  // namespace windows
