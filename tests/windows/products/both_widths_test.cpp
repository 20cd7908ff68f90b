// On a 64-bit system the servers of both widths share the ProgID, the type library and its interface. The other width is played
// by its entries: one Wine prefix here runs programs of one width only.
#include <gtest/gtest.h>
#include <string>

#include "tests/windows/products/server_file.h"

using windows::RegistryKey;
using windows::RegistryView;

namespace {

const std::wstring kClasses = L"Software\\Classes\\";
const std::wstring kProgId = kClasses + L"tq8v4461.clsGoodsRequest";
constexpr const wchar_t* kOtherSystem = sizeof(void*) == 8 ? L"win32" : L"win64";

bool Exists(const std::wstring& path, RegistryView view = RegistryView::Own) {
  return RegistryKey::Exists(HKEY_LOCAL_MACHINE, path, view);
}

void Write(const std::wstring& path, const std::wstring& text, RegistryView view) {
  RegistryKey key;
  ASSERT_EQ(RegistryKey::Create(HKEY_LOCAL_MACHINE, path, key, view), ERROR_SUCCESS);
  key.WriteText({}, text);
}

/// The identifier of the interface that the component's type library brings, as registered.
std::wstring InterfaceOf(const std::wstring& library) {
  RegistryKey interfaces;
  RegistryKey::Create(HKEY_LOCAL_MACHINE, kClasses + L"Interface", interfaces);
  wchar_t name[256] = L"";
  for (DWORD i = 0;; ++i) {
    DWORD length = 256;
    if (RegEnumKeyExW(interfaces.Get(), i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) return {};
    const std::wstring path = kClasses + L"Interface\\" + name;
    if (RegistryKey::ReadText(HKEY_LOCAL_MACHINE, path + L"\\TypeLib") == library) return path;
  }
}

}  // namespace

TEST(BothWidths, WhatTheOtherNeedsGoesWithTheLast) {
  const counter::ServerFile server(COMPONENT);
  ASSERT_EQ(server.Call("DllRegisterServer"), S_OK);
  const std::wstring id = RegistryKey::ReadText(HKEY_LOCAL_MACHINE, kProgId + L"\\CLSID");
  const std::wstring itsClass = kClasses + L"CLSID\\" + id;
  const std::wstring library = RegistryKey::ReadText(HKEY_LOCAL_MACHINE, itsClass + L"\\TypeLib");
  const std::wstring itsInterface = InterfaceOf(library);
  const std::wstring otherLibrary = kClasses + L"TypeLib\\" + library + L"\\1.0\\0\\" + kOtherSystem;
  ASSERT_FALSE(library.empty());
  ASSERT_FALSE(itsInterface.empty());
  if (Exists(itsClass, RegistryView::Other)) {
    server.Call("DllUnregisterServer");
    GTEST_SKIP() << "a system of one width";
  }

  Write(itsClass + L"\\InprocServer32", L"C:\\Shop\\other.dll", RegistryView::Other);
  Write(itsInterface + L"\\TypeLib", library, RegistryView::Other);
  Write(otherLibrary, L"C:\\Shop\\other.dll", RegistryView::Own);
  ASSERT_EQ(server.Call("DllUnregisterServer"), S_OK);
  EXPECT_FALSE(Exists(itsClass));
  EXPECT_TRUE(Exists(kProgId));
  EXPECT_TRUE(Exists(otherLibrary));
  for (const RegistryView view : {RegistryView::Own, RegistryView::Other}) EXPECT_TRUE(Exists(itsInterface, view));

  // The other one gone, this one takes out what is left of both.
  RegistryKey::DeleteTree(HKEY_LOCAL_MACHINE, itsClass, RegistryView::Other);
  RegistryKey::DeleteTree(HKEY_LOCAL_MACHINE, otherLibrary);
  ASSERT_EQ(server.Call("DllRegisterServer"), S_OK);
  ASSERT_EQ(server.Call("DllUnregisterServer"), S_OK);
  EXPECT_FALSE(Exists(kProgId));
  EXPECT_FALSE(Exists(kClasses + L"TypeLib\\" + library));
  for (const RegistryView view : {RegistryView::Own, RegistryView::Other}) EXPECT_FALSE(Exists(itsInterface, view));
}
