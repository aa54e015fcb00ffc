#include "message/Messages.h"

#include <utility>

#include "form/Scoped.h"
#include "product/Product.h"

namespace vantor::message {
namespace {

constexpr std::wstring_view BugKeyPrefix = L"Bug-Vantor-";

bool IsNamePrompt(const MessageKey& key) { return key == L"MessageGetUserName" || key == L"MessageChangeUserName"; }

}  // namespace

void Messages::ShowFromCatalogue(Selector selector) {
  const CatalogueEntry* const entry = FindMessage(selector, State.CurrentMessageKey);
  if (entry == nullptr) return;
  if (selector == Selector::Stop) State.EndAfterMessage = true;
  State.MessageTitle = entry->Title.empty() ? AddresseeTitle() : std::wstring(entry->Title);
  State.MessageButtons = entry->Buttons;
  State.MessageInputs = entry->Inputs;
  State.MessageBody = ExpandText(entry->Text, Hooks.CompanionsPresent && Hooks.CompanionsPresent());
  OpenMessageDialog(State.MessageTitle, State.MessageBody, State.MessageButtons, State.MessageInputs);
}

void Messages::ShowTextMessage() {
  State.MessageTitle = AddresseeTitle();
  State.MessageButtons = L"OK";
  State.MessageInputs.clear();
  State.MessageBody = State.CurrentMessageText;
  OpenMessageDialog(State.MessageTitle, State.MessageBody, State.MessageButtons, State.MessageInputs);
}

void Messages::ShowBugMessage() {
  State.BugReportPending = true;
  State.MessageTitle = AddresseeTitle();
  State.MessageButtons = L"YesNo";
  State.MessageInputs.clear();
  State.MessageBody = BugReportText(State.CurrentMessageKey);
  OpenMessageDialog(State.MessageTitle, State.MessageBody, State.MessageButtons, State.MessageInputs);
}

void Messages::ShowList(MessageKey key) {
  if (key.empty()) return;
  State.CurrentMessageKey = std::move(key);
  ShowListMessage();
}

void Messages::ShowText(std::wstring_view text) {
  if (text.empty()) return;
  State.CurrentMessageText = text;
  ShowTextMessage();
}

void Messages::Trap(std::wstring_view routine, const std::function<void()>& body) {
  bool failed = false;
  try {
    body();
  } catch (...) {
    failed = true;
  }
  // Outside the handler, because the question may stay open for long.
  if (failed) ReportBug(routine);
}

void Messages::ReportBug(std::wstring_view routine) {
  if (askingAboutBug_) return;
  const form::Scoped asking(askingAboutBug_, true);
  try {
    State.CurrentMessageKey = std::wstring(BugKeyPrefix) += routine;
    ShowBugMessage();
  } catch (...) {
    LeaveMessage();  // a fault of the question or of its report is not asked about in turn
  }
}

std::wstring Messages::AddresseeTitle() const { return State.UserName.empty() ? NoUserName : State.UserName; }

void Messages::OpenMessageDialog(std::wstring_view title, std::wstring_view body, std::wstring_view buttons,
                                 std::wstring_view inputs) {
  if (ui_.Ended()) return;  // the end came while a service was waited for
  // What a message that opens meanwhile must not take away.
  const MessageKey key = State.CurrentMessageKey;
  const bool endAfter = State.EndAfterMessage;
  const bool reportBug = std::exchange(State.BugReportPending, false);

  frmMessage dialog(ui_);
  dialog.Load();
  const bool named = !State.UserName.empty() && State.UserName != NoUserName;
  dialog.SetCaption(named ? L"Message For - " + State.UserName : L"myMessage");
  dialog.CheckDoNotShow.SetValue(State.DoNotShowState);
  dialog.CheckDoNotShow.SetVisible(State.ShowDoNotShowBox);
  dialog.LabelHead.SetCaption(title);
  dialog.LabelMessage.SetCaption(body);
  if (IsNamePrompt(key)) dialog.AskForName();
  const bool buttonsKnown = dialog.ApplyButtonSet(buttons);
  dialog.ApplyInputSet(inputs);
  if (!buttonsKnown) return;
  State.CurrentMessageText.clear();
  State.ShowDoNotShowBox = false;

  {
    const form::Scoped open(openDialogs_, openDialogs_ + 1);
    if (openDialogs_ == 1) Hooks.PauseOnTop();
    dialog.Arrange(Hooks.HomeScreen ? Hooks.HomeScreen() : ui_.PrimaryScreen());
    dialog.ShowModal();
  }
  switch (dialog.Answer()) {
    case Answer::Accepted:
      if (endAfter)
        ui_.End();
      else
        AcceptMessageDialog(key, dialog.TextInput0.Text(), reportBug);
      return;
    case Answer::Cancelled:
      CloseMessageDialog(key);
      return;
    case Answer::None:  // the program has ended
      return;
  }
}

void Messages::AcceptMessageDialog(const MessageKey& key, std::wstring_view input, bool reportBug) {
  if (IsNamePrompt(key)) State.UserName = input.empty() ? NoUserName : input;
  if (std::exchange(State.EnableRememberAfterMessage, false)) Hooks.EnableRemember();
  if (IsNamePrompt(key)) Hooks.SaveUserName();
  LeaveMessage();
  if (reportBug) SendBugReport(key);
}

void Messages::CloseMessageDialog(const MessageKey& key) {
  if (key == L"MessageGetUserName") {
    State.UserName = NoUserName;
    Hooks.SaveUserName();
  }
  LeaveMessage();
}

void Messages::LeaveMessage() {
  State.CurrentMessageKey.clear();
  State.MessageTitle.clear();
  State.MessageBody.clear();
  State.MessageButtons.clear();
  State.MessageInputs.clear();
  State.CurrentMessageText.clear();
  if (openDialogs_ == 0) Hooks.ResumeOnTop();
}

void Messages::SendBugReport(const MessageKey& key) {
  if (!Hooks.SendMailTo) return;
  const std::wstring address = std::wstring(L"mailto:") += product::BugReportAddress;
  ShowList(Hooks.SendMailTo(address, BugMailSubject, key));
}

}  // namespace vantor::message
