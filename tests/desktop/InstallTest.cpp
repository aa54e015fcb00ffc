// desktop: --root win32
// desktop: --root win64
// The installer and the uninstaller in silent mode, with and without a running copy. The user's data is kept.

#include "driver/Check.h"
#include "driver/Program.h"
#include "product/Product.rc.h"

namespace vantor::desktop {
namespace {

constexpr wchar_t UninstallKey[] = LR"(Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantor)";
const std::string Sites = ListBytes({{L"One", L"http://one"}});

std::wstring Entry(const wchar_t* name) { return RegistryText(HKEY_CURRENT_USER, UninstallKey, name); }

/// The installer, and a folder for it whose name fits no code page.
struct Installation {
  Installation() { Work.CopyProgram(L"package\\Vantor-" PRODUCT_PACKAGE_VERSION "-setup.exe", L"setup.exe"); }

  Folder Work;
  std::wstring Place = L"Gr\u00F6\u00DFe \u65E5\u672C\\";
  std::wstring Program = Work / Place + L"Vantor.exe";
  std::wstring StartMenu = SystemFolder(CSIDL_PROGRAMS) + L"\\Vantor.lnk";
  std::wstring Shortcut = SystemFolder(CSIDL_DESKTOPDIRECTORY) + L"\\Vantor.lnk";

  /// Installs into a subfolder of the test's folder, or of the last installation for "". Returns the exit code.
  [[nodiscard]] DWORD Install(const std::wstring& place = {}) const {
    return Run(L'"' + Work / L"setup.exe" + L"\" /S" + (place.empty() ? L"" : L" /D=" + Work / place));
  }
  /// The uninstaller continues in a copy of itself, whose end can't be waited for.
  void Uninstall(const std::wstring& options) const {
    const std::wstring uninstaller = Work / Place + L"Uninstall.exe";
    Run(L'"' + uninstaller + L"\" /S" + options);
    Await("the uninstaller's end", [&] { return Entry(L"DisplayName") == L"(none)" && !Exists(uninstaller); });
  }
  /// Data as left by a user: a name, and one web site although five are counted.
  void WriteData() const {
    Work.Write(Place + L"Vantor\\Set.Orbel", Settings{.WebUpper = 4}.Bytes());
    Work.Write(Place + L"Vantor\\User.Orbel", "\"Anna\"\r\n");
    Work.Write(Place + L"Vantor\\ListWeb.Orbel", Sites);
  }
  /// Whether a copy has saved at its end: then the count is right. The name of its folder does not fit the code page.
  void CheckSaved() const {
    const std::wstring folder = Work / Place.substr(0, Place.size() - 1);
    CHECK(Work.Read(Place + L"Vantor\\Set.Orbel") ==
          "\xEF\xBB\xBF" + Settings{.WebUpper = 0, .Folder = folder}.Bytes());
    CHECK(Work.Read(Place + L"Vantor\\ListWeb.Orbel") == Sites);
  }
};

DWORD RunningProcess() { return window::ProcessOf(FindWindowW(L"ThunderRT6Main", L"Vantor Orbel")); }

}  // namespace

TEST_CASE("install, upgrade over a running copy, uninstall and come back, in a folder with foreign letters") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  const std::string built = BytesOf(Beside(L"Vantor.exe"));
  const auto checkInstalled = [&](bool startMenu) {
    CHECK(BytesOf(it.Program) == built);
    CHECK(it.Work.Read(it.Place + L"Guide.html").starts_with("<!DOCTYPE html>"));
    CHECK(Exists(it.Work / it.Place + L"Notices.txt"));
    CHECK(Exists(it.StartMenu) == startMenu);
    CHECK(Entry(L"DisplayVersion") == L"" PRODUCT_PACKAGE_VERSION);
  };
  REQUIRE(it.Install(it.Place) == 0);
  checkInstalled(true);
  CHECK(Entry(L"QuietUninstallString") == L'"' + it.Work / it.Place + L"Uninstall.exe\" /S");

  // An older version is installed, and the user has removed its start-menu entry.
  for (const wchar_t* name : {L"Vantor.exe", L"Guide.html"}) it.Work.Write(it.Place + name, "old");
  SetRegistryText(HKEY_CURRENT_USER, UninstallKey, L"DisplayVersion", L"1.0");
  DeleteFileW(it.StartMenu.c_str());
  REQUIRE(it.Install() == 0);
  checkInstalled(false);

