#include <doctest/doctest.h>

#include "bar/StartedProgram.h"

using namespace vantor;
using form::Key;
using test::StartedProgram;
using Texts = std::vector<std::wstring>;

namespace {

constexpr wchar_t RunValue[] = L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";

struct Preferences : StartedProgram {
  Preferences() { Desktop.Press(Key::F6); }
  options::OptionsPage& Page = Program.OptionsPage;

  /// Opens the page, ticks or clears boxes, and presses OK.
  void Change(std::initializer_list<std::size_t> boxes) {
    if (!Page.FrameOptions.Visible() || !Program.frmChoose.Visible()) Desktop.Press(Key::F6);
    for (const std::size_t box : boxes) Desktop.Click(Page.CheckOptionMain[box]);
    Desktop.Click(Page.CommandOptionOK);
  }
};

}  // namespace

TEST_CASE("OK is offered while the boxes differ from what is saved, and Cancel forgets") {
  Preferences preferences;
  options::OptionsPage& page = preferences.Page;
  CHECK(page.CheckOptionMain[0].HasFocus());
  CHECK(page.CheckOptionMain[1].Value());
  CHECK(!page.CommandOptionOK.Enabled());
  CHECK(!page.CommandOptionRemember.Visible());
  CHECK(!preferences.Program.frmChoose.FrameCancel.Visible());
  preferences.Desktop.Type(L" ");
  CHECK(page.CommandOptionOK.Enabled());
  preferences.Desktop.Type(L" ");
  CHECK(!page.CommandOptionOK.Enabled());
  preferences.Desktop.Click(page.CheckOptionMain[2]);
  preferences.Desktop.Click(page.CommandOptionCancel);
  CHECK(!preferences.Program.frmChoose.Visible());
  CHECK(preferences.Program.Settings.OptionMask == 2);
  preferences.Desktop.Press(Key::F6);
  CHECK(!page.CheckOptionMain[2].Value());
  CHECK(!page.CommandOptionOK.Enabled());
}

TEST_CASE("the options take effect when they should, and reach the settings file") {
  Preferences preferences;
  start::Program& program = preferences.Program;
  preferences.Change({1, 2});
  CHECK(!program.frmMain.TimerOnTop.Enabled());
  CHECK(program.frmMain.TextMain.HasFocus());
  preferences.Desktop.Advance(5000);
  CHECK(!program.frmMain.TopMost());
  preferences.Change({1});
  CHECK(program.frmMain.TimerOnTop.Enabled());
  CHECK(!program.frmMain.Web.FrameWeb.Visible());
  preferences.Desktop.Press(Key::F10);
  CHECK(preferences.Services.Disk.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel").starts_with("6\r\n"));
}

TEST_CASE("the run value is written and deleted only when that changes something") {
  Preferences preferences;
  auto& shell = preferences.Services.ScriptShell;
  const std::wstring written = std::wstring(L"write ") + RunValue + L"=C:\\Vantor\\Vantor.exe";
  const std::wstring deleted = std::wstring(L"delete ") + RunValue;
  const auto callsOf = [&](std::initializer_list<std::size_t> boxes) {
    shell.RegistryCalls.clear();
    preferences.Change(boxes);
    return shell.RegistryCalls;
  };
  CHECK(callsOf({0}) == Texts{written});
  CHECK(callsOf({2}) == Texts{});
  CHECK(callsOf({0}) == Texts{deleted});
  shell.Registry[RunValue] = L"C:\\Vantor\\Vantor.exe";
  CHECK(callsOf({0}) == Texts{});
  shell.Registry.clear();
  CHECK(callsOf({0}) == Texts{});
  shell.Registry[RunValue] = L"C:\\Old\\Vantor.exe";
  CHECK(callsOf({0}) == Texts{written});
}

TEST_CASE("the shortcut points at the product in the program's folder, and success is told only when it was saved") {
  Preferences preferences;
  auto& shell = preferences.Services.ScriptShell;
  preferences.Desktop.Click(preferences.Page.CommandOptionShortcut);  // no desktop folder
  shell.SpecialFolders[L"Desktop"] = L"C:\\Desk top";
  shell.SaveSucceeds = false;
  preferences.Desktop.Click(preferences.Page.CommandOptionShortcut);
  shell.SaveSucceeds = true;
  preferences.ExpectMessage();
  preferences.Desktop.Click(preferences.Page.CommandOptionShortcut);
  CHECK(preferences.Told == Texts{L"A shortcut for Vantor has been placed on your Desktop."});
  REQUIRE(shell.Shortcuts.size() == 1);
  const service::Shortcut& shortcut = shell.Shortcuts[0];
  CHECK(shortcut.File == L"C:\\Desk top\\Vantor.lnk");
  CHECK(shortcut.TargetPath == L"C:\\Vantor\\Vantor.exe");
  CHECK(shortcut.IconLocation == L"C:\\Vantor\\Vantor.exe, 0");
  CHECK(shortcut.Hotkey == L"CTRL+SHIFT+L");
  CHECK(shortcut.WorkingDirectory == L"C:\\Vantor\\");
  CHECK(preferences.Program.frmChoose.Visible());
}

TEST_CASE("remembering the computer waits for a refusal, and is done once") {
  Preferences preferences;
  options::OptionsPage& page = preferences.Page;
  preferences.Desktop.Press(Key::Escape);
  preferences.Program.Environment.RunMode = true;
  bool succeeds = false;
  page.Hooks.RememberMyComputer = [&] { return succeeds; };
  preferences.Desktop.Press(Key::F6);
  CHECK(page.CommandOptionRemember.Visible());
  CHECK(!page.CommandOptionRemember.Enabled());
  preferences.Program.MessageState.EnableRememberAfterMessage = true;
  preferences.ExpectMessage();
  preferences.Program.Messages.ShowText(L"refused");
  CHECK(page.CommandOptionRemember.Enabled());
  preferences.Desktop.Click(page.CommandOptionRemember);
  CHECK(page.CommandOptionRemember.Enabled());
  succeeds = true;
  preferences.Desktop.Click(page.CommandOptionRemember);
  CHECK(!page.CommandOptionRemember.Enabled());
}
