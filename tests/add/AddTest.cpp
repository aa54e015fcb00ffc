#include <doctest/doctest.h>

#include "fake/Play.h"

namespace vantor::add {
namespace {

using service::WindowId;
using test::Concat;
using test::Play;
using test::World;

TEST_CASE("a drag that another program or a point too far out breaks off changes nothing, and the next one works") {
  const std::wstring hold = L"hold CommandFindPath\nmove over other\n";
  for (const bool taken : {true, false}) {
    Play(Concat({L"start\npress F2\n", hold, L"look\nwait 1\n",
                 taken ? L"" : L"see message Bug-Vantor-FindExecutable\npress Escape\n",
                 L"release\nsee text TextAddPath\nlook\n", hold, L"release\nsee text TextAddPath {other}"}),
         [&](World& world) {
           fake::Computer& computer = world.Computer;
           CHECK(computer.Marked == (computer.Target ? WindowId{1} : WindowId::None));
           if (!computer.Target) {
             CHECK(computer.Captured == (taken ? WindowId{7} : WindowId::None));
             computer.Cursor.X = 0;
           } else if (taken) {
             computer.Captured = WindowId{7};
             computer.ButtonDown = false;
           } else {
             computer.Cursor.X = 40000;
           }
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
      {L"3 | \"1A2B3C4D\"", asked},
      {L"", asked},
      {own + L"\ngiven failing ReadDiskIdentity", other},
      {own + L"\ngiven throwing ReadDiskIdentity", asked},
  };
  for (const auto& [file, seen] : rows) {
    Play(Concat({L"given home E\ngiven program {other}\ngiven data MediaSet \"Vantor Media 1\" | \"Ready\" | \"Ada\"\n",
                 L"given item MachineProg Disk > {other}\ngiven data Machine ", file, L"\nstart\n", seen}));
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