  // The running copy saves, ends, and is started again.
  it.WriteData();
  {
    const Program running(it.Program);
    running.AwaitBar();
    CHECK(running.Message() == nullptr);
    REQUIRE(it.Install() == 0);
    CHECK(running.AwaitEnd() == 0);
    it.CheckSaved();
    CHECK_BECOMES(RunningProcess() != 0, true);
    CHECK(Run(L'"' + it.Program + L'"') == 0);  // a third copy brings the bar to the front
    input::Press(VK_F10);
    CHECK_BECOMES(RunningProcess(), DWORD{0});
  }

  // Uninstalling keeps what was entered, and what a running copy saves.
  it.WriteData();
  {
    const Program running(it.Program);
    running.Enter(L"p=nosuchprogram");
    running.AwaitForm(L"CommandOK");
    it.Uninstall(L"");
    CHECK(running.AwaitEnd() == 0);
  }
  CHECK_FALSE(Exists(it.Program));
  it.CheckSaved();

  REQUIRE(it.Install(it.Place) == 0);
  {
    const Program back(it.Program);
    back.Exit();
  }
  it.CheckSaved();
  it.Uninstall(L" /DELETEDATA");
  CHECK_BECOMES(Exists(it.Work / it.Place), false);
  for (const std::wstring& gone : {it.StartMenu, it.Shortcut})
    CHECK_FALSE(Exists(gone));  // the second was not requested
}

TEST_CASE("an installation that can't be done says so and leaves all as it was") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  constexpr DWORD NotDone = 2;
  it.Work.Write(L"full\\Vantor.exe.new\\in the way");
  CHECK(it.Install(L"full") == NotDone);
  // A copy that is waiting for its first answer does not end on request.
  it.Work.CopyProgram(L"Vantor.exe", it.Place + L"Vantor.exe");
  const Program first(it.Program);
  first.AwaitForm(L"TextInput0");
  CHECK(it.Install(it.Place) == NotDone);
  CHECK(first.Running());
  CHECK_FALSE(Exists(it.Program + L".new"));
  CHECK(Entry(L"DisplayName") == L"(none)");
}

TEST_CASE("installed by hand, Enter is enough, and the folder is the user's; what preferences make goes with it") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  const std::wstring folder = SystemFolder(CSIDL_LOCAL_APPDATA) + L"\\Programs\\Vantor";
  const std::wstring program = folder + L"\\Vantor.exe";
  {
    const Program setup(it.Work / L"setup.exe");
    for (const std::wstring button : {L"&Next >", L"&Install"}) {
      Await(Narrow(button), [&] { return window::Text(GetDlgItem(GetForegroundWindow(), IDOK)) == button; });
      setup.Press(VK_RETURN);
    }
    Await("the shortcut, which is ticked, to be written and closed", [&] {
      const HANDLE alone = CreateFileW(it.Shortcut.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
      return alone != INVALID_HANDLE_VALUE && CloseHandle(alone) != FALSE;
    });
  }
  CHECK(Exists(program));
  CHECK(BytesOf(it.StartMenu).find(Narrow(program)) != std::string::npos);

  // The preferences create the same shortcut: Ctrl+Shift+L starts the program.
  const std::string setups = BytesOf(it.Shortcut);
  DeleteFileW(it.Shortcut.c_str());
  {
    const Program first(program);
    first.AwaitForm(L"TextInput0");
    first.Press(VK_RETURN);
    Await("the greeting", [&] { return first.Message() != nullptr && first.Control(L"TextInput0") == nullptr; });
    first.Press(VK_RETURN);
    first.AwaitBar();
    first.Press(VK_F6);
    first.Click(L"CommandOptionShortcut");
    first.AwaitForm(L"LabelMessage");
  }
  for (const std::string& link : {setups, BytesOf(it.Shortcut)}) {
    CHECK(link.substr(0x38, 10) ==
          std::string("\0\0\0\0\1\0\0\0L\3", 10));  // the first icon, a normal window, the hot key
    for (const std::string& path : {Narrow(program), Utf16(program)}) CHECK(link.find(path) != std::string::npos);
  }

  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) SetRegistryText(root, RunKey, RunValue, program);
  Run(L'"' + folder + L"\\Uninstall.exe\" /S /DELETEDATA");
  CHECK_BECOMES(Exists(folder), false);
  for (const std::wstring& gone : {it.StartMenu, it.Shortcut}) CHECK_FALSE(Exists(gone));
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) CHECK(RegistryText(root, RunKey, RunValue) == L"(none)");
}

}  // namespace vantor::desktop
