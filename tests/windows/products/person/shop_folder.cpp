#include "tests/windows/products/person/shop_folder.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_gate.h"

namespace person {
namespace {

/// Takes away the drafts of programs that an earlier test has ended: the next new request would offer them.
void RemoveDrafts() {
  std::array<wchar_t, MAX_PATH> folder{};
  if (GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), static_cast<DWORD>(folder.size())) == 0) return;
  std::error_code ignored;
  std::filesystem::remove_all(std::filesystem::path(folder.data()) / L"GoodsRequest", ignored);
}

}  // namespace

ShopFolder::ShopFolder() {
  RemoveDrafts();
  static int count = 0;
  std::array<wchar_t, MAX_PATH> temporary{};
  GetTempPathW(static_cast<DWORD>(temporary.size()), temporary.data());
  path_ = std::wstring(temporary.data()) + L"shop" + std::to_wstring(GetCurrentProcessId()) + L"_" +
          std::to_wstring(GetTickCount64()) + L"_" + std::to_wstring(++count);
  CreateDirectoryW(path_.c_str(), nullptr);
}

ShopFolder::~ShopFolder() {
  std::error_code ignored;  // a file that is still in use stays in the temporary folder
  std::filesystem::remove_all(path_, ignored);
}

std::string ShopFolder::File(const std::string& name) const {
  return windows::Utf8(path_) + "\\" + name;
}

}  // namespace person
