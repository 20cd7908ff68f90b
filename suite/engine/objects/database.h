#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/late/object.h"
#include "base/vb/date.h"
#include "suite/engine/store/observer.h"

namespace suite {

struct Store;

/// One database in the server's dialect, in a file or in memory, for any number of connections of this process.
///
/// In a file the store keeps a write-ahead log: a connection reads what was last committed while another one writes, and a
/// process that dies amid a transaction leaves the state before it. In memory all connections share one store, and a reader also
/// sees what another connection has not committed yet (no reader ever waits).
class Database {
 public:
  struct Options {
    /// The server's clock; the machine's local time when there is none.
    std::function<vb::Date()> clock;
  };

  /// Opens the file, creating it when it does not exist; the empty path is a new database in memory. Raises the server's error
  /// 823 for a file that is none of ours or cannot be opened.
  static std::shared_ptr<Database> Open(const std::string& path, Options options = {});
  ~Database();

  /// A new ADO Connection, open. The observer, if there is one, outlives the connection.
  late::ObjectPtr Connect(StatementObserver* observer = nullptr);
  /// Runs statements separated by lines that hold only "go"; one statement a line when there is no such line. The first error
  /// ends it.
  void RunScript(std::string_view text);
  /// Whether there is no table in it yet.
  bool IsEmpty() const;
  /// When it is empty, runs `fill` in one transaction, with a connection that is part of it, as RunScript is. Another process
  /// that wants to fill the file waits and finds it filled; a process that dies or fails meanwhile leaves it empty. Errors of
  /// `fill` are raised.
  void FillWhenEmpty(const std::function<void(const late::ObjectPtr& connection)>& fill);

 private:
  explicit Database(std::shared_ptr<Store> store);
  std::shared_ptr<Store> store_;
};

/// Registers "ADODB.Connection" (opened with the connection string "embedded:PATH", "embedded:" for a new one in memory) and
/// "ADODB.Recordset".
void RegisterAdo(late::ClassRegistry& registry);

}  // namespace suite
