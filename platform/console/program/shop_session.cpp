#include "platform/console/program/shop_session.h"

#include "base/vb/error.h"
#include "platform/console/acting_commands.h"
#include "platform/console/escape.h"
#include "platform/console/input.h"
#include "platform/console/interpreter.h"
#include "platform/console/looking_commands.h"
#include "platform/console/program/database_watch.h"
#include "platform/console/program/shop_parts.h"
#include "platform/console/text_desktop.h"
#include "platform/console/traced_object.h"
#include "platform/text/text_workstation.h"
#include "src/entry/cls_goods_request.h"
#include "src/entry/module.h"
#include "suite/helpers/register_helpers.h"
#include "suite/shop/shop.h"

namespace console {
namespace {

constexpr std::int32_t kDefaultId = 1;
constexpr std::string_view kReportServer = "Crystal.CRPE.Application";

text::TextWorkstation::Settings Announcing(text::TextWorkstation::Settings settings, Output& output) {
  settings.startProgram = [&output](std::string_view commandLine, int style) {
    output.Line("run", Quote(commandLine) + " style=" + std::to_string(style));
  };
  return settings;
}

}  // namespace

struct ShopSession::Parts {
  Parts(const Options& givenOptions, std::istream& commands, bool terminal, Output& givenOutput)
      : options(givenOptions),
        output(givenOutput),
        input(commands, output, options.echo ? Input::Echo::On : Input::Echo::Off,
              terminal ? Input::From::Terminal : Input::From::Script),
        desktop(input, output),
        workstation(Announcing(WorkstationSettings(options), output)),
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
