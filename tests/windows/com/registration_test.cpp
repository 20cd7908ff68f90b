#include "platform/windows/com/registration.h"

#include <gtest/gtest.h>

#include "platform/windows/com/registry_key.h"

using windows::RegistrationScope;
using windows::RegistryKey;

namespace {

const windows::ServerRegistration kServer{
    L"C:\\Shop\\server.dll",
    {{{0x3f1d7a52, 0x9b1e, 0x4a52, {0x8d, 0x0e, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66}}, L"ShopTest.clsFirst", L"First"},
     {{0x3f1d7a53, 0x9b1e, 0x4a52, {0x8d, 0x0e, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66}}, L"ShopTest.clsSecond", L"Second"}},
    false};

std::wstring ClassKey(std::size_t index) {
  return L"Software\\Classes\\CLSID\\" + windows::GuidText(kServer.classes[index].id);
}

bool Exists(const std::wstring& path) {
  return RegistryKey::Exists(HKEY_CURRENT_USER, path);
}

}  // namespace

TEST(Registration, ForTheUserIsWhereComLooksAndIsTakenOutWhole) {
  ASSERT_EQ(windows::RegisterServer(kServer, RegistrationScope::User), S_OK);
  EXPECT_EQ(RegistryKey::ReadText(HKEY_CURRENT_USER, ClassKey(1) + L"\\InprocServer32"), kServer.modulePath);
  EXPECT_EQ(RegistryKey::ReadText(HKEY_CURRENT_USER, ClassKey(1) + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
  // Read where it stands: not every system that runs this shows a user's classes among all classes.
  EXPECT_EQ(RegistryKey::ReadText(HKEY_CURRENT_USER, L"Software\\Classes\\SHOPTEST.clssecond\\CLSID"),
            windows::GuidText(kServer.classes[1].id));
  ASSERT_EQ(windows::UnregisterServer(kServer), S_OK);
  EXPECT_FALSE(Exists(ClassKey(0)));
  EXPECT_FALSE(Exists(ClassKey(1)));
  EXPECT_FALSE(Exists(L"Software\\Classes\\ShopTest.clsFirst"));
  EXPECT_EQ(windows::UnregisterServer(kServer), S_OK) << "taking out what is not there is no failure";
}

TEST(Registration, LeavesAProgIdThatMeanwhileBelongsToAnother) {
  ASSERT_EQ(windows::RegisterServer(kServer, RegistrationScope::User), S_OK);
  const std::wstring progId = L"Software\\Classes\\ShopTest.clsFirst";
  RegistryKey key;
  ASSERT_EQ(RegistryKey::Create(HKEY_CURRENT_USER, progId + L"\\CLSID", key), ERROR_SUCCESS);
  key.WriteText({}, L"{00000000-0000-0000-0000-000000000001}");
  ASSERT_EQ(windows::UnregisterServer(kServer), S_OK);
  EXPECT_TRUE(Exists(progId));
  RegistryKey::DeleteTree(HKEY_CURRENT_USER, progId);
}
