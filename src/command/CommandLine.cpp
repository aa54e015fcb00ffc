#include "command/CommandLine.h"

#include <algorithm>
#include <string>
#include <utility>

#include "command/BuiltInActions.h"
#include "command/CodeTables.h"
#include "command/LineState.h"
#include "form/Keys.h"
#include "form/Scoped.h"
#include "list/NameMatch.h"
#include "text/Ascii.h"

namespace vantor::command {

CommandLine::CommandLine(LineOwner& owner, form::TextBox& textMain, frmMatches& matches, const list::LaunchList& list,
                         CommandState& state, const Starters& starters, message::Messages& messages,
                         const service::Services& services, const state::Environment& environment)
    : owner_(owner),
      textMain_(textMain),
      list_(list),
      state_(state),
      starters_(starters),
      messages_(messages),
      services_(services),
      environment_(environment),
      recall_(textMain, state, list, services.Language, environment),
      walk_(textMain, state, matches) {}

void CommandLine::TextMain_KeyPress(wchar_t& character) {
  messages_.State.CurrentMessageKey.clear();
  switch (character) {
    case form::CharEnter:
      walk_.Hide();
      Enter();
      character = 0;  // a single-line box would only beep
      return;
    case form::CharEscape:
      Escape();
      character = 0;
      return;
    case form::CharBackspace:
      state_.BackspaceFlag = true;
      return;
    default: {
      const CommandCode* code = CodeOf(textMain_.Text());
      if (code != nullptr && code->Starter == Starter::Telephone && !text::IsDigit(character)) character = 0;
    }
  }
}

void CommandLine::TextMain_KeyDown(form::Key& key) {
  if (!walk_.Walk(key)) {
    if (!recall_.Walk(key)) return;
    typed_ = textMain_.Text();
  }
  key = form::Key::None;
}

void CommandLine::TextMain_Change() {
  if (state_.SettingLine) return;
  messages_.State.CurrentMessageKey.clear();
  state_.MatchedItemIndex = NoIndex;
  state_.MailTargetIndex = NoIndex;
  recall_.Leave();
  const bool byBackspace = std::exchange(state_.BackspaceFlag, false);
  if (!textMain_.Composing() && KeepDigits()) return walk_.Hide();
  typed_ = textMain_.Text();
  const std::wstring_view line(typed_);
  const CommandCode* const code = line.size() > CodeLength && !textMain_.Composing() ? CodeOf(line) : nullptr;
  if (code == nullptr || code->Argument == Argument::Typed) return walk_.Hide();
  const Candidates table(*code, list_, environment_);
  const std::wstring_view prefix = line.substr(0, CodeLength);
  const std::wstring_view typed = line.substr(CodeLength);
  const bool completed = !byBackspace && CompleteFromTable(prefix, typed, table);
  textMain_.PaintNow();  // so that the completion does not wait for the list
  walk_.Show(table, prefix, typed, completed);
}

void CommandLine::ListMatches_Click(int row) {
  walk_.WalkTo(row);
  wchar_t enter = form::CharEnter;
  TextMain_KeyPress(enter);
}

void CommandLine::Enter() {
  const std::wstring text = textMain_.Text();
  if (text.size() <= CodeLength) return;
  if (state_.MailTargetIndex != NoIndex) {
    SendMakerMail(static_cast<std::size_t>(state_.MailTargetIndex));
    return;
  }
  const CommandCode* code = CodeOf(text);
  if (code == nullptr || code->Argument == Argument::MakerAddress) return;
  const std::wstring_view argument = std::wstring_view(text).substr(CodeLength);
  if (code->Argument == Argument::ItemName) {
    StartItem(*code, argument);
  } else if (code->Argument == Argument::CompanionName) {
    StartCompanion(*code);
  } else if (code->Starter == Starter::Telephone) {
    Dial(argument);
  } else {
    StartTyped(*code, argument);
  }
}

void CommandLine::SendMakerMail(std::size_t index) {
  const std::wstring address = L"mailto:" + std::wstring(MailAddresses.at(index));
  const message::MessageKey failure = starters_.SendMailTo(address, MailSubjects.at(index), {});
  if (failure.empty()) recall_.Started(textMain_.Text());
  messages_.ShowListMessage(failure);
  textMain_.SetText({});
}

void CommandLine::StartTyped(const CommandCode& code, std::wstring_view argument) {
  const std::wstring word =
      code.Argument == Argument::SpecialFolder ? GetSpecialFolderPath(services_, argument) : std::wstring(argument);
  if (code.Argument == Argument::ControlPanelPage && !IsControlPanelPage(services_, word)) return;
  Start(code, std::wstring(code.Before).append(word).append(code.After));
}

void CommandLine::StartItem(const CommandCode& code, std::wstring_view name) {
  const int index = state_.MatchedItemIndex;
  const list::GroupBoxes& boxes = list_.Of(code.Group);
  // The list may have changed since the name was completed.
  if (index == NoIndex || index >= boxes.Name.ListCount() || boxes.Name.List(index) != name) return;
  Start(code, boxes.Path.List(index));
}

void CommandLine::StartCompanion(const CommandCode& code) {
  const int index = state_.MatchedItemIndex;
  if (index != NoIndex) Start(code, environment_.Companions.at(static_cast<std::size_t>(index)).Path);
}

void CommandLine::Dial(std::wstring_view number) {
  const std::wstring failure = DialNumber(services_, number);
  if (failure.empty()) recall_.Started(textMain_.Text());
  messages_.ShowTextMessage(failure);
  textMain_.SetText({});
  textMain_.SetFocus();
}

void CommandLine::Start(const CommandCode& code, const std::wstring& target) {
  const message::MessageKey failure = StartBy(code, target);
  if (!failure.empty()) return messages_.ShowListMessage(failure);
  recall_.Started(textMain_.Text());
  if (code.Starter != Starter::ControlPanel) textMain_.SetText({});
}

message::MessageKey CommandLine::StartBy(const CommandCode& code, const std::wstring& target) const {
  const bool listed = code.Argument == Argument::ItemName || code.Argument == Argument::CompanionName;
  switch (code.Starter) {
    case Starter::Program:
      return listed ? starters_.RunProgramFile(target) : starters_.RunProgramCommand(target);
    case Starter::Explorer:
      return starters_.RunExplorerCommand(environment_.WindowsFolder + L"explorer.exe " + target);
    case Starter::Shell:
      return listed ? starters_.OpenItem(target) : starters_.OpenWithShell(target);
    case Starter::Web:
      return listed ? starters_.OpenItem(target) : starters_.OpenWebAddress(target);
    case Starter::ControlPanel:
      return OpenControlPanelApplet(services_, target);
    case Starter::MakerMail:
    case Starter::Telephone:
      break;  // these have no target
  }
  return {};
}

void CommandLine::Escape() {
  if (state_.OpenPanelIndex == NoIndex) {
    owner_.Minimize();
  } else {
    owner_.ClosePanel();
  }
}

void CommandLine::CompleteAgain() {
  if (state_.MatchedItemIndex == NoIndex) return;
  const std::wstring_view line(textMain_.Text());
  const CommandCode* const code = CodeOf(line);
  if (code == nullptr || code->Argument != Argument::ItemName) return;
  const Candidates table(*code, list_, environment_);
  if (const int same = table.IndexOf(line.substr(CodeLength)); same != NoIndex) {
    static_cast<CompletedEntry&>(state_) = table.Record(same);
    return;
  }
  PutLine({typed_, static_cast<int>(typed_.size())}, textMain_, state_);
  const std::wstring_view typed(typed_);
  CompleteFromTable(typed.substr(0, CodeLength), typed.substr(CodeLength), table);
}

bool CommandLine::KeepDigits() {
  const CommandCode* const code = CodeOf(textMain_.Text());
  if (code == nullptr || code->Starter != Starter::Telephone) return false;
  const auto isOther = [](wchar_t c) { return !text::IsDigit(c); };
  std::wstring text = textMain_.Text();
  const auto number = text.begin() + static_cast<std::ptrdiff_t>(CodeLength);
  const auto caret = std::max(number, text.begin() + textMain_.SelStart());
  const auto before = std::count_if(number, caret, isOther);
  const auto end = std::remove_if(number, text.end(), isOther);
  if (end == text.end()) return false;
  text.erase(end, text.end());
  PutLine({text, textMain_.SelStart() - static_cast<int>(before)}, textMain_, state_);
  return true;
}

bool CommandLine::CompleteFromTable(std::wstring_view prefix, std::wstring_view typed, const Candidates& table) {
  const list::NameMatch match(services_.Language, typed);
  for (int index = 0; index < table.Count(); ++index) {
    if (!match.Begins(table.Name(index))) continue;
    PutCompletion(prefix, typed.size(), table.Name(index));
    static_cast<CompletedEntry&>(state_) = table.Record(index);
    return true;
  }
  return false;
}

void CommandLine::PutCompletion(std::wstring_view prefix, std::size_t typedLength, std::wstring_view entry) {
  const int caret = textMain_.SelStart();
  // This raises Change; searching again would only find the same entry.
  {
    const form::Scoped setting(state_.SettingLine, true);
    textMain_.SetText(std::wstring(prefix).append(entry));
  }
  const auto typedEnd = static_cast<int>(CodeLength + typedLength);
  if (entry.size() > typedLength) {
    textMain_.Select(typedEnd, static_cast<int>(entry.size() - typedLength));
  } else if (textMain_.SelStart() != caret) {
    textMain_.Select(caret, 0);  // the entry's spelling has replaced what was typed
  }
}

}  // namespace vantor::command
