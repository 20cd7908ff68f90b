#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace processes {

using Lines = std::vector<std::string>;

/// A folder with one shop's database file and one user's drafts, gone with the object.
class ShopFolder {
 public:
  ShopFolder();
  ~ShopFolder() { std::filesystem::remove_all(path_); }
  ShopFolder(const ShopFolder&) = delete;
  ShopFolder& operator=(const ShopFolder&) = delete;
  std::string Database() const { return (path_ / "shop.db").string(); }
  std::filesystem::path States() const { return path_ / "states"; }
  std::string Path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

/// The console program in a process of its own, at work on a shop's file. It is killed with the object unless it has ended.
class ConsoleProcess {
 public:
  explicit ConsoleProcess(const ShopFolder& shop);
  ~ConsoleProcess();
  ConsoleProcess(const ConsoleProcess&) = delete;
  ConsoleProcess& operator=(const ConsoleProcess&) = delete;

  /// Carries out one command. Returns what was printed up to its end, or up to the message that it waits with. Throws when the
  /// program has ended.
  Lines Do(std::string_view command);
  /// Sends commands without waiting for what they print.
  void Send(std::string_view commands) const;
  /// What the program prints until it has printed `last`, or until its end.
  Lines ReadUntil(std::string_view last);
  void Kill();
  /// Ends the input and waits. Returns the exit status; 128 and the signal where a signal ended the program.
  int Finish();

 private:
  int Wait();

  pid_t process_ = -1;
  int in_ = -1;
  int out_ = -1;
  std::string unread_;
  unsigned commands_ = 0;
};

/// The rest of the first line with that beginning ("value: "); empty when there is none.
std::string After(const Lines& lines, std::string_view beginning);
/// The cells of every "row: " line, without the heading where `skip` is 1.
std::vector<Lines> Rows(const Lines& lines, std::size_t skip = 0);

}  // namespace processes
