#include "win32/window/CommonControls.h"

namespace vantor::win32 {

namespace {

/// The manifest that asks for version 6, in the program's resources.
constexpr WORD ManifestId = 2;

/// Created once and kept, because the windows created under it need it as long as they live.
HANDLE Context() {
  static const HANDLE context = [] {
    ACTCTXW description{sizeof description};
    description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    description.hModule = GetModuleHandleW(nullptr);
    description.lpResourceName = MAKEINTRESOURCEW(ManifestId);
    return CreateActCtxW(&description);
  }();
  return context;
}

}  // namespace

CommonControls::CommonControls() {
  if (Context() == INVALID_HANDLE_VALUE || ActivateActCtx(Context(), &cookie_) == FALSE) cookie_ = 0;
}

CommonControls::~CommonControls() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
}

}  // namespace vantor::win32
