#include "suite/helpers/common_gen_stand_in.h"

#include "base/vb/text.h"

namespace suite {

using late::Arguments;
using late::Value;

namespace {

template <class Matches>
void SelectFirst(late::Object& combo, Matches matches) {
  const std::int32_t count = combo.Get("ListCount").ToInt32();
  for (std::int32_t index = 0; index < count; ++index) {
    if (matches(index)) {
      combo.Put("ListIndex", index);
      return;
    }
  }
}

/// The text that the box would hold once the character has replaced its selection.
std::string TextAfterKey(late::Object& box, char32_t character) {
  const std::string text = box.Get("Text").ToText();
  const std::int32_t start = box.Get("SelStart").ToInt32();
  const std::int32_t selected = box.Get("SelLength").ToInt32();
  std::string after = vb::Left(text, start);
  vb::AppendCharacter(after, character);
  return after + vb::Mid(text, start + selected + 1);
}

}  // namespace

const late::MemberTable<CommonGenStandIn>& CommonGenStandIn::Members() {
  static const late::MemberTable<CommonGenStandIn> table{
      {"SelectComboItemByName",
       [](CommonGenStandIn&, Arguments& arguments) {
         SelectComboItemByName(*arguments[0].ToObject(), arguments[1].ToText());
         return Value();
       },
       nullptr, 2, 2},
      {"SelectComboItemByValue",
       [](CommonGenStandIn&, Arguments& arguments) {
         SelectComboItemByValue(*arguments[0].ToObject(), arguments[1].ToInt32());
         return Value();
       },
       nullptr, 2, 2},
      {"TextValidateNum",
       [](CommonGenStandIn&, Arguments& arguments) {
         const auto character = static_cast<char32_t>(arguments[1].ToInt16());
         if (!AcceptsNumericKey(*arguments[0].ToObject(), character, arguments[2].ToInt16(), arguments[3].ToInt16())) {
           arguments.Write(1, std::int16_t{0});
         }
         return Value();
       },
       nullptr, 4, 4},
  };
  return table;
}

void CommonGenStandIn::SelectComboItemByName(late::Object& combo, std::string_view text) {
  const std::string wanted(vb::Trim(text));
  SelectFirst(combo, [&](std::int32_t index) {
    const std::string entry = combo.Get("List", {index}).ToText();
    return vb::EqualNoCase(vb::Trim(entry), wanted);
  });
}

void CommonGenStandIn::SelectComboItemByValue(late::Object& combo, std::int32_t value) {
  SelectFirst(combo, [&](std::int32_t index) { return combo.Get("ItemData", {index}).ToInt32() == value; });
}

bool CommonGenStandIn::AcceptsNumericKey(late::Object& box, char32_t character, int length, int decimals) {
  if (character < 32) return true;
  const bool digit = character >= U'0' && character <= U'9';
  if (!digit && character != U'.') return false;
  const std::string after = TextAfterKey(box, character);
  if (vb::Len(after) > static_cast<std::size_t>(length)) return false;
  const std::size_t point = after.find('.');
  if (point == std::string::npos) return true;
  return after.find('.', point + 1) == std::string::npos && after.size() - point - 1 <= static_cast<std::size_t>(decimals);
}

}  // namespace suite
