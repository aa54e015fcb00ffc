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

  void ShowUser(MessageKey key) {
    State.CurrentMessageKey = std::move(key);
    Shown.ShowUserMessage();
  }
  void ShowStop(MessageKey key) {
    State.CurrentMessageKey = std::move(key);
    Shown.ShowStopMessage();
  }
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
    desk.Shown.ShowList(L"MessageAddNotFound");
    CHECK(desk.Told == Texts{L"Seleted item doesn't exist.\r\nFailed to add."});
    CHECK(desk.Done());
    desk.ShowStop(L"MessageProgInSystem");
    desk.Shown.ShowList(L"MessagePanelOpenError");
    desk.Shown.ShowList(L"MessageSmallScreen");
    desk.Shown.ShowText(L"");
    CHECK_FALSE((desk.State.EndAfterMessage || desk.Desktop.Ended()));
  }
}

TEST_CASE("the name prompt takes letters, and every answer to it is stored as it should be") {
  const struct {
    const wchar_t *Key, *Typed, *Name;
    std::string Saved;
  } cases[] = {
      {L"MessageGetUserName", L"J0 o\u00F6-h\bhn\r", L"John", "John"},
      {L"MessageGetUserName", L"\r", NoUserName, "myFriend"},
      {L"MessageGetUserName", L"Bob\x1b", NoUserName, "myFriend"},
      {L"MessageChangeUserName", L"Eve\r", L"Eve", "Eve"},
      {L"MessageChangeUserName", L"\r", L"Old", "Ada"},
      {L"MessageChangeUserName", L"X\x1b", L"Old", "Ada"},
  };
  for (const auto& c : cases) {
    CAPTURE(&c - cases);
    Desk desk;
    desk.State.UserName = L"Old";
    desk.ExpectTyping(c.Typed);
    desk.ShowUser(c.Key);
    CHECK(desk.State.UserName == c.Name);
    CHECK(desk.Computer.Disk.Bytes(L"C:\\Vantor\\Vantor\\User.Orbel") == '"' + c.Saved + "\"\r\n");
    CHECK(desk.Done());
  }
  // OK goes with the text in the box, and what is pasted is cleaned.
  Desk desk;
  desk.Expect([&](frmMessage& dialog) {
    for (const std::wstring pasted : {L"A\"d1 a", L"", L"12"}) {
      dialog.TextInput0.InputEdited(pasted, static_cast<int>(pasted.size()), 0);
      const std::wstring name = pasted.size() == 6 ? L"Ada" : L"";
      CHECK(dialog.TextInput0.Text() == name);
      CHECK(dialog.TextInput0.SelStart() == static_cast<int>(name.size()));
      CHECK(dialog.CommandOK.Enabled() == !name.empty());
    }
  });
  desk.ShowUser(L"MessageGetUserName");
}

TEST_CASE("a bug is reported by mail, if the user wants it, and a mail that fails is told") {
  for (int way = 0; way < 3; ++way) {
    Desk desk;
    if (way == 2) desk.Computer.Let("ShellOpen", fake::Outcome::Fails);
    desk.Expect([&](frmMessage& dialog) {
      CHECK(dialog.LabelOK.Caption() == L"Yes");
      CHECK(desk.Told.back().find(L"\r\n    Bug-Vantor-Saving\r\n\r\nDo you") != std::wstring::npos);
      desk.Desktop.Click(way == 0 ? dialog.CommandCancel : dialog.CommandOK);
    });
    if (way == 2) desk.Expect();
    desk.Shown.Trap(L"Saving", [] { throw std::runtime_error("broken"); });
    const std::wstring mail = L"mail mailto:bugs@orbel.example?subject=Vantor - Found Bug&body=Bug-Vantor-Saving";
    CHECK((desk.Computer.Asked.back() == mail) == (way > 0));
    CHECK(desk.Told.back().ends_with(L"Could not start the required program.") == (way == 2));
    CHECK(desk.Done());
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
    desk.Desktop.Type(L"7\r");
  });
  desk.ShowUser(L"MessageGetUserName");
  CHECK(desk.State.UserName == L"Eve");
  CHECK(desk.Told.size() == 2);
  CHECK(desk.Done());
}

TEST_CASE("the first-start help tells of the missing button, and has room on the smallest screen") {
  for (const bool present : {false, true}) {
    Desk desk;
    const form::Rect screen{0, 0, 640 * 15, 450 * 15};
    desk.Desktop.Desktop = {screen, screen};
    desk.Shown.Hooks.CompanionsPresent = [=] { return present; };
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
    desk.Shown.ShowList(L"MessageFisrtStart");
  }
}

}  // namespace
}  // namespace vantor::message
