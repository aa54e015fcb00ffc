#pragma once

#include <array>
#include <string_view>

#include "list/LaunchList.h"
#include "service/Language.h"

namespace vantor::command {

/// The kind of argument that follows a code, which also determines how it is completed.
enum class Argument {
  Typed,             // used as it is
  SpecialFolder,     // a word of SpecialFolderNames
  ControlPanelPage,  // a word of ControlPanelNames
  MakerAddress,      // one of MailAddresses; only a completed one is acted on
  ItemName,          // a name of the code's group; only a completed one is acted on
  CompanionName,     // a name of the maker's other programs; only a completed one is acted on
};

enum class Starter { Program, Explorer, Shell, Web, ControlPanel, MakerMail, Telephone };

/// One code of the command language: its argument, and how Enter starts it.
struct CommandCode {
  std::wstring_view Code;
  command::Argument Argument;
  command::Starter Starter;
  std::wstring_view Before = {};  // precedes the argument in the target
  std::wstring_view After = {};
  list::LaunchGroup Group = list::LaunchGroup::Prog;  // of an ItemName
};

inline constexpr std::size_t CodeLength = 2;

inline constexpr std::array<CommandCode, 22> CommandCodes{{
    {L"p=", Argument::Typed, Starter::Program},
    {L"f=", Argument::Typed, Starter::Shell},
    {L"d=", Argument::Typed, Starter::Explorer},
    {L"d.", Argument::SpecialFolder, Starter::Explorer},
    {L"c.", Argument::ControlPanelPage, Starter::ControlPanel},
    {L"e=", Argument::Typed, Starter::Shell, L"mailto:"},
    {L"e.", Argument::MakerAddress, Starter::MakerMail},
    {L"t=", Argument::Typed, Starter::Telephone},
    {L"w=", Argument::Typed, Starter::Web},
    {L"w:", Argument::Typed, Starter::Web, L"http://"},
    {L"w;", Argument::Typed, Starter::Web, L"http://www."},
    {L"c/", Argument::Typed, Starter::Web, L"http://www.", L".com"},
    {L"g/", Argument::Typed, Starter::Web, L"http://www.", L".gov"},
    {L"i/", Argument::Typed, Starter::Web, L"http://www.", L".info"},
    {L"n/", Argument::Typed, Starter::Web, L"http://www.", L".net"},
    {L"o/", Argument::Typed, Starter::Web, L"http://www.", L".org"},
    {L"t/", Argument::Typed, Starter::Web, L"http://www.", L".tv"},
    {L"p-", Argument::ItemName, Starter::Program, {}, {}, list::LaunchGroup::Prog},
    {L"f-", Argument::ItemName, Starter::Shell, {}, {}, list::LaunchGroup::File},
    {L"d-", Argument::ItemName, Starter::Explorer, {}, {}, list::LaunchGroup::Fold},
    {L"w-", Argument::ItemName, Starter::Web, {}, {}, list::LaunchGroup::Web},
    {L"r-", Argument::CompanionName, Starter::Program},
}};

/// The entry for a lower-case code; null if there is none.
[[nodiscard]] constexpr const CommandCode* FindCode(std::wstring_view code) {
  for (const CommandCode& entry : CommandCodes) {
    if (entry.Code == code) return &entry;
  }
  return nullptr;
}

/// The entry for the code at the start of a line; null if there is none.
[[nodiscard]] inline const CommandCode* CodeOf(std::wstring_view line, const service::Language& language) {
  return line.size() < CodeLength ? nullptr : FindCode(language.Lower(line.substr(0, CodeLength)));
}

/// Whether Enter acts on such an argument only if it was completed.
[[nodiscard]] constexpr bool NamesEntry(Argument argument) {
  return argument == Argument::MakerAddress || argument == Argument::ItemName || argument == Argument::CompanionName;
}

}  // namespace vantor::command
