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

TEST(SlipFile, APortThatIsNotThereIsAnError) {
  windows::WindowsWorkstation workstation("C:\\shop");
  EXPECT_THROW(workstation.OpenForOutput("LPT7"), vb::RunTimeError);
}
