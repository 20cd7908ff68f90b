#include "platform/windows/products/common/server.h"

#include "platform/windows/com/apartment.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/desktop/window_class.h"
#include "platform/windows/products/common/visual_styles.h"
#include "platform/windows/products/shopsuite/helper_context.h"
#include "platform/windows/products/shopsuite/shop_database.h"
#include "platform/windows/wide_text.h"
#include "suite/helpers/register_helpers.h"

namespace windows {
namespace {

ComPtr<IUnknown> Com(const late::ObjectPtr& object) {
  return ComPtr<IUnknown>(DispatchOf(object).Get());
}

/// The helpers hold the surroundings, and with them their apartment's context.
ComPtr<IUnknown> MakeHelper(const std::string& progId) {
  static PerApartment<HelperContext> contexts;
  const auto context = contexts.Get();
  late::ClassRegistry registry;
  suite::RegisterHelpers(registry, std::shared_ptr<suite::Surroundings>(context, &context->Surroundings()));
  return Com(registry.Create(progId));
}

ComPtr<IUnknown> MakeDatabase() {
  static PerApartment<EmbeddedAdo> ado;
  return Com(std::make_shared<ShopDatabase>(ado.Get()));
}

constexpr GUID ClassId(BYTE number) {
  return {0x2e94a7b0, 0x61cd, 0x4f0e, {0x8a, 0x57, 0xc3, 0x09, 0x5d, 0xe1, 0x74, number}};
}

ServedClass Helper(BYTE number, const char* progId, const wchar_t* description) {
  return {{ClassId(number), Wide(progId), description}, [name = std::string(progId)] { return MakeHelper(name); }};
}

}  // namespace

const Server& ThisServer() {
  static const Server server{{Helper(1, "ShopCommon.clsCommonDB", L"Shop suite database helper"),
                              Helper(2, "ShopCommon.clsCommonGen", L"Shop suite general helper"),
                              Helper(3, "Lookup.clsFetch", L"Shop suite item lookup"),
                              Helper(4, "Theme.clsFormcolor", L"Shop suite form colours"),
                              Helper(5, "Audit.clsUserAuditing", L"Shop suite user auditing"),
                              Helper(6, "GridPrefs.clsMasterGridSetting", L"Shop suite grid settings"),
                              Helper(7, "ErrLog.ErrorDetails", L"Shop suite error log"),
                              {{ClassId(8), L"ShopSuite.Database", L"Shop suite embedded database"}, MakeDatabase}},
                             false};
  return server;
}

void ServerUnloading() {
  UnregisterFormClass();
  ReleaseVisualStyles();
}

}  // namespace windows
