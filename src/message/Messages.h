#pragma once

#include <string>
#include <string_view>

#include "form/UserInterface.h"
#include "message/Catalogue.h"
#include "message/MessageKey.h"
#include "message/MessageState.h"

namespace vantor::message {

inline constexpr std::wstring_view BugMailSubject = L"Vantor - Found Bug";

/// What the messages need from the program.
class MessageHost {
 public:
  /// A message opens: the bar stops being topmost.
  virtual void PauseOnTop() = 0;
  /// The last open message has closed: with no panel open, the bar keeps itself on top if the user wants that.
  virtual void ResumeOnTop() = 0;
  /// The bar's place on the desktop; empty before there is a bar.
  [[nodiscard]] virtual form::Rect BarPlace() const = 0;
  /// Whether any of the maker's other programs is present.
  [[nodiscard]] virtual bool CompanionsPresent() const = 0;
  virtual void SaveUserName() = 0;
  /// Enables "Remember My Computer".
  virtual void EnableRemember() = 0;
  /// Opens a mail; returns the message that says why it failed, or none.
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

  /// Each shows a message from its part of the catalogue, and nothing for any other key.
  void ShowUserMessage(MessageKey key) { ShowFromCatalogue(Selector::User, key); }
  void ShowStopMessage(MessageKey key) { ShowFromCatalogue(Selector::Stop, key); }  // OK ends the program
  void ShowListMessage(MessageKey key) { ShowFromCatalogue(Selector::List, key); }
  /// Shows a text as it is, and nothing for "".
  void ShowTextMessage(std::wstring_view text);
  /// Asks whether to report a bug by mail, by its key: "Bug-Vantor-" and a routine's name.
  void ShowBugMessage(std::wstring_view key);

  /// The error trap of a routine: runs `body`; an exception asks whether to report the bug by the
  /// routine's name.
  template <class Body>
  void Trap(std::wstring_view routine, const Body& body) {
    if (!Succeeds(body)) ReportBug(routine);
  }
  /// Makes a member of `owner` the handler of a control's event, in an error trap of the routine's name:
  /// "CommandMin_Click", without the index that the control's name may end in. `bound` comes first among the handler's
  /// arguments.
  template <class Event, class Owner, class Handler, class... Bound>
  void Connect(const form::Control& control, Event& event, const wchar_t* what, Owner* owner, Handler handler,
               Bound... bound) {
    event = [this, &control, what, owner, handler, bound...](auto&&... args) {
      if (!Succeeds([&] { (owner->*handler)(bound..., args...); })) ReportBug(HandlerName(control, what));
    };
  }
  /// The same for what is no control's event, or has a routine of another name.
  template <class Event, class Owner, class Handler>
  void Connect(Event& event, const wchar_t* routine, Owner* owner, Handler handler) {
    event = [this, routine, owner, handler](auto&&... args) {
      this->Trap(routine, [&] { (owner->*handler)(args...); });
    };
  }
  /// What the trap does about an error. While one such question is open, further errors are passed over, its own too.
  void ReportBug(std::wstring_view routine);

 private:
  /// Runs `body`. Returns whether it threw nothing.
  template <class Body>
  [[nodiscard]] static bool Succeeds(const Body& body) {
    return Runs([](const void* work) { (*static_cast<const Body*>(work))(); }, &body);
  }
  [[nodiscard]] static bool Runs(void (*call)(const void*), const void* work);
  [[nodiscard]] static std::wstring HandlerName(const form::Control& control, std::wstring_view what);

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
