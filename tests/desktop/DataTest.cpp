// What lies in the data files afterwards: a save that is broken off, the end of the session, other copies.

#include "driver/Check.h"
#include "driver/Program.h"

namespace vantor::desktop {
namespace {

/// A full list whose lines end differently from what the program writes, so that every save has to rewrite the file,
/// and what is loaded from the old and the new is the same.
struct FullList {
  void Put() const {
    Place.WriteSettings({.WebUpper = Count - 1});
    std::string old = New;
    std::erase(old, '\r');
    Place.WriteData(L"ListWeb", old);
  }
  /// Whether all items are saved.
  void CheckSaved() const {
    CHECK((Place.Data(L"ListWeb") == New));
    CHECK(Place.Data(L"Set") == Settings{.WebUpper = Count - 1, .Folder = Place.Path}.Bytes());
    // The mark of a save under way goes by being emptied, then removed: killed in between, a save is whole.
    const std::string mark = Place.Data(L"Saving");
    CHECK((mark.empty() || mark == "(none)"));
  }

  static constexpr int Count = 32767;
  Folder Place;
  std::string New = ListBytes(Items(Count, {L"Site", L"http://www.example.org/"}));
};

}  // namespace

TEST_CASE("the program killed during a save has lost nothing at its next start") {
  const FullList list;
  const std::wstring saving = list.Place / L"Vantor\\Saving.Orbel";
  const std::wstring backup = list.Place / L"Vantor\\Backup\\ListWeb.Orbel";
  int brokenOff = 0;
  // The moment is Windows' choice: most hit the save, all must do no harm.
  for (int attempt = 0; attempt < 12 && brokenOff < 3; ++attempt) {
    list.Put();
    {
      const Program program(list.Place);
      PostMessageW(program.AwaitBar(), WM_CLOSE, 0, 0);
      const std::wstring& sign = attempt % 2 == 0 ? saving : backup;
      CHECK(Eventually([&] { return Exists(sign) || !program.Running(); }));
    }
    brokenOff += Exists(saving) ? 1 : 0;
    Program(list.Place).Exit();
    list.CheckSaved();
    DeleteFileW(backup.c_str());
  }
  CHECK(brokenOff > 0);
}

TEST_CASE("Windows ends while a panel or a message is open: all is saved, and in time") {
  const FullList list;
  for (const bool message : {false, true}) {
    CAPTURE(message);
    list.Put();
    const Program program(list.Place);
    HWND const bar = program.AwaitBar();
    message ? program.Enter(L"p=nosuchprogram") : program.Press(VK_F4);
    program.AwaitForm(message ? L"CommandOK" : L"CommandListCancel");
    if (message && OwnDesktop()) {
      CHECK(Run(L"wineboot --end-session") == 0);
    } else {
      // What Windows sends, without ending the session of the person who runs this.
      const ULONGLONG begin = GetTickCount64();
      CHECK(SendMessageW(bar, WM_QUERYENDSESSION, 0, 0) != 0);
      SendMessageW(bar, WM_ENDSESSION, TRUE, 0);
      const ULONGLONG milliseconds = GetTickCount64() - begin;
      MESSAGE("saving 32,767 items at the session's end: " << milliseconds << " ms");
      CHECK(milliseconds < 5000);  // what Windows grants before it ends a program by force
    }
    // From here on Windows may end the process at any moment.
    list.CheckSaved();
    (void)program.AwaitEnd();
  }
}

TEST_CASE("a second copy hands over to the first, minimised or covered; of two started at once, one stays") {
  const Folder folder;
  folder.WriteSettings({.OptionMask = 0, .Left = 600, .Top = 600});
  const Program one(folder);
  const Program two(folder);
  CHECK(Eventually([&] { return one.Running() != two.Running(); }));
  const Program& first = one.Running() ? one : two;
  HWND const bar = first.AwaitBar();
  first.Type(L"kept");
  for (const bool minimised : {true, false}) {
    CAPTURE(minimised);
    if (minimised) first.Press(VK_F9);
    CHECK_BECOMES(IsIconic(bar) != FALSE, minimised);
    HWND const cover = window::Make(0, {0, 0}, {700, 300});
    ShowWindow(cover, SW_SHOW);
    SetForegroundWindow(cover);
    CHECK_BECOMES(GetForegroundWindow(), cover);
    CHECK(Program(folder).AwaitEnd() == 0);
    CHECK(first.AwaitBar() == bar);
    CHECK_BECOMES(IsIconic(bar), FALSE);
    CHECK_BECOMES(window::IsAbove(bar, cover), true);
    CHECK(first.Line() == L"kept");
    DestroyWindow(cover);
  }
  first.Exit();
  Program(folder).Exit();  // the way is free again
}

}  // namespace vantor::desktop
