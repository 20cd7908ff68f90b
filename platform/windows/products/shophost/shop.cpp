#include "platform/windows/products/shophost/shop.h"

#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/wide_text.h"

// clang-format off
#include "platform/windows/windows_gate.h"
#include <shlobj.h>
// clang-format on

namespace windows {
namespace {

std::string UsersDatabase() {
  wchar_t folder[MAX_PATH] = L"";
  Check(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder));
  const std::wstring own = std::wstring(folder) + L"\\ShopSuite";
  CreateDirectoryW(own.c_str(), nullptr);  // there already as a rule; otherwise opening the file says what is wrong
  return Utf8(own + L"\\shop.db");
}

ado::Connection OpenConnection(late::Factory& factory, const std::string& text) {
  try {
    const late::ObjectPtr connection = factory.Create("ADODB.Connection");
    connection->Call("Open", {text});
    return ado::Connection(connection);
  } catch (const vb::RunTimeError& error) {
    vb::Raise(error.Number(), "Cannot connect to the shop's database.\n\n" + error.Description(), error.Source());
  }
}

}  // namespace

Shop OpenShop(late::Factory& factory, const Options& options, vb::Date today) {
  if (!options.connection.empty()) {
    return {nullptr, OpenConnection(factory, options.connection), vb::Date{static_cast<double>(static_cast<long>(today.days))}};
  }
  const late::ObjectPtr database = factory.Create("ShopSuite.Database");
  const std::string file = options.database.empty() ? UsersDatabase() : options.database;
  const late::ObjectPtr connection = database->Call("Open", {file}).ToObject();
  return {database, ado::Connection(connection), database->Get("ProcessDate").ToDate()};
}

}  // namespace windows
