#include "message/Messages.h"

#include <utility>

#include "form/Scoped.h"
#include "message/frmMessage.h"
#include "product/Product.h"

namespace vantor::message {
namespace {

constexpr std::wstring_view BugKeyPrefix = L"Bug-Vantor-";

bool IsNamePrompt(const Message& message) {
  return message.CurrentMessageKey == MessageGetUserName.Name() ||
         message.CurrentMessageKey == MessageChangeUserName.Name();
}

}  // namespace

void Messages::ShowFromCatalogue(Selector selector, MessageKey key) {
  const CatalogueEntry* const entry = FindMessage(selector, key);
  if (entry == nullptr) return;
  Message message = Addressed();
  message.CurrentMessageKey = key.Name();
  if (!entry->Title.empty()) message.MessageTitle = entry->Title;
  message.MessageBody = ExpandText(entry->Text, host_.CompanionsPresent());
  message.MessageButtons = entry->Buttons;
  message.MessageInputs = entry->Inputs;
  message.EndAfterMessage = selector == Selector::Stop;
  OpenMessageDialog(message);
}

void Messages::ShowTextMessage(std::wstring_view text) {
  if (text.empty()) return;
  Message message = Addressed();
  message.CurrentMessageText = text;
  message.MessageBody = text;
  OpenMessageDialog(message);
}

void Messages::ShowBugMessage(std::wstring_view key) {
  Message message = Addressed();
  message.CurrentMessageKey = key;
  message.MessageBody = BugReportText(key);
  message.MessageButtons = L"YesNo";
  message.BugReportPending = true;
  OpenMessageDialog(message);
}

// The bug is reported outside the exception handler, because the question may stay open for a long time.
bool Messages::Runs(void (*call)(const void*), const void* work) {
  try {
    call(work);
    return true;
  } catch (...) {
    return false;
  }
}

std::wstring Messages::HandlerName(const form::Control& control, std::wstring_view what) {
  const std::wstring& name = control.Name();
  return name.substr(0, name.find(L'(')).append(L"_").append(what);
}

void Messages::ReportBug(std::wstring_view routine) {
  if (askingAboutBug_) return;
  const form::Scoped asking(askingAboutBug_, true);
  try {
    ShowBugMessage(std::wstring(BugKeyPrefix) += routine);
  } catch (...) {
    LeaveMessage();  // a failure of the question or of its report is not reported in turn
  }
}

Message Messages::Addressed() const {
  Message message;
  message.MessageTitle = State.UserName.empty() ? NoUserName : State.UserName;
  message.MessageButtons = L"OK";
  return message;
}

void Messages::OpenMessageDialog(const Message& message) {
  if (ui_.Ended()) return;  // the program ended while waiting for a service
  static_cast<Message&>(State) = message;

  frmMessage dialog(ui_);
  dialog.Load();
  const bool named = !State.UserName.empty() && State.UserName != NoUserName;
  dialog.SetCaption(named ? L"Message For - " + State.UserName : L"myMessage");
  dialog.CheckDoNotShow.SetValue(State.DoNotShowState);
  dialog.CheckDoNotShow.SetVisible(State.ShowDoNotShowBox);
  dialog.LabelHead.SetCaption(message.MessageTitle);
  dialog.LabelMessage.SetCaption(message.MessageBody);
  if (IsNamePrompt(message)) dialog.AskForName();
  const bool buttonsKnown = dialog.ApplyButtonSet(message.MessageButtons);
  dialog.ApplyInputSet(message.MessageInputs);
  if (!buttonsKnown) return;
  State.CurrentMessageText.clear();
  State.ShowDoNotShowBox = false;

  {
    const form::Scoped open(openDialogs_, openDialogs_ + 1);
    if (openDialogs_ == 1) host_.PauseOnTop();
    dialog.Arrange(host_.BarPlace());
    dialog.ShowModal();
  }
  switch (dialog.Answer()) {
    case Answer::Accepted:
      if (message.EndAfterMessage)
        ui_.End();
      else
        AcceptMessageDialog(message, dialog.TextInput0.Text());
      return;
    case Answer::Cancelled:
      CloseMessageDialog(message);
      return;
    case Answer::None:  // the program has ended
      return;
  }
}

void Messages::AcceptMessageDialog(const Message& message, std::wstring_view input) {
  if (IsNamePrompt(message)) State.UserName = input.empty() ? NoUserName : input;
  if (std::exchange(State.EnableRememberAfterMessage, false)) host_.EnableRemember();
  if (IsNamePrompt(message)) host_.SaveUserName();
  LeaveMessage();
  if (!message.BugReportPending) return;
  const std::wstring address = std::wstring(L"mailto:") += product::BugReportAddress;
  ShowListMessage(host_.SendMailTo(address, BugMailSubject, message.CurrentMessageKey));
}

void Messages::CloseMessageDialog(const Message& message) {
  if (message.CurrentMessageKey == MessageGetUserName.Name()) {
    State.UserName = NoUserName;
    host_.SaveUserName();
  }
  LeaveMessage();
}

void Messages::LeaveMessage() {
  static_cast<Message&>(State) = {};
  if (openDialogs_ == 0) host_.ResumeOnTop();
}

}  // namespace vantor::message
