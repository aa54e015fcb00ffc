#pragma once

#include <windows.h>
// Needs the one before it.
#include <shlobj.h>

#include <string>

#include "desktop/Basics.h"

namespace vantor::desktop {

inline std::string SystemFolder(int id) {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path);
  return Narrow(path);
}

/// A text in the registry; "(none)" when there is none.
inline std::string RegistryText(HKEY root, const wchar_t* key, const wchar_t* name) {
  wchar_t text[1024] = L"";
  DWORD bytes = sizeof text;
  return RegGetValueW(root, key, name, RRF_RT_REG_SZ, nullptr, text, &bytes) == ERROR_SUCCESS ? Narrow(text) : "(none)";
}
/// Where Windows looks for what starts with it, and the program's own entry.
constexpr wchar_t RunKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t RunValue[] = L"OrbelsLauncher";

/// A shortcut's file: what it holds, or making it lead somewhere.
class Shortcut {
 public:
  explicit Shortcut(const std::string& path) : path_(Wide(path)) {
    CoInitialize(nullptr);
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, reinterpret_cast<void**>(&link_));
    link_->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file_));
  }
  ~Shortcut() {
    file_->Release();
    link_->Release();
    CoUninitialize();
  }
  Shortcut(const Shortcut&) = delete;
  Shortcut& operator=(const Shortcut&) = delete;

  /// Target, folder, icon, description, hot key and window state, a line each; "" when there is no such file.
  [[nodiscard]] std::string Text() const {
    if (file_->Load(path_.c_str(), STGM_READ) != S_OK) return {};
    wchar_t text[4][MAX_PATH] = {};
    int icon = -1;
    WORD hotkey = 0;
    int show = 0;
    // By its identity, which has all letters.
    PIDLIST_ABSOLUTE target = nullptr;
    if (link_->GetIDList(&target) == S_OK) SHGetPathFromIDListW(target, text[0]);
    CoTaskMemFree(target);
    link_->GetWorkingDirectory(text[1], MAX_PATH);
    link_->GetIconLocation(text[2], MAX_PATH, &icon);
    link_->GetDescription(text[3], MAX_PATH);
    link_->GetHotkey(&hotkey);
    link_->GetShowCmd(&show);
    return Narrow(text[0]) + '\n' + Narrow(text[1]) + '\n' + Narrow(text[2]) + ", " + std::to_string(icon) + '\n' +
           Narrow(text[3]) + '\n' + std::to_string(hotkey) + '\n' + std::to_string(show);
  }
  void LeadTo(const std::string& target) const {
    link_->SetPath(Wide(target).c_str());
    file_->Save(path_.c_str(), TRUE);
  }

 private:
  std::wstring path_;
  IShellLinkW* link_ = nullptr;
  IPersistFile* file_ = nullptr;
};

}  // namespace vantor::desktop
