#include "desktop/Folder.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "desktop/Text.h"

namespace vantor::desktop {
namespace {

namespace fs = std::filesystem;

std::wstring BesideThisProgram(const std::string& name) {
  wchar_t path[MAX_PATH];
  const std::wstring self(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
  return self.substr(0, self.rfind(L'\\') + 1) + Wide(name);
}

}  // namespace

std::string Settings::Bytes() const {
  std::string bytes;
  for (const int value : {OptionMask, FileUpper, FoldUpper, ProgUpper, WebUpper, Left, Top}) {
    bytes += std::to_string(value) + "\r\n";
  }
  bytes += '"' + Folder + "\"\r\n";
  for (const int value : {MachineFileUpper, MachineFoldUpper, MachineProgUpper}) {
    bytes += std::to_string(value) + "\r\n";
  }
  return bytes;
}

std::string ListBytes(const Items& items) {
  std::string bytes;
  for (const auto& [name, target] : items) {
    bytes.append("\"").append(name).append("\",\"").append(target).append("\"\r\n");
  }
  return bytes;
}

Folder::Folder(const std::string& root) {
  std::wstring parent = Wide(root);
  if (parent.empty()) {
    wchar_t temporary[MAX_PATH];
    const std::wstring given(temporary, GetTempPathW(MAX_PATH, temporary));
    // In its long form, as the program and the shell report paths.
    parent.assign(temporary, GetLongPathNameW(given.c_str(), temporary, MAX_PATH));
  }
  static int count = 0;
  path_ = Narrow(parent) + "vantor" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
  fs::create_directories(Wide(path_));
  CopyProgram("Vantor.exe", "Vantor.exe");
}

Folder::~Folder() {
  std::error_code ignored;
  fs::remove_all(Wide(path_), ignored);
}

std::string Folder::Path(const std::string& name) const { return name.empty() ? path_ : path_ + "\\" + name; }

void Folder::Write(const std::string& name, const std::string& bytes) const {
  const fs::path path = Wide(Path(name));
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Folder::Read(const std::string& name) const {
  std::ifstream file(fs::path(Wide(Path(name))), std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

void Folder::MakeFolder(const std::string& name) const { fs::create_directories(Wide(Path(name))); }

void Folder::MoveTo(const std::string& root) {
  const std::string there = root + path_.substr(path_.rfind('\\') + 1);
  fs::copy(Wide(path_), Wide(there), fs::copy_options::recursive);
  // A system process that the program called may still stand in the folder, which then stays, empty.
  std::error_code ignored;
  fs::remove_all(Wide(path_), ignored);
  path_ = there;
}

void Folder::CopyProgram(const std::string& program, const std::string& name) const {
  const fs::path path = Wide(Path(name));
  fs::create_directories(path.parent_path());
  fs::copy_file(BesideThisProgram(program), path, fs::copy_options::overwrite_existing);
}

void Folder::WriteSettings(const Settings& settings, const std::string& user) const {
  Write("Vantor\\Set.Orbel", settings.Bytes());
  Write("Vantor\\User.Orbel", '"' + user + "\"\r\n");
}

std::string Folder::Saved(Settings settings) const {
  if (settings.Folder.empty()) settings.Folder = Path();
  return settings.Bytes();
}

}  // namespace vantor::desktop
