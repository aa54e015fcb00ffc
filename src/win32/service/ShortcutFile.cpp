#include "win32/service/ShortcutFile.h"

#include <windows.h>

#include <commctrl.h>
#include <shlobj.h>

#include <string>

#include "text/Numbers.h"
#include "win32/base/Com.h"

namespace vantor::win32 {

namespace {

unsigned KeyCode(std::wstring_view key) {
  if (key.size() == 1 && ((key[0] >= L'A' && key[0] <= L'Z') || (key[0] >= L'0' && key[0] <= L'9'))) return key[0];
  if (!key.starts_with(L'F')) return 0;
  const int number = text::ParseInt16(key.substr(1)).value_or(0);
  return number >= 1 && number <= 24 ? static_cast<unsigned>(VK_F1 + number - 1) : 0;
}

}  // namespace

unsigned short HotkeyCode(std::wstring_view hotkey) {
  unsigned held = 0;
  for (std::size_t plus = hotkey.find(L'+'); plus != std::wstring_view::npos; plus = hotkey.find(L'+')) {
    const std::wstring_view modifier = hotkey.substr(0, plus);
    if (modifier == L"CTRL")
      held |= HOTKEYF_CONTROL;
    else if (modifier == L"SHIFT")
      held |= HOTKEYF_SHIFT;
    else if (modifier == L"ALT")
      held |= HOTKEYF_ALT;
    else
      return 0;
    hotkey.remove_prefix(plus + 1);
  }
  const unsigned key = KeyCode(hotkey);
  return static_cast<unsigned short>(key == 0 ? 0 : held << 8 | key);
}

void WriteShortcutFile(const service::Shortcut& shortcut) {
  ComPointer<IShellLinkW> link;
  Check(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.PutVoid()));
  Check(link->SetPath(shortcut.TargetPath.c_str()));
  Check(link->SetShowCmd(shortcut.WindowStyle));
  Check(link->SetHotkey(HotkeyCode(shortcut.Hotkey)));
  Check(link->SetDescription(shortcut.Description.c_str()));
  Check(link->SetWorkingDirectory(shortcut.WorkingDirectory.c_str()));
  const std::size_t comma = shortcut.IconLocation.rfind(L',');
  const bool indexed = comma != std::wstring::npos;
  const int index =
      indexed ? text::ParseInt16(std::wstring_view(shortcut.IconLocation).substr(comma + 1)).value_or(0) : 0;
  Check(link->SetIconLocation(shortcut.IconLocation.substr(0, comma).c_str(), index));

  ComPointer<IPersistFile> file;
  Check(link->QueryInterface(IID_IPersistFile, file.PutVoid()));
  Check(file->Save(shortcut.File.c_str(), TRUE));
}

}  // namespace vantor::win32
