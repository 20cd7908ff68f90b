#include "platform/terminal/signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace terminal {
namespace {

constexpr std::array kCaught = {SIGTERM, SIGHUP, SIGINT, SIGTSTP, SIGCONT};

std::array<int, 2> channel = {-1, -1};
std::array<struct sigaction, kCaught.size()> before;

void Note(int signal) {
  const int error = errno;
  const char letter = signal == SIGTSTP ? 'S' : signal == SIGCONT ? 'R' : 'E';
  // A full channel holds enough of the same.
  (void)!write(channel[1], &letter, 1);
  errno = error;
}

}  // namespace

Signals::Signals() {
  if (pipe2(channel.data(), O_NONBLOCK | O_CLOEXEC) != 0) return;
  struct sigaction action {};
  action.sa_handler = Note;
  // The library gives the terminal back in one try: a signal in the middle of it must not leave it raw.
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (std::size_t i = 0; i < kCaught.size(); ++i) sigaction(kCaught[i], &action, &before[i]);
}

Signals::~Signals() {
  for (std::size_t i = 0; i < kCaught.size(); ++i) sigaction(kCaught[i], &before[i], nullptr);
  close(channel[0]);
  close(channel[1]);
}

int Signals::Descriptor() const {
  return channel[0];
}

Asked Signals::Take() {
  char letter = 0;
  if (read(channel[0], &letter, 1) != 1) return Asked::Nothing;
  return letter == 'E' ? Asked::End : letter == 'S' ? Asked::Stop : Asked::Redraw;
}

void Signals::StopNow() {
  struct sigaction action {};
  struct sigaction ours {};
  action.sa_handler = SIG_DFL;
  sigemptyset(&action.sa_mask);
  sigaction(SIGTSTP, &action, &ours);
  kill(getpid(), SIGTSTP);
  sigaction(SIGTSTP, &ours, nullptr);
}

}  // namespace terminal
