#include "suite/engine/objects/database.h"

#include <atomic>
#include <chrono>
#include <ctime>
#include <sqlite3.h>

#include "base/ado/connection.h"
#include "suite/engine/objects/connection.h"
#include "suite/engine/objects/recordset.h"
#include "suite/engine/store/definitions.h"
#include "suite/engine/store/session.h"
#include "suite/engine/store/store.h"

namespace suite {
namespace {

/// With its milliseconds: they tell two changes of one second apart.
vb::Date MachineTime() {
  const auto time = std::chrono::system_clock::now();
  const std::time_t now = std::chrono::system_clock::to_time_t(time);
  const std::tm* local = std::localtime(&now);
  vb::Date date =
      vb::MakeDate(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour, local->tm_min, local->tm_sec);
  const auto second = std::chrono::floor<std::chrono::seconds>(time);
  date.days += std::chrono::duration<double, std::ratio<86400>>(time - second).count();
  return date;
}

/// A name in memory that no other database of this process has.
std::string MemoryLocation() {
  static std::atomic<unsigned> last{0};
  return "file:shop" + std::to_string(++last) + "?mode=memory&cache=shared";
}

}  // namespace

Database::Database(std::shared_ptr<Store> store) : store_(std::move(store)) {}

Database::~Database() {
  store_->keeper.reset();
}

std::shared_ptr<Database> Database::Open(const std::string& path, Options options) {
  auto store = std::make_shared<Store>();
  store->memory = path.empty();
  store->location = store->memory ? MemoryLocation() : path;
  store->clock = options.clock ? std::move(options.clock) : MachineTime;
  store->keeper = std::make_shared<Session>(store, nullptr);
  std::shared_ptr<Database> database(new Database(store));
  Definitions definitions(*store->keeper);
  definitions.Prepare();
  store->keeper->Use();  // reads the catalog
  return database;
}

late::ObjectPtr Database::Connect(StatementObserver* observer) {
  return std::make_shared<Connection>(std::make_shared<Session>(store_, observer), store_, "embedded:");
}

void Database::RunScript(std::string_view text) {
  store_->keeper->RunScript(text);
}

bool Database::IsEmpty() const {
  Translation translation;
  translation.sql = "SELECT count(*) FROM sysobjects WHERE xtype = 'U'";
  const StatementHandle handle = store_->keeper->Prepare(std::move(translation));
  return store_->keeper->Step(handle.Get()) && sqlite3_column_int64(handle.Get(), 0) == 0;
}

void Database::FillWhenEmpty(const std::function<void(const late::ObjectPtr& connection)>& fill) {
  if (!IsEmpty()) return;
  ado::Connection connection(std::make_shared<Connection>(store_->keeper, store_, "embedded:"));
  ado::Transaction transaction(connection);
  store_->keeper->Use();  // takes the write lock
  if (!IsEmpty()) return;
  fill(connection.Object());
  transaction.Commit();
}

void RegisterAdo(late::ClassRegistry& registry) {
  registry.Register("ADODB.Connection", [] { return std::make_shared<Connection>(); });
  registry.Register("ADODB.Recordset", [] { return std::make_shared<Recordset>(); });
}

}  // namespace suite
