#include "src/faces/common_gen.h"

#include "base/controls/combo_box.h"
#include "base/controls/text_box.h"

namespace goods {

CommonGen::CommonGen(late::Factory& factory) : Face(factory.Create("ShopCommon.clsCommonGen")) {}

void CommonGen::SelectComboItemByName(controls::ComboBox& combo, std::string_view text) {
  Component().Call("SelectComboItemByName", {combo.AsObject(), text});
}

void CommonGen::SelectComboItemByValue(controls::ComboBox& combo, std::int32_t value) {
  Component().Call("SelectComboItemByValue", {combo.AsObject(), value});
}

void CommonGen::TextValidateNum(controls::TextBox& box, int& character, std::int16_t length, std::int16_t decimals) {
  if (character > 32767) {  // no digit is beyond the helper's 16-bit key codes
    character = 0;
    return;
  }
  late::Value key(static_cast<std::int16_t>(character));
  Component().Call("TextValidateNum", {box.AsObject(), late::Value::ByRef(key), length, decimals});
  character = key.ToInt16();
}

}  // namespace goods
