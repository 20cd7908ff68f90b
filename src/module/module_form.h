#pragma once

#include <string>

#include "base/controls/form.h"
#include "src/module/error_routine.h"
#include "src/module/key_help.h"
#include "src/module/session.h"

namespace goods {

/// A form of the component: has the session, tells its keys when F1 is pressed, and reports what its handlers' traps catch
/// through the module's error routine.
class ModuleForm : public controls::Form {
 protected:
  ModuleForm(basGoodsRequest& session, std::string name) : Form(session.services.desktop, std::move(name)), session_(session) {
    On(HelpRequested, "Form_Help", [this] { Tell(KeysToTell(Name())); });
  }

  basGoodsRequest& Session() const { return session_; }
  /// A refusal or question with the session's title.
  controls::Answer Tell(std::string_view text, int style = controls::kInformation) {
    return MsgBox(text, style, session_.gStrMsgboxCaption);
  }
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override {
    goods::ReportError(session_, Name() + " ", routine, error);
  }

 private:
  basGoodsRequest& session_;
};

}  // namespace goods
