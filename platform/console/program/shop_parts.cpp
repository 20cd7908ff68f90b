#include "platform/console/program/shop_parts.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/text/text_state_file.h"
#include "suite/shop/generator.h"
#include "suite/shop/shop.h"

namespace console {
namespace {

void FillNewDatabase(suite::Database& database, ado::Connection connection, const Options& options) {
  suite::LoadSchema(database, options.replication);
  if (options.empty) return;
  suite::LoadSample(database);
  if (options.requests || options.items) {
    suite::GenerateShop(connection, suite::Scale{.requests = static_cast<int>(options.requests.value_or(0)),
                                                 .items = static_cast<int>(options.items.value_or(0))});
  }
}

}  // namespace

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

text::TextWorkstation::Settings WorkstationSettings(const Options& options) {
  std::string folder = options.applicationFolder.empty() ? std::filesystem::current_path().string() : options.applicationFolder;
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  if (!std::filesystem::is_directory(folder)) throw OptionError("no folder " + folder);
  return {folder, options.windowsDirectory, options.now, text::StateFolder(), {}};
}

}  // namespace console
