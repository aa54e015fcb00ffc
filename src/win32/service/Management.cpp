#include "win32/service/Management.h"

#include <windows.h>

#include <stdexcept>

#include "text/Numbers.h"
#include "win32/base/ManagementService.h"

namespace vantor::win32 {

namespace {

LateBound SystemDisk() {
  ComPointer<IDispatch> disk;
  Check(CoGetObject(L"WinMgmts:Win32_LogicalDisk='C:'", nullptr, IID_IDispatch, disk.PutVoid()));
  return LateBound(std::move(disk));
}

std::optional<service::DiskIdentity> AskService() {
  const LateBound disk = SystemDisk();
  Variant id = disk.Get(L"DeviceID");
  Variant one(short{1});
  if (VarCmp(&id, &one, LOCALE_USER_DEFAULT, 0) == static_cast<HRESULT>(VARCMP_EQ)) return std::nullopt;
  const auto type = disk.Get(L"DriveType").Number();
  const auto serial = disk.Get(L"VolumeSerialNumber").Text();
  const auto size = disk.Get(L"Size").Text();
  const auto bytes = size ? text::ParseDouble(*size) : std::nullopt;
  if (!type || !serial || !bytes) throw ComError(false);
  return service::DiskIdentity{*type, *serial, *bytes};
}

}  // namespace

std::optional<service::DiskIdentity> Management::ReadDiskIdentity() {
  const auto answer = AskManagementService(timedWork_, AskService);
  if (answer.Failed) throw std::runtime_error("the identity of disk C: can't be read");
  return answer.Found.value_or(std::nullopt);
}

}  // namespace vantor::win32
