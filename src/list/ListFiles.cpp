#include "list/ListFiles.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "list/DataFile.h"
#include "list/StoredText.h"
#include "text/Numbers.h"
#include "text/Path.h"
#include "text/Utf8.h"

namespace vantor::list {

// Used in the files instead of the medium's drive letter, so that the medium may be mounted as any drive.
constexpr wchar_t OpenDriveLetter = L'#';

/// The upper index of the longest list.
constexpr std::int16_t MostRecords = INT16_MAX - 1;

// Four quotes, a comma and a line end.
constexpr std::size_t PunctuationOfRecord = 7;

/// The files and counts of a group, for loading and saving it.
struct ListFiles::Group {
  LaunchGroup Code = LaunchGroup::Web;
  const std::wstring& File;
  std::int16_t& Upper;
  // The list file of the remembered computer: in removable-media mode only, and not for web sites, whose targets
  // are not on a drive.
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
  const service::FileRead file = generation_.Read(environment_.Files.Set);
  const std::wstring text = DecodeText(file.Bytes.value_or(""), services_.Language);
  settingsWhole_ = ReadSettings(text, settings_);
  if (settingsWhole_) return;
  // A list whose count can't be read must not seem empty: it is read to the end.
  const auto readAll = [this](const std::wstring& path, std::int16_t& upper) {
    if (!generation_.Read(path).Missing) upper = MostRecords;
  };
  for (const LaunchGroup code : LaunchGroups) {
    const Group group = GroupOf(code);
    readAll(group.File, group.Upper);
    if (group.MachineFile != nullptr) readAll(*group.MachineFile, *group.MachineUpper);
  }
  static_cast<void>(ReadSettings(text, settings_));
}

void ListFiles::LoadLaunchList(const LaunchList& list) {
  const service::ManyFileCalls many(services_.FileSystem);
  listsWhole_ = true;
  machineRead_ = environment_.MachineRemembered;
  for (const LaunchGroup code : {LaunchGroup::Web, LaunchGroup::File, LaunchGroup::Fold, LaunchGroup::Prog}) {
    const Group group = GroupOf(code);
    const bool removable = group.MachineFile != nullptr;
    LoadListFile(group, list.Of(code), group.File, group.Upper, removable);
    if (removable && machineRead_) LoadListFile(group, list.Of(code), *group.MachineFile, *group.MachineUpper, false);
  }
  generation_.SetWhole(settingsWhole_ && listsWhole_);
  if (broken_) std::rethrow_exception(std::exchange(broken_, nullptr));
}

void ListFiles::LoadListFile(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper,
                             bool onMedia) {
  bool whole = false;
  try {
    whole = upper < 0 || LoadRecords(group, boxes, path, upper, onMedia);
  } catch (...) {
    if (!broken_) broken_ = std::current_exception();
  }
  listsWhole_ &= whole;
}

bool ListFiles::LoadRecords(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper,
                            bool onMedia) {
  const service::FileRead file = generation_.Read(path);
  if (!file.Bytes) return false;
  // The upper index may be damaged.
  const std::size_t fitting = std::min(file.Bytes->size() / PunctuationOfRecord, static_cast<std::size_t>(upper)) + 1;
  boxes.Name.Reserve(boxes.Name.ListCount() + static_cast<int>(fitting));
  boxes.Path.Reserve(boxes.Path.ListCount() + static_cast<int>(fitting));

  // Most files are ASCII and are parsed directly, without being converted as a whole.
  if (text::IsAscii(*file.Bytes)) return LoadRecords(group, boxes, text::AsciiReader(*file.Bytes), upper, onMedia);
  const std::wstring content = DecodeText(*file.Bytes, services_.Language);
  return LoadRecords(group, boxes, text::SequentialReader(content), upper, onMedia);
}

template <class Reader>
bool ListFiles::LoadRecords(const Group& group, const GroupBoxes& boxes, Reader reader, int upper, bool onMedia) {
  std::wstring name;
  std::wstring target;
  const auto put = [](auto field, std::wstring& text) {
    text.resize(field.size());
    std::copy(field.begin(), field.end(), text.begin());
  };
  for (int i = 0; i <= upper; ++i) {
    const auto first = reader.Read();
    const auto second = first ? reader.Read() : std::nullopt;
    if (!second) return false;
    put(first->Text, name);
    put(second->Text, target);
    if (onMedia) target.replace(0, 1, environment_.MediaDriveLetter);
    if (TargetExists(group, target)) boxes.AddItem({name, target});
  }
  return true;
}

bool ListFiles::TargetExists(const Group& group, std::wstring_view target) const {
  target = text::WithoutLiteralMark(target);
  // Other computers are contacted only when the user starts the item. One that is unreachable for a moment would delay
  // the start by half a minute, and its item would be lost.
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
  if (environment_.RunMode) settings_.RememberedBrowseFolder.clear();
  // If a computer was remembered during this run, its files may contain items that were not read.
  const bool machineListed =
      std::max({settings_.MachineFileUpper, settings_.MachineFoldUpper, settings_.MachineProgUpper}) > NoRecords;
  const bool overUnread = environment_.MachineRemembered && !machineRead_ && machineListed;
  std::array<Split, LaunchGroups.size()> splits;
  for (const LaunchGroup code : LaunchGroups) {
    const Group group = GroupOf(code);
    Split& split = splits.at(static_cast<std::size_t>(code));
    split = SplitGroup(group, list.Of(code));
    const bool remembered = group.MachineFile != nullptr && environment_.MachineRemembered;
    group.Upper = remembered ? CountMediaItems(group, split) : text::ToInt16(list.Of(code).Path.ListCount() - 1);
  }
  generation_.BeginSave(overUnread);
  generation_.Write(environment_.Files.Set, EncodeText(WriteSettings(settings_), services_.Language));
  for (const LaunchGroup code : {LaunchGroup::Web, LaunchGroup::File, LaunchGroup::Fold, LaunchGroup::Prog}) {
    SaveGroupList(GroupOf(code), list.Of(code), splits.at(static_cast<std::size_t>(code)));
  }
  generation_.EndSave();
}

ListFiles::Split ListFiles::SplitGroup(const Group& group, const GroupBoxes& boxes) const {
  const bool remembered = group.MachineFile != nullptr && environment_.MachineRemembered;
  // A full list on the medium and the items of the computer are more than one file may hold.
  const int count = boxes.Path.ListCount();
  Split split;
  split.Main.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    const bool onMain = !remembered || boxes.Item(i).Target.substr(0, 1) == environment_.MediaDriveLetter;
    (onMain ? split.Main : split.Machine).push_back(i);
  }
  return split;
}

