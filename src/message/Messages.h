#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "form/UserInterface.h"
#include "message/Catalogue.h"
#include "message/MessageKey.h"
#include "message/MessageState.h"
#include "message/frmMessage.h"

namespace vantor::message {

inline constexpr std::wstring_view BugMailSubject = L"Vantor - Found Bug";

/// The program, as its messages need it.
class MessageHost {
 public:
  /// A message opens: the bar leaves the topmost band.
  virtual void PauseOnTop() = 0;
  /// The last open message has closed: with no panel open, the bar keeps itself on top if the user wants that.
  virtual void ResumeOnTop() = 0;
  /// The screen in whose middle messages open.
  [[nodiscard]] virtual form::Screen HomeScreen() const = 0;
  /// Whether any of the maker's other programs is present.
  [[nodiscard]] virtual bool CompanionsPresent() const = 0;
  virtual void SaveUserName() = 0;
  /// Enables "Remember My Computer".
  virtual void EnableRemember() = 0;
  /// Opens a mail; returns the message that says why it could not, or none.
  [[nodiscard]] virtual MessageKey SendMailTo(std::wstring_view address, std::wstring_view subject,
                                              std::wstring_view body) = 0;

 protected:
  ~MessageHost() = default;  // nobody owns one by this type
};

/// The catalogue of messages and the dialog that shows them. Each routine returns when the user has answered
/// and the answer has been applied. A message may open while another is open, from a timer for instance: each keeps
/// what its answer needs.
class Messages {
 public:
  Messages(form::UserInterface& ui, MessageState& state, MessageHost& host) : State(state), ui_(ui), host_(host) {}

  MessageState& State;

  /// Each shows a message of its part of the catalogue. One that stands elsewhere, or nowhere, shows nothing.
  void ShowUserMessage(MessageKey key) { ShowFromCatalogue(Selector::User, key); }
  void ShowStopMessage(MessageKey key) { ShowFromCatalogue(Selector::Stop, key); }  // OK ends the program
  void ShowListMessage(MessageKey key) { ShowFromCatalogue(Selector::List, key); }
  /// Shows a text as it is; nothing for "".
  void ShowTextMessage(std::wstring_view text);
  /// Asks whether to report a bug by mail, by its key: "Bug-Vantor-" and a routine's name.
  void ShowBugMessage(std::wstring_view key);

  /// The error trap of a routine: runs `body`; an exception asks whether to report the bug by the
  /// routine's name.
  void Trap(std::wstring_view routine, const std::function<void()>& body);
  /// Makes a member of `owner` the handler of an event, in an error trap of the routine's name. `bound` comes first
  /// among its arguments.
  template <class Event, class Owner, class Handler, class... Bound>
  void Connect(Event& event, std::wstring routine, Owner* owner, Handler handler, Bound... bound) {
    event = [this, routine = std::move(routine), owner, handler, bound...](auto&&... args) {
      Trap(routine, [&] { (owner->*handler)(bound..., args...); });
    };
  }
  /// The same by the control's name without its index: "CommandMin_Click".
  template <class Event, class Owner, class Handler, class... Bound>
  void Connect(const form::Control& control, Event& event, std::wstring_view what, Owner* owner, Handler handler,
               Bound... bound) {
    const std::wstring& name = control.Name();
    Connect(event, name.substr(0, name.find(L'(')).append(L"_").append(what), owner, handler, bound...);
  }
  /// What the trap does about an error. While one such question is open, further errors are passed over, its own too.
  void ReportBug(std::wstring_view routine);

 private:
  void ShowFromCatalogue(Selector selector, MessageKey key);
  /// A message to the user by name, with an OK button.
  [[nodiscard]] Message Addressed() const;

  void OpenMessageDialog(const Message& message);
  void AcceptMessageDialog(const Message& message, std::wstring_view input);
  void CloseMessageDialog(const Message& message);
  void LeaveMessage();

  form::UserInterface& ui_;
  MessageHost& host_;
  int openDialogs_ = 0;
  bool askingAboutBug_ = false;
};

}  // namespace vantor::message
