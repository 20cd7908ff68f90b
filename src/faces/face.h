#pragma once

#include "base/late/object.h"

namespace goods {

/// A helper component of the suite, late-bound. The classes derived from it are the only ones to spell its members' names. A
/// default-made face has no component: every member raises error 91.
class Face {
 public:
  const late::ObjectPtr& Object() const { return component_; }
  explicit operator bool() const { return component_ != nullptr; }

 protected:
  Face() = default;
  explicit Face(late::ObjectPtr component) : component_(std::move(component)) {}
  /// Error 91 when there is none.
  late::Object& Component() const;

 private:
  late::ObjectPtr component_;
};

}  // namespace goods
