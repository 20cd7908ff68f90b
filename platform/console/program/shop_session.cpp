#include "platform/console/program/shop_session.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/vb/error.h"
#include "platform/console/acting_commands.h"
#include "platform/console/escape.h"
#include "platform/console/input.h"
#include "platform/console/interpreter.h"
#include "platform/console/looking_commands.h"
#include "platform/console/program/database_watch.h"
#include "platform/console/text_desktop.h"
#include "platform/console/traced_object.h"
#include "platform/text/text_state_file.h"
#include "platform/text/text_workstation.h"
#include "src/entry/cls_goods_request.h"
#include "src/entry/module.h"
#include "suite/helpers/register_helpers.h"
#include "suite/shop/generator.h"
#include "suite/shop/shop.h"

namespace console {
namespace {

constexpr std::int32_t kDefaultId = 1;
constexpr std::string_view kReportServer = "Crystal.CRPE.Application";

void FillNewDatabase(suite::Database& database, ado::Connection connection, const Options& options) {
  suite::LoadSchema(database, options.replication);
  if (options.empty) return;
  suite::LoadSample(database);
  if (options.requests || options.items) {
    suite::GenerateShop(connection, suite::Scale{.requests = static_cast<int>(options.requests.value_or(0)),
                                                 .items = static_cast<int>(options.items.value_or(0))});
  }
}

std::shared_ptr<suite::Database> OpenDatabase(const Options& options) {
  suite::Database::Options settings;
  if (options.now) settings.clock = [now = *options.now] { return now; };
  auto database = suite::Database::Open(options.database, std::move(settings));
  database->FillWhenEmpty(
      [&](const late::ObjectPtr& connection) { FillNewDatabase(*database, ado::Connection(connection), options); });
  if (!options.init.empty()) {
    std::ifstream stream(options.init, std::ios::binary);
    if (!stream) throw OptionError("cannot read " + options.init);
    std::ostringstream script;
    script << stream.rdbuf();
    database->RunScript(script.str());
  }
  return database;
}

text::TextWorkstation::Settings WorkstationSettings(const Options& options, Output& output) {
  std::string folder = options.applicationFolder.empty() ? std::filesystem::current_path().string() : options.applicationFolder;
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  if (!std::filesystem::is_directory(folder)) throw OptionError("no folder " + folder);
  const auto announce = [&output](std::string_view commandLine, int style) {
    output.Line("run", Quote(commandLine) + " style=" + std::to_string(style));
  };
  return {folder, options.windowsDirectory, options.now, text::StateFolder(), announce};
}

}  // namespace

struct ShopSession::Parts {
  Parts(const Options& givenOptions, std::istream& commands, bool terminal, Output& givenOutput)
      : options(givenOptions),
        output(givenOutput),
        input(commands, output, options.echo ? Input::Echo::On : Input::Echo::Off,
              terminal ? Input::From::Terminal : Input::From::Script),
        desktop(input, output),
        workstation(WorkstationSettings(options, output)),
        database(OpenDatabase(options)),
        watch(output),
        tools(*database, watch),
        factory(registry, output),
        module(goods::Services{desktop, workstation, factory}),
        interpreter(desktop, output) {
    suite::RegisterAdo(registry);
    suite::RegisterHelpers(registry,
                           std::make_shared<suite::Surroundings>(suite::Surroundings{desktop, workstation, registry, {}}));
    if (options.reportServer) {
      registry.Register(std::string(kReportServer),
                        [this] { return std::make_shared<RecordingObject>(std::string(kReportServer), output); });
    }
    AddCommands();
    output.SetTracing(options.trace);
  }

  void AddCommands() {
    desktop.SetLineHandler([this](const std::string& line) { interpreter.Execute(line); });
    CommandTable& table = interpreter.Commands();
    table.Add(MouseCommands(desktop));
    table.Add(KeyboardCommands(desktop));
    table.Add(AnswerCommands(desktop));
    table.Add(LookingCommands(desktop, output, [this](std::string_view name) { return module.Session().Global(name); }));
    table.Add(DatabaseCommands(tools, output));
    table.Add(
        OtherCommands(desktop, table, output, [this](std::string_view name) { return workstation.ReadApplicationFile(name); }));
  }

  const Options options;
  Output& output;
  Input input;
  TextDesktop desktop;
  text::TextWorkstation workstation;
  std::shared_ptr<suite::Database> database;
  ConnectionWatch watch;
  ShopDatabase tools;
  late::ClassRegistry registry;
  TracingFactory factory;
  goods::Module module;
  Interpreter interpreter;
};

ShopSession::ShopSession(const Options& options, std::istream& commands, bool terminal, Output& output)
    : parts_(std::make_unique<Parts>(options, commands, terminal, output)) {}

ShopSession::~ShopSession() = default;

void ShopSession::Run() {
  const Options& options = parts_->options;
  const auto id = [](const std::optional<long>& given) { return static_cast<std::int32_t>(given.value_or(kDefaultId)); };
  const auto request = std::make_shared<goods::clsGoodsRequest>(parts_->module);
  request->adocon(parts_->database->Connect(&parts_->watch));
  request->strMsgboxCaption = options.title;
  request->intCompanyID = id(options.company);
  request->intUserID = id(options.user);
  request->intShopID = id(options.shop);
  request->dtProcessDate = options.date.value_or(suite::SampleProcessDate());
  request->Show();
}

}  // namespace console
