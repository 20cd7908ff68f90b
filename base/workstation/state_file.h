#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace workstation {

/// A small text file in the user's own state folder, which outlives the program. It is read and replaced as a whole, in UTF-8.
/// While this object exists no other process can take the file; the system gives it free when the process ends, however it ends.
/// File errors carry the classic numbers, as a Workstation's do.
class StateFile {
 public:
  virtual ~StateFile() = default;
  /// The whole text; nothing when there is no such file.
  virtual std::optional<std::string> Read() = 0;
  /// Replaces the whole text: written to a file beside it, flushed to the disk and renamed, so that after a power failure the
  /// file holds the old text or the new one.
  virtual void Replace(std::string_view text) = 0;
  /// Deletes the file. Does nothing when there is none.
  virtual void Remove() = 0;
  /// Renames the file, so that it is kept and no longer in the way. Returns the new path, for the user.
  virtual std::string SetAside() = 0;
};

}  // namespace workstation
