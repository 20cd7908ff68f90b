#include "src/faces/face.h"

#include "base/vb/error.h"

namespace goods {

late::Object& Face::Component() const {
  if (!component_) vb::Raise(vb::kObjectNotSet);
  return *component_;
}

}  // namespace goods
