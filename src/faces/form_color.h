#pragma once

#include "src/faces/face.h"

namespace controls {
class Form;
class TabControl;
}  // namespace controls

namespace goods {

/// The suite's form colouring. Members carry their classic names.
class FormColor : public Face {
 public:
  FormColor() = default;
  /// Error 429 when it is not registered.
  explicit FormColor(late::Factory& factory);

  void Applyformcolor(controls::Form& form);
  void Applytabcolor(controls::TabControl& tabs);
};

}  // namespace goods
