// What lies in the data files afterwards: a save that is broken off, the end of the session, other copies.

#include <doctest/doctest.h>

#include "driver/Program.h"

namespace vantor::desktop {
namespace {

/// A list whose lines end differently from what the program writes, so that every save has to rewrite the file, and
/// what is loaded from the old and the new is the same.
struct LongList {
  explicit LongList(int count) : Count(count) {
    Items items;
    for (int i = 0; i < count; ++i) items.emplace_back("Site " + std::to_string(i), "http://www.example.org/");
    Old = New = ListBytes(items);
    std::erase(Old, '\r');
  }
  void PutInto(const Folder& folder) const {
    folder.WriteSettings({.WebUpper = Count - 1});
    folder.WriteData("ListWeb", Old);
  }
  /// Whether all items are saved.
  void CheckSaved(const Folder& folder) const {
    CHECK((folder.Data("ListWeb") == New));
    const Settings settings{.WebUpper = Count - 1};
    CHECK(folder.Data("Set") == folder.Saved(settings));
    // The mark of a save under way goes by being emptied, then removed: killed in between, a save is whole.
    const std::string mark = folder.Data("Saving");
    CHECK((mark.empty() || mark == "(none)"));
  }

  int Count;
  std::string Old, New;
};

void Close(const Program& program) {
  PostMessageW(program.AwaitBar(), WM_CLOSE, 0, 0);
  CHECK(program.AwaitEnd() == 0);
}

void StartAndClose(const Folder& folder) {
  const Program program(folder);
  program.AwaitBar();
  CHECK(program.Message() == nullptr);
  Close(program);
}

}  // namespace

TEST_CASE("the program killed during a save has lost nothing at its next start") {
  const LongList list(32767);
  const Folder folder;
  const std::string saving = folder.Path("Vantor\\Saving.Orbel");
  const std::string backup = folder.Path("Vantor\\Backup\\ListWeb.Orbel");
  int brokenOff = 0;
  // The moment is Windows' choice: most hit the save, all must do no harm.
  for (int attempt = 0; attempt < 12 && brokenOff < 3; ++attempt) {
    list.PutInto(folder);
    {
      const Program program(folder);
      PostMessageW(program.AwaitBar(), WM_CLOSE, 0, 0);
      const std::string& sign = attempt % 2 == 0 ? saving : backup;
      CHECK(Eventually([&] { return Exists(sign) || !program.Running(); }));
    }
    brokenOff += Exists(saving) ? 1 : 0;
    StartAndClose(folder);
    list.CheckSaved(folder);
    DeleteFileW(Wide(backup).c_str());
  }
  CHECK(brokenOff > 0);
}

TEST_CASE("Windows ends while a panel or a message is open: all is saved, and in time") {
  const LongList list(32767);
  for (const bool message : {false, true}) {
    CAPTURE(message);
    const Folder folder;
    list.PutInto(folder);
    const Program program(folder);
    HWND bar = program.AwaitBar();
    if (message)
      program.Enter(L"p=nosuchprogram");
    else
      program.Press(VK_F4);
    program.AwaitForm(message ? L"CommandOK" : L"CommandListCancel");
    if (message && OwnDesktop()) {
      CHECK(Run("wineboot --end-session") == 0);
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
    list.CheckSaved(folder);
    (void)program.AwaitEnd();
  }
}

TEST_CASE("a second copy hands over to the first, minimised or covered; of two at one moment one stays") {
  const Folder folder;
  folder.WriteSettings({.OptionMask = 0, .WebUpper = 0, .Left = 600, .Top = 600});
  folder.WriteData("ListWeb", ListBytes({{"One", "http://one"}}));
  const Program one(folder);
  const Program two(folder);
  CHECK(Eventually([&] { return one.Running() != two.Running(); }));
  const Program& first = one.Running() ? one : two;
  HWND bar = first.AwaitBar();
  first.Enter(L"w-kept");
  for (const bool minimised : {true, false}) {
    CAPTURE(minimised);
    if (minimised) input::Press(VK_F9);
    CHECK_BECOMES(window::IsMinimised(bar), minimised);
    HWND const cover = CreateWindowExW(0, L"STATIC", L"cover", WS_POPUP | WS_VISIBLE, 0, 0, 700, 300, nullptr, nullptr,
                                       GetModuleHandleW(nullptr), nullptr);
    SetForegroundWindow(cover);
    CHECK_BECOMES(GetForegroundWindow(), cover);
    const Program second(folder);
    CHECK(second.AwaitEnd() == 0);
    CHECK_BECOMES(window::IsMinimised(bar), false);
    CHECK(first.AwaitBar() == bar);
    CHECK(first.Line() == "w-kept");
    CHECK_BECOMES(window::IsAbove(bar, cover), true);
    DestroyWindow(cover);
  }
  first.Exit();
  CHECK(folder.Data("ListWeb") == ListBytes({{"One", "http://one"}}));
  StartAndClose(folder);  // the way is free again
}

}  // namespace vantor::desktop
