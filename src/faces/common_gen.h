#pragma once

#include <cstdint>
#include <string_view>

#include "src/faces/face.h"

namespace controls {
class ComboBox;
class TextBox;
}  // namespace controls

namespace goods {

/// The suite's general user-interface helper. Members carry their classic names.
class CommonGen : public Face {
 public:
  CommonGen() = default;
  /// Error 429 when it is not registered.
  explicit CommonGen(late::Factory& factory);

  /// Selects the entry whose text matches; leaves the combo alone when none does.
  void SelectComboItemByName(controls::ComboBox& combo, std::string_view text);
  /// Selects the entry whose item data matches; leaves the combo alone when none does.
  void SelectComboItemByValue(controls::ComboBox& combo, std::int32_t value);
  /// Filters a key press of a numeric box: `character` becomes 0 when the key is to be swallowed. At most `length` characters,
  /// `decimals` decimals.
  void TextValidateNum(controls::TextBox& box, int& character, std::int16_t length, std::int16_t decimals);
};

}  // namespace goods
