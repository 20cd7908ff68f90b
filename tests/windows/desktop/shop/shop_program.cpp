// The component with a shop around it in one program, for looking at the windows and for tests that drive them from outside.
// Arguments: the application folder, then how often the register is opened (1 unless given).

#include <cstdio>
#include <cstdlib>

#include "platform/windows/desktop/windows_desktop.h"
#include "platform/windows/workstation/windows_workstation.h"
#include "src/entry/cls_goods_request.h"
#include "suite/engine/objects/database.h"
#include "suite/helpers/register_helpers.h"
#include "suite/shop/shop.h"

namespace {

void OpenShop(const std::string& applicationFolder, int times) {
  suite::Database::Options settings;
  settings.clock = [] { return vb::MakeDate(2024, 3, 15, 9, 30, 0); };
  const auto database = suite::Database::Open("", std::move(settings));
  suite::LoadSchema(*database, false);
  suite::LoadSample(*database);

  windows::WindowsDesktop desktop;
  windows::WindowsWorkstation workstation(applicationFolder);
  late::ClassRegistry registry;
  suite::RegisterAdo(registry);
  suite::RegisterHelpers(registry,
                         std::make_shared<suite::Surroundings>(suite::Surroundings{desktop, workstation, registry, {}}));
  goods::Module module(goods::Services{desktop, workstation, registry});

  const auto request = std::make_shared<goods::clsGoodsRequest>(module);
  request->adocon(database->Connect());
  request->strMsgboxCaption = "Goods Request";
  request->intCompanyID = 1;
  request->intUserID = 1;
  request->intShopID = 1;
  request->dtProcessDate = suite::SampleProcessDate();
  for (int time = 0; time < times; ++time) request->Show();
}

}  // namespace

int main(int count, char** arguments) {
  try {
    OpenShop(count > 1 ? arguments[1] : "", count > 2 ? std::atoi(arguments[2]) : 1);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
