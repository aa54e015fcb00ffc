#include "win32/service/RegistryValue.h"

#include <windows.h>

#include "text/Numbers.h"
#include "win32/base/Handle.h"

namespace vantor::win32 {

namespace {

HKEY RootOf(std::wstring_view name) {
  if (name == L"HKEY_CURRENT_USER" || name == L"HKCU") return HKEY_CURRENT_USER;
  if (name == L"HKEY_LOCAL_MACHINE" || name == L"HKLM") return HKEY_LOCAL_MACHINE;
  if (name == L"HKEY_CLASSES_ROOT" || name == L"HKCR") return HKEY_CLASSES_ROOT;
  if (name == L"HKEY_USERS") return HKEY_USERS;
  if (name == L"HKEY_CURRENT_CONFIG") return HKEY_CURRENT_CONFIG;
  return nullptr;
}

struct ValueName {
  HKEY Root = nullptr;
  std::wstring Key;
  std::wstring Value;
};

std::optional<ValueName> Parse(std::wstring_view name) {
  const std::size_t first = name.find(L'\\');
  const std::size_t last = name.rfind(L'\\');
  if (first == std::wstring_view::npos || first == last) return std::nullopt;
  ValueName parsed;
  parsed.Root = RootOf(name.substr(0, first));
  parsed.Key = name.substr(first + 1, last - first - 1);
  parsed.Value = name.substr(last + 1);
  if (parsed.Root == nullptr) return std::nullopt;
  return parsed;
}

}  // namespace

std::wstring PlainRegistryRead(std::wstring_view name) {
  const auto parsed = Parse(name);
  KeyHandle key;
  if (!parsed || RegOpenKeyExW(parsed->Root, parsed->Key.c_str(), 0, KEY_QUERY_VALUE, key.Put()) != ERROR_SUCCESS)
    return {};
  DWORD type = REG_NONE;
  DWORD size = 0;
  if (RegQueryValueExW(key.Get(), parsed->Value.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) return {};
  if (type == REG_DWORD) {
    DWORD number = 0;
    size = sizeof number;
    RegQueryValueExW(key.Get(), parsed->Value.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(&number), &size);
    return text::Decimal(static_cast<LONG>(number));
  }
  if (type != REG_SZ && type != REG_EXPAND_SZ) return {};
  std::wstring text(size / sizeof(wchar_t), L'\0');
  if (RegQueryValueExW(key.Get(), parsed->Value.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                       &size) != ERROR_SUCCESS)
    return {};
  return text.substr(0, text.find(L'\0'));  // the terminating null is usually part of the value
}

void PlainRegistryWrite(std::wstring_view name, std::wstring_view value) {
  const auto parsed = Parse(name);
  KeyHandle key;
  if (!parsed || RegCreateKeyExW(parsed->Root, parsed->Key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE,
                                 nullptr, key.Put(), nullptr) != ERROR_SUCCESS)
    return;
  const std::wstring text(value);
  const auto size = static_cast<DWORD>(text.size() + 1) * sizeof(wchar_t);
  RegSetValueExW(key.Get(), parsed->Value.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>(size));
}

void PlainRegistryDelete(std::wstring_view name) {
  const auto parsed = Parse(name);
  KeyHandle key;
  if (!parsed || RegOpenKeyExW(parsed->Root, parsed->Key.c_str(), 0, KEY_SET_VALUE, key.Put()) != ERROR_SUCCESS) return;
  RegDeleteValueW(key.Get(), parsed->Value.c_str());
}

}  // namespace vantor::win32
