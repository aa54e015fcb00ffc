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

void FuzzSettings(Bytes bytes) {
  fake::Computer computer;
  StoredList first(computer);
  computer.Disk.AddFile(first.Environment.Files.Set, Choices(bytes).Rest());
  first.Load();
  first.Save();
  StoredList second(computer);
  second.Load();
  Require(first.Settings.OptionMask == second.Settings.OptionMask && second.Settings.WebUpper == list::NoRecords,
          "settings come back");
  const std::wstring& folder = first.Settings.RememberedBrowseFolder;
  Require(folder == second.Settings.RememberedBrowseFolder || folder.find(L'"') != std::wstring::npos,
          "the folder comes back");
}

void FuzzList(Bytes bytes) {
  Choices choices(bytes);
  const bool onMedium = choices.Below(2) == 1;
  const auto upper = static_cast<std::int16_t>(choices.Byte() * 257);
  const std::string content = choices.Rest();
  fake::Computer computer;
  StoredList first(computer, onMedium);
  const state::DataFilePaths& files = first.Environment.Files;
  for (const std::wstring& path : {files.ListFile, files.ListFold, files.ListProg, files.ListWeb, files.MachineProg})
    computer.Disk.AddFile(path, content);
  list::Settings& settings = first.Settings;
  settings.WebUpper = settings.ProgUpper = settings.FoldUpper = settings.FileUpper = settings.MachineProgUpper = upper;
  first.Page.Load();
  Require(first.Page.ComboListWebName.ListCount() <= std::max(upper + 1, 0), "no more records than counted");
  first.Save();
  StoredList second(computer, onMedium);
  second.Load();
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

void FuzzMedia(Bytes bytes) {
  constexpr unsigned char flags[] = {1};
  Choices none{Bytes(flags)};
  Wanderer user(none);
  Choices choices(bytes);
  constexpr std::wstring_view names[] = {L"MediaSet", L"Machine", L"User", L"Saving", L"Unsaved"};
  const auto put = [&](std::wstring_view name, const std::string& content) {
    user.Write(L"E:\\Vantor\\Vantor\\" + std::wstring(name) + L".Orbel", content);
  };
  put(names[0], "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
  const std::size_t which = choices.Below(std::size(names));
  put(names[which], choices.Rest());
  user.Run();
}

void FuzzLine(Bytes bytes) {
  constexpr unsigned char flags[] = {2};  // a start that is not the first
  Choices none{Bytes(flags)};
  Wanderer user(none);
  user.Do(L"start");
  for (Choices choices(bytes); choices.Left();) {
    const auto typed = static_cast<wchar_t>(choices.Byte());
    if (typed == 0xFF)  // the clipboard brings what can't be typed
      user.Do(L"paste " +
              std::wstring{static_cast<wchar_t>(choices.Byte()), static_cast<wchar_t>(choices.Byte() * 256)});
    else if (typed > L' ')
      user.Do(L"type " + std::wstring(1, typed));
    else
      user.Do(typed == L' ' ? L"type {space}" : typed == L'\b' ? L"press Backspace" : L"press Enter");
  }
  user.End();
}

void FuzzWalk(Bytes bytes) {
  Choices choices(bytes);
  Wanderer(choices).Run();
}

}  // namespace vantor::fuzz
