#include "src/counter/counter_settings.h"

#include "base/vb/number.h"
#include "src/module/settings_reader.h"

namespace goods {

CounterSettings ReadCounterSettings(basGoodsRequest& session) {
  const SettingsFile file(session);
  const auto isOn = [&](std::string_view key) { return vb::Val(file.QuietFileCode(key, "0")) == 1; };
  return {isOn("showrequested"), isOn("showstock"), isOn("packproposals")};
}

}  // namespace goods
