#pragma once

#include "base/controls/buttons.h"
#include "src/lists/register_view.h"
#include "src/module/module_form.h"
#include "src/printing/request_slip.h"

namespace goods {

/// The print dialog: where the request of the register's current row is printed to.
class frmPrint : public ModuleForm {
 public:
  frmPrint(basGoodsRequest& session, RegisterView& registerView);

  controls::CommandButton cmdCancel{*this, "cmdCancel"};
  controls::CommandButton cmdOK{*this, "cmdOK"};
  controls::Frame fraPrint{*this, "fraPrint"};
  controls::OptionButton optPrint{*this, "optPrint"};
  controls::OptionButton optwindowsprint{*this, "optwindowsprint"};
  controls::OptionButton optScreen{*this, "optScreen"};

 protected:
  void Design() override;

 private:
  void Form_Load();
  void Form_KeyPress(int& character);
  void cmdOK_Click();
  void cmdCancel_Click();
  /// Writes the slip and shows it where it is for the screen. Returns false when there is no whole slip to show.
  bool PrintAsText();
  /// The id in the register's current row; 0 when there is none.
  std::int32_t RequestId() const;

  RegisterView& register_;
  RequestSlip slip_;
  bool settingsFailureToldOf_ = false;  ///< by the load, until the first print
};

}  // namespace goods
