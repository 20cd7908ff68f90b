#include "src/faces/form_color.h"

#include "base/controls/form.h"
#include "base/controls/tab_control.h"

namespace goods {

FormColor::FormColor(late::Factory& factory) : Face(factory.Create("Theme.clsFormcolor")) {}

void FormColor::Applyformcolor(controls::Form& form) {
  Component().Call("Applyformcolor", {form.shared_from_this()});
}

void FormColor::Applytabcolor(controls::TabControl& tabs) {
  Component().Call("Applytabcolor", {tabs.AsObject()});
}

}  // namespace goods
