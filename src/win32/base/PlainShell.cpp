#include "win32/base/PlainShell.h"

#include <windows.h>

#include <shlobj.h>

#include <optional>

#include "win32/base/ShellFunction.h"

namespace vantor::win32 {

namespace {

struct SpecialFolderName {
  std::wstring_view Name;
  int Id;
};

constexpr SpecialFolderName Names[] = {
    {L"AllUsersDesktop", CSIDL_COMMON_DESKTOPDIRECTORY},
    {L"AllUsersStartMenu", CSIDL_COMMON_STARTMENU},
    {L"AllUsersPrograms", CSIDL_COMMON_PROGRAMS},
    {L"AllUsersStartup", CSIDL_COMMON_STARTUP},
    {L"Desktop", CSIDL_DESKTOPDIRECTORY},
    {L"Favorites", CSIDL_FAVORITES},
    {L"Fonts", CSIDL_FONTS},
    {L"MyDocuments", CSIDL_PERSONAL},
    {L"NetHood", CSIDL_NETHOOD},
    {L"PrintHood", CSIDL_PRINTHOOD},
    {L"Programs", CSIDL_PROGRAMS},
    {L"Recent", CSIDL_RECENT},
    {L"SendTo", CSIDL_SENDTO},
    {L"StartMenu", CSIDL_STARTMENU},
    {L"Startup", CSIDL_STARTUP},
    {L"Templates", CSIDL_TEMPLATES},
};

struct ValueName {
  HKEY Root;
  std::wstring Key;
  std::wstring Value;
};

std::optional<ValueName> Parse(std::wstring_view name) {
  const std::size_t first = name.find(L'\\');
  const std::size_t last = name.rfind(L'\\');
  if (first == last) return std::nullopt;
  const std::wstring_view root = name.substr(0, first);
  if (root != L"HKEY_CURRENT_USER" && root != L"HKEY_LOCAL_MACHINE") return std::nullopt;
  return ValueName{root == L"HKEY_CURRENT_USER" ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
                   std::wstring(name.substr(first + 1, last - first - 1)), std::wstring(name.substr(last + 1))};
}

}  // namespace

std::wstring PlainSpecialFolder(std::wstring_view name) {
  for (const SpecialFolderName& known : Names) {
    if (known.Name != name) continue;
    wchar_t path[MAX_PATH] = L"";
    auto* const getFolderPath = ShellFunction<decltype(SHGetFolderPathW)>("SHGetFolderPathW");
    return getFolderPath(nullptr, known.Id, nullptr, SHGFP_TYPE_CURRENT, path) == S_OK ? path : L"";
  }
  return {};
}

std::wstring PlainRegistryRead(std::wstring_view name) {
  constexpr DWORD AsItIs = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
  const auto parsed = Parse(name);
  const auto get = [&](wchar_t* text, DWORD& size) {
    return RegGetValueW(parsed->Root, parsed->Key.c_str(), parsed->Value.c_str(), AsItIs, nullptr, text, &size);
  };
  DWORD size = 0;
  if (!parsed || get(nullptr, size) != ERROR_SUCCESS) return {};
  std::wstring text(size / sizeof(wchar_t), L'\0');
  if (get(text.data(), size) != ERROR_SUCCESS) return {};
  return text.substr(0, text.find(L'\0'));
}

void PlainRegistryWrite(std::wstring_view name, std::wstring_view value) {
  const std::wstring text(value);
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  if (const auto parsed = Parse(name)) {
    RegSetKeyValueW(parsed->Root, parsed->Key.c_str(), parsed->Value.c_str(), REG_SZ, text.c_str(),
                    static_cast<DWORD>(size));
  }
}

void PlainRegistryDelete(std::wstring_view name) {
  if (const auto parsed = Parse(name)) RegDeleteKeyValueW(parsed->Root, parsed->Key.c_str(), parsed->Value.c_str());
}

}  // namespace vantor::win32
