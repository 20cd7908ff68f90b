#include "suite/engine/store/file_version.h"

#include <cstring>
#include <sqlite3.h>
#include <string>

#include "suite/engine/values/errors.h"

namespace suite {

bool FileVersion::HasTransaction() const {
  return !sqlite3_get_autocommit(handle_);
}

const void* FileVersion::SharedHeader() {
  constexpr int kRegionSize = 32768;
  if (header_ || !writeAheadLog_) return header_;
  sqlite3_file* file = nullptr;
  if (sqlite3_file_control(handle_, nullptr, SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || !file || !file->pMethods ||
      file->pMethods->iVersion < 2) {
    return nullptr;
  }
  void volatile* region = nullptr;
  if (file->pMethods->xShmMap(file, 0, kRegionSize, 0, &region) != SQLITE_OK) return nullptr;
  return header_ = const_cast<const void*>(region);
}

std::int32_t FileVersion::Read() {
  sqlite3_stmt* statement = nullptr;
  int code = sqlite3_prepare_v2(handle_, "PRAGMA user_version", -1, &statement, nullptr);
  if (code == SQLITE_OK) code = sqlite3_step(statement);
  const std::int32_t version = code == SQLITE_ROW ? sqlite3_column_int(statement, 0) : 0;
  sqlite3_finalize(statement);
  if (code != SQLITE_ROW) RaiseFromStore(handle_, code);
  return version;
}

std::int32_t FileVersion::Current() {
  // Inside a transaction nobody else writes.
  if (known_ && HasTransaction()) return version_;
  const void* header = known_ ? header_ : nullptr;
  if (header && std::memcmp(header, seen_.data(), seen_.size()) == 0) return version_;
  // Open rows keep the state of the file that they began with: what is read then is of that state.
  const bool latest = sqlite3_txn_state(handle_, nullptr) == SQLITE_TXN_NONE;
  // The header first: what is committed while the version is read shows at the next call.
  if (header_) std::memcpy(seen_.data(), header_, seen_.size());
  version_ = Read();
  known_ = (header_ && latest) || HasTransaction();
  SharedHeader();  // is there after the first reading
  return version_;
}

void FileVersion::Raise() {
  const std::int32_t next = Current() + 1;
  const int code = sqlite3_exec(handle_, ("PRAGMA user_version = " + std::to_string(next)).c_str(), nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) RaiseFromStore(handle_, code);
  version_ = next;
}

}  // namespace suite
