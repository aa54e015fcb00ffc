#include "fuzz/Targets.h"

#include <algorithm>

#include "fuzz/Wanderer.h"

namespace vantor::fuzz {
namespace {

constexpr std::wstring_view Folder = L"C:\\Vantor\\Vantor";

std::wstring DataPath(std::wstring_view name) { return std::wstring(Folder).append(L"\\").append(name) + L".Orbel"; }

/// The settings and the lists, as a run of the program reads and writes them.
struct Files {
  explicit Files(fake::FakeServices& fakes, bool onMedia) : Fakes(fakes) {
    Environment.RunMode = Environment.MachineRemembered = onMedia;
    Environment.MediaDriveLetter = L"C";
    Environment.DataFolder = Folder;
    Environment.Files = {.Set = DataPath(L"Set"),
                         .User = {},
                         .ListFile = DataPath(L"ListFile"),
                         .ListFold = DataPath(L"ListFold"),
                         .ListProg = DataPath(L"ListProg"),
                         .ListWeb = DataPath(L"ListWeb"),
                         .MediaSet = {},
                         .Machine = {},
                         .MachineFile = DataPath(L"MachineFile"),
                         .MachineFold = DataPath(L"MachineFold"),
                         .MachineProg = DataPath(L"MachineProg")};
    Fakes.Disk.AddFolder(Folder);
  }
  void Load() {
    Lists.Restore();
    Lists.LoadSettings();
    Choose.Load();
  }
  void Save() { Lists.SaveLaunchList(Choose.List, 0, 0); }

  fake::FakeServices& Fakes;
  form::Headless Desktop;
  start::Environment Environment;
  list::Settings Settings;
  list::ListFiles Lists{Fakes.All(), Environment, Settings};
  message::MessageState State;
  message::Messages Messages{Desktop, State};
  list::frmChoose Choose{Desktop, Lists, Fakes.Language, Messages};
};

/// What is left of a text by being written: a record can't hold a quote.
std::wstring Written(std::wstring text, std::wstring_view quote) {
  for (auto at = text.find(L'"'); at != std::wstring::npos; at = text.find(L'"', at)) text.replace(at, 1, quote);
  return text;
}

}  // namespace

void FuzzSettings(Bytes bytes) {
  fake::FakeServices fakes;
  fakes.Disk.AddFile(DataPath(L"Set"), std::string(bytes.begin(), bytes.end()));
  Files first(fakes, false);
  first.Load();
  const list::Settings& read = first.Settings;
  first.Save();
  Files second(fakes, false);
  second.Load();
  Require(read.OptionMask == second.Settings.OptionMask && second.Settings.WebUpper == list::NoRecords,
          "settings come back");
  Require(read.Folder == second.Settings.Folder || read.Folder.find(L'"') != std::wstring::npos,
          "the folder comes back");
}

void FuzzList(Bytes bytes) {
  Choices choices(bytes);
  const bool onMedia = choices.Below(2) == 1;
  const auto upper = static_cast<std::int16_t>(choices.Byte() * 257);
  const std::string content = choices.Rest();
  fake::FakeServices fakes;
  for (const auto* name : {L"ListFile", L"ListFold", L"ListProg", L"ListWeb", L"MachineProg"})
    fakes.Disk.AddFile(DataPath(name), content);
  Files first(fakes, onMedia);
  list::Settings& settings = first.Settings;
  settings.WebUpper = settings.ProgUpper = settings.FoldUpper = settings.FileUpper = upper;
  settings.MachineProgUpper = upper;
  first.Choose.Load();
  const list::GroupBoxes& web = first.Choose.List.Of(list::LaunchGroup::Web);
  Require(web.Name.ListCount() <= std::max(upper + 1, 0), "no more records than counted");
  first.Save();
  Files second(fakes, onMedia);
  second.Load();
  for (const list::LaunchGroup group : list::LaunchGroups) {
    const list::GroupBoxes& before = first.Choose.List.Of(group);
    const list::GroupBoxes& after = second.Choose.List.Of(group);
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
  const std::size_t which = choices.Byte() % 4;
  wandering.World.System.Program = L"E:\\Tools";
  constexpr std::wstring_view names[] = {L"MediaSet", L"Machine", L"User", L"Saving"};
  const auto path = [](std::wstring_view name) { return L"E:\\Tools\\Vantor\\" + std::wstring(name) + L".Orbel"; };
  wandering.World.Disk.AddFile(path(L"MediaSet"), "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
  wandering.World.Disk.AddFile(path(names[which]), choices.Rest());
  wandering.Run();
}

void FuzzLine(Bytes bytes) {
  constexpr unsigned char used[] = {2};  // a start that is not the first
  Choices start{Bytes(used)};
  Wandering wandering(start);
  wandering.Do([&] { wandering.Program.Main(); });
  wandering.Program.frmChoose.List.Of(list::LaunchGroup::Web).AddItem(L"line", L"http://a\r\nb");
  form::TextBox& line = wandering.Program.frmMain.TextMain;
  for (Choices choices(bytes); choices.Left() && !wandering.Desktop.Ended();) {
    const unsigned byte = choices.Byte();
    wandering.Do([&] {
      // The clipboard brings what can't be typed.
      if (byte == 0xFF)
        line.InputEdited(
            line.Text() + static_cast<wchar_t>(choices.Byte()) + static_cast<wchar_t>(choices.Byte() * 256), 0, 0);
      else
        wandering.Desktop.Type(std::wstring(1, static_cast<wchar_t>(byte)));
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
