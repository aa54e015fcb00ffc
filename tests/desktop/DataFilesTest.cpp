// What the program finds in its data files, and the bytes that it leaves there.

#include <doctest/doctest.h>

#include "desktop/Program.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

void StartAndExit(const Folder& folder) {
  Program program(folder);
  program.AwaitBar();
  CHECK(program.Message() == nullptr);
  program.Exit();
}

}  // namespace

TEST_CASE("settings and lists are written whole at the exit") {
  const Folder folder;
  folder.Write("a, b.txt", "");
  folder.Write("tool.exe", "");
  folder.WriteSettings({.OptionMask = 3,
                        .FileUpper = 1,
                        .FoldUpper = 0,
                        .ProgUpper = 0,
                        .WebUpper = 1,
                        .Left = 300,
                        .Top = 450,
                        .Folder = folder.Path("Vantor")});
  folder.Write("Vantor\\ListFile.Orbel",
               ListBytes({{"gone", folder.Path("gone.txt")}, {"a, b", folder.Path("a, b.txt")}}));
  folder.Write("Vantor\\ListFold.Orbel", ListBytes({{"gone", folder.Path("gone")}}));
  folder.Write("Vantor\\ListProg.Orbel", ListBytes({{"Tool", folder.Path("tool.exe")}, {"uncounted", "x"}}));
  folder.Write("Vantor\\ListWeb.Orbel", "\"One\" , \"http://one\"\nTwo,http://two");
  StartAndExit(folder);
  CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved({.OptionMask = 3,
                                                          .FileUpper = 0,
                                                          .ProgUpper = 0,
                                                          .WebUpper = 1,
                                                          .Left = 300,
                                                          .Top = 450,
                                                          .Folder = folder.Path("Vantor")}));
  CHECK(folder.Read("Vantor\\ListFile.Orbel") == ListBytes({{"a, b", folder.Path("a, b.txt")}}));
  CHECK(folder.Read("Vantor\\ListFold.Orbel") == ListBytes({{"gone", folder.Path("gone")}}));
  CHECK(folder.Read("Vantor\\ListProg.Orbel") == ListBytes({{"Tool", folder.Path("tool.exe")}}));
  CHECK(folder.Read("Vantor\\ListWeb.Orbel") == ListBytes({{"One", "http://one"}, {"Two", "http://two"}}));
  CHECK(folder.Read("Vantor\\User.Orbel") == "\"Anna\"\r\n");
}

TEST_CASE("damaged data files stop nothing, and what can be read is kept") {
  const std::string lists = ListBytes({{"One", "http://one"}, {"Two", "http://two"}});
  const struct {
    std::string Settings, Web;
    desktop::Settings SettingsAfter;
    std::string WebAfter;
  } rows[] = {
      // Cut in the second record; fewer than counted; nothing there; a count out of range; not a settings file at all.
      {Settings{.WebUpper = 1}.Bytes(),
       lists.substr(0, lists.size() - 4),
       {.WebUpper = 0},
       ListBytes({{"One", "http://one"}})},
      {Settings{.WebUpper = 9}.Bytes(), lists, {.WebUpper = 1}, lists},
      {Settings{.WebUpper = 3}.Bytes(), "", {}, ""},
      {"2\r\n-1\r\n-1\r\n-1\r\n1\r\n150\r\n", lists, {.WebUpper = 1, .Left = 150}, lists},
      {"2\r\n-1\r\n-1\r\n-1\r\n1\r\n99999999\r\n0\r\n", lists, {.WebUpper = 1}, lists},
      {std::string("\0\xFF\"", 3), lists, {}, lists},
      {"", lists, {}, lists},
  };
  for (const auto& row : rows) {
    CAPTURE(row.Settings);
    const Folder folder;
    folder.WriteSettings({});
    folder.Write("Vantor\\Set.Orbel", row.Settings);
    folder.Write("Vantor\\ListWeb.Orbel", row.Web);
    StartAndExit(folder);
    CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved(row.SettingsAfter));
    CHECK(folder.Read("Vantor\\ListWeb.Orbel") == row.WebAfter);
  }
}

TEST_CASE("a read-only data folder: the program starts, works and ends") {
  const Folder folder;
  folder.WriteSettings({.OptionMask = 2, .Left = 150});
  const std::string set = folder.Path("Vantor\\Set.Orbel");
  SetFileAttributesA(set.c_str(), FILE_ATTRIBUTE_READONLY);
  {
    Program program(folder);
    CHECK(window::Bounds(program.AwaitBar()).left > 0);
    program.Exit();
  }
  CHECK(folder.Read("Vantor\\Set.Orbel") == Settings{.Left = 150}.Bytes());
  SetFileAttributesA(set.c_str(), FILE_ATTRIBUTE_NORMAL);
}

}  // namespace vantor::desktop
