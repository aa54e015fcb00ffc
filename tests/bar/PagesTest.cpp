#include <doctest/doctest.h>

#include <algorithm>

#include "bar/StartedProgram.h"

using namespace vantor;
using form::Key;
using test::StartedProgram;

TEST_CASE("the help and code pages fit the smallest screen, with their texts whole and apart") {
  // With the lines that tell of other programs.
  StartedProgram program("2", "0\r\n0", {L"C:\\Vantor\\VantorHelp.exe"});
  start::Program& started = program.Program;
  program.Desktop.Desktop.Bounds = {0, 0, 12000, 9000};
  program.Desktop.Desktop.WorkArea = {0, 0, 12000, 8550};
  for (const auto& [key, frame, index] :
       {std::tuple(Key::F7, &started.HelpPage.FrameHelp, 5), std::tuple(Key::F8, &started.CodePage.FrameCode, 6)}) {
    program.Desktop.Press(key);
    CHECK(started.CommandState.OpenPanelIndex == index);
    CHECK(frame->Visible());
    CHECK(started.frmChoose.LabelListCancel.Caption() == L"Hide");
    CHECK(started.frmChoose.CommandListCancel.HasFocus());
    CHECK(started.frmChoose.Bounds().Right() <= 12000);
    CHECK(started.frmChoose.Bounds().Bottom() <= 8550);
    for (const form::Control* control : started.frmChoose.Controls()) {
      if (control->Container() != frame) continue;
      CAPTURE(control->Name());
      CHECK(control->Right() <= frame->Width());
      CHECK(control->Bottom() <= frame->Height());
      for (const form::Control* other : started.frmChoose.Controls()) {
        if (other == control || other->Container() != frame) continue;
        CAPTURE(other->Name());
        CHECK((control->Right() <= other->Left() || other->Right() <= control->Left() ||
               control->Bottom() <= other->Top() || other->Bottom() <= control->Top()));
      }
    }
  }
  CHECK(started.HelpPage.TextHelpFolder.Text() == L"C:\\Vantor\\Vantor");
}
