#include "bench/bench_shop.h"

#include <filesystem>
#include <unistd.h>

#include "base/controls/form.h"
#include "base/vb/error.h"
#include "suite/helpers/register_helpers.h"
#include "suite/shop/shop.h"

namespace bench {
namespace {

void Remove(const std::string& path) {
  for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(path + suffix);
}

std::shared_ptr<suite::Database> Make(const std::string& path, const suite::Scale& scale) {
  Remove(path);
  auto database = suite::Database::Open(path);
  suite::LoadSchema(*database, false);
  suite::LoadSample(*database);
  suite::GenerateShop(*database, scale);
  return database;
}

}  // namespace

controls::Answer EmptyDesktop::MsgBox(controls::Form*, const controls::Message& message) {
  return message.AnswerOf(1);
}

void EmptyDesktop::RunModal(controls::Form& form) {
  if (const auto now = std::exchange(work, {})) now(form);
  if (form.IsShown()) form.Unload();
}

std::unique_ptr<workstation::InputFile> EmptyWorkstation::OpenForInput(std::string_view) {
  vb::Raise(vb::kFileNotFound);
}
std::unique_ptr<workstation::OutputFile> EmptyWorkstation::OpenForOutput(std::string_view) {
  vb::Raise(vb::kPermissionDenied);
}
std::unique_ptr<workstation::OutputFile> EmptyWorkstation::OpenForAppend(std::string_view) {
  vb::Raise(vb::kPermissionDenied);
}
std::unique_ptr<workstation::StateFile> EmptyWorkstation::TakeStateFile(std::string_view) {
  /// Takes what it is given and keeps nothing.
  class NoFile : public workstation::StateFile {
   public:
    std::optional<std::string> Read() override { return std::nullopt; }
    void Replace(std::string_view) override {}
    void Remove() override {}
    std::string SetAside() override { return {}; }
  };
  return std::make_unique<NoFile>();
}

BenchShop::BenchShop(const std::string& file, const suite::Scale& scale)
    : path(file), database(Make(file, scale)), module({desktop, workstation, registry}), session(module.Session()) {
  suite::RegisterAdo(registry);
  suite::RegisterHelpers(registry,
                         std::make_shared<suite::Surroundings>(suite::Surroundings{desktop, workstation, registry, {}}));
  session.gAdoCon = ado::Connection(database->Connect());
  session.gStrMsgboxCaption = "Shop";
  session.gIntCompanyID = session.gIntShopID = session.gIntUserID = 1;
  session.gLngInterfaceID = 1503;
  session.gDtProcessDate = suite::SampleProcessDate();
}

BenchShop::~BenchShop() {
  session.gAdoCon = {};
  database.reset();
  Remove(path);
}

void BenchShop::LogOn() {
  session.gObjFormColor = goods::FormColor(registry);
  session.gStrStockView = "vwInquiryShopStock";
  session.gBlnRequestForNonShopItem = true;
  goods::OpenUserAuditing(session);
}

std::string TemporaryFile(const std::string& name) {
  return (std::filesystem::temp_directory_path() / (name + "-" + std::to_string(getpid()) + ".db")).string();
}

}  // namespace bench
