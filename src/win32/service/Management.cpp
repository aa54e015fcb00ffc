#include "win32/service/Management.h"

#include <windows.h>

#include <memory>
#include <stdexcept>

#include "text/Numbers.h"
#include "win32/base/Com.h"

namespace vantor::win32 {

namespace {

/// What is found out; the asker may have left by then.
struct Question {
  std::optional<service::DiskIdentity> Answer;
  bool Refused = false;
};

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

void Ask(Question& question) noexcept {
  try {
    Apartment apartment(COINIT_MULTITHREADED);
    apartment.Enter();
    question.Answer = AskService();
  } catch (...) {
    question.Refused = true;
  }
}

}  // namespace

std::optional<service::DiskIdentity> Management::ReadDiskIdentity() {
  const auto question = std::make_shared<Question>();
  if (!timedWork_.Run([question] { Ask(*question); })) return std::nullopt;
  if (question->Refused) throw std::runtime_error("the identity of disk C: can't be read");
  return question->Answer;
}

}  // namespace vantor::win32
