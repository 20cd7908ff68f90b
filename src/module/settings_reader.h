#pragma once

#include <string>
#include <string_view>

#include "src/module/session.h"

namespace goods {

/// The value of a setting, as written in the file; empty when no line carries the key (with a message box) or the file cannot
/// be opened (message box and error report).
std::string FileCode(basGoodsRequest& session, std::string_view key, std::string_view path);

/// The same without any message: `otherwise` when file or key is absent. For optional settings.
std::string QuietFileCode(basGoodsRequest& session, std::string_view key, std::string_view path, std::string_view otherwise);

/// ShopSetting.txt in the application folder.
std::string SettingsPath(basGoodsRequest& session);

}  // namespace goods
