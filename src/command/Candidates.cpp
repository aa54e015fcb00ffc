#include "command/Candidates.h"

#include "command/CodeTables.h"
#include "text/Numbers.h"

namespace vantor::command {

Candidates::Candidates(const CommandCode& code, const list::LaunchList& list, const state::Environment& environment)
    : code_(&code), boxes_(&list.Of(code.Group)), environment_(&environment) {}

int Candidates::Count() const {
  switch (code_->Argument) {
    case Argument::SpecialFolder:
      return static_cast<int>(SpecialFolderNames.size());
    case Argument::ControlPanelPage:
      return static_cast<int>(ControlPanelNames.size());
    case Argument::MakerAddress:
      return static_cast<int>(MailAddresses.size());
    case Argument::ItemName:
      return boxes_->Name.ListCount();
    case Argument::CompanionName:
      return static_cast<int>(environment_->Companions.size());
    case Argument::Typed:
      break;
  }
  return 0;
}

std::wstring_view Candidates::Name(int index) const {
  const auto at = static_cast<std::size_t>(index);
  switch (code_->Argument) {
    case Argument::SpecialFolder:
      return SpecialFolderNames.at(at);
    case Argument::ControlPanelPage:
      return ControlPanelNames.at(at).Offered ? ControlPanelNames.at(at).Word : L"";
    case Argument::MakerAddress:
      return MailAddresses.at(at);
    case Argument::ItemName:
      return boxes_->Name.List(index);
    case Argument::CompanionName:
      return environment_->Companions.at(at).Name;
    case Argument::Typed:
      break;
  }
  return {};
}

std::wstring_view Candidates::Detail(int index) const {
  const auto at = static_cast<std::size_t>(index);
  switch (code_->Argument) {
    case Argument::MakerAddress:
      return MailSubjects.at(at);
    case Argument::ItemName:
      return boxes_->Path.List(index);
    case Argument::CompanionName:
      return environment_->Companions.at(at).Path;
    default:
      return {};
  }
}

int Candidates::IndexOf(std::wstring_view name) const {
  for (int index = 0; index < Count(); ++index) {
    if (Name(index) == name) return index;
  }
  return NoIndex;
}

CompletedEntry Candidates::Record(int index) const {
  const std::int16_t number = text::ToInt16(index);
  if (code_->Argument == Argument::MakerAddress) return {NoIndex, number};
  return NamesEntry(code_->Argument) ? CompletedEntry{number, NoIndex} : CompletedEntry{};
}

}  // namespace vantor::command
