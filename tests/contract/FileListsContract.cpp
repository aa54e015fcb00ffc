#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "contract/Person.h"
#include "fake/Computer.h"
#include "form/FileLists.h"

using namespace vantor::form;
using vantor::contract::MakePerson;
using Texts = std::vector<std::wstring>;

TEST_CASE("the drive, folder and file lists walk a disk by keyboard and by the program") {
  vantor::fake::Computer computer;
  vantor::fake::FakeDisk& disk = computer.Disk;
  disk.Drives[L'A'] = {1, L"", false};
  for (const wchar_t* file : {L"beta.txt", L"Alpha.exe", L"Deep\\x.exe", L"Old\\y.exe"})
    disk.AddFile(std::wstring(L"C:\\Tools\\") + file);
  const auto someone = MakePerson();
  Form form(someone->Ui(), L"BrowseForm");
  DriveList drives(form, L"Drive", computer);
  FolderList folders(form, L"Dir", computer);
  FileList list(form, L"File", computer);
  form.SetBounds({1500, 1500, 6000, 6000});
  drives.SetBounds({150, 150, 4500, 450});
  folders.SetBounds({150, 750, 4500, 2000});
  list.SetBounds({150, 3000, 4500, 2000});
  Texts told;
  drives.Change = [&] { told.push_back(drives.Drive()); };
  folders.Change = [&] { told.push_back(folders.Path()); };
  folders.Unreachable = [&] { told.emplace_back(L"unreachable"); };
  drives.Refresh();
  form.Show();

  drives.SetDrive(L"E:\\Sub");
  drives.SetDrive(L"e:");
  CHECK(someone->ShownText(drives) == L"e: [STICK]");
  CHECK(folders.SetPath(L"c:\\Tools\\"));
  CHECK(folders.SetPath(L"C:\\Tools"));
  CHECK_FALSE(folders.SetPath(L"A:\\"));
  CHECK_FALSE(folders.SetPath(L"C:\\Nowhere"));
  CHECK(folders.Entries() == Texts{L"C:\\", L"Tools", L"Deep", L"Old"});
  CHECK(folders.Text() == L"Tools");
  CHECK(folders.LevelOf(3) == 2);

  const auto enter = [&](Key way) {
    someone->Press(way);
    someone->Press(way);
    someone->Press(Key::Enter);
  };
  folders.SetFocus();
  enter(Key::Down);
  enter(Key::Up);
  CHECK(folders.PathOf(1) == L"C:\\Tools");
  CHECK(folders.SetPath(L"C:\\Tools"));
  disk.Remove(L"C:\\Tools\\Old");
  enter(Key::Down);
  CHECK(told == Texts{L"e:", L"C:\\Tools", L"C:\\Tools\\Old", L"C:\\", L"C:\\Tools", L"unreachable"});
  CHECK(folders.Path() == L"C:\\Tools");

  int clicks = 0;
  list.Click = [&] { ++clicks; };
  list.SetPath(L"C:\\Tools");
  CHECK(list.Entries() == Texts{L"Alpha.exe", L"beta.txt"});
  list.SetListIndex(1);
  list.SetPattern(L"*.exe");
  CHECK(list.Entries() == Texts{L"Alpha.exe"});
  CHECK(list.ListIndex() == -1);
  CHECK(clicks == 1);
  form.Unload();
}
