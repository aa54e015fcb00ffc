#include "add/Drives.h"

namespace vantor::add {

std::wstring_view DriveName(std::wstring_view path) {
  if (path.size() >= 2 && path[1] == L':') return path.substr(0, 2);
  if (!path.starts_with(L"\\\\")) return {};
  const std::size_t share = path.find(L'\\', 2);
  if (share == path.npos) return {};
  return path.substr(0, path.find(L'\\', share + 1));
}

std::int16_t DriveTypeOf(const service::Services& services, std::wstring_view path) {
  const std::wstring_view drive = DriveName(path);
  if (drive.empty()) return UnknownDrive;
  return static_cast<std::int16_t>(services.FileSystem.DriveType(drive).value_or(UnknownDrive));
}

DriveInfo DriveOf(const service::Services& services, std::wstring_view path) {
  const std::wstring_view drive = DriveName(path);
  const bool lettered = drive.size() == 2;
  return {std::wstring(drive.substr(0, lettered ? 1 : 0)), DriveTypeOf(services, path)};
}

}  // namespace vantor::add
