#include <doctest/doctest.h>

#include "fake/Play.h"

namespace vantor::add {
namespace {

using service::WindowId;
using test::Play;
using test::World;

TEST_CASE("a drag that is broken off changes nothing, and the next one works") {
  const struct {
    std::wstring BreakOff;
    std::function<void(fake::Computer&)> Act = {};
    WindowId Captured = WindowId::None;  // then
  } rows[] = {
      {L"press Escape"},
      {L"click CommandAddCancel\npress F2"},
      // Another program takes the mouse.
      {L"look\nwait 1",
       [](fake::Computer& computer) {
         computer.Captured = WindowId{7};
         computer.ButtonDown = false;
       },
       WindowId{7}},
      // A point outside the range of coordinates.
      {L"look\nwait 1\nsee message Bug-Vantor-FindExecutable\npress Escape",
       [](fake::Computer& computer) { computer.Cursor.X = 40000; }},
  };
  const std::wstring hold = L"\nhold CommandFindPath\nmove over other\n";
  for (const auto& row : rows) {
    Play(L"start\npress F2" + hold + row.BreakOff + L"\nrelease\nsee text TextAddPath\nlook" + hold +
             L"release\nsee text TextAddPath {other}",
         [&](World& world) {
           fake::Computer& computer = world.Computer;
           if (computer.Target) return row.Act(computer);
           CHECK((computer.Captured == row.Captured && computer.Marked == WindowId::None));
           computer.Cursor.X = 0;
         });
  }
}

TEST_CASE("the computer is known again by its disk C:, and what can't be read is asked about") {
  const std::wstring own = L"3 | \"1A2B3C4D\" | 80023715840";
  const std::wstring known = L"completes p-d > p-D[isk]";
  const std::wstring other = L"completes p-d > p-d";
  const std::wstring asked = L"see message Bug-Vantor-DeclareOwnerOnMedia\npress Escape";
  const std::pair<std::wstring, std::wstring> rows[] = {
      {own, known},
      {L"3 | 1A2B3C4D | 80023715840", known},
      {L"2 | \"1A2B3C4D\" | 80023715840", other},
      {L"3 | \"1A2B3C4D\" | 80023715841", other},
      {L"3 | \"1A2B3C4E\" | 80023715840", other},
      {L"\"3\" | \"1A2B3C4D\" | 80023715840", other},
      {L"x | \"1A2B3C4D\" | 80023715840", other},
      {L"3 | \"1A2B3C4D\"", asked},
      {L"", asked},
      {own + L"\ngiven failing ReadDiskIdentity", other},
      {own + L"\ngiven throwing ReadDiskIdentity", asked},
  };
  for (const auto& [file, seen] : rows) {
    Play(
        L"given home E\ngiven program {other}\ngiven data MediaSet \"Vantor Media 1\" | \"Ready\" | \"Ada\"\n"
        L"given item MachineProg Disk > {other}\ngiven data Machine " +
        file + L"\nstart\n" + seen);
  }
}

TEST_CASE("the box begins in the folder shown last if that is there, on a fixed drive; a share is not asked") {
  for (const auto* folder : {L"C:\\Gone", L"N:\\Work", L"E:\\Work", L"D:Work", L"\\\\host\\share", L""}) {
    Play(L"given file E:\\Work\\a.exe | N:\\Work\\a.exe | D:\\Work\\a.exe\ngiven settings Folder=" +
         std::wstring(folder) + L"\nstart\npress F2\nsee entries FileWork tool.exe | Vantor.exe");
  }
}

}  // namespace
}  // namespace vantor::add
