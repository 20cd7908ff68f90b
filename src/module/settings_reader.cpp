#include "src/module/settings_reader.h"

#include <memory>
#include <optional>

#include "base/vb/text.h"
#include "src/module/error_routine.h"
#include "src/module/module_name.h"

namespace goods {
namespace {

constexpr std::string_view kSeparator = ":=";
constexpr std::string_view kNotFound = "NotFound";

/// The value of the first line that carries the key. The files are written "key := value": the one character before the
/// separator belongs to neither side.
std::optional<std::string> ScanForKey(workstation::InputFile& file, std::string_view key) {
  const std::string wanted = vb::UCase(key);
  while (const std::optional<std::string> line = file.ReadLine()) {
    const auto separator = static_cast<long>(vb::InStr(*line, kSeparator));
    if (separator < 2 || vb::UCase(vb::Left(*line, separator - 2)) != wanted) continue;
    return vb::Mid(*line, separator + 2);
  }
  return std::nullopt;
}

void TellCritical(basGoodsRequest& session, std::string text) {
  controls::Desktop& desktop = session.services.desktop;
  desktop.MsgBox(desktop.ActiveForm(), {std::move(text), controls::kCritical, session.gStrMsgboxCaption});
}

std::unique_ptr<workstation::InputFile> OpenOrTell(basGoodsRequest& session, std::string_view path) {
  try {
    return session.services.workstation.OpenForInput(path);
  } catch (const vb::RunTimeError&) {
    TellCritical(session, " Settings.ini file not found");
    throw;
  }
}

}  // namespace

std::string FileCode(basGoodsRequest& session, std::string_view key, std::string_view path) {
  std::string result;
  Trapped(session, kModuleName, "FileCode ", [&] {
    const std::unique_ptr<workstation::InputFile> file = OpenOrTell(session, path);
    std::optional<std::string> value = ScanForKey(*file, key);
    if (!value) TellCritical(session, std::string(key) + "  invalid parameter in Settings.ini file");
    if (value && !vb::EqualNoCase(*value, kNotFound)) result = std::move(*value);
  });
  return result;
}

std::string QuietFileCode(basGoodsRequest& session, std::string_view key, std::string_view path, std::string_view otherwise) {
  try {
    const std::unique_ptr<workstation::InputFile> file = session.services.workstation.OpenForInput(path);
    std::optional<std::string> value = ScanForKey(*file, key);
    if (value && !vb::EqualNoCase(*value, kNotFound)) return std::move(*value);
  } catch (const vb::RunTimeError&) {
    // An optional setting in a file that cannot be read is an absent one.
  }
  return std::string(otherwise);
}

std::string SettingsPath(basGoodsRequest& session) {
  return session.services.workstation.ApplicationFolder() + "\\ShopSetting.txt";
}

}  // namespace goods
