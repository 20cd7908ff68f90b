// What the live terminal costs: keys by the time and the bytes of their answer, the start and the memory against the console's.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "bench/measurements.h"
#include "bench/stopwatch.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kKeys = 100;
constexpr int kStarts = 9;
constexpr int kSilence = 30;  ///< milliseconds after which an answer is whole
constexpr const char* kDown = "\x1BOB";
constexpr const char* kPageDown = "\x1B[6~";

double Milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

/// A program on a terminal of 80 x 24; killed with the object.
class OnTerminal {
 public:
  OnTerminal(const std::string& program, const std::string& commandLine) : started_(Clock::now()) {
    winsize size{24, 80, 0, 0};
    process_ = forkpty(&terminal_, nullptr, nullptr, &size);
    if (process_ != 0) return;
    setenv("TERM", "xterm-256color", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("XDG_STATE_HOME", "/nonexistent", 1);
    execl("/bin/sh", "sh", "-c", ("exec " + program + " " + commandLine).c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  ~OnTerminal() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    close(terminal_);
  }
  OnTerminal(const OnTerminal&) = delete;
  OnTerminal& operator=(const OnTerminal&) = delete;

  struct Answer {
    double milliseconds = -1;  ///< up to the last byte
    std::size_t bytes = 0;
  };
  /// Reads until the text has come and nothing follows it for a while.
  Answer Await(const std::string& text, Clock::time_point since) {
    std::string read;
    Answer answer;
    pollfd source{terminal_, POLLIN, 0};
    while (poll(&source, 1, read.find(text) == std::string::npos || read.empty() ? 60'000 : kSilence) > 0) {
      char block[4096];
      const ssize_t count = ::read(terminal_, block, sizeof block);
      if (count <= 0) return {};
      answer.milliseconds = Milliseconds(Clock::now() - since);
      read.append(block, static_cast<std::size_t>(count));
    }
    answer.bytes = read.size();
    return answer;
  }
  Answer Press(const std::string& key, const std::string& shows = "") {
    const auto now = Clock::now();
    if (write(terminal_, key.data(), key.size()) < 0) return {};
    return Await(shows, now);
  }
  Clock::time_point Started() const { return started_; }
  double PeakMegabytes() const {
    std::ifstream status("/proc/" + std::to_string(process_) + "/status");
    for (std::string line; std::getline(status, line);) {
      if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
    }
    return -1;
  }

 private:
  Clock::time_point started_;
  int terminal_ = -1;
  pid_t process_ = -1;
};

void MeasureKey(OnTerminal& program, const char* key, const std::string& name) {
  std::vector<double> times, bytes;
  for (int i = 0; i < kKeys; ++i) {
    const OnTerminal::Answer answer = program.Press(key);
    times.push_back(answer.milliseconds);
    bytes.push_back(static_cast<double>(answer.bytes) / 1024);
  }
  std::sort(times.begin(), times.end());
  std::sort(bytes.begin(), bytes.end());
  PrintRow("terminal, register of 100,000 requests, " + name + " to the last byte", times[kKeys / 2], 1.0, "ms",
           "slowest " + std::to_string(times.back()) + " ms");
  PrintRow("the same, written", bytes.back(), 4.0, "KB", "the most of " + std::to_string(kKeys) + " keys");
}

}  // namespace

void MeasureTerminal(const std::string& program, const std::string& folder) {
  const std::string options = "--app-folder " + folder + " --now '2024-03-15 09:30:00' ";
  double liveMegabytes = 0, consoleMegabytes = 0;
  const Pair starts = MeasurePair(
      kStarts,
      [&] {
        OnTerminal live(program, "--live " + options);
        const double logOn = live.Await("Process", live.Started()).milliseconds;
        const double shown = live.Press("\r", "Browse").milliseconds;
        liveMegabytes = live.PeakMegabytes();
        return logOn + shown;
      },
      [&] {
        OnTerminal console(program, options);
        const double shown = console.Await("Browse", console.Started()).milliseconds;
        consoleMegabytes = console.PeakMegabytes();
        return shown;
      });
  char detail[80];
  std::snprintf(detail, sizeof detail, "%.1f ms, the console %.1f ms", starts.ours, starts.reference);
  PrintRow("terminal, start to the register's picture", starts.Ratio(), 1.3, "x", detail);
  PrintRow("its memory beyond the console's", liveMegabytes - consoleMegabytes, 2.0, "MB", "");
  OnTerminal live(program, "--live --requests 100000 " + options);
  live.Await("Process", live.Started());
  live.Press("\r", "Browse");
  MeasureKey(live, kDown, "Down");
  MeasureKey(live, kPageDown, "PageDown");
}

}  // namespace bench
