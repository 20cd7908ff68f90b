#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace live {

/// The program on a terminal of its own, worked by keys as a person does. Everything waits until it is seen and throws
/// std::runtime_error with the screen when that never comes.
class LiveProgram {
 public:
  struct Settings {
    int columns = 200, rows = 60;
    std::string options = {};      ///< of the program, after --live
    std::string environment = {};  ///< assignments before the command
    bool opensRegister = true;     ///< past the log-on values
  };
  explicit LiveProgram(Settings settings);
  LiveProgram() : LiveProgram(Settings{}) {}
  ~LiveProgram();
  LiveProgram(const LiveProgram&) = delete;
  LiveProgram& operator=(const LiveProgram&) = delete;

  /// A key by its name in the table of keys: "Enter", "Ctrl+J", "Alt+S", "Shift+F3", "Menu".
  void Press(const std::string& key);
  void Type(const std::string& text);
  /// Bytes as the terminal would send them.
  void SendBytes(const std::string& bytes);
  /// Pasted in one piece.
  void Paste(const std::string& text);
  enum class Button { Left = 0, Right = 2, WheelUp = 64, WheelDown = 65 };
  /// Never so soon after one at the same place that it would be a double click.
  void Click(int x, int y, Button button = Button::Left);
  void Resize(int columns, int rows);
  void Signal(int number);
  /// The shell that the program was suspended to goes on with it.
  void Resume();

  std::vector<std::string> Screen() const;
  /// Waits until the screen has the text, or has it no more.
  void Shows(const std::string& text) const;
  void ShowsNot(const std::string& text) const;
  void Wait(const std::function<bool()>& holds, const std::string& what) const;
  /// What was put on the system's clipboard last.
  std::string Clipboard() const;
  /// Waits for the end; the exit status, or 128 and the number of the signal that ended it.
  int ExitStatus() const;
  bool HasEnded() const;

  const std::filesystem::path& Folder() const { return folder_; }

 private:
  std::string Tmux(const std::string& arguments) const;
  int ProcessId() const;

  std::filesystem::path folder_;
  std::string server_;
  int lastX_ = -1, lastY_ = -1;
  std::chrono::steady_clock::time_point lastClick_;
};

}  // namespace live
