#include "platform/console/program/live_session.h"

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "platform/console/program/file_memory.h"
#include "platform/console/program/shop_parts.h"
#include "platform/terminal/terminal_desktop.h"
#include "platform/text/text_state_file.h"
#include "src/entry/cls_goods_request.h"
#include "src/entry/module.h"
#include "suite/helpers/register_helpers.h"
#include "suite/host/frm_log_on.h"
#include "suite/shop/shop.h"

namespace console {
namespace {

/// The file that a viewer's command line ends with.
std::string FileOf(std::string_view commandLine) {
  if (commandLine.ends_with('"')) {
    commandLine.remove_suffix(1);
    return std::string(commandLine.substr(commandLine.rfind('"') + 1));
  }
  return std::string(commandLine.substr(commandLine.rfind(' ') + 1));
}

std::string TextOf(workstation::Workstation& workstation, const std::string& path) {
  std::string text;
  const auto file = workstation.OpenForInput(path);
  while (const auto line = file->ReadLine()) text.append(*line).append("\n");
  return text;
}

suite::LogOnPresets PresetsOf(const Options& options) {
  const auto id = [](const std::optional<long>& given) {
    return given ? std::optional(static_cast<std::int32_t>(*given)) : std::nullopt;
  };
  return {id(options.company), id(options.shop), id(options.user), options.date};
}

/// The shop around the component, as a host makes it.
class LiveSession {
 public:
  LiveSession(const Options& options, terminal::Screen& screen)
      : options_(options),
        desktop_(screen),
        workstation_(SettingsOf(options)),
        database_(OpenDatabase(options)),
        module_(goods::Services{desktop_, workstation_, registry_}) {
    suite::RegisterAdo(registry_);
    suite::RegisterHelpers(registry_,
                           std::make_shared<suite::Surroundings>(suite::Surroundings{desktop_, workstation_, registry_, {}}));
  }

  void Run() {
    FileMemory memory(text::StateFolder());
    const auto form = std::make_shared<suite::frmLogOn>(desktop_, ado::Connection(database_->Connect()), memory,
                                                        options_.date.value_or(suite::SampleProcessDate()), PresetsOf(options_),
                                                        [this](const suite::LogOn& logOn) { Open(logOn); });
    if (const std::string missing = form->MissingPreset(); !missing.empty()) vb::Raise(vb::kInvalidCall, missing);
    form->Show();
  }

 private:
  text::TextWorkstation::Settings SettingsOf(const Options& options) {
    text::TextWorkstation::Settings settings = WorkstationSettings(options);
    settings.startProgram = [this](std::string_view commandLine, int) {
      const std::string file = FileOf(commandLine);
      desktop_.ShowText(file, TextOf(workstation_, file));
    };
    return settings;
  }

  void Open(const suite::LogOn& logOn) {
    const auto request = std::make_shared<goods::clsGoodsRequest>(module_);
    request->adocon(database_->Connect());
    request->strMsgboxCaption = options_.title;
    request->intCompanyID = logOn.companyId;
    request->intUserID = logOn.userId;
    request->intShopID = logOn.shopId;
    request->dtProcessDate = logOn.processDate;
    request->Show();
  }

  const Options& options_;
  terminal::TerminalDesktop desktop_;
  text::TextWorkstation workstation_;
  std::shared_ptr<suite::Database> database_;
  late::ClassRegistry registry_;
  goods::Module module_;
};

}  // namespace

std::string RunLiveSession(const Options& options) {
  try {
    terminal::Screen screen;
    LiveSession(options, screen).Run();
  } catch (const vb::RunTimeError& error) {
    return std::to_string(error.Number()) + " " + error.Description();
  }
  return {};
}

}  // namespace console
