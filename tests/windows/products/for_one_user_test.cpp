// Where the machine's registry is refused, the servers register for their user alone.
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/windows/com/com_factory.h"
#include "platform/windows/com/registry_key.h"
#include "tests/windows/products/server_file.h"

using counter::ServerFile;
using windows::RegistryKey;

namespace {

const std::wstring kClasses = L"Software\\Classes\\";
const std::wstring kProgId = L"tq8v4461.clsGoodsRequest";

/// While it lives, nobody may write to the classes of the machine.
class MachineRefused {
 public:
  MachineRefused() {
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes", 0, READ_CONTROL | WRITE_DAC, &key_);
    DWORD size = 0;
    RegGetKeySecurity(key_, DACL_SECURITY_INFORMATION, nullptr, &size);
    before_.resize(size);
    RegGetKeySecurity(key_, DACL_SECURITY_INFORMATION, before_.data(), &size);
    SID_IDENTIFIER_AUTHORITY world = SECURITY_WORLD_SID_AUTHORITY;
    PSID everybody = nullptr;
    AllocateAndInitializeSid(&world, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &everybody);
    alignas(ACL) std::array<BYTE, 256> list{};
    auto* acl = reinterpret_cast<ACL*>(list.data());
    InitializeAcl(acl, static_cast<DWORD>(list.size()), ACL_REVISION);
    AddAccessAllowedAce(acl, ACL_REVISION, KEY_READ | WRITE_DAC, everybody);
    SECURITY_DESCRIPTOR descriptor{};
    InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&descriptor, TRUE, acl, FALSE);
    RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, &descriptor);
    FreeSid(everybody);
  }
  MachineRefused(const MachineRefused&) = delete;
  MachineRefused& operator=(const MachineRefused&) = delete;
  ~MachineRefused() {
    RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, before_.data());
    RegCloseKey(key_);
  }

 private:
  HKEY key_ = nullptr;
  std::vector<BYTE> before_;
};

/// A user's classes among all classes, as the system shows them. Wine looks for classes at the machine's alone; there they are
/// copied for the while.
class UsersClasses {
 public:
  explicit UsersClasses(std::vector<std::wstring> paths) {
    for (std::wstring& path : paths) {
      if (RegistryKey::Exists(HKEY_CLASSES_ROOT, path)) continue;
      RegistryKey copy;
      RegistryKey::Create(HKEY_LOCAL_MACHINE, kClasses + path, copy);
      RegCopyTreeW(HKEY_CURRENT_USER, (kClasses + path).c_str(), copy.Get());
      copied_.push_back(std::move(path));
    }
  }
  UsersClasses(const UsersClasses&) = delete;
  UsersClasses& operator=(const UsersClasses&) = delete;
  ~UsersClasses() {
    for (const std::wstring& path : copied_) RegistryKey::DeleteTree(HKEY_LOCAL_MACHINE, kClasses + path);
  }

 private:
  std::vector<std::wstring> copied_;
};

TEST(ForOneUser, AServerThatMayNotWriteForTheMachineServesItsUser) {
  ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
  const ServerFile server(COMPONENT);
  ASSERT_EQ(server.Call("DllUnregisterServer"), S_OK);
  {
    const MachineRefused refused;
    ASSERT_TRUE(RegistryKey::IsRefused(HKEY_LOCAL_MACHINE, L"Software\\Classes"));
    ASSERT_EQ(server.Call("DllRegisterServer"), S_OK);
  }
  const std::wstring id = RegistryKey::ReadText(HKEY_CURRENT_USER, kClasses + kProgId + L"\\CLSID");
  const std::vector<std::wstring> paths = {kProgId, L"CLSID\\" + id};
  ASSERT_FALSE(id.empty());
  const std::wstring file = RegistryKey::ReadText(HKEY_CURRENT_USER, kClasses + paths[1] + L"\\InprocServer32");
  EXPECT_TRUE(file.ends_with(L"tq8v4461.dll"));
  for (const std::wstring& path : paths) EXPECT_FALSE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, kClasses + path));
  {
    const UsersClasses visible(paths);
    const late::ObjectPtr request = windows::ComFactory().Create("tq8v4461.clsGoodsRequest");
    request->Put("strMsgboxCaption", "Shop");
    EXPECT_EQ(request->Get("strMsgboxCaption").ToText(), "Shop");
  }
  const std::wstring library = RegistryKey::ReadText(HKEY_CURRENT_USER, kClasses + paths[1] + L"\\TypeLib");
  EXPECT_FALSE(library.empty());
  {
    const MachineRefused refused;
    EXPECT_EQ(server.Call("DllUnregisterServer"), S_OK);
  }
  for (HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
    for (const std::wstring& path : paths) EXPECT_FALSE(RegistryKey::Exists(root, kClasses + path));
    EXPECT_FALSE(RegistryKey::Exists(root, kClasses + L"TypeLib\\" + library));
  }
  CoUninitialize();
}

TEST(ForOneUser, TheMachinesRegistrationTakesTheUsersPlace) {
  const ServerFile server(COMPONENT);
  {
    const MachineRefused refused;
    ASSERT_EQ(server.Call("DllRegisterServer"), S_OK);
  }
  ASSERT_TRUE(RegistryKey::Exists(HKEY_CURRENT_USER, kClasses + kProgId));
  ASSERT_EQ(server.Call("DllRegisterServer"), S_OK);
  EXPECT_TRUE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, kClasses + kProgId));
  EXPECT_FALSE(RegistryKey::Exists(HKEY_CURRENT_USER, kClasses + kProgId)) << "it would hide the machine's";
  EXPECT_EQ(server.Call("DllUnregisterServer"), S_OK);
}

TEST(ForOneUser, WhoMayNotTakeTheMachinesOutIsToldAndLeavesItWhole) {
  const ServerFile server(COMPONENT);
  ASSERT_EQ(server.Call("DllRegisterServer"), S_OK);
  const std::wstring id = RegistryKey::ReadText(HKEY_LOCAL_MACHINE, kClasses + kProgId + L"\\CLSID");
  {
    const MachineRefused refused;
    EXPECT_EQ(server.Call("DllUnregisterServer"), E_ACCESSDENIED);
  }
  EXPECT_TRUE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, kClasses + L"CLSID\\" + id + L"\\InprocServer32"));
  EXPECT_EQ(server.Call("DllUnregisterServer"), S_OK);
  EXPECT_FALSE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, kClasses + L"CLSID\\" + id));
}

}  // namespace
