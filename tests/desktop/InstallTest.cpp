// desktop: --root win32
// desktop: --root win64
// The installer and the uninstaller in silent mode, with and without a running copy. The user's data is kept.

#include <doctest/doctest.h>

#include "driver/Program.h"
#include "driver/Recorder.h"
#include "product/Product.rc.h"

namespace vantor::desktop {
namespace {

constexpr wchar_t UninstallKey[] = LR"(Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantor)";

std::string Entry(const wchar_t* name) { return RegistryText(HKEY_CURRENT_USER, UninstallKey, name); }

/// The installer as it was built, and a place for it whose name is in no code page as a whole.
struct Installation {
  Installation() { Work.CopyProgram("package\\Vantor-" PRODUCT_PACKAGE_VERSION "-setup.exe", "setup.exe"); }

  Folder Work;
  std::string Name = "Gr\u00F6\u00DFe \u65E5\u672C";
  std::string Program = Work.Path(Name + "\\Vantor.exe");
  std::string StartMenu = SystemFolder(CSIDL_PROGRAMS) + "\\Vantor.lnk";
  std::string Shortcut = SystemFolder(CSIDL_DESKTOPDIRECTORY) + "\\Vantor.lnk";

  [[nodiscard]] DWORD Install(const std::string& folder = {}) const {
    return Run('"' + Work.Path("setup.exe") + "\" /S" + (folder.empty() ? "" : " /D=" + folder));
  }
  /// The uninstaller continues in a copy of itself, for which one can't wait.
  void Uninstall(const std::string& options) const {
    const std::string uninstaller = Work.Path(Name + "\\Uninstall.exe");
    Run('"' + uninstaller + "\" /S" + options);
    Await("the uninstaller's end", [&] { return Entry(L"DisplayName") == "(none)" && !Exists(uninstaller); });
  }
  /// As a person left it who has used it: a name, and one web site of the five that are counted.
  void WriteData() const {
    Work.Write(Name + "\\Vantor\\Set.Orbel", Settings{.WebUpper = 4}.Bytes());
    Work.Write(Name + "\\Vantor\\User.Orbel", "\"Anna\"\r\n");
    Work.Write(Name + "\\Vantor\\ListWeb.Orbel", ListBytes({{"One", "http://one"}}));
  }
  /// Whether a copy has saved when it ended: then the count is right.
  [[nodiscard]] bool Saved() const {
    // Its folder is none that the code page could hold.
    const std::string settings = "\xEF\xBB\xBF" + Settings{.WebUpper = 0, .Folder = Work.Path(Name)}.Bytes();
    return Work.Read(Name + "\\Vantor\\Set.Orbel") == settings &&
           Work.Read(Name + "\\Vantor\\ListWeb.Orbel") == ListBytes({{"One", "http://one"}});
  }
};

DWORD RunningProcess() { return window::ProcessOf(FindWindowW(L"ThunderRT6Main", L"Vantor Orbel")); }

}  // namespace

TEST_CASE("install, upgrade over a running copy, uninstall and come back, in a folder with foreign letters") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  REQUIRE(it.Install(it.Work.Path(it.Name)) == 0);
  const std::string built = it.Work.Read("Vantor.exe");
  CHECK(it.Work.Read(it.Name + "\\Vantor.exe") == built);
  for (const char* name : {"Guide.html", "Notices.txt"}) CHECK(Exists(it.Work.Path(it.Name + '\\' + name)));
  CHECK(Exists(it.StartMenu));
  CHECK(Entry(L"DisplayVersion") == PRODUCT_PACKAGE_VERSION);
  CHECK(Entry(L"QuietUninstallString") == '"' + it.Work.Path(it.Name + "\\Uninstall.exe") + "\" /S");

  // An older version is there, and its start-menu entry was not wanted.
  it.Work.Write(it.Name + "\\Vantor.exe", "old");
  it.Work.Write(it.Name + "\\Guide.html", "old");
  SetRegistryText(HKEY_CURRENT_USER, UninstallKey, L"DisplayVersion", L"1.0");
  DeleteFileW(Wide(it.StartMenu).c_str());
  it.WriteData();
  REQUIRE(it.Install() == 0);
  CHECK(it.Work.Read(it.Name + "\\Vantor.exe") == built);
  CHECK(it.Work.Read(it.Name + "\\Guide.html").starts_with("<!DOCTYPE html>"));
  CHECK(Entry(L"DisplayVersion") == PRODUCT_PACKAGE_VERSION);
  CHECK_FALSE(Exists(it.StartMenu));
  // The copy that runs saves and ends, and runs again afterwards.
  {
    Program running(it.Program);
    running.AwaitBar();
    CHECK(running.Message() == nullptr);
    REQUIRE(it.Install() == 0);
    CHECK(running.AwaitEnd() == 0);
    CHECK(it.Saved());
    CHECK_BECOMES(RunningProcess() != 0, true);
    CHECK(Run('"' + it.Program + '"') == 0);  // a third copy brings the bar to the front
    input::Press(VK_F10);
    CHECK_BECOMES(RunningProcess(), DWORD{0});
  }

