#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "form/Event.h"
#include "form/UserInterface.h"
#include "message/Catalogue.h"
#include "message/MessageState.h"
#include "message/frmMessage.h"

namespace vantor::message {

inline constexpr std::wstring_view BugMailSubject = L"Vantor - Found Bug";

/// What a message makes happen elsewhere. Whoever owns those things fills it in; an empty one does nothing.
struct MessageHooks {
  /// A message opens: stop the bar's on-top timer and take the bar out of the topmost band, if it runs.
  form::Event<> PauseOnTop;
  /// The last open message has closed: when no panel is open, the on-top timer runs exactly when the preference
  /// says so.
  form::Event<> ResumeOnTop;
  /// The screen in whose middle messages open; the primary one without this hook.
  std::function<form::Screen()> HomeScreen;
  form::Event<> SaveUserName;
  /// Opens a mail; returns a MessageKey, "" on success.
  std::function<MessageKey(std::wstring_view address, std::wstring_view subject, std::wstring_view body)> SendMailTo;
  /// Enables "Remember My Computer".
  form::Event<> EnableRemember;
  /// Whether any of the maker's other programs is present.
  std::function<bool()> CompanionsPresent;
};

/// The catalogue of messages and the dialog that shows them. Each routine returns when the user has answered
/// and the answer has been applied; the slots of the state are empty then. A message may open while another is
/// open, from a timer for instance: each keeps what its answer needs.
class Messages {
 public:
  Messages(form::UserInterface& ui, MessageState& state) : State(state), ui_(ui) {}

  MessageState& State;
  MessageHooks Hooks;

  /// Shows CurrentMessageKey. A key that the routine does not hold shows nothing.
  void ShowUserMessage() { ShowFromCatalogue(Selector::User); }
  void ShowStopMessage() { ShowFromCatalogue(Selector::Stop); }  // OK ends the program
  void ShowListMessage() { ShowFromCatalogue(Selector::List); }
  /// Shows CurrentMessageText.
  void ShowTextMessage();
  /// Asks whether to report CurrentMessageKey, a "Bug-Vantor-…" key, by mail.
  void ShowBugMessage();

  /// Sets the key and shows it by ShowListMessage; nothing for "".
  void ShowList(MessageKey key);
  /// Sets the text and shows it by ShowTextMessage; nothing for "".
  void ShowText(std::wstring_view text);

  /// The error trap of a routine: runs `body`; an exception sets the bug key of the routine's name ("Bug-Vantor-"
  /// and the name) and asks whether to report it.
  void Trap(std::wstring_view routine, const std::function<void()>& body);
  /// Makes a member of `owner` the handler of an event, in an error trap of the routine's name.
  template <class Event, class Name, class Owner, class Handler>
  void Connect(Event& event, Name routine, Owner* owner, Handler handler) {
    event = [this, routine = std::move(routine), owner, handler](auto&&... args) {
      Trap(routine, [&] { (owner->*handler)(args...); });
    };
  }
  /// What the trap does about an error. While one such question is open, further errors are passed over, its own too.
  void ReportBug(std::wstring_view routine);

 private:
  void ShowFromCatalogue(Selector selector);
  [[nodiscard]] std::wstring AddresseeTitle() const;

  void OpenMessageDialog(std::wstring_view title, std::wstring_view body, std::wstring_view buttons,
                         std::wstring_view inputs);
  void AcceptMessageDialog(const MessageKey& key, std::wstring_view input, bool reportBug);
  void CloseMessageDialog(const MessageKey& key);
  void LeaveMessage();
  void SendBugReport(const MessageKey& key);

  form::UserInterface& ui_;
  int openDialogs_ = 0;
  bool askingAboutBug_ = false;
};

}  // namespace vantor::message
