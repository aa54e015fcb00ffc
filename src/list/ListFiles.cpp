#include "list/ListFiles.h"

#include <algorithm>
#include <optional>
#include <string>

#include "text/Numbers.h"
#include "text/Path.h"
#include "text/SequentialFile.h"

namespace vantor::list {

namespace {

// Stands for the medium's drive letter in the files, so that the medium may be mounted as any drive.
constexpr wchar_t OpenDriveLetter = L'#';

// Four quotes, a comma and a line end.
constexpr std::size_t PunctuationOfRecord = 7;

// A record can't hold a double quote: it would end the field, and with it the reading of all records after it.
std::wstring WithoutQuotes(std::wstring_view text, std::wstring_view substitute) {
  std::wstring result(text);
  for (auto at = result.find(L'"'); at != std::wstring::npos; at = result.find(L'"', at + substitute.size())) {
    result.replace(at, 1, substitute);
  }
  return result;
}

/// One list file being written.
class RecordWriter {
 public:
  explicit RecordWriter(std::wstring_view quoteInTarget) : quoteInTarget_(quoteInTarget) {}

  void Reserve(std::size_t characters) { file_.Reserve(characters); }

  void Write(const LaunchItem& item) {
    if (item.Name.find(L'"') == item.Name.npos && item.Target.find(L'"') == item.Target.npos) {
      file_.Write(item.Name, item.Target);
    } else {
      file_.Write(WithoutQuotes(item.Name, L"'"), WithoutQuotes(item.Target, quoteInTarget_));
    }
  }

  [[nodiscard]] const text::SequentialWriter& File() const { return file_; }

