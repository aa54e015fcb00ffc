#include <doctest/doctest.h>

#include "add/clsActiveProcess.h"
#include "fake/TestProgram.h"
#include "flows/Player.h"

namespace vantor::add {
namespace {

using service::WindowId;

TEST_CASE("a snapshot's records are numbered in their order") {
  fake::Computer computer;
  for (std::uint32_t index = 2; index <= 45; ++index) computer.AddProcess(index * 4, "p.exe");
  clsActiveProcess active(computer, computer);
  CHECK(active.GetActiveProcess() == 45);
  for (const int index : {20, 21, 40, 45}) CHECK(active.th32ProcessID(index) == static_cast<std::uint32_t>(index) * 4);
  CHECK(active.szExeFile(45) == std::wstring(L"p.exe").append(255, L'\0'));
  CHECK_THROWS_AS((void)active.dwFlags(46), std::out_of_range);
}

TEST_CASE("a drag that is broken off changes nothing, and the next one works") {
  test::StartedProgram program;
  fake::Computer& computer = program.Computer;
  frmBrowse& box = program.Program.frmBrowse;
  form::Headless& desktop = program.Desktop;
  const std::function<void()> breaks[] = {
      [&] { desktop.Press(form::Key::Escape); },
      [&] {  // another program takes the mouse
        computer.Captured = WindowId{7};
        computer.ButtonDown = false;
        desktop.Advance(100);
        CHECK(std::exchange(computer.Captured, WindowId::None) == WindowId{7});
      },
      [&] { box.CommandAddCancel.DoClick(); },
      [&] {  // a point outside the range of coordinates
        program.Expect();
        computer.Cursor.X = 40000;
        desktop.Advance(100);
        CHECK(program.Told.at(0).find(L"Bug-Vantor-FindExecutable") != std::wstring::npos);
      },
      {},  // not cancelled
  };
  for (const auto& breakOff : breaks) {
    CAPTURE(&breakOff - breaks);
    program.Program.Panels.OpenPanel(panel::menu::Add);
    box.CommandFindPath.InputMouseDown(form::MouseButton::Left);
    computer.ButtonDown = true;
    computer.Cursor.X = 0;
    desktop.Advance(100);
    CHECK((computer.Target && computer.Marked == WindowId{1}));
    if (breakOff) breakOff();
    CHECK(box.TimerFindPath.Enabled() == !breakOff);
    box.CommandFindPath.InputMouseUp(form::MouseButton::Left);
    CHECK((!computer.Target && computer.Captured == WindowId::None && computer.Marked == WindowId::None));
    CHECK(box.TextAddPath.Text().empty() == static_cast<bool>(breakOff));
  }
}

TEST_CASE("the computer is known again by its disk C:, and what can't be read is asked about") {
  const std::wstring own = L"3 | \"1A2B3C4D\" | 80023715840";
  const std::wstring known = L"completes p-d > p-D[isk]";
  const std::wstring other = L"completes p-d > p-d";
  const std::wstring asked = L"see message Bug-Vantor-DeclareOwnerOnMedia\npress Escape";
  const struct {
    std::wstring File, Seen;
    std::wstring Before = {};
  } rows[] = {
      {own, known},
      {L"3 | 1A2B3C4D | 80023715840", known},
      {L"2 | \"1A2B3C4D\" | 80023715840", other},
      {L"3 | \"1A2B3C4D\" | 80023715841", other},
      {L"3 | \"1A2B3C4E\" | 80023715840", other},
      {L"\"3\" | \"1A2B3C4D\" | 80023715840", other},
      {L"x | \"1A2B3C4D\" | 80023715840", other},
      {L"3 | \"1A2B3C4D\"", asked},
      {L"", asked},
      {own, other, L"given failing ReadDiskIdentity"},
      {own, asked, L"given throwing ReadDiskIdentity"},
  };
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    CHECK(flows::Play(L"given home E\ngiven data MediaSet \"Vantor Media 1\" | \"Ready\" | \"Ada\"\n"
                      L"given item MachineProg Disk > C:\\Work\\Tool.EXE\ngiven data Machine " +
                      row.File + L'\n' + row.Before + L"\nstart\n" + row.Seen) == "");
  }
}

TEST_CASE("the box begins in the folder shown last if that is there, on a fixed drive; a share is not asked") {
  for (const auto* folder : {L"C:\\Gone", L"N:\\Work", L"E:\\Work", L"D:Work", L"\\\\host\\share", L""}) {
    const std::wstring files = L"given file E:\\Work\\a.exe | N:\\Work\\a.exe | D:\\Work\\a.exe\n";
    CHECK(flows::Play(files + L"given settings Folder=" + folder +
                      L"\nstart\npress F2\nsee entries FileWork Vantor.exe") == "");
  }
}

}  // namespace
}  // namespace vantor::add
