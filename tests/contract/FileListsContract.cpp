#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "contract/Person.h"
#include "fake/Computer.h"
#include "form/FileLists.h"
#include "form/Form.h"

using namespace vantor::form;
using vantor::contract::MakePerson;

namespace {

class BrowseForm : public Form {
 public:
  BrowseForm(UserInterface& ui, vantor::service::FileSystem& files)
      : Form(ui, L"BrowseForm"), Drive(*this, L"Drive", files), Dir(*this, L"Dir", files), File(*this, L"File", files) {
    SetBounds({1500, 1500, 6000, 6000});
    Drive.SetBounds({150, 150, 4500, 450});
    Dir.SetBounds({150, 750, 4500, 2000});
    File.SetBounds({150, 3000, 4500, 2000});
  }

  DriveList Drive;
  FolderList Dir;
  FileList File;
};

}  // namespace

TEST_CASE("the drive, folder and file lists walk a disk by keyboard and by the program") {
  vantor::fake::Computer computer;
  vantor::fake::FakeDisk& disk = computer.Disk;
  disk.AddDrive(L'A', 1).Ready = false;
  disk.AddDrive(L'E', 1, L"STICK");
  disk.AddFile(L"C:\\Tools\\beta.txt");
  disk.AddFile(L"C:\\Tools\\Alpha.exe");
  disk.AddFile(L"C:\\Tools\\Deep\\x.exe");
  disk.AddFile(L"C:\\Tools\\Old\\y.exe");
  const auto someone = MakePerson();
  BrowseForm form(someone->Ui(), computer);
  std::vector<std::wstring> told;
  form.Drive.Change = [&] { told.push_back(form.Drive.Drive()); };
  form.Dir.Change = [&] { told.push_back(form.Dir.Path()); };
  form.Drive.Refresh();
  form.Show();

  form.Drive.SetDrive(L"E:\\Sub");
  form.Drive.SetDrive(L"e:");
  CHECK(someone->ShownText(form.Drive) == L"e: [STICK]");
  CHECK(told == std::vector<std::wstring>{L"e:"});
  told.clear();

  CHECK(form.Dir.SetPath(L"c:\\Tools\\"));
  CHECK(form.Dir.SetPath(L"C:\\Tools"));
  CHECK_FALSE(form.Dir.SetPath(L"A:\\"));
  CHECK_FALSE(form.Dir.SetPath(L"C:\\Nowhere"));
  CHECK(told == std::vector<std::wstring>{L"C:\\Tools"});
  CHECK(form.Dir.Entries() == std::vector<std::wstring>{L"C:\\", L"Tools", L"Deep", L"Old"});
  CHECK(form.Dir.Text() == L"Tools");
  CHECK(form.Dir.LevelOf(3) == 2);

  form.Dir.SetFocus();
  someone->Press(Key::Down);
  someone->Press(Key::Down);
  someone->Press(Key::Enter);
  CHECK(form.Dir.Path() == L"C:\\Tools\\Old");
  someone->Press(Key::Up);
  someone->Press(Key::Up);
  someone->Press(Key::Enter);
  CHECK(form.Dir.Path() == L"C:\\");
  CHECK(form.Dir.PathOf(1) == L"C:\\Tools");
  told.clear();
  form.Dir.Unreachable = [&] { told.emplace_back(L"unreachable"); };
  disk.Remove(L"C:\\Tools\\Old");
  CHECK(form.Dir.SetPath(L"C:\\Tools"));
  disk.Remove(L"C:\\Tools\\Deep");
  someone->Press(Key::Down);
  someone->Press(Key::Enter);
  CHECK(told == std::vector<std::wstring>{L"C:\\Tools", L"unreachable"});
  CHECK(form.Dir.Path() == L"C:\\Tools");

  int clicks = 0;
  form.File.Click = [&] { ++clicks; };
  form.File.SetPath(L"C:\\Tools");
  CHECK(form.File.Entries() == std::vector<std::wstring>{L"Alpha.exe", L"beta.txt"});
  form.File.SetListIndex(1);
  form.File.SetPattern(L"*.exe");
  CHECK(form.File.Entries() == std::vector<std::wstring>{L"Alpha.exe"});
  CHECK(form.File.ListIndex() == -1);
  CHECK(clicks == 1);
  form.Unload();
}
