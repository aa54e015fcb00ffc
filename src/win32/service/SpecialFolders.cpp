#include "win32/service/SpecialFolders.h"

#include <windows.h>

#include <shlobj.h>

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

}  // namespace vantor::win32
