#include "win32/Management.h"

#include <windows.h>

#include <cwchar>
#include <memory>

#include "text/Numbers.h"
#include "win32/Com.h"
#include "win32/Handle.h"

namespace vantor::win32 {

namespace {

constexpr DWORD Patience = 5000;  // milliseconds

/// What the two threads share. Whichever lets go last frees it.
struct Question {
  KernelHandle Answered;
  std::optional<service::DiskIdentity> Answer;  // read only after Answered is set
};

/// Whether the failure of the moniker is the service's own word, such as that there is no such disk.
bool IsAnswer(HRESULT result) {
  constexpr unsigned Family = 0x80041000;  // WBEM_E_FAILED and those after it
  return (static_cast<unsigned>(result) & 0xFFFFF000) == Family;
}

LateBound SystemDisk() {
  ComPointer<IDispatch> disk;
  const HRESULT found = CoGetObject(L"WinMgmts:Win32_LogicalDisk='C:'", nullptr, IID_IDispatch, disk.PutVoid());
  if (FAILED(found)) throw ComError(found, !IsAnswer(found));
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
  if (!type || !serial || !bytes) return std::nullopt;
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
  std::swprintf(digits, std::size(digits), L"%08lX", serial);
  // Both number the drive types alike from 2 on, and 0 is unknown to both.
  return service::DiskIdentity{static_cast<int>(GetDriveTypeW(Root)), digits, static_cast<double>(size.QuadPart)};
}

std::optional<service::DiskIdentity> Ask() noexcept {
  try {
    Apartment apartment(COINIT_MULTITHREADED);
    apartment.Enter();
    return AskService();
  } catch (const ComError& error) {
    if (!error.Lacking()) return std::nullopt;
  } catch (...) {
    return std::nullopt;
  }
  return AskWindows();
}

DWORD WINAPI AskAndTell(void* shared) {
  const std::unique_ptr<std::shared_ptr<Question>> question(static_cast<std::shared_ptr<Question>*>(shared));
  (*question)->Answer = Ask();
  SetEvent((*question)->Answered.Get());
  return 0;
}

/// False when the time was up first.
bool WaitWhilePainting(HANDLE event, DWORD milliseconds) {
  const DWORD begin = GetTickCount();
  for (;;) {
    const DWORD gone = GetTickCount() - begin;
    if (gone >= milliseconds) return WaitForSingleObject(event, 0) == WAIT_OBJECT_0;
    const DWORD woken = MsgWaitForMultipleObjects(1, &event, FALSE, milliseconds - gone, QS_PAINT | QS_SENDMESSAGE);
    if (woken != WAIT_OBJECT_0 + 1) return woken == WAIT_OBJECT_0;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE))
      DispatchMessageW(&message);
  }
}

}  // namespace

std::optional<service::DiskIdentity> Management::ReadDiskIdentity() {
  auto question = std::make_shared<Question>();
  question->Answered.Reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  auto theirs = std::make_unique<std::shared_ptr<Question>>(question);
  const KernelHandle thread(CreateThread(nullptr, 0, AskAndTell, theirs.get(), 0, nullptr));
  if (!thread) return std::nullopt;
  (void)theirs.release();  // the thread's own now
  if (!WaitWhilePainting(question->Answered.Get(), Patience)) return std::nullopt;
  return question->Answer;
}

}  // namespace vantor::win32
