#include "add/frmBrowse.h"

#include "Desk.h"

namespace vantor::add {
namespace {

using Items = std::vector<std::wstring>;

TEST_CASE("A name left over from another choice adds nothing while there is no path") {
  Desk desk;
  frmBrowse& box = desk.Browse;
  desk.Settings.Folder = L"C:\\Tools";
  desk.Panel(0);
  desk.ChooseKind(AddKind::File);
  desk.Pick(L"notes.txt");
  desk.Ui.Type(L"left");
  desk.ChooseKind(AddKind::Program);
  CHECK_FALSE(box.TextAddName.Enabled());
  desk.Ui.Click(box.CommandAddOK);
  CHECK(desk.Added == 0);
  CHECK(box.TextAddName.Text() == L"left");
  desk.ChooseKind(AddKind::File);
  desk.Pick(L"notes.txt");  // has no default name
  CHECK(box.TextAddName.Text().empty());
  desk.ChooseKind(AddKind::Folder);
  REQUIRE(box.DirWork.SetPath(L"C:\\"));
  CHECK(box.TextAddPath.Text() == L"C:\\");
  CHECK(box.State().BrowseFolder == L"C:\\");
}

TEST_CASE("Where an item may come from") {
  // How each refusal begins, and the length of the whole.
  struct Text {
    std::wstring_view Begin;
    std::size_t Length;
  };
  constexpr Text None{L"", 0};
  constexpr Text Fixed{L"You can add Program, File and Folder to Launch List only if those are in a fixed", 171};
  constexpr Text Unknown{L"While Vantor runs from a Removable Media - it can add", 174 + 49 + 248 + 120 + 3 * 4};
  constexpr Text FixedHere{L"From this machine you can add", 193};
  constexpr Text Other{L"While Vantor runs from a Removable Media - Program File and Folder if", 155 + 97 + 4};
  const struct {
    bool Media = false;
    bool Unknown = false;
    bool Remembered = false;
    wchar_t Drive = 0;
    Text Refusal;  // None when it may be added
    bool EnablesRemember = false;
  } cases[] = {
      {false, false, false, L'D', None},        {false, false, false, L'E', Fixed},
      {false, false, false, L'N', Fixed},       {true, true, false, L'E', None},
      {true, true, false, L'D', Unknown, true}, {true, false, true, L'D', None},
      {true, false, true, L'N', FixedHere},     {true, false, true, L'E', None},
      {true, false, false, L'D', Other},        {true, false, false, L'E', None},
  };
  for (const auto& c : cases) {
    CAPTURE(&c - cases);
    Desk desk;
    desk.Environment.RunMode = c.Media;
    desk.Environment.MachineUnknown = c.Unknown;
    desk.Environment.MachineRemembered = c.Remembered;
    if (c.Media) desk.Environment.MediaDriveLetter = L"E";
    bool enabled = false;
    desk.Messages.Hooks.EnableRemember = [&] { enabled = true; };
    desk.Panel(0);
    desk.Browse.DriveWork.SetDrive(std::wstring(1, c.Drive));
    CHECK(desk.Browse.State().SelectedDriveLetter == std::wstring(1, c.Drive));
    REQUIRE(desk.Browse.DirWork.SetPath(std::wstring(1, c.Drive) + L":\\Work"));
    desk.Pick(L"tool.exe");
    std::wstring told;
    const bool refused = c.Refusal.Length != 0;
    if (refused) desk.Expect(told);
    desk.Ui.Type(L"Tool\r");
    CHECK(told.starts_with(c.Refusal.Begin));
    CHECK(told.size() == c.Refusal.Length);
    CHECK(enabled == c.EnablesRemember);
    CHECK((desk.Added == 1) != refused);
    if (refused) CHECK(desk.Browse.TextAddName.Text() == L"Tool");
  }
}

TEST_CASE("The last folder on a fixed disk is kept for the next run, and a drive that is not ready is told") {
  Desk desk;
  frmBrowse& box = desk.Browse;
  desk.Settings.Folder = L"C:\\Gone";
  box.Load();
  CHECK(box.DirWork.Path() == L"C:\\Vantor");
  desk.Panel(0);
  REQUIRE(box.DirWork.SetPath(L"D:\\Work"));
  CHECK(box.DriveWork.Drive() == L"d:");
  CHECK(desk.Settings.Folder == L"D:\\Work");

  std::wstring told;
  desk.Expect(told);
  box.DriveWork.SetDrive(L"r:");
  CHECK(told == L"The Drive you are trying to select is not ready.");
  CHECK(box.DriveWork.Drive() == L"d:");
  CHECK(box.DirWork.Path() == L"D:\\Work");

  box.DriveWork.SetDrive(L"e:");
  CHECK(box.DirWork.Path() == L"E:\\");
  CHECK(desk.Settings.Folder.empty());
  desk.Services.Disk.Drive(L'E').Ready = false;
  desk.Expect(told);
  box.DirWork.InputSelect(1);
  desk.Ui.DoubleClick(box.DirWork);
  CHECK(told == L"The Drive you are trying to select is not ready.");
  CHECK(box.DirWork.Path() == L"E:\\");
}

TEST_CASE("What is dropped on the program fills the add box as if browsed to") {
  const std::wstring longFolder = L"D:\\" + std::wstring(200, L'\x436') + L"\\" + std::wstring(200, L'x');
  const struct {
    std::vector<std::wstring> Paths;
    AddKind Kind;
    std::wstring Path;
  } cases[] = {
      {{L"e:\\work\\TOOL.exe"}, AddKind::Program, L"E:\\work\\tool.exe"},
      {{L"Z:\\no", L"C:\\Tools\\notes.txt"}, AddKind::File, L"C:\\Tools\\notes.txt"},
      {{L"C:\\Tools\\Deep\\"}, AddKind::Folder, L"C:\\Tools\\Deep"},
      {{longFolder + L"\\a, b 'c'.txt"}, AddKind::File, longFolder + L"\\a, b 'c'.txt"},
      {{L"D:\\hidden.txt"}, AddKind::File, L"D:\\hidden.txt"},
  };
  for (const auto& c : cases) {
    Desk desk;
    desk.Services.Disk.AddFile(longFolder + L"\\a, b 'c'.txt");
    desk.Services.Disk.AddFile(L"D:\\hidden.txt").Hidden = true;
    desk.Panel(1);
    desk.Browse.FillWith(c.Paths);
    CHECK(desk.CommandState.OpenPanelIndex == 0);
    CHECK(desk.Browse.State().WhatToAdd == c.Kind);
    CHECK(desk.Browse.TextAddPath.Text() == c.Path);
    CHECK(desk.Browse.TextAddName.HasFocus());
    CHECK(desk.Added == 0);
  }
}

}  // namespace
}  // namespace vantor::add
