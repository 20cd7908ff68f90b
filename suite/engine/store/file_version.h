#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

struct sqlite3;

namespace suite {

/// The version of the definitions in a database file (user_version, which every definition raises), as one connection sees it.
/// Asking before each statement costs nothing: the file is read only after somebody has committed something, which the store's
/// shared memory tells.
class FileVersion {
 public:
  /// `handle` outlives this object. Only with a write-ahead log is there a shared memory; without it each call reads the file.
  void Watch(sqlite3* handle, bool writeAheadLog) {
    handle_ = handle;
    writeAheadLog_ = writeAheadLog;
  }

  /// Inside a transaction what the first call there found; call Forget when a transaction begins or ends.
  std::int32_t Current();
  /// Raises it by one, inside the transaction that is open.
  void Raise();
  void Forget() { known_ = false; }

 private:
  /// As much of the shared memory as changes with every commit: the header of the index of the write-ahead log.
  using Header = std::array<std::byte, 48>;

  const void* SharedHeader();
  bool HasTransaction() const;
  std::int32_t Read();

  sqlite3* handle_ = nullptr;
  bool writeAheadLog_ = false;
  const void* header_ = nullptr;
  Header seen_{};
  bool known_ = false;
  std::int32_t version_ = 0;
};

}  // namespace suite
