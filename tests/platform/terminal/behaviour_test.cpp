// What a terminal does to a program: another size, suspension, hang-up, other character sets, texts pasted in one piece.

#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

#include "base/vb/text.h"
#include "tests/platform/terminal/live_program.h"
#include "tests/platform/terminal/picture.h"

namespace live {
namespace {

constexpr const char* kRegister = "Goods Request to HQ";
constexpr const char* kEditor = "Goods Request";

/// A new request's editor with a remark that is not saved.
void BeginRequest(LiveProgram& program) {
  program.Press("Ctrl+J");
  program.Shows("Do you want to add stock out items?");
  program.Type("n");
  program.Shows("Remarks:");
  program.Type("Half typed");
  program.Shows("»[Half typed");
}

bool IsWhole(const std::vector<std::string>& screen, const std::string& title) {
  return Picture::Find(screen, title).has_value();
}

std::string Terminal(const LiveProgram& program) {
  std::ostringstream settings;
  settings << std::ifstream(program.Folder() / "terminal").rdbuf();
  return settings.str();
}

TEST(Live, EverySizeShowsTheWholeRegisterAtOnce) {
  LiveProgram program({.columns = 80, .rows = 24});
  const std::vector<std::pair<int, int>> sizes = {{80, 24}, {200, 60}, {300, 100}, {81, 25}};
  for (const auto& [columns, rows] : sizes) {
    program.Resize(columns, rows);
    program.Wait(
        [&, wanted = static_cast<std::size_t>(rows)] {
          const auto screen = program.Screen();
          return screen.size() == wanted && IsWhole(screen, kRegister) && screen[wanted - 2].starts_with("└─");
        },
        std::to_string(columns) + " x " + std::to_string(rows));
  }
}

TEST(Live, TheWidestFormFitsOnTheSmallestTerminal) {
  LiveProgram program({.columns = 80, .rows = 24});
  BeginRequest(program);
  for (const char* key : {"Enter", "Tab", "Ctrl+J"}) program.Press(key);
  program.Wait([&] { return IsWhole(program.Screen(), "Goods Request Details"); }, "the whole of item entry");
  program.Shows("(o) All Items in Shop");
}

TEST(Live, WideCharactersKeepTheFrameStraight) {
  constexpr int kColumns = 80;
  const std::string wide = "日本語";
  LiveProgram program({.columns = kColumns, .rows = 24});
  BeginRequest(program);
  program.Type(wide);
  program.Shows(wide);
  for (const std::string& line : program.Screen()) {
    if (line.find(wide) == std::string::npos) continue;
    EXPECT_EQ(vb::Len(line), kColumns - vb::Len(wide)) << line;
  }
}

TEST(Live, ACrashGivesTheTerminalBack) {
  LiveProgram program({.columns = 80, .rows = 24});
  BeginRequest(program);
  program.Signal(SIGABRT);
  EXPECT_EQ(program.ExitStatus(), 128 + SIGABRT);
  EXPECT_NE(Terminal(program).find(" echo "), std::string::npos);
}

TEST(Live, SuspendedItGivesTheTerminalBackAndGoesOnWhereItWas) {
  LiveProgram program({.columns = 80, .rows = 24});
  BeginRequest(program);
  program.Signal(SIGTSTP);
  program.Shows("suspended");
  program.Resume();
  program.Shows("»[Half typed");
  program.Type("!");
  program.Shows("»[Half typed!");
  program.Press("Ctrl+Z");
  program.Shows("»[ ");  // the box takes its last edits back: the key is no suspension there
  program.ShowsNot("suspended");
}

TEST(Live, EndedOrHungUpItClosesEveryFormAndGivesTheTerminalBack) {
  for (const int signal : {SIGTERM, SIGHUP}) {
    LiveProgram program({.columns = 80, .rows = 24, .options = "--database shop.db"});
    BeginRequest(program);
    program.Signal(signal);
    EXPECT_EQ(program.ExitStatus(), 0);
    program.Shows("ended");
    EXPECT_NE(Terminal(program).find(" echo "), std::string::npos) << Terminal(program);
    EXPECT_NE(Terminal(program).find(" icanon "), std::string::npos);
  }
}

TEST(Live, AnEightBitLocaleHasPlainFramesAndAltByTheEighthBit) {
  LiveProgram program({.columns = 80, .rows = 24, .environment = "LC_ALL=C NO_COLOR=1"});
  program.Shows("+- Goods Request to HQ ---");
  program.Shows("|  !16");
  program.SendBytes("\xEE");  // Alt+N
  program.Shows("Do you want to add stock out items?");
}

TEST(Live, APasteGoesThroughTheBoxesFiltersAndIntoTheLines) {
  LiveProgram program;
  BeginRequest(program);
  program.Paste(" and\rpasted");
  program.Shows("»[Half typed and pasted");
  for (const char* key : {"Tab", "Tab"}) program.Press(key);
  program.Wait(
      [&] {
        const auto editor = Picture::Find(program.Screen(), kEditor);
        return editor && !editor->HasFocusAt("Remarks:");
      },
      "the focus beyond the remarks");
  const auto list = Picture::Find(program.Screen(), kEditor)->PlaceOf("(no lines)");
  ASSERT_TRUE(list.has_value());
  program.Click(list->x, list->y);
  program.Paste("KT1001\t3\rKT1002\t4\r");
  program.Shows("2 lines added");
  program.Press("Enter");
  program.Shows("KT1002");
}

TEST(Live, AMouseOpensSortsAndScrolls) {
  LiveProgram program({.columns = 100, .rows = 24});
  const auto place = [&](const std::string& text) { return Picture::Find(program.Screen(), kRegister)->PlaceOf(text).value(); };
  program.Click(place("GR24/9 ").x, place("GR24/9 ").y);
  program.Wait([&] { return Picture::Find(program.Screen(), kRegister)->HasSelected("GR24/9"); }, "GR24/9 chosen");
  program.Click(place("Remarks ").x, place("Remarks ").y);
  program.Shows("Remarks ▲");
  program.Click(place("< New >").x + 2, place("< New >").y);
  program.Shows("Do you want to add stock out items?");
}

TEST(Live, WhereTheTerminalCannotBeWorkedOnTheCommandsRemain) {
  for (const LiveProgram::Settings& settings : {LiveProgram::Settings{.columns = 70, .rows = 20, .opensRegister = false},
                                                LiveProgram::Settings{.environment = "TERM=dumb", .opensRegister = false}}) {
    LiveProgram program(settings);
    program.Shows("frmMaster>");
    program.Type("quit\r");
    EXPECT_EQ(program.ExitStatus(), 0);
  }
}

/// Keys at random, in bunches as an impatient person's; the program must be alive and well afterwards.
TEST(Live, RandomKeysEndWithNoErrorAndATerminalGivenBack) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const std::vector<std::string> keys = {
      "\r",     "\n",      "\t",      "\x1B",   "\x1B[A",    "\x1B[B",    "\x1B[C",
      "\x1B[D", "\x1B[5~", "\x1B[6~", "\x1BOR", "\x1B[19~",  "\x1B[21~",  "\x1B[21;2~",
      "\x7F",   "\x1B[3~", "\x01",    "\x18",   "\x16",      "\033n",     "\033e",
      "\033p",  "\033o",   "\033c",   "y",      "n",         "KT1001",    "12",
      "x",      "é",       " ",       "\x1B[Z", "\x1B[M #*", "\x1B[M 0/", "\x1B[200~a\tb\x1B[201~"};
  for (int round = 0; round < 6; ++round) {
    LiveProgram program({.columns = 80, .rows = 24});
    for (int bunch = 0; bunch < 60 && !program.HasEnded(); ++bunch) {
      std::string bytes;
      for (int key = 0; key < 25; ++key) bytes += keys[random() % keys.size()];
      program.SendBytes(bytes);
    }
    program.Signal(SIGTERM);
    EXPECT_EQ(program.ExitStatus(), 0);
    EXPECT_NE(Terminal(program).find(" echo "), std::string::npos) << Terminal(program);
    std::ostringstream errors;
    errors << std::ifstream(program.Folder() / "errors").rdbuf();
    EXPECT_EQ(errors.str(), "");
  }
}

}  // namespace
}  // namespace live
