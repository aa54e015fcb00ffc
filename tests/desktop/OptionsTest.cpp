// The preferences: what each option does at once, at the next start and in the registry; the desktop shortcut.

#include <doctest/doctest.h>
#include <windows.h>
// Needs the one before it.
#include <commctrl.h>

#include "desktop/Program.h"
#include "desktop/System.h"

namespace vantor::desktop {
namespace {

const char* const Captions[] = {"Start With Windows", "Always On Top", "Show Add URL Box At Start"};

/// The boxes of the panel as a text: x for each that is ticked.
std::string Boxes(const Panel& preferences) {
  std::string boxes;
  for (const char* caption : Captions) {
    boxes += SendMessageW(preferences.Button(caption), BM_GETCHECK, 0, 0) == BST_CHECKED ? 'x' : '-';
  }
  return boxes;
}

}  // namespace

TEST_CASE("each option takes effect when it should, is saved, and is undone") {
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, RunKey, RunValue);
  const Folder folder;
  folder.WriteSettings({});
  // What is ticked before and after, and what the files and the registry then hold.
  const struct {
    std::string Before, After;
    int Mask;
  } rows[] = {{"-x-", "x-x", 5}, {"x-x", "---", 0}, {"---", "-xx", 6}, {"-xx", "-x-", 2}};
  for (const auto& row : rows) {
    CAPTURE(row.After);
    const Program program(folder);
    HWND const bar = program.AwaitBar();
    const auto webBoxShown = [&] { return window::OfClass(bar, "Edit").size() == 3; };
    CHECK(webBoxShown() == (row.Before[2] == 'x'));
    const Panel preferences(program, VK_F6, "Options");
    for (const std::string answer : {"Cancel", "OK"}) {  // cancelled, nothing has changed
      CAPTURE(answer);
      preferences.Open();
      CHECK(Boxes(preferences) == row.Before);
      // The first box has the focus; ticked and cleared again, it leaves nothing to confirm.
      for (const bool changed : {true, false}) {
        input::Press(VK_SPACE);
        CHECK_BECOMES(window::IsEnabled(preferences.Button("OK")), changed);
      }
      for (std::size_t i = 0; i < std::size(Captions); ++i) {
        if (row.Before[i] != row.After[i]) preferences.Click(Captions[i]);
      }
      CHECK_BECOMES(Boxes(preferences), row.After);
      preferences.Click(answer);
      CHECK_BECOMES(window::Focus(bar), program.TextMain());
      const std::string& now = answer == "OK" ? row.After : row.Before;
      CHECK(RegistryText(HKEY_LOCAL_MACHINE, RunKey, RunValue) ==
            (now[0] == 'x' ? folder.Path("Vantor.exe") : "(none)"));
    }
    CHECK(webBoxShown() == (row.Before[2] == 'x'));
    if (row.After[1] == 'x') {
      CHECK_BECOMES(window::IsTopMost(bar), true);
    } else {
      CHECK_FALSE(Eventually([&] { return window::IsTopMost(bar); }, 1500));  // more than one beat of the timer
    }
    program.Exit();
    CHECK(folder.Data("Set") == folder.Saved({.OptionMask = row.Mask}));
  }
}

TEST_CASE("the desktop shortcut starts the program, and success is told only when it is there") {
  const std::string desktop = SystemFolder(CSIDL_DESKTOPDIRECTORY);
  const std::string file = desktop + "\\Vantor.lnk";
  DeleteFileW(Wide(file).c_str());
  const Folder folder;
  folder.WriteSettings({});
  const Program program(folder);
  program.AwaitBar();
  const Panel preferences(program, VK_F6, "Options");
  preferences.Open();
  for (int time = 0; time < 2; ++time) {  // the second replaces the first
    preferences.Click("Create Desktop Shortcut");
    program.ExpectMessage("A shortcut for Vantor has been placed on your Desktop.");
    preferences.AwaitInput();
    const std::string path = folder.Path("Vantor.exe");
    CHECK(Shortcut(file).Text() == path + '\n' + folder.Path() + "\\\n" + path + ", 0\nVantor\n" +
                                       std::to_string(MAKEWORD('L', HOTKEYF_CONTROL | HOTKEYF_SHIFT)) + '\n' +
                                       std::to_string(SW_SHOWNORMAL));
  }
  DeleteFileW(Wide(file).c_str());
  SKIP_UNLESS(UnderWine(), "a desktop folder that is the test's alone");
  // A file in the folder's place: nothing can be saved there.
  REQUIRE(MoveFileW(Wide(desktop).c_str(), Wide(desktop + ".aside").c_str()));
  std::ofstream(std::filesystem::path(Wide(desktop))).close();
  preferences.Click("Create Desktop Shortcut");
  input::Press(VK_ESCAPE);
  program.AwaitBar();
  CHECK(program.Message() == nullptr);
  DeleteFileW(Wide(desktop).c_str());
  MoveFileW(Wide(desktop + ".aside").c_str(), Wide(desktop).c_str());
}

}  // namespace vantor::desktop
