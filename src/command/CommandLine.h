#pragma once

#include <string>
#include <string_view>

#include "command/Candidates.h"
#include "command/CommandCodes.h"
#include "command/CommandState.h"
#include "command/MatchWalk.h"
#include "command/Recall.h"
#include "command/Starters.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "message/Messages.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::command {

/// What the command line needs from the bar.
class LineOwner {
 public:
  virtual void Minimize() = 0;
  /// Closes the open panel and empties the line.
  virtual void ClosePanel() = 0;

 protected:
  ~LineOwner() = default;  // nobody owns one by this type
};

/// The keys, the completion and the commands of the bar's text box.
class CommandLine {
 public:
  /// All but the services are kept by reference.
  CommandLine(LineOwner& owner, form::TextBox& textMain, frmMatches& matches, const list::LaunchList& list,
              CommandState& state, const Starters& starters, message::Messages& messages,
              const service::Services& services, const state::Environment& environment);

  void TextMain_KeyPress(wchar_t& character);
  void TextMain_KeyDown(form::Key& key);
  void TextMain_Change();
  void TextMain_Wheel(int rows) { walk_.Scroll(rows); }
  void TextMain_Compose(bool composing) { walk_.GiveWay(composing); }
  void ListMatches_Click(int row);
  void TextMain_KeyDone() { state_.BackspaceFlag = false; }
  /// Escape, whichever control of the bar has the focus: closes the open panel and empties the line, or minimises the
  /// bar if no panel is open.
  void Escape();
  /// The list has changed: what the line was completed to is looked for again. Where it is gone, the line is completed
  /// by what was typed, or keeps that alone.
  void CompleteAgain();

 private:
  // What Enter does.
  void Enter();
  void SendMakerMail(std::size_t index);
  void StartTyped(const CommandCode& code, std::wstring_view argument);
  void StartItem(const CommandCode& code, std::wstring_view name);
  void StartCompanion(const CommandCode& code);
  void Dial(std::wstring_view number);
  void Start(const CommandCode& code, const std::wstring& target);
  [[nodiscard]] message::MessageKey StartBy(const CommandCode& code, const std::wstring& target) const;

  [[nodiscard]] const CommandCode* CodeOf(std::wstring_view text) const {
    return command::CodeOf(text, services_.Language);
  }

  /// Removes everything but digits from a telephone number. Returns whether there was anything to remove.
  bool KeepDigits();

  // What type-ahead does.
  /// Completes to the first entry that begins with `typed`, and records it. Returns false if there is none.
  bool CompleteFromTable(std::wstring_view prefix, std::wstring_view typed, const Candidates& table);
  void PutCompletion(std::wstring_view prefix, std::size_t typedLength, std::wstring_view entry);

  LineOwner& owner_;
  form::TextBox& textMain_;
  const list::LaunchList& list_;
  CommandState& state_;
  const Starters& starters_;
  message::Messages& messages_;
  service::Services services_;
  const state::Environment& environment_;
  std::wstring typed_;  // the line as it was before it was completed
  Recall recall_;
  MatchWalk walk_;
};

}  // namespace vantor::command
