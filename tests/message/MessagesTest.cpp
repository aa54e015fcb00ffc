#include "message/Messages.h"

#include <doctest/doctest.h>

#include <stdexcept>
#include <vector>

#include "form/Headless.h"

namespace vantor::message {
namespace {

/// Messages on a desktop, with hooks that note what they were asked.
struct Desk {
  form::Headless Ui;
  MessageState State;
  Messages Shown{Ui, State};
  std::vector<std::wstring> Log;
  MessageKey MailResult;

  Desk() {
    Shown.Hooks.PauseOnTop = [this] { Log.emplace_back(L"pause"); };
    Shown.Hooks.ResumeOnTop = [this] { Log.emplace_back(L"resume"); };
    Shown.Hooks.SaveUserName = [this] { Log.push_back(L"save " + State.UserName); };
    Shown.Hooks.EnableRemember = [this] { Log.emplace_back(L"enable"); };
    Shown.Hooks.SendMailTo = [this](std::wstring_view to, std::wstring_view subject, std::wstring_view body) {
      Log.push_back(std::wstring(to) + L"|" + std::wstring(subject) + L"|" + std::wstring(body));
      return MailResult;
    };
  }
  void Expect(std::function<void(frmMessage&)> script) {
    Ui.WhenModal([script = std::move(script)](form::Form& form) { script(dynamic_cast<frmMessage&>(form)); });
  }
  void ShowUser(MessageKey key) {
    State.CurrentMessageKey = std::move(key);
    Shown.ShowUserMessage();
  }
  void ShowStop(MessageKey key) {
    State.CurrentMessageKey = std::move(key);
    Shown.ShowStopMessage();
  }
  [[nodiscard]] bool SlotsEmpty() const {
    return (State.CurrentMessageKey + State.CurrentMessageText + State.MessageTitle + State.MessageBody +
            State.MessageButtons + State.MessageInputs)
               .empty() &&
           !State.BugReportPending;
  }
};

void Escape(Desk& desk) { desk.Ui.Press(form::Key::Escape); }

TEST_CASE("A message addresses the user, pauses the bar, and leaves nothing behind") {
  const struct {
    std::wstring Name, Caption, Head;
  } cases[] = {{L"", L"myMessage", L"myFriend"},
               {L"myFriend", L"myMessage", L"myFriend"},
               {L"Ada", L"Message For - Ada", L"Ada"}};
  for (const auto& c : cases) {
    Desk desk;
    desk.State.UserName = c.Name;
    desk.Expect([&](frmMessage& form) {
      CHECK(form.Caption() == c.Caption);
      CHECK(form.LabelHead.Caption() == c.Head);
      CHECK(form.LabelMessage.Caption() == L"Seleted item doesn't exist.\r\nFailed to add.");
      CHECK(form.CommandOK.HasFocus());
      CHECK((!form.CommandCancel.Enabled() && form.CommandCancel.Visible() && form.LabelCancel.Caption() == L"Cancel"));
      desk.Ui.Press(form::Key::Enter);
    });
    desk.Shown.ShowList(L"MessageAddNotFound");
    CHECK(desk.Log == std::vector<std::wstring>{L"pause", L"resume"});
    CHECK(desk.SlotsEmpty());
  }
}

TEST_CASE("A key that the routine does not hold shows nothing") {
  Desk desk;
  desk.ShowStop(L"MessageProgInSystem");
  desk.Shown.ShowList(L"MessagePanelOpenError");
  desk.Shown.ShowList(L"MessageSmallScreen");
  desk.Shown.ShowText(L"");
  CHECK_FALSE(desk.State.EndAfterMessage);
  CHECK_FALSE(desk.Ui.Ended());
  CHECK(desk.Log.empty());
}

TEST_CASE("A stop message ends the program, however it is left") {
  for (int way = 0; way < 3; ++way) {
    Desk desk;
    desk.Expect([&](frmMessage& form) {
      CHECK_FALSE(desk.Ui.Ended());
      if (way == 0) desk.Ui.Click(form.CommandOK);
      if (way == 1) Escape(desk);
      if (way == 2) form.InputClose();
    });
    desk.ShowStop(L"MessageMediaCDRom");
    CHECK(desk.Ui.Ended());
  }
}

TEST_CASE("The name prompt takes letters, and every answer to it is stored as it should be") {
  const struct {
    std::wstring Key, Typed, Name;
    bool Saved;
  } cases[] = {
      {L"MessageGetUserName", L"J0 o\u00F6-h\bhn\r", L"John", true},
      {L"MessageGetUserName", L"\r", L"myFriend", true},
      {L"MessageGetUserName", L"Bob\x1b", L"myFriend", true},
      {L"MessageChangeUserName", L"Eve\r", L"Eve", true},
      {L"MessageChangeUserName", L"\r", L"Old", false},
      {L"MessageChangeUserName", L"X\x1b", L"Old", false},
  };
  for (const auto& c : cases) {
    Desk desk;
    desk.State.UserName = L"Old";
    desk.Expect([&](frmMessage& form) {
      CHECK(form.TextInput0.HasFocus());
      for (const wchar_t character : c.Typed) {
        if (character == form::CharEscape)
          Escape(desk);
        else
          desk.Ui.Type(std::wstring(1, character));
      }
    });
    desk.ShowUser(c.Key);
    CHECK(desk.State.UserName == c.Name);
    CHECK((desk.Log.size() == 3) == c.Saved);
    if (c.Saved) CHECK(desk.Log[1] == L"save " + c.Name);
    CHECK(desk.SlotsEmpty());
  }
}

TEST_CASE("OK goes with the text in the name box, and what is pasted is cleaned") {
  Desk desk;
  desk.Expect([&](frmMessage& form) {
    CHECK_FALSE(form.CommandOK.Enabled());
    form.TextInput0.InputEdited(L"A\"d1 a", 6, 0);
    CHECK(form.TextInput0.Text() == L"Ada");
    CHECK(form.TextInput0.SelStart() == 3);
    CHECK(form.CommandOK.Enabled());
    form.TextInput0.InputEdited(L"", 0, 0);
    CHECK_FALSE(form.CommandOK.Enabled());
    form.TextInput0.InputEdited(L"12", 2, 0);
    CHECK_FALSE(form.CommandOK.Enabled());
    Escape(desk);
  });
  desk.ShowUser(L"MessageGetUserName");
}

TEST_CASE("A bug is reported by mail, if the user wants it") {
  SUBCASE("yes") {
    Desk desk;
    desk.Expect([&](frmMessage& form) {
      CHECK(form.LabelOK.Caption() == L"Yes");
      CHECK(form.LabelMessage.Caption().find(L"\r\n    Bug-Vantor-Saving\r\n\r\nDo you") != std::wstring::npos);
      desk.Ui.Click(form.CommandOK);
    });
    desk.Shown.Trap(L"Saving", [] { throw std::runtime_error("broken"); });
    REQUIRE(desk.Log.size() == 3);
    CHECK(desk.Log[2].starts_with(L"mailto:"));
    CHECK(desk.Log[2].ends_with(L"|Vantor - Found Bug|Bug-Vantor-Saving"));
    CHECK(desk.SlotsEmpty());
  }
  SUBCASE("yes, but there is no mail program") {
    Desk desk;
    desk.MailResult = L"MessageProgramStartError";
    desk.Expect([&](frmMessage& form) { desk.Ui.Click(form.CommandOK); });
    desk.Expect([&](frmMessage& form) {
      CHECK(form.LabelMessage.Caption() == L"There was some error. Could not start the required program.");
      Escape(desk);
    });
    desk.Shown.ReportBug(L"Saving");
    CHECK(desk.Ui.ModalScriptsDone());
    CHECK(desk.SlotsEmpty());
  }
  SUBCASE("no") {
    Desk desk;
    desk.Expect([&](frmMessage&) { Escape(desk); });
    desk.Shown.ReportBug(L"Saving");
    CHECK(desk.Log == std::vector<std::wstring>{L"pause", L"resume"});
    CHECK(desk.SlotsEmpty());
  }
}

TEST_CASE("Messages that open over others take nothing from them, and errors do not pile up") {
  Desk desk;
  desk.Expect([&](frmMessage&) {
    desk.Ui.Type(L"Ada");
    desk.Expect([&](frmMessage&) {
      desk.Shown.Trap(L"Tick", [] { throw 2; });  // passed over: a question is open
      Escape(desk);
    });
    desk.Shown.Trap(L"Tick", [] { throw 1; });
    desk.Ui.Type(L"7\r");
  });
  desk.ShowUser(L"MessageGetUserName");
  CHECK(desk.State.UserName == L"Ada");
  CHECK(desk.Log == std::vector<std::wstring>{L"pause", L"save Ada", L"resume"});
  CHECK(desk.Ui.ModalScriptsDone());
}

TEST_CASE("A free text enables the remember button afterwards, when that was asked for") {
  Desk desk;
  desk.State.EnableRememberAfterMessage = true;
  desk.Expect([&](frmMessage& form) {
    CHECK(form.LabelMessage.Caption() == L"Told.");
    Escape(desk);
  });
  desk.Shown.ShowText(L"Told.");
  CHECK(desk.Log == std::vector<std::wstring>{L"pause", L"enable", L"resume"});
  CHECK_FALSE(desk.State.EnableRememberAfterMessage);
}

TEST_CASE("The first-start help tells of the missing button, and has room on the smallest screen") {
  for (const bool present : {false, true}) {
    Desk desk;
    desk.Shown.Hooks.CompanionsPresent = [=] { return present; };
    desk.Ui.Desktop.WorkArea = {0, 0, 640 * 15, 450 * 15};
    desk.Expect([&](frmMessage& form) {
      const std::wstring line = present ? L"\r\n\r\n\r\n\r\nYou will" : L"#5 button is not visible.\r\n\r\nYou will";
      CHECK(form.LabelMessage.Caption().find(line) != std::wstring::npos);
      const form::Size needed = desk.Ui.MeasureText(form.LabelMessage.Caption(), false, form.LabelMessage.Width());
      CHECK(form.LabelMessage.Height() >= needed.Height);
      CHECK(form.LabelMessage.Bottom() < form.CommandOK.Top());
      CHECK(form.CommandOK.Right() < form.CommandCancel.Left());
      CHECK(form.CommandCancel.Bottom() < form.Bounds().Height);
      CHECK((form.Bounds().Left > 0 && form.Bounds().Right() < 640 * 15 && form.Bounds().Bottom() < 450 * 15));
      Escape(desk);
    });
    desk.Shown.ShowList(L"MessageFisrtStart");
  }
}

}  // namespace
}  // namespace vantor::message
