#include "win32/window/FormDrops.h"

#include <utility>

#include "win32/window/FormWindow.h"

namespace vantor::win32 {

void FormDrops::BeginLater() const { SetTimer(owner_.Hwnd(), BeginTimer, 0, nullptr); }

bool FormDrops::OnMessage(UINT message, WPARAM wParam) {
  if (message == WM_TIMER && wParam == BeginTimer) {
    KillTimer(owner_.Hwnd(), BeginTimer);
    Begin();
  } else if (message == DroppedMessage) {
    Take();
  } else {
    return false;
  }
  return true;
}

void FormDrops::Begin() {
  registration_.emplace(
      owner_.Hwnd(), [this] { return !owner_.Retired() && owner_.Form().AcceptsInput(); },
      [this](form::DroppedItems items) {
        dropped_ = std::move(items);
        PostMessageW(owner_.Hwnd(), DroppedMessage, 0, 0);  // deferred, because the source of the drop is waiting
      });
}

void FormDrops::Take() {
  form::DroppedItems items = std::exchange(dropped_, {});
  if (items.Paths.size() == 1) items.Address = WebAddressIn(items.Paths.front());
  if (!items.Address.empty()) items.Paths.clear();
  for (std::wstring& path : items.Paths) path = ShortcutTarget(path);
  SetForegroundWindow(owner_.Hwnd());
  owner_.Form().InputDrop(items);
}

}  // namespace vantor::win32
