#include "start/Companions.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "list/NameMatch.h"
#include "product/Product.h"

namespace vantor::start {

namespace {

/// The folders that may hold the maker's programs, each with its trailing backslash.
std::vector<std::wstring> MakerFolders(const service::Language& language, const state::Environment& environment) {
  const std::wstring ending = std::wstring(product::Publisher) + L'\\';
  std::vector<std::wstring> folders{environment.DriveRoot + ending};
  std::wstring_view holder = environment.ProgramFolder;
  holder.remove_suffix(1);
  holder = holder.substr(0, holder.rfind(L'\\') + 1);
  const std::wstring upper = language.Upper(holder);
  if (upper.ends_with(L'\\' + language.Upper(ending)) && upper != language.Upper(folders.front())) {
    folders.emplace_back(holder);
  }
  return folders;
}

}  // namespace

std::vector<state::Companion> FindCompanions(const service::Services& services, const state::Environment& environment) {
  std::vector<state::Companion> companions;
  const service::ManyFileCalls many(services.FileSystem);
  // A removable medium belongs to one person and has no users. On a disk, someone else may have put a program there.
  const auto trusted = [&](const std::wstring& place) {
    return environment.RunMode || !services.FileSystem.OthersMayWrite(place);
  };
  const auto take = [&](const std::wstring& name, const std::wstring& holder, const std::wstring& folder) {
    list::NameMatch same(services.Language, name);
    const bool listed = std::any_of(companions.begin(), companions.end(),
                                    [&](const state::Companion& companion) { return same.Equals(companion.Name); });
    // This program is in such a folder too.
    if (listed || same.Equals(state::ProductName)) return;
    std::wstring path = folder + name + L".exe";
    if (!services.FileSystem.FileExists(path)) return;
    if (trusted(holder) && trusted(folder) && trusted(path)) companions.push_back({name, std::move(path)});
  };
  for (const std::wstring& maker : MakerFolders(services.Language, environment)) {
    for (const std::wstring& name : services.FileSystem.Folders(maker)) take(name, maker, maker + name + L'\\');
  }
  take(std::wstring(state::ProductName) + L"Help", environment.ProgramFolder, environment.ProgramFolder);
  return companions;
}

}  // namespace vantor::start
