#include "win32/AccessibleNames.h"

#include <objbase.h>
#include <oleacc.h>

namespace vantor::win32 {

namespace {

// Written out, because the tool chain's libraries don't hold it.
// {608D3DF8-8128-4AA7-A428-F55E49267291}
constexpr GUID NameProperty = {0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};
// {B5F8350B-0548-48B1-A6EE-88BD00B4A5E7}
constexpr GUID PropertyServices = {0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
// {6E26E776-04F0-495D-80E4-3330352E3169}
constexpr GUID PropertyServicesInterface = {
    0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr wchar_t NamedMark[] = L"VantorNamed";

}  // namespace

void NameForReaders(HWND window, const std::wstring& name) {
  if (name.empty() || GetPropW(window, NamedMark) != nullptr) return;
  const bool entered = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  void* made = nullptr;
  if (SUCCEEDED(CoCreateInstance(PropertyServices, nullptr, CLSCTX_INPROC_SERVER, PropertyServicesInterface, &made))) {
    auto* const services = static_cast<IAccPropServices*>(made);
    services->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, NameProperty, name.c_str());
    services->Release();
  }
  if (entered) CoUninitialize();
  // Also where it failed, which it would do again.
  SetPropW(window, NamedMark, reinterpret_cast<HANDLE>(1));
}

}  // namespace vantor::win32
