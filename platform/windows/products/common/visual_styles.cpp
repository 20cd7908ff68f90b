#include "platform/windows/products/common/visual_styles.h"

#include "platform/windows/com/registration.h"

namespace windows {
namespace {

constexpr int kManifestResource = 2;
HANDLE context = INVALID_HANDLE_VALUE;

HANDLE Context() {
  if (context != INVALID_HANDLE_VALUE) return context;
  const std::wstring path = ModulePath();
  ACTCTXW description{};
  description.cbSize = sizeof(description);
  description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  description.lpSource = path.c_str();
  description.lpResourceName = MAKEINTRESOURCEW(kManifestResource);
  description.hModule = ModuleHandle();
  context = CreateActCtxW(&description);
  return context;
}

}  // namespace

VisualStyles::VisualStyles() {
  // Without the context the windows are plain, which is no reason to refuse them.
  if (Context() != INVALID_HANDLE_VALUE && !ActivateActCtx(Context(), &cookie_)) cookie_ = 0;
}

VisualStyles::~VisualStyles() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
}

void ReleaseVisualStyles() {
  if (context != INVALID_HANDLE_VALUE) ReleaseActCtx(context);
  context = INVALID_HANDLE_VALUE;
}

}  // namespace windows
