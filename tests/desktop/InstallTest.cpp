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

/// The installer, and a folder for the program whose name fits no code page.
struct Installation {
  Folder Place{std::filesystem::temp_directory_path(), L" Gr\u00F6\u00DFe \u65E5\u672C"};
  std::wstring Setup = Beside(L"package\\Vantor-" PRODUCT_PACKAGE_VERSION "-setup.exe");
  std::wstring Program = Place / L"Vantor.exe";
  std::wstring StartMenu = SystemFolder(CSIDL_PROGRAMS) + L"\\Vantor.lnk";
  std::wstring Shortcut = SystemFolder(CSIDL_DESKTOPDIRECTORY) + L"\\Vantor.lnk";

  /// Installs into a folder, or that of the last installation for "". Returns the exit code.
  [[nodiscard]] DWORD Install(const std::wstring& folder = {}) const {
    return Run(L'"' + Setup + L"\" /S" + (folder.empty() ? L"" : L" /D=" + folder));
  }
  /// The uninstaller continues in a copy of itself, whose end can't be waited for.
  void Uninstall(const std::wstring& options) const {
    const std::wstring uninstaller = Place / L"Uninstall.exe";
    Run(L'"' + uninstaller + L"\" /S" + options);
    Await("the uninstaller's end", [&] { return Entry(L"DisplayName") == L"(none)" && !Exists(uninstaller); });
  }
  /// Data as left by a user: a name, and one web site although five are counted.
  void WriteData() const {
    Place.WriteSettings({.WebUpper = 4});
    Place.WriteData(L"ListWeb", Sites);
  }
  /// Whether a copy has saved at its end: then the count is right. The name of its folder does not fit the code page.
  void CheckSaved() const {
    CHECK(Place.Data(L"Set") == "\xEF\xBB\xBF" + Settings{.WebUpper = 0, .Folder = Place.Path}.Bytes());
    CHECK(Place.Data(L"ListWeb") == Sites);
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
    CHECK(it.Place.Read(L"Guide.html").starts_with("<!DOCTYPE html>"));
    CHECK(Exists(it.Place / L"Notices.txt"));
    CHECK(Exists(it.StartMenu) == startMenu);
    CHECK(Entry(L"DisplayVersion") == L"" PRODUCT_PACKAGE_VERSION);
  };
  REQUIRE(it.Install(it.Place.Path) == 0);
  checkInstalled(true);
  CHECK(Entry(L"QuietUninstallString") == L'"' + it.Place / L"Uninstall.exe\" /S");

  // An older version is installed, and the user has removed its start-menu entry.
  for (const wchar_t* name : {L"Vantor.exe", L"Guide.html"}) it.Place.Write(name, "old");
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
    CHECK_BECOMES(window::ProcessOf(window::Focus(GetForegroundWindow())), RunningProcess());
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

  REQUIRE(it.Install(it.Place.Path) == 0);
  {
    const Program back(it.Program);
    back.Exit();
  }
  it.CheckSaved();
  it.Uninstall(L" /DELETEDATA");
  CHECK_BECOMES(Exists(it.Place.Path), false);
  for (const std::wstring& gone : {it.StartMenu, it.Shortcut})
    CHECK_FALSE(Exists(gone));  // the second was not requested
}

TEST_CASE("an installation that can't be done says so and leaves all as it was") {
  SKIP_UNLESS(OwnDesktop(), "a Windows installation of the test's own");
  const Installation it;
  constexpr DWORD NotDone = 2;
  it.Place.Write(L"full\\Vantor.exe.new\\in the way");
  CHECK(it.Install(it.Place / L"full") == NotDone);
  // A copy that is waiting for its first answer does not end on request.
  const Program first(it.Place);
  first.AwaitForm(L"TextInput0");
  CHECK(it.Install(it.Place.Path) == NotDone);
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
    const Program setup(it.Setup);
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

  const std::string link = BytesOf(it.Shortcut);
  // The first icon, a normal window, and the hot key: Ctrl+Shift+L starts the program.
  CHECK(link.substr(0x38, 10) == std::string("\0\0\0\0\1\0\0\0L\3", 10));
  for (const std::string& path : {Narrow(program), Utf16(program)}) CHECK(link.find(path) != std::string::npos);

  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) SetRegistryText(root, RunKey, RunValue, program);
  Run(L'"' + folder + L"\\Uninstall.exe\" /S /DELETEDATA");
  CHECK_BECOMES(Exists(folder), false);
  for (const std::wstring& gone : {it.StartMenu, it.Shortcut}) CHECK_FALSE(Exists(gone));
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) CHECK(RegistryText(root, RunKey, RunValue) == L"(none)");
}

}  // namespace vantor::desktop
