#include "start/Places.h"

#include <iterator>

#include "text/Path.h"

namespace vantor::start {

std::wstring GetDriveTypeText(service::FileSystem& files, std::wstring_view drive) {
  static constexpr std::wstring_view Texts[] = {L"Unknown", L"Removable", L"Fixed", L"Remote", L"CDRom", L"RAMDisk"};
  if (text::LeadsElsewhere(drive)) return L"Remote";
  const int type = files.DriveType(drive).value_or(-1);
  return std::wstring(type >= 0 && type < static_cast<int>(std::size(Texts)) ? Texts[type] : L"");
}

void GetWindowsFolder(service::System& system, const service::Language& language, state::Environment& environment) {
  constexpr std::size_t MaxLength = 254;
  std::wstring folder = system.WindowsDirectory();
  if (folder.empty() || folder.size() > MaxLength) return;
  if (folder.back() != L'\\') folder += L'\\';
  environment.WindowsFolderUpper = language.Upper(folder);
  environment.WindowsDriveLetter = folder.substr(0, 1);
  environment.WindowsFolder = std::move(folder);
}

std::wstring DriveRootOf(std::wstring_view folder) { return std::wstring(text::DriveName(folder)) + L'\\'; }

void SetDataFiles(state::Environment& environment) {
  environment.DataFolder = environment.ProgramFolder;
  environment.DataFolder += state::ProductName;
  const auto path = [&](std::wstring_view name) { return environment.DataFolder + std::wstring(name); };
  state::DataFilePaths& files = environment.Files;
  files.Set = path(L"\\Set.Orbel");
  files.ListFile = path(L"\\ListFile.Orbel");
  files.ListFold = path(L"\\ListFold.Orbel");
  files.ListProg = path(L"\\ListProg.Orbel");
  files.ListWeb = path(L"\\ListWeb.Orbel");
  if (!environment.RunMode) {
    files.User = path(L"\\User.Orbel");
    return;
  }
  files.MediaSet = path(L"\\MediaSet.Orbel");
  files.MachineIdentityFile = path(L"\\Machine.Orbel");
  files.MachineFile = path(L"\\MachineFile.Orbel");
  files.MachineFold = path(L"\\MachineFold.Orbel");
  files.MachineProg = path(L"\\MachineProg.Orbel");
}

}  // namespace vantor::start
