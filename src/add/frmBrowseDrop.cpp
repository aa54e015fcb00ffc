#include <algorithm>
#include <cstddef>

#include "add/ItemGroup.h"
#include "add/frmBrowse.h"

namespace vantor::add {

void frmBrowse::FillWith(const std::vector<std::wstring>& paths) {
  context_.Messages.Trap(L"FillWith", [&] {
    if (paths.empty() || Ui().ModalForm() != nullptr) return;
    if (!Adding()) context_.Host.OpenPanel(panel::menu::Add);
    if (!Adding()) return;
    if (std::any_of(paths.begin(), paths.end(), [this](const auto& path) { return GoToDropped(path); })) {
      Activate();
    } else if (!context_.Services.FileSystem.DriveReady(paths.front())) {
      context_.Messages.ShowListMessage(message::MessageDriveNotReady);
    }
  });
}

bool frmBrowse::GoToDropped(std::wstring_view path) {
  const auto choose = [this](AddKind kind) { OptionBrowse[static_cast<std::size_t>(kind)].SetValue(true); };
  if (context_.Services.FileSystem.FolderExists(path)) {
    choose(AddKind::Folder);
    if (!DirWork.SetPath(path)) return false;
    FrameAddedInfo.SetVisible(false);
    TextAddPath.SetText(DirWork.Path());
    TextAddName.SetFocus();
    return true;
  }
  const std::size_t folderEnd = path.find_last_of(L'\\') + 1;
  if (folderEnd == 0 || !context_.Services.FileSystem.FileExists(path)) return false;
  choose(IsProgram(context_.Services, path) ? AddKind::Program : AddKind::File);
  if (!DirWork.SetPath(path.substr(0, folderEnd))) return false;
  ChooseFile(path.substr(folderEnd));
  return true;
}

void frmBrowse::ChooseFile(std::wstring_view name) {
  const service::Language& language = context_.Services.Language;
  const std::wstring wanted = language.Lower(name);
  const auto& files = FileWork.Entries();
  const auto found =
      std::find_if(files.begin(), files.end(), [&](const auto& file) { return language.Lower(file) == wanted; });
  FileWork.SetListIndex(-1);
  if (found != files.end())
    FileWork.SetListIndex(static_cast<int>(found - files.begin()));
  else
    PickFile(name);  // the list does not show hidden files
  TextAddName.SetFocus();
}

}  // namespace vantor::add
