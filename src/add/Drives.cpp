#include "add/Drives.h"

#include "text/Path.h"

namespace vantor::add {

std::int16_t DriveTypeOf(const service::Services& services, std::wstring_view path) {
  return static_cast<std::int16_t>(services.FileSystem.DriveType(path).value_or(UnknownDrive));
}

bool OnFixedDrive(const service::Services& services, std::wstring_view path) {
  return path.size() >= 3 && path.substr(1, 2) == L":\\" && DriveTypeOf(services, path.substr(0, 3)) == FixedDrive;
}

DriveInfo DriveOf(const service::Services& services, std::wstring_view path) {
  const std::wstring_view drive = text::DriveName(path);
  const bool lettered = drive.size() == 2;
  return {std::wstring(drive.substr(0, lettered ? 1 : 0)), DriveTypeOf(services, path)};
}

}  // namespace vantor::add
