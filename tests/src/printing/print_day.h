#pragma once

#include <functional>
#include <memory>

#include "src/printing/frm_print.h"
#include "src/register/frm_master.h"
#include "tests/src/printing/slip_shop.h"

namespace support {

/// The register with request 5 in its current row, and the print dialog over it.
class PrintDay : public SlipShop {
 public:
  PrintDay() : registerForm(std::make_shared<goods::frmMaster>(session)), view{registerForm->flexMaster, ""} {
    LogOn();
    Settings({});
    registerForm->Load();
    errors->lines.clear();
    registerForm->flexMaster.SetTextMatrix(1, 0, "5");
    registerForm->flexMaster.SetRow(1);
    dialog = std::make_shared<goods::frmPrint>(session, view);
  }
  void Print(const std::function<void(goods::frmPrint&)>& work) {
    desktop.ExpectForm("frmPrint", [&](controls::Form&) { work(*dialog); });
    dialog->Show();
  }

  std::shared_ptr<goods::frmMaster> registerForm;
  goods::RegisterView view;
  std::shared_ptr<goods::frmPrint> dialog;
};

}  // namespace support
