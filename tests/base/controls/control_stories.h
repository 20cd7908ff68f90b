#pragma once

#include <gtest/gtest.h>

#include "tests/base/controls/control_driver.h"
#include "tests/base/controls/counter_form.h"

namespace counter {

/// The rules of the controls as a person meets them. Each suite is instantiated for every driver there is.
class ControlStory : public testing::TestWithParam<DriverMaker> {
 protected:
  std::unique_ptr<ControlDriver> person = GetParam()();
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(person->Desktop());

  void Work(std::function<void()> hands) { person->Work(*form, std::move(hands)); }
  std::string Text(controls::Control& control) { return person->Read(control, "Text"); }
  std::string Focus() const { return person->Focus(*form); }
};

}  // namespace counter
