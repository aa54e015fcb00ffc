#include "fuzz/Targets.h"

#include <algorithm>

#include "fake/StoredList.h"
#include "fuzz/Wanderer.h"

namespace vantor::fuzz {
namespace {

using test::StoredList;

/// What remains of a text when it is written: a record can't contain a quote.
std::wstring Written(std::wstring text, std::wstring_view quote) {
  for (auto at = text.find(L'"'); at != std::wstring::npos; at = text.find(L'"', at)) text.replace(at, 1, quote);
  return text;
}

}  // namespace

void FuzzFiles(Bytes bytes) {
  Choices choices(bytes);
  const bool onMedium = choices.Below(2) == 1;
  const bool ofSettings = choices.Below(2) == 1;
  const auto upper = static_cast<std::int16_t>(choices.Byte() * 257);
  const std::string content = choices.Take();
  fake::Computer computer;
  StoredList first(computer, onMedium);
  const state::DataFilePaths& files = first.Environment.Files;
  list::Settings& settings = first.Settings;
  if (ofSettings) {
    computer.Disk.AddFile(files.Set, content);
    first.Files.LoadSettings();
  } else {
    for (const std::wstring& path : {files.ListFile, files.ListFold, files.ListProg, files.ListWeb, files.MachineProg})
      computer.Disk.AddFile(path, content);
    settings.WebUpper = settings.ProgUpper = settings.FoldUpper = settings.FileUpper = upper;
    settings.MachineProgUpper = upper;
  }
  first.Page.Load();
  Require(first.Page.ComboListWebName.ListCount() <= std::max(settings.WebUpper + 1, 0),
          "no more records than counted");
  first.Save();
  StoredList second(computer, onMedium);
  second.Load();
  Require(settings.OptionMask == second.Settings.OptionMask, "settings come back");
  const std::wstring& folder = settings.RememberedBrowseFolder;
  Require(folder == second.Settings.RememberedBrowseFolder || folder.find(L'"') != folder.npos,
          "the folder comes back");
  for (const list::LaunchGroup group : list::LaunchGroups) {
    const list::GroupBoxes& before = first.List.Of(group);
    const list::GroupBoxes& after = second.List.Of(group);
    Require(before.Name.ListCount() == after.Name.ListCount(), "all items come back");
    const bool ofWeb = group == list::LaunchGroup::Web;
    for (int i = 0; i < after.Name.ListCount(); ++i) {
      Require(Written(before.Name.List(i), L"'") == after.Name.List(i), "names come back");
      Require(Written(before.Path.List(i), ofWeb ? L"%22" : L"'") == after.Path.List(i), "targets come back");
    }
  }
}

void FuzzWalk(Bytes bytes) {
  Choices choices(bytes);
  Wanderer(choices).Run();
}

}  // namespace vantor::fuzz
