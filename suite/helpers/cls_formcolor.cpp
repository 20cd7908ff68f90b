#include "suite/helpers/cls_formcolor.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace suite {

using late::Arguments;
using late::Value;

namespace {

constexpr std::int32_t Rgb(int red, int green, int blue) {
  return red + (green << 8) + (blue << 16);
}

constexpr std::int32_t kFace = Rgb(234, 240, 246);   // forms, frames, labels, options
constexpr std::int32_t kField = Rgb(255, 255, 250);  // what is typed into
constexpr std::int32_t kCaption = Rgb(26, 54, 93);   // captions
constexpr std::array<std::string_view, 5> kFields = {"TextBox", "ComboBox", "ListView", "MSHFlexGrid", "ListBox"};
constexpr std::array<std::string_view, 6> kFaces = {"Label", "Frame", "OptionButton", "CheckBox", "PictureBox", "SSTab"};

bool IsOneOf(const auto& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

void ColorControl(late::Object& control) {
  const std::string kind = control.TypeName();
  if (IsOneOf(kFields, kind)) control.Put("BackColor", kField);
  if (!IsOneOf(kFaces, kind)) return;
  control.Put("BackColor", kFace);
  control.Put("ForeColor", kCaption);
}

}  // namespace

const late::MemberTable<clsFormcolor>& clsFormcolor::Members() {
  static const late::MemberTable<clsFormcolor> table{
      {"Applyformcolor",
       [](clsFormcolor&, Arguments& arguments) {
         Applyformcolor(*arguments[0].ToObject());
         return Value();
       },
       nullptr, 1, 1},
      {"Applytabcolor",
       [](clsFormcolor&, Arguments& arguments) {
         Applytabcolor(*arguments[0].ToObject());
         return Value();
       },
       nullptr, 1, 1},
  };
  return table;
}

void clsFormcolor::Applyformcolor(late::Object& form) {
  form.Put("BackColor", kFace);
  const late::ObjectPtr controls = form.Get("Controls").ToObject();
  const std::int32_t count = controls->Get("Count").ToInt32();
  for (std::int32_t index = 0; index < count; ++index) ColorControl(*controls->Get("Item", {index}).ToObject());
}

void clsFormcolor::Applytabcolor(late::Object& tab) {
  tab.Put("BackColor", kFace);
  tab.Put("ForeColor", kCaption);
}

}  // namespace suite
