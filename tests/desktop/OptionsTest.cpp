// The preferences: what each option does at once, at the next start and in the registry; the desktop shortcut.

#include <doctest/doctest.h>
#include <windows.h>
// Needs the one before it.
#include <commctrl.h>
#include <sddl.h>
#include <shlobj.h>

#include "desktop/Input.h"
#include "desktop/Panel.h"
#include "desktop/Program.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

constexpr wchar_t RunKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t RunValue[] = L"OrbelsLauncher";

/// What starts with Windows under the program's name; "(none)" for nothing.
std::string StartedWithWindows() {
  wchar_t text[MAX_PATH] = L"";
  DWORD size = sizeof text;
  const LSTATUS status = RegGetValueW(HKEY_LOCAL_MACHINE, RunKey, RunValue, RRF_RT_REG_SZ, nullptr, text, &size);
  return status == ERROR_SUCCESS ? Narrow(text) : "(none)";
}

class Preferences : public Panel {
 public:
  explicit Preferences(const Program& program) : Panel(program, VK_F6, "Options") {}

  /// The boxes as a text: x for each that is ticked.
  [[nodiscard]] std::string Boxes() const {
    std::string boxes;
    for (const char* caption : {"Start With Windows", "Always On Top", "Show Add URL Box At Start"}) {
      boxes += SendMessageW(Button(caption), BM_GETCHECK, 0, 0) == BST_CHECKED ? 'x' : '-';
    }
    return boxes;
  }
  [[nodiscard]] bool OkEnabled() const { return IsWindowEnabled(Button("OK")) != FALSE; }
};

struct Shortcut {
  std::string Target, Folder, Icon, Description;
  WORD Hotkey = 0;
  int Show = 0;
};

Shortcut ReadShortcut(const std::wstring& file) {
  IShellLinkW* link = nullptr;
  IPersistFile* content = nullptr;
  REQUIRE(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                           reinterpret_cast<void**>(&link)) == S_OK);
  REQUIRE(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&content)) == S_OK);
  CHECK(content->Load(file.c_str(), STGM_READ) == S_OK);
  Shortcut shortcut;
  wchar_t text[MAX_PATH] = L"";
  int icon = -1;
  link->GetPath(text, MAX_PATH, nullptr, 0);
  shortcut.Target = Narrow(text);
  link->GetWorkingDirectory(text, MAX_PATH);
  shortcut.Folder = Narrow(text);
  link->GetIconLocation(text, MAX_PATH, &icon);
  shortcut.Icon = Narrow(text) + ", " + std::to_string(icon);
  link->GetDescription(text, MAX_PATH);
  shortcut.Description = Narrow(text);
  link->GetHotkey(&shortcut.Hotkey);
  link->GetShowCmd(&shortcut.Show);
  content->Release();
  link->Release();
  return shortcut;
}

}  // namespace

TEST_CASE("each option takes effect when it should, is saved, and is undone") {
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, RunKey, RunValue);
  const Folder folder;
  folder.WriteSettings({});
  const std::string file = folder.Path("Vantor.exe");
  // What is ticked before and after, and what the files and the registry then hold.
  const struct {
    std::string Before, After;
    int Mask;
  } rows[] = {{"-x-", "x-x", 5}, {"x-x", "---", 0}, {"---", "-xx", 6}, {"-xx", "-x-", 2}};
  const char* const captions[] = {"Start With Windows", "Always On Top", "Show Add URL Box At Start"};
  for (const auto& row : rows) {
    CAPTURE(row.After);
    Program program(folder);
    const HWND bar = program.AwaitBar();
    const auto webBoxShown = [&] { return window::OfClass(bar, "Edit").size() == 3; };
    CHECK(webBoxShown() == (row.Before[2] == 'x'));
    const Preferences preferences(program);
    preferences.Open();
    CHECK(preferences.Boxes() == row.Before);
    CHECK_FALSE(preferences.OkEnabled());
    // The first box has the focus; ticked and cleared again, it leaves nothing to confirm.
    input::Press(VK_SPACE);
    CHECK_BECOMES(preferences.OkEnabled(), true);
    input::Press(VK_SPACE);
    CHECK_BECOMES(preferences.OkEnabled(), false);
    for (std::size_t i = 0; i < 3; ++i) {
      if (row.Before[i] != row.After[i]) preferences.Click(captions[i]);
    }
    CHECK_BECOMES(preferences.Boxes(), row.After);
    // Cancelled first: nothing has changed.
    preferences.Click("Cancel");
    CHECK_BECOMES(window::Focus(bar), program.TextMain());
    CHECK(StartedWithWindows() == (row.Before[0] == 'x' ? file : "(none)"));
    preferences.Open();
    CHECK(preferences.Boxes() == row.Before);
    for (std::size_t i = 0; i < 3; ++i) {
      if (row.Before[i] != row.After[i]) preferences.Click(captions[i]);
    }
    preferences.Click("OK");
    CHECK_BECOMES(window::Focus(bar), program.TextMain());
    CHECK(StartedWithWindows() == (row.After[0] == 'x' ? file : "(none)"));
    CHECK(webBoxShown() == (row.Before[2] == 'x'));
    if (row.After[1] == 'x') {
      CHECK_BECOMES(window::IsTopMost(bar), true);
    } else {
      CHECK_FALSE(Eventually([&] { return window::IsTopMost(bar); }, 1500));  // more than one beat of the timer
    }
    program.Exit();
    CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved({.OptionMask = row.Mask}));
  }
}

