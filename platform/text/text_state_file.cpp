#include "platform/text/text_state_file.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "base/vb/error.h"
#include "base/vb/file_error.h"

namespace text {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void RaiseFor(const fs::path& path) {
  const bool denied = errno == EACCES || errno == EPERM || errno == EROFS;
  vb::RaiseFileError(denied ? vb::kPermissionDenied : vb::kPathFileAccess, path.string());
}

/// A file descriptor that closes itself.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int Get() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_ = -1;
};

/// A file that is locked as long as this object exists, and then deleted. The lock is the system's: it ends with the process.
class LockFile {
 public:
  /// Whether the lock was free. Raises a file error when the file cannot be made.
  bool Take(fs::path path) {
    path_ = std::move(path);
    // Whoever had the file before may have deleted it between the opening and the lock: then there is a new one.
    for (;;) {
      Descriptor file(open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
      if (!file.IsOpen()) RaiseFor(path_);
      if (flock(file.Get(), LOCK_EX | LOCK_NB) != 0) return false;
      struct stat locked = {};
      struct stat present = {};
      if (fstat(file.Get(), &locked) == 0 && stat(path_.c_str(), &present) == 0 && locked.st_ino == present.st_ino) {
        file_ = std::move(file);
        return true;
      }
    }
  }
  LockFile() = default;
  LockFile(const LockFile&) = delete;
  LockFile& operator=(const LockFile&) = delete;
  ~LockFile() {
    if (file_.IsOpen()) unlink(path_.c_str());
  }

 private:
  fs::path path_;
  Descriptor file_;
};

void WriteAll(const Descriptor& file, std::string_view text, const fs::path& path) {
  while (!text.empty()) {
    const ssize_t written = write(file.Get(), text.data(), text.size());
    if (written < 0 && errno != EINTR) RaiseFor(path);
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
  }
}

class TextStateFile : public workstation::StateFile {
 public:
  explicit TextStateFile(fs::path path) : path_(std::move(path)) {}

  bool Take() { return lock_.Take(Beside(".lock")); }

  std::optional<std::string> Read() override {
    std::error_code ignored;
    if (!fs::exists(path_, ignored)) return std::nullopt;
    std::ifstream stream(path_, std::ios::binary);
    if (!stream) RaiseFor(path_);
    std::ostringstream content;
    content << stream.rdbuf();
    return std::move(content).str();
  }

  void Replace(std::string_view text) override {
    const fs::path fresh = Beside(".new");
    try {
      const Descriptor file(open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
      if (!file.IsOpen()) RaiseFor(fresh);
      WriteAll(file, text, fresh);
      if (fsync(file.Get()) != 0) RaiseFor(fresh);
      if (rename(fresh.c_str(), path_.c_str()) != 0) RaiseFor(path_);
    } catch (const vb::RunTimeError&) {
      unlink(fresh.c_str());
      throw;
    }
    FlushFolder();
  }

  void Remove() override {
    if (unlink(path_.c_str()) != 0 && errno != ENOENT) RaiseFor(path_);
  }

  std::string SetAside() override {
    std::error_code ignored;
    fs::path kept = Beside(".unreadable");
    for (int number = 2; fs::exists(kept, ignored); ++number) kept = Beside(".unreadable" + std::to_string(number));
    if (rename(path_.c_str(), kept.c_str()) != 0) RaiseFor(path_);
    return kept.string();
  }

 private:
  fs::path Beside(std::string_view ending) const {
    fs::path other = path_;
    other += ending;
    return other;
  }
  /// The rename itself reaches the disk.
  void FlushFolder() const {
    const Descriptor folder(open(path_.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen()) fsync(folder.Get());
  }

  fs::path path_;
  LockFile lock_;
};

}  // namespace

fs::path StateFolder() {
  constexpr const char* kOwnFolder = "goods-request";
  // A relative path is no path, by the rule for these folders.
  if (const char* state = std::getenv("XDG_STATE_HOME"); state && *state == '/') return fs::path(state) / kOwnFolder;
  if (const char* home = std::getenv("HOME"); home && *home == '/') return fs::path(home) / ".local/state" / kOwnFolder;
  return {};
}

bool StateFileExists(const fs::path& folder, std::string_view name) {
  std::error_code ignored;
  return fs::exists(folder / name, ignored);
}

std::unique_ptr<workstation::StateFile> TakeStateFile(const fs::path& folder, std::string_view name) {
  if (folder.empty()) vb::RaiseFileError(vb::kPathNotFound, name);
  std::error_code failed;
  fs::create_directories(folder, failed);
  if (failed) vb::RaiseFileError(vb::kPathFileAccess, folder.string());
  auto file = std::make_unique<TextStateFile>(folder / name);
  if (!file->Take()) return nullptr;
  return file;
}

}  // namespace text
