#include "src/faces/common_gen.h"

#include "base/vb/error.h"

namespace goods {

CommonGen::CommonGen(basGoodsRequest& session) : helper_(session.services.factory.Create("ShopCommon.clsCommonGen")) {}

late::Object& CommonGen::Helper() const {
  if (!helper_) vb::Raise(vb::kObjectNotSet);
  return *helper_;
}

void CommonGen::SelectComboItemByName(controls::ComboBox& combo, std::string_view text) {
  Helper().Call("SelectComboItemByName", {combo.AsObject(), text});
}

void CommonGen::SelectComboItemByValue(controls::ComboBox& combo, std::int32_t value) {
  Helper().Call("SelectComboItemByValue", {combo.AsObject(), value});
}

void CommonGen::TextValidateNum(controls::TextBox& box, int& character, std::int16_t length, std::int16_t decimals) {
  if (character > 32767) {  // no digit lies beyond the helper's 16-bit key codes
    character = 0;
    return;
  }
  late::Value key(static_cast<std::int16_t>(character));
  Helper().Call("TextValidateNum", {box.AsObject(), late::Value::ByRef(key), length, decimals});
  character = key.ToInt16();
}

}  // namespace goods
