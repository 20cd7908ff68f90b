// The slip on a real disk: what the bytes of the file are.
#include <array>
#include <gtest/gtest.h>

#include "base/vb/error.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_gate.h"
#include "platform/windows/workstation/windows_workstation.h"

namespace {

std::string BytesOf(const std::string& path) {
  const HANDLE file = CreateFileW(windows::Wide(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  std::array<char, 4096> bytes{};
  DWORD read = 0;
  const bool done = ReadFile(file, bytes.data(), bytes.size(), &read, nullptr) != 0;
  CloseHandle(file);
  return done ? std::string(bytes.data(), read) : "unreadable: " + path;
}

}  // namespace

TEST(SlipFile, IsWrittenInTheWorkstationsCharacterSetAndReplacesTheLastOne) {
  windows::WindowsWorkstation workstation("C:\\shop");
  const std::string path = workstation.TempFolder() + "\\Reqtohq \xC3\xA9.txt";
  for (const std::string_view text : {"a much longer slip than the next\r\n", "Se\xC3\xB1or\xC3\xADo \xE2\x82\xAC 1\r\n\f"}) {
    const auto file = workstation.OpenForOutput(path);
    file->Write(text);
    file->Close();
  }
  const UINT characters = GetACP();
  const std::string written = BytesOf(path);
  DeleteFileW(windows::Wide(path).c_str());
  if (characters == CP_UTF8) {
    EXPECT_EQ(written, "Se\xC3\xB1or\xC3\xADo \xE2\x82\xAC 1\r\n\f");
  } else if (characters == 1252) {
    EXPECT_EQ(written, "Se\xF1or\xEDo \x80 1\r\n\f");
  } else {
    GTEST_SKIP() << "drawn for the western character set, not for " << characters;
  }
}

TEST(SlipFile, APortThatIsNotThereIsAnErrorThatNamesIt) {
  windows::WindowsWorkstation workstation("C:\\shop");
  try {
    workstation.OpenForOutput("LPT7");
    ADD_FAILURE() << "a port that is not there was opened";
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Description(), std::string(vb::ErrorText(error.Number())) + ": LPT7");
  }
}

TEST(SettingsFile, OfAnEditorThatMarksItsFilesAsUtf8IsReadFromItsFirstKeyOn) {
  windows::WindowsWorkstation workstation("C:\\shop");
  const std::string path = workstation.TempFolder() + "\\MarkedSetting.txt";
  const HANDLE file = CreateFileW(windows::Wide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  constexpr std::string_view kBytes = "\xEF\xBB\xBFport :=LPT1\r\nTitle :=Caf\xC3\xA9";
  DWORD written = 0;
  WriteFile(file, kBytes.data(), static_cast<DWORD>(kBytes.size()), &written, nullptr);
  CloseHandle(file);
  {
    const auto settings = workstation.OpenForInput(path);
    EXPECT_EQ(settings->ReadLine(), "port :=LPT1");
    EXPECT_EQ(settings->ReadLine(), "Title :=Caf\xC3\xA9");
    EXPECT_EQ(settings->ReadLine(), std::nullopt);
  }
  DeleteFileW(windows::Wide(path).c_str());
}
