#pragma once

#include "base/controls/form.h"
#include "base/controls/tab_control.h"
#include "src/module/session.h"

namespace goods {

/// The suite's form colouring, kept in the session's gObjFormColor. Error 91 before the register's load created it.
void Applyformcolor(basGoodsRequest& session, controls::Form& form);
void Applytabcolor(basGoodsRequest& session, controls::TabControl& tabs);

}  // namespace goods
