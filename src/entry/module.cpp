#include "src/entry/module.h"

#include "src/register/frm_master.h"

namespace goods {
namespace {

constexpr long kAlreadyShown = 400;

}  // namespace

frmMaster& Module::Register() {
  if (!register_) register_ = std::make_shared<frmMaster>(session_);
  return *register_;
}

Module::Showing::Showing(Module& module) : module_(module) {
  if (module.isShowing_) vb::Raise(kAlreadyShown);
  module.isShowing_ = true;
}

}  // namespace goods