std::int16_t ListFiles::CountMediaItems(const Group& group, const Split& split) {
  *group.MachineUpper = text::ToInt16(static_cast<int>(split.Machine.size()) - 1);
  return text::ToInt16(static_cast<int>(split.Main.size()) - 1);
}

void ListFiles::SaveGroupList(const Group& group, const GroupBoxes& boxes, const Split& split) {
  const auto write = [&](const std::wstring& path, const std::vector<int>& items, bool onMedia) {
    if (items.empty()) return;  // the file of an empty list is left unchanged
    std::size_t size = 0;
    for (const int i : items) size += boxes.Item(i).Name.size() + boxes.Item(i).Target.size() + PunctuationOfRecord;
    text::SequentialWriter records;
    records.Reserve(size);
    std::wstring open;
    for (const int i : items) {
      LaunchItem item = boxes.Item(i);
      if (onMedia && !item.Target.empty()) {
        open = item.Target;
        open.front() = OpenDriveLetter;
        item.Target = open;
      }
      if (HasQuote(item.Name) || HasQuote(item.Target))
        records.Write(StoredName(item.Name), StoredTarget(group.Code, item.Target));
      else
        records.Write(item.Name, item.Target);
    }
    generation_.Write(path, EncodeText(records, services_.Language));
  };
  write(group.File, split.Main, group.MachineFile != nullptr);
  if (group.MachineFile != nullptr) write(*group.MachineFile, split.Machine, false);
}

}  // namespace vantor::list
