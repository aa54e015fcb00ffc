#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "form/UserInterface.h"
#include "message/MessageState.h"

namespace vantor::message {

/// What a message makes happen elsewhere. Whoever owns those things fills it in; an empty one does nothing.
struct MessageHooks {
  /// A message opens: stop the bar's on-top timer and take the bar out of the topmost band, if it runs.
  std::function<void()> PauseOnTop;
  /// A message has closed: when no panel is open, the on-top timer runs exactly when the preference says so.
  std::function<void()> ResumeOnTop;
  std::function<void()> SaveUserName;
  /// Opens a mail; returns a MessageKey, "" on success.
  std::function<MessageKey(std::wstring_view address, std::wstring_view subject, std::wstring_view body)> SendMailTo;
  /// Enables "Remember My Computer".
  std::function<void()> EnableRemember;
  /// Whether any of the maker's other programs is present.
  std::function<bool()> CompanionsPresent;
};

/// The catalogue of messages and the dialog that shows them. Each routine returns when the user has answered
/// and the answer has been applied; the slots of the state are empty then.
class Messages {
 public:
  Messages(form::UserInterface& ui, MessageState& state) : ui_(ui), State(state) {}

  MessageHooks Hooks;

  /// Shows CurrentMessageKey. A key that the routine does not hold shows nothing.
  void ShowUserMessage();
  void ShowStopMessage();  // OK ends the program
  void ShowListMessage();
  /// Shows CurrentMessageText.
  void ShowTextMessage();
  /// Asks whether to report CurrentMessageKey, a "Bug-Vantor-…" key, by mail.
  void ShowBugMessage();

  /// Sets the key and shows it by ShowListMessage; nothing for "".
  void ShowList(MessageKey key);

  /// The error trap of a routine: runs `body`; an exception sets the bug key of the routine's name ("Bug-Vantor-"
  /// and the name) and asks whether to report it.
  void Trap(std::wstring_view routine, const std::function<void()>& body);

 private:
  void OpenMessageDialog();

  form::UserInterface& ui_;

 public:
  MessageState& State;
};

}  // namespace vantor::message
