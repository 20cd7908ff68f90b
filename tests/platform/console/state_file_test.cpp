#include <fstream>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/vb/error.h"
#include "platform/text/text_state_file.h"

namespace {

namespace fs = std::filesystem;

class StateFiles : public testing::Test {
 protected:
  StateFiles() { fs::remove_all(folder_); }
  ~StateFiles() override { fs::remove_all(folder_); }

  std::unique_ptr<workstation::StateFile> Take() const { return text::TakeStateFile(folder_, "draft.txt"); }

  /// A process that has taken the file and lives until it is killed.
  pid_t StartHolder() const {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    const pid_t holder = fork();
    if (holder == 0) {
      const auto file = Take();
      file->Replace("of the holder");
      EXPECT_EQ(write(ready[1], "x", 1), 1);
      for (;;) pause();
    }
    char taken = 0;
    EXPECT_EQ(read(ready[0], &taken, 1), 1);
    close(ready[0]);
    close(ready[1]);
    return holder;
  }

  const fs::path folder_ = fs::path(testing::TempDir()) / ("state_" + std::to_string(getpid())) / "made";
};

TEST_F(StateFiles, BelongToOneProcessUntilItEndsHoweverItEnds) {
  const pid_t holder = StartHolder();
  EXPECT_TRUE(text::StateFileExists(folder_, "draft.txt"));
  EXPECT_EQ(Take(), nullptr);
  kill(holder, SIGKILL);
  waitpid(holder, nullptr, 0);
  const auto file = Take();
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Read(), "of the holder");
  EXPECT_EQ(Take(), nullptr) << "taken twice by one process";
}

TEST_F(StateFiles, AreReplacedWholeAndLeaveNothingBesideThem) {
  {
    const auto file = Take();
    EXPECT_EQ(file->Read(), std::nullopt);
    file->Remove();
    file->Replace("first");
    file->Replace("second");
    EXPECT_EQ(file->Read(), "second");
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 1);
  Take()->Remove();
  EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(StateFiles, SetAsideAreKeptUnderNamesOfTheirOwn) {
  const auto file = Take();
  file->Replace("one");
  const std::string first = file->SetAside();
  file->Replace("two");
  const std::string second = file->SetAside();
  EXPECT_NE(first, second);
  EXPECT_TRUE(fs::exists(first) && fs::exists(second));
  EXPECT_EQ(file->Read(), std::nullopt);
}

TEST_F(StateFiles, InAFolderThatCannotBeMadeAreAFileError) {
  EXPECT_THROW(text::TakeStateFile("/dev/null/folder", "draft.txt"), vb::RunTimeError);
  EXPECT_THROW(text::TakeStateFile({}, "draft.txt"), vb::RunTimeError);
  EXPECT_FALSE(text::StateFileExists("/dev/null/folder", "draft.txt"));
}

}  // namespace
