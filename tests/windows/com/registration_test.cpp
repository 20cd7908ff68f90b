#include "platform/windows/com/registration.h"

#include <gtest/gtest.h>

#include "platform/windows/com/registry_key.h"

using windows::RegistrationScope;
using windows::RegistryKey;
using windows::RegistryView;

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

const std::wstring kForeign = L"{00000000-0000-0000-0000-000000000001}";

/// A ProgID that belongs to another's class while it lives.
class Planted {
 public:
  Planted(HKEY root, std::wstring path) : root_(root), path_(std::move(path)) {
    RegistryKey key;
    RegistryKey::Create(root_, path_ + L"\\CLSID", key);
    key.WriteText({}, kForeign);
  }
  Planted(const Planted&) = delete;
  Planted& operator=(const Planted&) = delete;
  ~Planted() { RegistryKey::DeleteTree(root_, path_); }

  std::wstring ClassId() const { return RegistryKey::ReadText(root_, path_ + L"\\CLSID"); }

 private:
  HKEY root_;
  std::wstring path_;
};

bool HasTwoViews() {
  const std::wstring path = L"Software\\Classes\\CLSID\\" + kForeign;
  RegistryKey key;
  RegistryKey::Create(HKEY_LOCAL_MACHINE, path, key, RegistryView::Other);
  const bool apart = !RegistryKey::Exists(HKEY_LOCAL_MACHINE, path);
  RegistryKey::DeleteTree(HKEY_LOCAL_MACHINE, path, RegistryView::Other);
  return apart;
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

TEST(Registration, AProgIdOfAnotherClassIsLeftAloneAndToldAtBothEnds) {
  const Planted foreign(HKEY_CURRENT_USER, L"Software\\Classes\\ShopTest.clsFirst");
  EXPECT_EQ(windows::RegisterServer(kServer, RegistrationScope::User), windows::kProgIdOfAnother);
  EXPECT_EQ(foreign.ClassId(), kForeign);
  EXPECT_EQ(RegistryKey::ReadText(HKEY_CURRENT_USER, ClassKey(0) + L"\\InprocServer32"), kServer.modulePath);
  EXPECT_TRUE(Exists(L"Software\\Classes\\ShopTest.clsSecond\\CLSID")) << "the other classes are served";
  EXPECT_EQ(windows::UnregisterServer(kServer), windows::kProgIdOfAnother);
  EXPECT_EQ(foreign.ClassId(), kForeign);
  EXPECT_FALSE(Exists(ClassKey(0)));
  EXPECT_FALSE(Exists(L"Software\\Classes\\ShopTest.clsSecond"));
}

TEST(Registration, AUsersProgIdDoesNotHideTheMachinesOfAnotherClass) {
  const Planted foreign(HKEY_LOCAL_MACHINE, L"Software\\Classes\\ShopTest.clsFirst");
  EXPECT_EQ(windows::RegisterServer(kServer, RegistrationScope::User), windows::kProgIdOfAnother);
  EXPECT_FALSE(Exists(L"Software\\Classes\\ShopTest.clsFirst"));
  windows::UnregisterServer(kServer, RegistrationScope::User);
  EXPECT_EQ(foreign.ClassId(), kForeign);
}

TEST(Registration, EitherWidthLeavesTheOtherItsProgId) {
  if (!HasTwoViews()) GTEST_SKIP() << "a system of one width";
  for (const RegistryView first : {RegistryView::Own, RegistryView::Other}) {
    for (const RegistryView leaving : {RegistryView::Own, RegistryView::Other}) {
      const RegistryView staying = Opposite(leaving);
      ASSERT_EQ(windows::RegisterServer(kServer, RegistrationScope::Machine, first), S_OK);
      ASSERT_EQ(windows::RegisterServer(kServer, RegistrationScope::Machine, Opposite(first)), S_OK);
      ASSERT_EQ(windows::UnregisterServer(kServer, RegistrationScope::Machine, leaving), S_OK);
      EXPECT_FALSE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, ClassKey(0), leaving));
      EXPECT_TRUE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, ClassKey(0) + L"\\InprocServer32", staying));
      EXPECT_EQ(RegistryKey::ReadText(HKEY_LOCAL_MACHINE, L"Software\\Classes\\ShopTest.clsFirst\\CLSID"),
                windows::GuidText(kServer.classes[0].id));
      ASSERT_EQ(windows::UnregisterServer(kServer, RegistrationScope::Machine, staying), S_OK);
      EXPECT_FALSE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, ClassKey(0), staying));
      EXPECT_FALSE(RegistryKey::Exists(HKEY_LOCAL_MACHINE, L"Software\\Classes\\ShopTest.clsFirst"));
    }
  }
}
