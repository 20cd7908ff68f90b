#pragma once

#include <string_view>

#include "base/controls/combo_box.h"
#include "base/controls/text_box.h"
#include "src/module/session.h"

namespace goods {

/// The suite's general user-interface helper, late-bound.
class CommonGen {
 public:
  /// Without a helper: every member raises error 91.
  CommonGen() = default;
  /// Error 429 when it is not registered.
  explicit CommonGen(basGoodsRequest& session);

  /// Selects the entry whose text matches; leaves the combo alone when none does.
  void SelectComboItemByName(controls::ComboBox& combo, std::string_view text);
  /// Selects the entry whose item data matches; leaves the combo alone when none does.
  void SelectComboItemByValue(controls::ComboBox& combo, std::int32_t value);
  /// Filters a key press of a numeric box: `character` becomes 0 when the key is to be swallowed. At most `length` characters,
  /// `decimals` decimals.
  void TextValidateNum(controls::TextBox& box, int& character, std::int16_t length, std::int16_t decimals);

 private:
  late::Object& Helper() const;

  late::ObjectPtr helper_;
};

}  // namespace goods
