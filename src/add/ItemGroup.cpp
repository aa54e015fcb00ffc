#include "add/ItemGroup.h"

namespace vantor::add {

bool IsProgram(const service::Services& services, std::wstring_view path) {
  return services.Language.Lower(services.FileSystem.ExtensionName(path)) == L"exe";
}

list::LaunchGroup GroupOf(const service::Services& services, AddKind chosen, std::wstring_view path) {
  if (chosen == AddKind::Folder) return list::LaunchGroup::Fold;
  return IsProgram(services, path) ? list::LaunchGroup::Prog : list::LaunchGroup::File;
}

std::wstring_view BannerOf(list::LaunchGroup group) {
  switch (group) {
    case list::LaunchGroup::Fold:
      return L"Folder Added To List : Click To Hide";
    case list::LaunchGroup::Prog:
      return L"Program Added To List : Click To Hide";
    default:
      return L"File Added To List : Click To Hide";
  }
}

}  // namespace vantor::add
