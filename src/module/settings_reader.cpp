#include "src/module/settings_reader.h"

#include <algorithm>
#include <utility>

#include "base/vb/text.h"
#include "src/module/error_routine.h"
#include "src/module/module_name.h"

namespace goods {
namespace {

constexpr std::string_view kSeparator = ":=";
constexpr std::string_view kNotFound = "NotFound";

void TellCritical(basGoodsRequest& session, std::string text) {
  controls::Desktop& desktop = session.services.desktop;
  desktop.MsgBox(desktop.ActiveForm(), {std::move(text), controls::kCritical, session.gStrMsgboxCaption});
}

}  // namespace

SettingsFile::SettingsFile(basGoodsRequest& session, bool failureToldOf) : session_(session), failureToldOf_(failureToldOf) {
  workstation::Workstation& workstation = session.services.workstation;
  try {
    const auto file = workstation.OpenForInput(workstation.ApplicationFolder() + "\\ShopSetting.txt");
    while (const std::optional<std::string> line = file->ReadLine()) {
      const std::size_t separator = line->find(kSeparator);
      if (separator == std::string::npos || separator == 0) continue;
      const std::string_view before = std::string_view(*line).substr(0, separator);
      // The character before the separator belongs to neither side.
      const std::string key = vb::Left(before, static_cast<long>(vb::Len(before)) - 1);
      settings_.emplace_back(vb::UCase(key), line->substr(separator + kSeparator.size()));
    }
  } catch (const vb::RunTimeError& error) {
    failure_ = error;
  }
}

std::string SettingsFile::FileCode(std::string_view key) {
  if (failure_) {
    if (!std::exchange(failureToldOf_, true)) TellOfFailure();
    return {};
  }
  const std::string* value = Find(key);
  if (!value) TellCritical(session_, std::string(key) + "  invalid parameter in Settings.ini file");
  return value && !vb::EqualNoCase(*value, kNotFound) ? *value : std::string();
}

std::string SettingsFile::QuietFileCode(std::string_view key, std::string_view otherwise) const {
  const std::string* value = Find(key);
  return value && !vb::EqualNoCase(*value, kNotFound) ? *value : std::string(otherwise);
}

const std::string* SettingsFile::Find(std::string_view key) const {
  const auto found = std::ranges::find(settings_, vb::UCase(key), &std::pair<std::string, std::string>::first);
  return found == settings_.end() ? nullptr : &found->second;
}

void SettingsFile::TellOfFailure() {
  TellCritical(session_, " Settings.ini file not found");
  ReportError(session_, kModuleName, "FileCode ", *failure_);
}

}  // namespace goods
