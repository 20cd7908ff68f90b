#pragma once

#include <string>
#include <string_view>

#include "src/module/session.h"

namespace goods {

/// The program that shows a text slip, as the beginning of a command line: the Windows directory's edit.com followed by a
/// blank.
std::string TextViewer(basGoodsRequest& session);

/// Starts the viewer, maximised, on the slip; does not wait. Where the viewer does not exist, the Windows directory's
/// notepad takes its place. Error 53 when neither can be started.
void ShowTextFile(basGoodsRequest& session, std::string_view viewer, std::string_view file);

}  // namespace goods