  // It goes without what was entered, and what a copy that still runs has to save.
  it.WriteData();
  {
    Program running(it.Program);
    running.Enter(L"p=nosuchprogram");
    running.AwaitForm(L"CommandOK");
    it.Uninstall("");
    CHECK(running.AwaitEnd() == 0);
  }
  CHECK_FALSE(Exists(it.Program));
  CHECK(it.Saved());

  REQUIRE(it.Install(it.Work.Path(it.Name)) == 0);
  {
    Program back(it.Program);
    back.AwaitBar();
    CHECK(back.Message() == nullptr);
    back.Exit();
  }
  CHECK(it.Saved());
  it.Uninstall(" /DELETEDATA");
  CHECK_BECOMES(Exists(it.Work.Path(it.Name)), false);
  CHECK_FALSE(Exists(it.StartMenu));
  CHECK_FALSE(Exists(it.Shortcut));  // nobody asked for it
}

TEST_CASE("an installation that can't be done says so and leaves all as it was") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  constexpr DWORD NotDone = 2;
  it.Work.Write("full\\Vantor.exe.new\\in the way");
  CHECK(it.Install(it.Work.Path("full")) == NotDone);
  CHECK(Entry(L"DisplayName") == "(none)");

  // A copy that waits for its first answer does not end when it is asked to.
  it.Work.CopyProgram("Vantor.exe", it.Name + "\\Vantor.exe");
  Program first(it.Program);
  first.AwaitForm(L"TextInput0");
  CHECK(it.Install(it.Work.Path(it.Name)) == NotDone);
  CHECK(first.Running());
  CHECK_FALSE(Exists(it.Program + ".new"));
  CHECK(Entry(L"DisplayName") == "(none)");
}

TEST_CASE("installed by hand, Enter is enough, and the folder is the user's; what preferences make goes with it") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  const std::string folder = SystemFolder(CSIDL_LOCAL_APPDATA) + "\\Programs\\Vantor";
  const std::wstring program = Wide(folder + "\\Vantor.exe");
  {
    const Program setup(it.Work.Path("setup.exe"));
    for (const char* const button : {"&Next >", "&Install"}) {
      Await(button, [&] { return window::Text(GetDlgItem(GetForegroundWindow(), IDOK)) == button; });
      setup.Press(VK_RETURN);
    }
    Await("the shortcut, which is ticked, to be written and closed", [&] {
      const HANDLE alone = CreateFileW(Wide(it.Shortcut).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
      return alone != INVALID_HANDLE_VALUE && CloseHandle(alone) != FALSE;
    });
  }
  CHECK(Exists(folder + "\\Vantor.exe"));
  CHECK(BytesOf(it.StartMenu).find(folder + "\\Vantor.exe") != std::string::npos);

  const std::string setups = BytesOf(it.Shortcut);
  DeleteFileW(Wide(it.Shortcut).c_str());
  {
    const Program first(folder + "\\Vantor.exe");
    first.AwaitForm(L"TextInput0");
    first.Press(VK_RETURN);
    Await("the greeting", [&] { return first.Message() != nullptr && first.Control(L"TextInput0") == nullptr; });
    first.Press(VK_RETURN);
    first.AwaitBar();
    first.Press(VK_F6);
    first.Click(L"CommandOptionShortcut");
    first.AwaitForm(L"LabelMessage");
  }
  const std::string own = BytesOf(it.Shortcut);
  constexpr std::size_t Header = 0x38;  // the number of the icon, the window and the key
  CHECK(own.substr(Header, 10) == setups.substr(Header, 10));
  for (const std::string& text : {folder, folder + "\\Vantor.exe"}) {
    CHECK((own.find(Utf16(text)) != own.npos && setups.find(Utf16(text)) != own.npos));
  }

  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    SetRegistryText(root, RunKey, RunValue, program);
  }
  Run('"' + folder + "\\Uninstall.exe\" /S /DELETEDATA");
  CHECK_BECOMES(Exists(folder), false);
  CHECK_FALSE(Exists(it.Shortcut));
  CHECK_FALSE(Exists(it.StartMenu));
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) CHECK(RegistryText(root, RunKey, RunValue) == "(none)");
}

}  // namespace vantor::desktop
