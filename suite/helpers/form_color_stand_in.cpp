#include "suite/helpers/form_color_stand_in.h"

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
constexpr std::int32_t kField = Rgb(255, 255, 250);  // background of input fields
constexpr std::int32_t kText = Rgb(16, 24, 32);      // text of fields and lists
constexpr std::int32_t kCaption = Rgb(26, 54, 93);   // captions
constexpr std::array<std::string_view, 5> kFields = {"TextBox", "ComboBox", "ListView", "MSHFlexGrid", "ListBox"};
constexpr std::array<std::string_view, 6> kFaces = {"Label", "Frame", "OptionButton", "CheckBox", "PictureBox", "SSTab"};

bool IsOneOf(const auto& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

void ColorBoth(late::Object& object, std::int32_t back, std::int32_t fore) {
  object.Put("BackColor", back);
  object.Put("ForeColor", fore);
}

void ColorControl(late::Object& control) {
  const std::string kind = control.TypeName();
  // A background never goes without its text: the system's own may be light.
  if (IsOneOf(kFields, kind)) ColorBoth(control, kField, kText);
  if (IsOneOf(kFaces, kind)) ColorBoth(control, kFace, kCaption);
}

}  // namespace

const late::MemberTable<FormColorStandIn>& FormColorStandIn::Members() {
  static const late::MemberTable<FormColorStandIn> table{
      {"Applyformcolor",
       [](FormColorStandIn& self, Arguments& arguments) {
         Applyformcolor(*arguments[0].ToObject(), self.surroundings_->desktop);
         return Value();
       },
       nullptr, 1, 1},
      {"Applytabcolor",
       [](FormColorStandIn& self, Arguments& arguments) {
         Applytabcolor(*arguments[0].ToObject(), self.surroundings_->desktop);
         return Value();
       },
       nullptr, 1, 1},
  };
  return table;
}

void FormColorStandIn::Applyformcolor(late::Object& form, const controls::Desktop& desktop) {
  if (desktop.IsHighContrast()) return;
  form.Put("BackColor", kFace);
  const late::ObjectPtr controls = form.Get("Controls").ToObject();
  const std::int32_t count = controls->Get("Count").ToInt32();
  for (std::int32_t index = 0; index < count; ++index) ColorControl(*controls->Get("Item", {index}).ToObject());
}

void FormColorStandIn::Applytabcolor(late::Object& tab, const controls::Desktop& desktop) {
  if (!desktop.IsHighContrast()) ColorBoth(tab, kFace, kCaption);
}

}  // namespace suite
