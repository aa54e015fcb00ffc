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

std::string Text(Bytes bytes) { return {bytes.begin(), bytes.end()}; }

}  // namespace

void FuzzSettings(Bytes bytes) {
  fake::Computer computer;
  StoredList first(computer);
  computer.Disk.AddFile(first.Environment.Files.Set, Text(bytes));
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
  Choices choices(bytes);
  Choices flags(bytes.first(std::min<std::size_t>(bytes.size(), 1)));
  Wandering wandering(flags);
  const std::size_t which = choices.Byte() % 5;
  wandering.Computer.Home = L"E:\\Work";
  constexpr std::wstring_view names[] = {L"MediaSet", L"Machine", L"User", L"Saving", L"Unsaved"};
  const auto path = [](std::wstring_view name) { return L"E:\\Work\\Vantor\\" + std::wstring(name) + L".Orbel"; };
  wandering.Computer.Disk.AddFile(path(names[0]), "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
  wandering.Computer.Disk.AddFile(path(names[which]), choices.Rest());
  wandering.Run();
}

void FuzzLine(Bytes bytes) {
  constexpr unsigned char used[] = {2};  // a start that is not the first
  Choices start{Bytes(used)};
  Wandering wandering(start);
  wandering.Do([&] { wandering.Program.Main(); });
  wandering.Program.ListPage.List.Of(list::LaunchGroup::Web).AddItem({L"line", L"http://a\r\nb"});
  form::TextBox& line = wandering.Program.frmMain.TextMain;
  for (Choices choices(bytes); choices.Left() && !wandering.Desktop.Ended();) {
    const unsigned byte = choices.Byte();
    wandering.Do([&] {
      if (byte != 0xFF) return wandering.Desktop.Type(std::wstring(1, static_cast<wchar_t>(byte)));
      // The clipboard brings what can't be typed.
      const std::wstring pasted{static_cast<wchar_t>(choices.Byte()), static_cast<wchar_t>(choices.Byte() * 256)};
      line.InputEdited(line.Text() + pasted, 0, 0);
    });
    const command::CommandState& state = wandering.Program.CommandState;
    Require(state.MatchedItemIndex >= command::NoIndex && state.MailTargetIndex >= command::NoIndex &&
                state.MailTargetIndex < 3,
            "what was completed is there");
    const auto size = static_cast<int>(line.Text().size());
    Require(line.SelStart() >= 0 && line.SelStart() + line.SelLength() <= size, "the selection lies in the line");
  }
  wandering.End();
}

void FuzzWalk(Bytes bytes) {
  Choices choices(bytes);
  Wandering(choices).Run();
}

}  // namespace vantor::fuzz
