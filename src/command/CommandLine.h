#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "command/CommandState.h"
#include "command/Starters.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "message/Messages.h"
#include "service/Services.h"
#include "start/Environment.h"

namespace vantor::command {

/// What the command line makes happen on the bar.
struct CommandLineHooks {
  std::function<void()> Minimize;
  /// A click on a CommandMenu button.
  std::function<void(int index)> ClickMenu;
};

/// The typing and commands of the bar's text box.
class CommandLine {
 public:
  /// All but the services are kept by reference.
  CommandLine(form::TextBox& textMain, const list::LaunchList& list, CommandState& state, const Starters& starters,
              message::Messages& messages, const service::Services& services,
              const start::Environment& environment);

  CommandLineHooks Hooks;

  void TextMain_KeyPress(wchar_t& character);
  void TextMain_Change();

 private:
  // Enter
  void Accept();
  void SendMakerMail(std::size_t index);
  void Dial(std::wstring_view number);
  void Show(message::MessageKey key) const;

  // type-ahead
  void Complete();
  void CompleteFromGroup(std::wstring_view prefix, std::wstring_view typed, const form::ComboBox& names);
  void PutCompletion(std::wstring_view prefix, std::wstring_view typed, std::wstring_view entry);

  form::TextBox& textMain_;
  const list::LaunchList& list_;
  CommandState& state_;
  const Starters& starters_;
  message::Messages& messages_;
  service::Services services_;
  const start::Environment& environment_;
  bool completing_ = false;  // the change under way is a completion being put into the box
};

}  // namespace vantor::command
