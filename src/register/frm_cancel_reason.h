#pragma once

#include "base/controls/buttons.h"
#include "base/controls/text_box.h"
#include "src/module/module_form.h"

namespace goods {

/// Characters of a reason that a cancellation remark keeps.
inline constexpr int kReasonLength = 230;

/// Asks for the reason of a cancellation and leaves it in the session's gStrCancelReason. Cannot be closed without one.
class frmcancelreason : public ModuleForm {
 public:
  explicit frmcancelreason(basGoodsRequest& session);

  controls::Label Label1{*this, "Label1"};
  controls::TextBox txtcanreason{*this, "txtcanreason"};
  controls::CommandButton cmdok{*this, "cmdok"};

 protected:
  void Design() override;

 private:
  void Form_Load();
  void Form_Activate();
  void Form_QueryUnload(bool& cancel, controls::UnloadMode mode);
  void txtcanreason_Change();
  void txtcanreason_KeyUp(int& keyCode, int shift);
  void txtcanreason_KeyPress(int& character);
  void cmdok_Click();
  /// Hands the reason to the session, or asks for one. Whether there was one.
  bool TakeReason();
  bool HasReason() const;
};

}  // namespace goods
