#include "win32/service/Management.h"

#include <windows.h>

#include <cwchar>
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

/// Whether the failure of the moniker is the service's own word, such as that there is no such disk.
bool IsAnswer(HRESULT result) {
  constexpr unsigned Family = 0x80041000;  // WBEM_E_FAILED and those after it
  return (static_cast<unsigned>(result) & 0xFFFFF000) == Family;
}

LateBound SystemDisk() {
  ComPointer<IDispatch> disk;
  const HRESULT found = CoGetObject(L"WinMgmts:Win32_LogicalDisk='C:'", nullptr, IID_IDispatch, disk.PutVoid());
  if (FAILED(found)) throw ComError(!IsAnswer(found));
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

/// The same three values from Windows itself, in the service's spelling.
std::optional<service::DiskIdentity> AskWindows() {
  constexpr const wchar_t* Root = L"C:\\";
  DWORD serial = 0;
  ULARGE_INTEGER size = {};
  if (!GetVolumeInformationW(Root, nullptr, 0, &serial, nullptr, nullptr, nullptr, 0) ||
      !GetDiskFreeSpaceExW(Root, nullptr, &size, nullptr))
    return std::nullopt;
  wchar_t digits[16];
  wsprintfW(digits, L"%08lX", serial);  // std::swprintf would add 20 KB
  // Both number the drive types alike from 2 on, and 0 is unknown to both.
  return service::DiskIdentity{static_cast<int>(GetDriveTypeW(Root)), digits, static_cast<double>(size.QuadPart)};
}

void Ask(Question& question) noexcept {
  try {
    Apartment apartment(COINIT_MULTITHREADED);
    apartment.Enter();
    question.Answer = AskService();
  } catch (const ComError& error) {
    if (error.Lacking()) question.Answer = AskWindows();
    question.Refused = !question.Answer;
  } catch (...) {
    question.Refused = true;
  }
}

}  // namespace

std::optional<service::DiskIdentity> Management::ReadDiskIdentity() {
  const auto question = std::make_shared<Question>();
  if (!patience_.EndsInTime([question] { Ask(*question); })) return std::nullopt;
  if (question->Refused) throw std::runtime_error("the identity of disk C: can't be read");
  return question->Answer;
}

}  // namespace vantor::win32
