#include "tests/platform/terminal/live_program.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace live {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kPatience = 8s;

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? "'\\''" : std::string(1, c);
  return quoted + "'";
}

std::string OutputOf(const std::string& command) {
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) throw std::runtime_error("cannot run " + command);
  std::string output;
  char block[4096];
  for (std::size_t count = 0; (count = fread(block, 1, sizeof block, pipe)) > 0;) output.append(block, count);
  pclose(pipe);
  return output;
}

std::string ReadAll(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

/// As the terminal's own program calls the key.
std::string NameOf(std::string key) {
  static const std::map<std::string, std::string> names = {{"Esc", "Escape"},      {"Delete", "DC"},      {"Backspace", "BSpace"},
                                                           {"Shift+Tab", "BTab"},  {"Ctrl+Enter", "C-j"}, {"Menu", "S-F10"},
                                                           {"Ctrl+Tab", "C-NPage"}};
  if (const auto known = names.find(key); known != names.end()) return known->second;
  std::string prefix;
  for (const auto& [held, shortName] : {std::pair{"Ctrl+", "C-"}, {"Alt+", "M-"}, {"Shift+", "S-"}}) {
    if (!key.starts_with(held)) continue;
    prefix = shortName;
    key.erase(0, std::string(held).size());
    if (key.size() == 1) key[0] = static_cast<char>(std::tolower(key[0]));
  }
  return prefix + (key == "PageDown" ? "NPage" : key == "PageUp" ? "PPage" : key);
}

}  // namespace

LiveProgram::LiveProgram(Settings settings) {
  static int count = 0;
  server_ = "live" + std::to_string(getpid()) + '_' + std::to_string(++count);
  folder_ = fs::temp_directory_path() / server_;
  fs::create_directories(folder_);
  fs::copy_file(fs::path(SOURCE_FOLDER) / "platform/console/tour/ShopSetting.txt", folder_ / "ShopSetting.txt",
                fs::copy_options::overwrite_existing);
  const std::string folder = folder_.string();
  // A shell with jobs, which a suspended program goes back to until it is to go on.
  std::ofstream(folder_ / "shell") << "trap : INT QUIT; cd " << folder << "\n"
                                   << "sh -c 'echo $$ >pid; exec env LC_ALL=C.UTF-8 XDG_STATE_HOME=" << folder << "/state "
                                   << settings.environment
                                   << " " CONSOLE_PROGRAM " --live --app-folder . --now \"2024-03-15 09:30:00\" "
                                   << settings.options << " 2>errors'; status=$?\n"
                                   << "while [ $status = 148 ]; do\n"
                                   << "  echo suspended; until [ -e resume ]; do sleep 0.02; done; rm resume\n"
                                   << "  fg >/dev/null; status=$?\n"
                                   << "done\n"
                                   << "stty -a >terminal; echo $status >status; echo ended; sleep 60\n";
  std::ofstream(folder_ / "tmux.conf") << "set -g default-terminal tmux-256color\nset -g status off\nset -s escape-time 0\n"
                                       << "set -s set-clipboard on\nset -g remain-on-exit on\n";
  Tmux("-u -f " + folder + "/tmux.conf new-session -d -x " + std::to_string(settings.columns) + " -y " +
       std::to_string(settings.rows) + " " + Quoted("exec bash --norc -m " + folder + "/shell"));
  if (!settings.opensRegister) return;
  Shows("Process date:");
  Press("Enter");
  Shows("Goods Request to HQ");
}

LiveProgram::~LiveProgram() {
  Tmux("kill-server 2>/dev/null");
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string LiveProgram::Tmux(const std::string& arguments) const {
  return OutputOf("tmux -L " + server_ + " " + arguments);
}

void LiveProgram::Press(const std::string& key) {
  Tmux("send-keys " + Quoted(NameOf(key)));
}

void LiveProgram::Type(const std::string& text) {
  if (!text.empty()) Tmux("send-keys -l " + Quoted(text));
}

void LiveProgram::SendBytes(const std::string& bytes) {
  std::string hex;
  for (const char byte : bytes) {
    char digits[8];
    snprintf(digits, sizeof digits, " %02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    hex += digits;
  }
  Tmux("send-keys -H" + hex);
}

void LiveProgram::Paste(const std::string& text) {
  const fs::path file = folder_ / "pasted";
  std::ofstream(file, std::ios::binary) << text;
  Tmux("load-buffer -b given " + file.string() + " \\; paste-buffer -p -b given");
}

void LiveProgram::Click(int x, int y, Button button) {
  constexpr int kOrigin = 33;
  constexpr auto kDoubleClick = 450ms;
  if (x == lastX_ && y == lastY_) std::this_thread::sleep_until(lastClick_ + kDoubleClick);
  lastX_ = x;
  lastY_ = y;
  lastClick_ = std::chrono::steady_clock::now();
  constexpr int kRelease = 3;
  std::string reports;
  for (const int what : {static_cast<int>(button), kRelease}) {
    reports += "\x1B[M";
    for (const int code : {what + ' ', x + kOrigin, y + kOrigin}) reports += static_cast<char>(code);
  }
  SendBytes(reports);
}

void LiveProgram::Resize(int columns, int rows) {
  Tmux("resize-window -x " + std::to_string(columns) + " -y " + std::to_string(rows));
}

int LiveProgram::ProcessId() const {
  Wait([this] { return !ReadAll(folder_ / "pid").empty(); }, "the program's start");
  return std::stoi(ReadAll(folder_ / "pid"));
}

void LiveProgram::Resume() {
  std::ofstream(folder_ / "resume") << "\n";
}

void LiveProgram::Signal(int number) {
  kill(ProcessId(), number);
}

std::vector<std::string> LiveProgram::Screen() const {
  std::istringstream printed(Tmux("capture-pane -p"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(printed, line);) lines.push_back(line);
  return lines;
}

void LiveProgram::Wait(const std::function<bool()>& holds, const std::string& what) const {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!holds()) {
    if (std::chrono::steady_clock::now() > end) {
      std::string screen;
      for (const std::string& line : Screen()) screen += line + '\n';
      throw std::runtime_error("waited in vain: " + what + "; on the screen:\n" + screen + ReadAll(folder_ / "errors"));
    }
    std::this_thread::sleep_for(10ms);
  }
}

void LiveProgram::Shows(const std::string& text) const {
  Wait([&] { return Tmux("capture-pane -p").find(text) != std::string::npos; }, text);
}

void LiveProgram::ShowsNot(const std::string& text) const {
  Wait([&] { return Tmux("capture-pane -p").find(text) == std::string::npos; }, "no more " + text);
}

std::string LiveProgram::Clipboard() const {
  return Tmux("show-buffer 2>/dev/null");
}

bool LiveProgram::HasEnded() const {
  return !ReadAll(folder_ / "status").empty();
}

int LiveProgram::ExitStatus() const {
  Wait([this] { return HasEnded(); }, "the program's end");
  return std::stoi(ReadAll(folder_ / "status"));
}

}  // namespace live