 private:
  std::wstring_view quoteInTarget_;
  text::SequentialWriter file_;
};

}  // namespace

/// What one group's loading and saving go by.
struct ListFiles::Group {
  LaunchGroup Code = LaunchGroup::Web;
  const std::wstring& File;
  std::int16_t& Upper;
  // The list file of the remembered computer: in removable-media mode only, and not for web sites, whose targets
  // lie on no drive.
  const std::wstring* MachineFile = nullptr;
  std::int16_t* MachineUpper = nullptr;
};

ListFiles::Group ListFiles::GroupOf(LaunchGroup group) const {
  const state::DataFilePaths& files = environment_.Files;
  Settings& settings = settings_;
  const bool removable = environment_.RunMode;
  const auto split = [&](const std::wstring& file, std::int16_t& upper, const std::wstring& machineFile,
                         std::int16_t& machineUpper) {
    return Group{group, file, upper, removable ? &machineFile : nullptr, removable ? &machineUpper : nullptr};
  };
  switch (group) {
    case LaunchGroup::File:
      return split(files.ListFile, settings.FileUpper, files.MachineFile, settings.MachineFileUpper);
    case LaunchGroup::Fold:
      return split(files.ListFold, settings.FoldUpper, files.MachineFold, settings.MachineFoldUpper);
    case LaunchGroup::Prog:
      return split(files.ListProg, settings.ProgUpper, files.MachineProg, settings.MachineProgUpper);
    case LaunchGroup::Web:
      break;
  }
  return Group{LaunchGroup::Web, files.ListWeb, settings.WebUpper};
}

void ListFiles::LoadSettings() {
  backup_.SetWhole(list::LoadSettings(backup_, services_.Language, environment_.Files.Set, settings_));
}

void ListFiles::LoadLaunchList(const LaunchList& list) {
  const service::ManyFileCalls many(services_.FileSystem);
  for (const LaunchGroup group : {LaunchGroup::Web, LaunchGroup::File, LaunchGroup::Fold, LaunchGroup::Prog}) {
    LoadGroupList(GroupOf(group), list.Of(group));
  }
}

void ListFiles::LoadGroupList(const Group& group, const GroupBoxes& boxes) {
  bool whole = LoadFile(group, boxes, group.File, group.Upper, group.MachineFile != nullptr);
  if (group.MachineFile != nullptr && environment_.MachineRemembered) {
    whole &= LoadFile(group, boxes, *group.MachineFile, *group.MachineUpper, false);
  }
  if (!whole) backup_.SetWhole(false);
}

bool ListFiles::LoadFile(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper, bool onMedia) {
  if (upper < 0) return true;
  const auto content = text::ReadTextFile(backup_, services_.Language, path);
  if (!content) return false;

  // The upper index may be a damaged one.
  const int fitting =
      static_cast<int>(std::min<std::size_t>(content->size() / PunctuationOfRecord, static_cast<std::size_t>(upper)));
  boxes.Name.Reserve(boxes.Name.ListCount() + fitting + 1);
  boxes.Path.Reserve(boxes.Path.ListCount() + fitting + 1);

  text::SequentialReader reader(*content);
  std::wstring target;
  for (int i = 0; i <= upper; ++i) {
    const auto name = reader.Read();
    const auto stored = name ? reader.Read() : std::nullopt;
    if (!stored) return false;
    target.clear();
    if (onMedia) target = environment_.MediaDriveLetter;
    target += onMedia && !stored->Text.empty() ? stored->Text.substr(1) : stored->Text;
    if (TargetExists(group, target)) boxes.AddItem({name->Text, target});
  }
  return true;
}

bool ListFiles::TargetExists(const Group& group, std::wstring_view target) const {
  target = text::WithoutLiteralMark(target);
  // Other computers are called only when the user starts the item. One that is away for a moment would take half a
  // minute to answer, and lose the item.
  if (text::LeadsElsewhere(target)) return true;
  switch (group.Code) {
    case LaunchGroup::Web:
      return true;
    case LaunchGroup::Fold:
      return services_.FileSystem.FolderExists(target);
    default:
      return services_.FileSystem.FileExists(target);
  }
}

void ListFiles::SaveLaunchList(const LaunchList& list, form::Twips barLeft, form::Twips barTop) {
  settings_.Left = text::ToInt16(barLeft);
  settings_.Top = text::ToInt16(barTop);
  if (environment_.RunMode) settings_.Folder.clear();
  for (const LaunchGroup code : LaunchGroups) {
    const Group group = GroupOf(code);
    const std::int16_t total = text::ToInt16(list.Of(code).Path.ListCount() - 1);
    const bool split = group.MachineFile != nullptr && environment_.MachineRemembered;
    group.Upper = split ? CountMediaItems(group, list.Of(code), total) : total;
  }
  backup_.BeginSave();
  (void)SaveSettings(backup_, services_.Language, environment_.Files.Set, settings_);
  for (const LaunchGroup group : {LaunchGroup::Web, LaunchGroup::File, LaunchGroup::Fold, LaunchGroup::Prog}) {
    SaveGroupList(GroupOf(group), list.Of(group));
  }
  backup_.EndSave();
}

std::int16_t ListFiles::CountMediaItems(const Group& group, const GroupBoxes& boxes, std::int16_t upper) const {
  int count = 0;
  for (int i = 0; i <= upper; ++i) count += BelongsToMain(group, boxes.Path.List(i)) ? 1 : 0;
  *group.MachineUpper = static_cast<std::int16_t>(upper - count);
  return static_cast<std::int16_t>(count - 1);
}

void ListFiles::SaveGroupList(const Group& group, const GroupBoxes& boxes) {
  const int total = text::ToInt16(boxes.Path.ListCount() - 1);
  const std::wstring_view quoteInTarget = group.Code == LaunchGroup::Web ? L"%22" : L"'";
  RecordWriter main(quoteInTarget);
  RecordWriter machine(quoteInTarget);
  std::size_t size = 0;
  for (int i = 0; i <= total; ++i) {
    const LaunchItem item = boxes.Item(i);
    size += item.Name.size() + item.Target.size() + PunctuationOfRecord;
  }
  main.Reserve(size);
  std::wstring open;
  for (int i = 0; i <= total; ++i) {
    LaunchItem item = boxes.Item(i);
    const bool onMain = BelongsToMain(group, item.Target);
    if (onMain && group.MachineFile != nullptr && !item.Target.empty()) {
      open = item.Target;
      open.front() = OpenDriveLetter;
      item.Target = open;
    }
    (onMain ? main : machine).Write(item);
  }
  const auto write = [this](const std::wstring& path, const RecordWriter& records) {
    if (records.File().Bytes().empty()) return;  // the file of a list that is empty stays as it is
    (void)text::WriteTextFile(backup_, services_.Language, path, records.File());
  };
  write(group.File, main);
  if (group.MachineFile != nullptr) write(*group.MachineFile, machine);
}

bool ListFiles::BelongsToMain(const Group& group, std::wstring_view target) const {
  if (group.MachineFile == nullptr || !environment_.MachineRemembered) return true;
  return target.substr(0, 1) == environment_.MediaDriveLetter;
}

}  // namespace vantor::list
