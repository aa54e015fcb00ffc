#include "win32/base/TimedWork.h"

#include <windows.h>

#include <memory>

#include "win32/base/Handle.h"

namespace vantor::win32 {

namespace {

constexpr DWORD TimeLimit = 5000;  // milliseconds

/// Shared by the two threads; the last one to release it frees it.
struct Task {
  std::function<void()> Work;
  KernelHandle Done;
};

DWORD WINAPI WorkAndTell(void* shared) {
  const std::unique_ptr<std::shared_ptr<Task>> task(static_cast<std::shared_ptr<Task>*>(shared));
  (*task)->Work();
  SetEvent((*task)->Done.Get());
  return 0;
}

/// Returns false if the time was up first.
bool WaitWhilePainting(HANDLE event, DWORD milliseconds) {
  const DWORD begin = GetTickCount();
  for (;;) {
    const DWORD gone = GetTickCount() - begin;
    if (gone >= milliseconds) return WaitForSingleObject(event, 0) == WAIT_OBJECT_0;
    const DWORD woken =
        MsgWaitForMultipleObjectsEx(1, &event, milliseconds - gone, QS_PAINT | QS_SENDMESSAGE, MWMO_INPUTAVAILABLE);
    if (woken != WAIT_OBJECT_0 + 1) return woken == WAIT_OBJECT_0;
    // One message at a time, checking the time after each: a window may keep asking to be painted. Messages sent by
    // other programs are handled inside this call.
    MSG message;
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE)) DispatchMessageW(&message);
  }
}

}  // namespace

bool TimedWork::Run(std::function<void()> work) {
  if (!left_.expired()) return false;
  auto task = std::make_shared<Task>();
  task->Work = std::move(work);
  task->Done.Reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  auto theirs = std::make_unique<std::shared_ptr<Task>>(task);
  const KernelHandle thread(CreateThread(nullptr, 0, WorkAndTell, theirs.get(), 0, nullptr));
  if (!thread) return false;
  (void)theirs.release();  // now owned by the thread
  if (WaitWhilePainting(task->Done.Get(), TimeLimit)) return true;
  left_ = task;
  return false;
}

}  // namespace vantor::win32
