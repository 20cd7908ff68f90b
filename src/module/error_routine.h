#pragma once

#include <functional>
#include <string_view>

#include "base/vb/error.h"
#include "src/module/session.h"

namespace goods {

/// The module's error routine: hands a trapped error, with the user's name and the editor mode, to the error-reporting component.
/// `module` is the form's or module's name followed by one blank. Where that component is missing or fails, a message box of the
/// component's own shows the error. Raises nothing.
void ReportError(basGoodsRequest& session, std::string_view module, std::string_view routine, const vb::RunTimeError& error);

/// Runs `work` inside an error trap of the named routine, which reports a standard exception as error 51. Whether it ran to its
/// end.
bool Trapped(basGoodsRequest& session, std::string_view module, std::string_view routine, const std::function<void()>& work);

}  // namespace goods
