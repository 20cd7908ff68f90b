#pragma once

#include <string>

#include "base/late/object.h"

namespace suite {

/// Stand-in of the suite's form colouring: one calm scheme for all forms. Reaches forms and controls by member name.
class clsFormcolor : public late::TableObject<clsFormcolor> {
 public:
  static const late::MemberTable<clsFormcolor>& Members();
  std::string TypeName() const override { return "clsFormcolor"; }

  static void Applyformcolor(late::Object& form);
  static void Applytabcolor(late::Object& tab);
};

}  // namespace suite
