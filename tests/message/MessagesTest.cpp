#include "message/Messages.h"

#include <doctest/doctest.h>

#include <stdexcept>

#include "fake/TestProgram.h"

namespace vantor::message {
namespace {

using test::Texts;

/// Messages of a program that runs.
struct Desk : test::StartedProgram {
  MessageState& State = Program.MessageState;
  Messages& Shown = Program.Messages;

  /// All messages came, and left nothing behind.
  [[nodiscard]] bool Done() const {
    return Desktop.ModalScriptsDone() && !State.BugReportPending &&
           (State.CurrentMessageKey + State.CurrentMessageText + State.MessageTitle + State.MessageBody +
            State.MessageButtons + State.MessageInputs)
               .empty();
  }
};

TEST_CASE("a message addresses the user, and a key that the routine does not hold shows nothing") {
  for (const std::wstring name : {L"", L"myFriend", L"Bob"}) {
    Desk desk;
    desk.State.UserName = name;
    desk.Expect([&](frmMessage& dialog) {
      CHECK(dialog.Caption() == (name == L"Bob" ? L"Message For - Bob" : L"myMessage"));
      CHECK(dialog.LabelHead.Caption() == (name.empty() ? NoUserName : name));
      CHECK((dialog.CommandCancel.Visible() && !dialog.CommandCancel.Enabled()));
      desk.Desktop.Press(form::Key::Enter);
    });
    desk.Shown.ShowListMessage(MessageAddNotFound);
    CHECK(desk.Told == Texts{L"Seleted item doesn't exist.\r\nFailed to add."});
    CHECK(desk.Done());
    desk.Shown.ShowStopMessage(MessageProgInSystem);
    desk.Shown.ShowListMessage(MessagePanelOpenError);
    desk.Shown.ShowListMessage(MessageSmallScreen);
    desk.Shown.ShowTextMessage(L"");
    CHECK_FALSE((desk.State.EndAfterMessage || desk.Desktop.Ended()));
  }
}

TEST_CASE("messages that open over others take nothing from them, and errors do not pile up") {
  Desk desk;
  desk.Expect([&](frmMessage&) {
    desk.Desktop.Type(L"Eve");
    desk.Expect([&](frmMessage&) {
      desk.Shown.Trap(L"Tick", [] { throw 2; });  // passed over: a question is open
    });
    desk.Shown.Trap(L"Tick", [] { throw 1; });
    desk.Desktop.Advance(5000);
    CHECK_FALSE(desk.Main.TopMost());
    desk.Desktop.Type(L"7\r");
  });
  desk.Shown.ShowUserMessage(MessageGetUserName);
  CHECK(desk.State.UserName == L"Eve");
  CHECK(desk.Told.size() == 2);
  CHECK(desk.Done());
}

TEST_CASE("the first-start help tells of the missing button, and has room on the smallest screen") {
  for (const bool present : {false, true}) {
    Desk desk;
    const form::Rect screen{0, 0, 640 * 15, 450 * 15};
    desk.Desktop.Desktop = {screen, screen};
    if (present) desk.Program.Environment.Companions = {{L"Sketch", L"C:\\Sketch.exe"}};
    desk.Expect([&](frmMessage& dialog) {
      const std::wstring line = present ? L"\r\n\r\n\r\n\r\nYou will" : L"#5 button is not visible.\r\n\r\nYou will";
      CHECK(desk.Told.back().find(line) != std::wstring::npos);
      const form::Label& text = dialog.LabelMessage;
      CHECK(text.Height() >= desk.Desktop.MeasureText(text.Caption(), false, text.Width()).Height);
      CHECK(text.Bottom() < dialog.CommandOK.Top());
      CHECK(dialog.CommandOK.Right() < dialog.CommandCancel.Left());
      CHECK(dialog.CommandCancel.Bottom() < dialog.Bounds().Height);
      CHECK((dialog.Bounds().Right() < screen.Width && dialog.Bounds().Bottom() < screen.Height));
    });
    desk.Shown.ShowListMessage(MessageFisrtStart);
  }
}

}  // namespace
}  // namespace vantor::message
