#include "tests/processes/console_process.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace processes {
namespace {

struct Pipe {
  Pipe() {
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  int ends[2] = {-1, -1};
};

}  // namespace

ShopFolder::ShopFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "shop_processes_XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no folder " + name);
  path_ = name;
}

ConsoleProcess::ConsoleProcess(const ShopFolder& shop) {
  std::signal(SIGPIPE, SIG_IGN);  // a write to a program that was killed fails and does no more
  const Pipe in;
  const Pipe out;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in.ends[0], STDIN_FILENO);
  for (const int number : {STDOUT_FILENO, STDERR_FILENO}) posix_spawn_file_actions_adddup2(&actions, out.ends[1], number);
  Lines words = {CONSOLE_PROGRAM, "--echo", "--database", shop.Database(), "--app-folder", shop.Path()};
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  std::string states = "XDG_STATE_HOME=" + shop.States().string();
  std::vector<char*> environment = {states.data()};
  for (char** variable = environ; *variable; ++variable) environment.push_back(*variable);
  environment.push_back(nullptr);
  const int failed = posix_spawn(&process_, arguments[0], &actions, nullptr, arguments.data(), environment.data());
  posix_spawn_file_actions_destroy(&actions);
  close(in.ends[0]);
  close(out.ends[1]);
  in_ = in.ends[1];
  out_ = out.ends[0];
  if (failed) throw std::runtime_error("cannot start " + words[0]);
}

ConsoleProcess::~ConsoleProcess() {
  if (process_ > 0) Kill();
  close(out_);
}

Lines ConsoleProcess::Do(std::string_view command) {
  const std::string end = "# done " + std::to_string(++commands_);
  Send(std::string(command) + "\n" + end + "\n");
  Lines printed = ReadUntil("> " + end);
  if (!printed.empty() && printed.back() == "> " + end) {
    printed.pop_back();
    return printed;
  }
  throw std::runtime_error("the program ended at " + std::string(command) + (printed.empty() ? "" : ": " + printed.back()));
}

void ConsoleProcess::Send(std::string_view commands) const {
  while (!commands.empty()) {
    const ssize_t written = write(in_, commands.data(), commands.size());
    if (written <= 0) return;  // it has ended, which the reading tells
    commands.remove_prefix(static_cast<std::size_t>(written));
  }
}

Lines ConsoleProcess::ReadUntil(std::string_view last) {
  Lines printed;
  for (;;) {
    for (std::size_t end = 0; (end = unread_.find('\n')) != std::string::npos; unread_.erase(0, end + 1)) {
      printed.push_back(unread_.substr(0, end));
      if (printed.back() != last) continue;
      unread_.erase(0, end + 1);
      return printed;
    }
    char block[4096];
    const ssize_t count = read(out_, block, sizeof block);
    if (count <= 0) return printed;
    unread_.append(block, static_cast<std::size_t>(count));
  }
}

void ConsoleProcess::Kill() {
  kill(process_, SIGKILL);
  Wait();
}

int ConsoleProcess::Finish() {
  close(std::exchange(in_, -1));
  while (!ReadUntil({}).empty()) {
  }
  return Wait();
}

int ConsoleProcess::Wait() {
  int status = 0;
  waitpid(std::exchange(process_, -1), &status, 0);
  if (in_ >= 0) close(std::exchange(in_, -1));
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

std::string After(const Lines& lines, std::string_view beginning) {
  for (const std::string& line : lines) {
    if (line.starts_with(beginning)) return line.substr(beginning.size());
  }
  return {};
}

std::vector<Lines> Rows(const Lines& lines, std::size_t skip) {
  constexpr std::string_view kRow = "row: ";
  std::vector<Lines> rows;
  for (const std::string& line : lines) {
    if (!line.starts_with(kRow)) continue;
    if (skip > 0) {
      --skip;
      continue;
    }
    Lines& cells = rows.emplace_back(1);
    for (const char character : line.substr(kRow.size())) {
      if (character == '\t') {
        cells.emplace_back();
      } else {
        cells.back() += character;
      }
    }
  }
  return rows;
}

}  // namespace processes
