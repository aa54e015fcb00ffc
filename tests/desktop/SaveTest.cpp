// desktop: --drive e:=floppy
// A save that is broken off: by the end of the program, a full disk, a lock, a medium that is gone.

#include <doctest/doctest.h>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

/// A list whose lines end otherwise than the program writes them, so that every save has to write the file anew, and
/// what is loaded from the old and the new is the same.
struct LongList {
  explicit LongList(int count) : Count(count) {
    Items items;
    for (int i = 0; i < count; ++i) items.emplace_back("Site " + std::to_string(i), "http://www.example.org/");
    New = ListBytes(items);
    for (const char c : New) {
      if (c != '\r') Old += c;
    }
  }
  void PutInto(const Folder& folder) const {
    folder.WriteSettings({.WebUpper = Count - 1});
    folder.Write("Vantor\\ListWeb.Orbel", Old);
  }

  int Count;
  std::string Old, New;
};

bool Exists(const Folder& folder, const std::string& name) {
  return GetFileAttributesW(Wide(folder.Path(name)).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void Close(Program& program) {
  PostMessageW(program.AwaitBar(), WM_CLOSE, 0, 0);
  program.AwaitEnd();
}

/// The next start has all items, and so has its save.
void CheckNextRun(const Folder& folder, const LongList& list, const Settings& settings) {
  Program program(folder);
  Close(program);
  CHECK((folder.Read("Vantor\\ListWeb.Orbel") == list.New));
  CHECK(folder.Read("Vantor\\Set.Orbel") == settings.Bytes());
  CHECK_FALSE(Exists(folder, "Vantor\\Saving.Orbel"));
}

Settings Saved(const Folder& folder, const LongList& list) {
  return {.WebUpper = list.Count - 1, .Folder = folder.Path()};
}

}  // namespace

TEST_CASE("the program killed in the midst of a save has lost nothing at its next start") {
  const LongList list(32767);
  const Folder folder;
  int brokenOff = 0;
  // The moment is Windows' choice: most hit the save, all must do no harm.
  for (int attempt = 0; attempt < 12 && brokenOff < 3; ++attempt) {
    list.PutInto(folder);
    {
      Program program(folder);
      PostMessageW(program.AwaitBar(), WM_CLOSE, 0, 0);
      const std::string sign = attempt % 2 == 0 ? "Vantor\\Saving.Orbel" : "Vantor\\Backup\\ListWeb.Orbel";
      CHECK(Eventually([&] { return Exists(folder, sign) || !program.Running(); }));
    }
    brokenOff += Exists(folder, "Vantor\\Saving.Orbel") ? 1 : 0;
    CheckNextRun(folder, list, Saved(folder, list));
    DeleteFileW(Wide(folder.Path("Vantor\\Backup\\ListWeb.Orbel")).c_str());
  }
  CHECK(brokenOff > 0);
}

TEST_CASE("on a full disk the old list or the new one stays, whole") {
  const std::string disk = "Z:\\small\\";
  SKIP_UNLESS(GetFileAttributesA(disk.c_str()) != INVALID_FILE_ATTRIBUTES, "a small disk");
  const LongList list(2000);
  const Folder folder(disk);
  list.PutInto(folder);
  const std::string filler = folder.Path("filler");
  // No room at all, some for what is kept, enough for that but not for the new list, enough for everything.
  for (const std::size_t room : {0U, 40'000U, 90'000U, 200'000U}) {
    CAPTURE(room);
    ULARGE_INTEGER free = {};
    REQUIRE(GetDiskFreeSpaceExA(disk.c_str(), &free, nullptr, nullptr));
    REQUIRE(free.QuadPart > room);
    folder.Write("filler", std::string(static_cast<std::size_t>(free.QuadPart) - room, 'x'));
    {
      Program program(folder);
      Close(program);
    }
    {
      Program program(folder);  // while it is full still
      Close(program);
    }
    DeleteFileA(filler.c_str());
    CheckNextRun(folder, list, Saved(folder, list));
    list.PutInto(folder);
  }
}

TEST_CASE("a list file that may not be written, and a medium that is pulled out") {
  const LongList list(3);
  const Folder folder;
  list.PutInto(folder);
  const std::string path = folder.Path("Vantor\\ListWeb.Orbel");
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  {
    Program program(folder);
    Close(program);
  }
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  CHECK(folder.Read("Vantor\\ListWeb.Orbel") == list.Old);
  CheckNextRun(folder, list, Saved(folder, list));

  SKIP_UNLESS(UnderWine() && GetDriveTypeA("E:\\") == DRIVE_REMOVABLE, "a test desktop with a removable drive");
  const Folder medium("E:\\");
  list.PutInto(medium);
  medium.Write("Vantor\\MediaSet.Orbel", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Anna\"\r\n");
  {
    Program program(medium);
    program.AwaitBar();
    REQUIRE(MoveFileA("Z:\\prefix\\drives\\e", "Z:\\prefix\\drives\\gone"));
    Close(program);
    REQUIRE(MoveFileA("Z:\\prefix\\drives\\gone", "Z:\\prefix\\drives\\e"));
  }
  CHECK(medium.Read("Vantor\\ListWeb.Orbel") == list.Old);
  CheckNextRun(medium, list, {.WebUpper = list.Count - 1});
}

TEST_CASE("Windows ends while a panel or a message is open: all is saved, and in time") {
  const LongList list(32767);
  for (const bool message : {false, true}) {
    CAPTURE(message);
    const Folder folder;
    list.PutInto(folder);
    Program program(folder);
    HWND bar = program.AwaitBar();
    if (message) {
      program.TypeLine("p=nosuchprogram");
      input::Press(VK_RETURN);
      program.AwaitMessage();
    } else {
      input::Press(VK_F4);
      CHECK(Eventually([&] { return GetForegroundWindow() != bar && window::HasInput(GetForegroundWindow()); }));
    }
    const ULONGLONG begin = GetTickCount64();
    CHECK(SendMessageW(bar, WM_QUERYENDSESSION, 0, 0) != 0);
    SendMessageW(bar, WM_ENDSESSION, TRUE, 0);
    const ULONGLONG milliseconds = GetTickCount64() - begin;
    // From here on Windows may end the process at any moment.
    CHECK((folder.Read("Vantor\\ListWeb.Orbel") == list.New));
    CHECK(folder.Read("Vantor\\Set.Orbel") == Saved(folder, list).Bytes());
    program.AwaitEnd();
    MESSAGE("saving 32,767 items at the session's end: " << milliseconds << " ms");
    CHECK(milliseconds < 5000);  // what Windows grants before it ends a program by force
  }
}

}  // namespace vantor::desktop
