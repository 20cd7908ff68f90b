#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/vb/date.h"
#include "base/workstation/state_file.h"

namespace workstation {

/// A text file opened for input. Text comes out as UTF-8, whatever the workstation's character set.
class InputFile {
 public:
  virtual ~InputFile() = default;
  /// The next line without its end (CR, CRLF or a lone LF); nothing at the end of the file.
  virtual std::optional<std::string> ReadLine() = 0;
};

/// A file or printer port opened for output. Closing happens with the object; Close reports errors of it.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  /// Writes the text, given in UTF-8, in the workstation's character set (characters it lacks become "?"), with no line end
  /// added.
  virtual void Write(std::string_view text) = 0;
  virtual void Close() = 0;
};

/// The machine the component runs on: clock, folders, files, starting programs. Paths are the workstation's own
/// ("C:\Reqtohq.txt"). File errors carry the classic numbers: 53 not found, 70 permission denied, 75 path/file access, 76 path
/// not found, 52 bad name.
class Workstation {
 public:
  virtual ~Workstation() = default;

  virtual vb::Date Now() = 0;
  /// Folder of the component's settings and reports, without a trailing separator.
  virtual std::string ApplicationFolder() = 0;
  virtual std::string WindowsDirectory() = 0;
  /// The user's temporary folder, without a trailing separator.
  virtual std::string TempFolder() = 0;
  virtual bool FileExists(std::string_view path) = 0;
  virtual std::unique_ptr<InputFile> OpenForInput(std::string_view path) = 0;
  /// Truncates an existing file. A port name ("LPT1") is written as a device.
  virtual std::unique_ptr<OutputFile> OpenForOutput(std::string_view path) = 0;
  /// Appends; makes the file when it is not there.
  virtual std::unique_ptr<OutputFile> OpenForAppend(std::string_view path) = 0;
  /// Starts a program and does not wait. Style: 1 normal with focus, 3 maximised with focus. Error 53 when it cannot be found.
  virtual void StartProgram(std::string_view commandLine, int style) = 0;

  /// Whether the user's state folder has a file of that name, taken by a process or not. Makes and raises nothing.
  virtual bool StateFileExists(std::string_view name) = 0;
  /// Takes the state file of that name, which need not exist yet; null when another process has it. A file error when the folder
  /// cannot be made or written.
  virtual std::unique_ptr<StateFile> TakeStateFile(std::string_view name) = 0;
};

}  // namespace workstation
