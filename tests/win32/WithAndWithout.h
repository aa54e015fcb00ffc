#pragma once

#include <string>

#include "driver/Desktop.h"

namespace vantor::win32 {

/// Runs a check with a scripting or management object (true) and then, if the registry belongs to the test, without it,
/// as after an administrator has removed its class (false).
template <class Action>
void WithAndWithout(const std::wstring& className, Action action) {
  action(true);
  if (!desktop::OwnDesktop()) return;
  const std::wstring key = L"Software\\Classes\\" + className + L"\\CLSID";
  const std::wstring id = desktop::RegistryText(HKEY_LOCAL_MACHINE, key, L"");
  desktop::SetRegistryText(HKEY_LOCAL_MACHINE, key, L"", L"{00000000-1111-2222-3333-444444444444}");
  action(false);
  desktop::SetRegistryText(HKEY_LOCAL_MACHINE, key, L"", id);
}

}  // namespace vantor::win32