TEST_CASE("a registry that can't be written leaves the option set, without a word") {
  SKIP_UNLESS(UnderWine(), "a registry that is the test's alone");
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, RunKey, RunValue);
  HKEY run = nullptr;
  REQUIRE(RegOpenKeyExW(HKEY_LOCAL_MACHINE, RunKey, 0, READ_CONTROL | WRITE_DAC, &run) == ERROR_SUCCESS);
  PSECURITY_DESCRIPTOR readOnly = nullptr;
  REQUIRE(
      ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;KR;;;WD)", SDDL_REVISION_1, &readOnly, nullptr));
  REQUIRE(RegSetKeySecurity(run, DACL_SECURITY_INFORMATION, readOnly) == ERROR_SUCCESS);
  HKEY write = nullptr;
  REQUIRE(RegOpenKeyExW(HKEY_LOCAL_MACHINE, RunKey, 0, KEY_SET_VALUE, &write) == ERROR_ACCESS_DENIED);
  LocalFree(readOnly);
  RegCloseKey(run);

  const Folder folder;
  folder.WriteSettings({});
  Program program(folder);
  program.AwaitBar();
  const Preferences preferences(program);
  preferences.Open();
  preferences.Click("Start With Windows");
  preferences.Click("OK");
  program.AwaitBar();
  CHECK(program.Message() == nullptr);
  CHECK(StartedWithWindows() == "(none)");
  preferences.Open();
  CHECK(preferences.Boxes() == "xx-");
  input::Press(VK_ESCAPE);
  program.Exit();
  CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved({.OptionMask = 3}));
}

TEST_CASE("the desktop shortcut starts the program, and success is told only when it is there") {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  wchar_t desktop[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, SHGFP_TYPE_CURRENT, desktop);
  const std::wstring file = std::wstring(desktop) + L"\\Vantor.lnk";
  DeleteFileW(file.c_str());
  const Folder folder;
  folder.WriteSettings({});
  Program program(folder);
  program.AwaitBar();
  const Preferences preferences(program);
  preferences.Open();
  for (int time = 0; time < 2; ++time) {  // the second replaces the first
    preferences.Click("Create Desktop Shortcut");
    program.AwaitMessage();
    CHECK(program.MessageText().find("A shortcut for Vantor has been placed on your Desktop.") != std::string::npos);
    input::Press(VK_ESCAPE);
    preferences.AwaitInput();
    const Shortcut shortcut = ReadShortcut(file);
    CHECK(shortcut.Target == folder.Path("Vantor.exe"));
    CHECK(shortcut.Folder == folder.Path() + "\\");
    CHECK(shortcut.Icon == folder.Path("Vantor.exe") + ", 0");
    CHECK(shortcut.Description == "Vantor");
    CHECK(shortcut.Hotkey == MAKEWORD('L', HOTKEYF_CONTROL | HOTKEYF_SHIFT));
    CHECK(shortcut.Show == SW_SHOWNORMAL);
  }
  DeleteFileW(file.c_str());
  SKIP_UNLESS(UnderWine(), "a desktop folder that is the test's alone");
  // A file in the folder's place: nothing can be saved there.
  const std::wstring aside = std::wstring(desktop) + L".aside";
  REQUIRE(MoveFileW(desktop, aside.c_str()));
  CloseHandle(CreateFileW(desktop, GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  preferences.Click("Create Desktop Shortcut");
  input::Press(VK_ESCAPE);
  preferences.AwaitClosed();
  CHECK(program.Message() == nullptr);
  DeleteFileW(desktop);
  MoveFileW(aside.c_str(), desktop);
}

}  // namespace vantor::desktop
