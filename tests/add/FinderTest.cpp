#include "add/Finder.h"

#include "Desk.h"
#include "add/clsActiveProcess.h"

namespace vantor::add {
namespace {

using service::WindowId;

TEST_CASE("A snapshot's records are kept in order, across the growth of the table") {
  fake::FakeServices services;
  for (std::uint32_t id = 1; id <= 45; ++id) services.Processes.AddEntry(id * 4, "p" + std::to_string(id) + ".exe");
  clsActiveProcess active(services.Processes, services.Language);
  CHECK(active.GetActiveProcess() == 45);
  for (const int index : {1, 20, 21, 40, 45}) {
    CHECK(active.th32ProcessID(index) == static_cast<std::uint32_t>(index) * 4);
    CHECK(active.szExeFile(index).size() == 260);
    CHECK(active.szExeFile(index).starts_with(L"p" + std::to_wstring(index) + L".exe"));
  }
  CHECK_THROWS_AS((void)active.dwFlags(46), std::out_of_range);
  CHECK(services.Processes.Flags == 0);
  CHECK(services.Processes.SizeSeen == 296);
  CHECK(services.Processes.OpenSnapshots == 0);
  services.Processes.Snapshot = service::SnapshotId::None;
  CHECK(active.GetActiveProcess() == 0);
}

/// The box with a window of another program, on a stick, under the cursor.
struct FinderDesk : Desk {
  FinderDesk() {
    Services.Processes.AddEntry(44, "tool.exe");
    Services.Processes.Managed = {{0, std::nullopt}, {44, L"E:\\Work\\tool.exe"}, {48, std::nullopt}};
    Services.Processes.ImageNames[44] = L"D:\\plain.exe";
    Services.WindowPicker.Owners = {{WindowId{7}, 44}, {WindowId{8}, 48}, {WindowId{9}, 52}};
    Settings.Folder = L"D:\\Work";
    Panel(0);
  }
  void DragTo(WindowId window) {
    Browse.CommandFindPath.InputMouseDown(form::MouseButton::Left);
    Services.WindowPicker.UnderCursor = window;
    Ui.Advance(100);
  }
  void Release() { Browse.CommandFindPath.InputMouseUp(form::MouseButton::Left); }
  [[nodiscard]] bool LeftNoTrace() const {
    return !Services.WindowPicker.Target && Services.WindowPicker.Captures == 0 &&
           Services.WindowPicker.Marks.back() == WindowId::None && !Browse.TimerFindPath.Enabled();
  }
};

TEST_CASE("The finder puts the program's path into the box, and its drive type counts once") {
  FinderDesk desk;
  desk.Browse.CommandFindPath.InputMouseDown(form::MouseButton::Left);
  desk.Browse.CommandFindPath.InputMouseDown(form::MouseButton::Left);
  CHECK(desk.Services.WindowPicker.Captures == 1);
  desk.DragTo(WindowId{7});
  CHECK(desk.Services.WindowPicker.Target);
  CHECK(desk.Services.WindowPicker.Marks.back() == WindowId{7});
  desk.Release();
  CHECK(desk.LeftNoTrace());
  CHECK(desk.Browse.TextAddPath.Text() == L"E:\\Work\\tool.exe");
  CHECK(desk.Browse.TextAddName.HasFocus());

  std::wstring told;
  desk.Expect(told);
  desk.Ui.Type(L"Tool\r");
  CHECK(told.starts_with(L"You can add Program, File and Folder to Launch List only if"));
  desk.Browse.TextAddName.SetFocus();
  desk.Ui.Type(L"\r");  // now the folder's own drive type counts
  CHECK(desk.Added == 1);

  desk.DragTo(WindowId{7});
  desk.Release();
  desk.Pick(L"tool.exe");  // what the finder found is given up
  desk.Ui.Type(L"Work\r");
  CHECK(desk.Added == 2);
}

TEST_CASE("Where no path is to be had the box stays as it was") {
  FinderDesk desk;
  desk.Pick(L"tool.exe");
  for (const WindowId window : {WindowId{8}, WindowId{9}, WindowId::None}) {
    std::wstring told;
    desk.Expect(told);
    desk.DragTo(window);
    desk.Release();
    CHECK(told == L"Could not find the Executable Path. Reason undetermined.");
    CHECK(desk.Browse.TextAddPath.Text() == L"D:\\Work\\tool.exe");
  }
  desk.Services.Processes.ServiceReachable = false;
  desk.DragTo(WindowId{7});
  desk.Release();
  CHECK(desk.Browse.TextAddPath.Text() == L"D:\\plain.exe");
}

TEST_CASE("A drag that is broken off changes nothing, and the next one works") {
  FinderDesk desk;
  desk.DragTo(WindowId{7});
  SUBCASE("by Escape") { desk.Ui.Press(form::Key::Escape); }
  SUBCASE("by another program taking the mouse") {
    desk.Services.WindowPicker.Captured = WindowId{7};
    desk.Services.WindowPicker.Captures = 0;
    desk.Services.WindowPicker.ButtonDown = false;
    desk.Ui.Advance(100);
    desk.Services.WindowPicker.ButtonDown = true;
  }
  SUBCASE("by closing the box") {
    desk.Panel(command::NoIndex);
    desk.Panel(0);
  }
  SUBCASE("by a place beyond the screen's numbers, which is asked about") {
    std::wstring told;
    desk.Expect(told);
    desk.Services.WindowPicker.Cursor.X = 40000;
    desk.Ui.Advance(100);
    CHECK(told.find(L"Bug-Vantor-FindExecutable") != std::wstring::npos);
    desk.Services.WindowPicker.Cursor.X = 0;
  }
  CHECK(desk.LeftNoTrace());
  desk.Release();
  CHECK(desk.Browse.TextAddPath.Text().empty());
  CHECK(desk.Browse.Visible());
  desk.DragTo(WindowId{7});
  desk.Release();
  CHECK(desk.Browse.TextAddPath.Text() == L"E:\\Work\\tool.exe");
}

}  // namespace
}  // namespace vantor::add
