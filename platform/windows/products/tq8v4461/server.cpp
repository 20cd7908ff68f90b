#include "platform/windows/products/common/server.h"

// The one file that gives the interface's identifiers their places.
// clang-format off
#include "platform/windows/windows_gate.h"
#include <initguid.h>
#include <tq8v4461_interface.h>
// clang-format on

#include "platform/windows/com/apartment.h"
#include "platform/windows/desktop/window_class.h"
#include "platform/windows/products/common/visual_styles.h"
#include "platform/windows/products/tq8v4461/goods_request.h"

namespace windows {
namespace {

ComPtr<IUnknown> MakeGoodsRequest() {
  static PerApartment<Component> components;
  auto made = MakeCom<GoodsRequest>(components.Get());
  return ComPtr<IUnknown>(static_cast<_clsGoodsRequest*>(made.Get()));
}

}  // namespace

const Server& ThisServer() {
  static const Server server{{{{CLSID_clsGoodsRequest, L"tq8v4461.clsGoodsRequest", L"Request to Hq"}, MakeGoodsRequest}}, true};
  return server;
}

void ServerUnloading() {
  UnregisterFormClass();
  ReleaseVisualStyles();
}

}  // namespace windows
