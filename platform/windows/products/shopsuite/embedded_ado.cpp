#include "platform/windows/products/shopsuite/embedded_ado.h"

#include <string>

#include "platform/windows/com/class_factory.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/wide_text.h"
#include "suite/engine/objects/database.h"

namespace windows {

EmbeddedAdo::EmbeddedAdo() {
  Serve("ADODB.Connection");
  Serve("ADODB.Recordset");
}

EmbeddedAdo::~EmbeddedAdo() {
  for (const DWORD served : served_) CoRevokeClassObject(served);
}

void EmbeddedAdo::Serve(const char* progId) {
  CLSID id{};
  Check(CLSIDFromProgID(Wide(progId).c_str(), &id));
  const auto factory = MakeCom<ClassFactory>([name = std::string(progId)] {
    late::ClassRegistry registry;
    suite::RegisterAdo(registry);
    return ComPtr<IUnknown>(DispatchOf(registry.Create(name)).Get());
  });
  DWORD served = 0;
  Check(CoRegisterClassObject(id, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &served));
  served_.push_back(served);
}

}  // namespace windows
