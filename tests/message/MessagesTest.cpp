#include "message/Messages.h"

#include <doctest/doctest.h>

#include <stdexcept>

#include "fake/TestProgram.h"

namespace vantor::message {
namespace {

TEST_CASE("the first-start help tells of a missing button only, and a key of another routine shows nothing") {
  for (const bool companion : {false, true}) {
    test::StartedProgram program;
    if (companion) program.Program.Environment.Companions = {{L"Sketch", L"C:\\Sketch.exe"}};
    program.Program.Messages.ShowListMessage(MessageSmallScreen);
    program.Expect();
    program.Program.Messages.ShowListMessage(MessageFisrtStart);
    CHECK(program.Told[0].find(companion ? L"\r\n\r\n\r\n\r\nYou" : L"#5 button is not visible.\r\n\r\nYou") !=
          std::wstring::npos);
  }
}

TEST_CASE("a message is in the middle of the screen, or where it leaves the bar to be seen") {
  test::StartedProgram program;
  for (const form::Twips barTop : {0, 4500, 7500}) {
    program.Main.MoveTo(3000, barTop);
    program.Expect([&](frmMessage& dialog) {
      const form::Rect& bar = program.Main.Bounds();
      CHECK(form::SharedArea(dialog.Bounds(), bar) == 0);
      const form::Rect& area = program.Desktop.Desktop.WorkArea;
      const form::Twips above = dialog.Bounds().Top;
      const form::Twips below = area.Height - 450 - dialog.Bounds().Bottom();
      CHECK((barTop == 0 ? abs(above - below) <= 1 : barTop == 4500 ? above == bar.Bottom() : above < bar.Top));
    });
    program.Program.Messages.ShowTextMessage(L"one\r\ntwo\r\nthree\r\nfour");
  }
}

TEST_CASE("messages that open over others take nothing from them, and errors do not pile up") {
  test::StartedProgram desk;
  Messages& shown = desk.Program.Messages;
  desk.Expect([&](frmMessage&) {
    desk.Desktop.Type(L"Eve");
    desk.Expect([&](frmMessage&) {
      shown.Trap(L"Tick", [] { throw 2; });  // passed over: a question is open
    });
    shown.Trap(L"Tick", [] { throw 1; });
    desk.Desktop.Advance(5000);
    CHECK_FALSE(desk.Main.TopMost());
    desk.Desktop.Type(L"7\r");
  });
  shown.ShowUserMessage(MessageGetUserName);
  CHECK(desk.Program.MessageState.UserName == L"Eve");
  CHECK(desk.Told.size() == 2);
  CHECK((desk.Desktop.ModalScriptsDone() && !desk.Program.MessageState.BugReportPending));
}

TEST_CASE("no message opens after the end, which may come while a service is waited for") {
  test::StartedProgram program;
  program.Computer.Decide = [&](std::string_view /*call*/) {
    program.Desktop.End();
    return fake::Outcome::Fails;
  };
  program.Expect();
  program.Type(L"p=x\r");
  CHECK(program.Told.empty());
}

}  // namespace
}  // namespace vantor::message
