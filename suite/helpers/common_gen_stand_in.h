#pragma once

#include <string>
#include <string_view>

#include "base/late/object.h"

namespace suite {

/// Stand-in of the suite's general user-interface helper: combo selection and the numeric key filter. Reaches controls by member
/// name.
class CommonGenStandIn : public late::TableObject<CommonGenStandIn> {
 public:
  static const late::MemberTable<CommonGenStandIn>& Members();
  std::string TypeName() const override { return "clsCommonGen"; }

  /// Without regard to case and surrounding blanks; the combo stays as it is when no entry matches.
  static void SelectComboItemByName(late::Object& combo, std::string_view text);
  static void SelectComboItemByValue(late::Object& combo, std::int32_t value);
  /// Whether the character may go into the box: control characters always; digits and one point as long as the text stays within
  /// `length` characters and `decimals` decimals.
  static bool AcceptsNumericKey(late::Object& box, char32_t character, int length, int decimals);
};

}  // namespace suite
