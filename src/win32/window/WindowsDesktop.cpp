#include "win32/window/WindowsDesktop.h"

#include <algorithm>
#include <string>
#include <utility>

#include "form/Timer.h"
#include "win32/base/ApplicationMark.h"
#include "win32/draw/Prose.h"
#include "win32/draw/Screens.h"

namespace vantor::win32 {

Desktop::Desktop() {
  win32::Screens::DeclareAwareness();
  WNDCLASSW description{};
  description.lpfnWndProc = Procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = ApplicationClass;
  RegisterClassW(&description);
  application_.Reset(CreateWindowExW(0, ApplicationClass, L"", WS_POPUP | WS_SYSMENU, 0, 0, 0, 0, nullptr, nullptr,
                                     description.hInstance, nullptr));
  SetWindowLongPtrW(application_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetPropW(application_.Get(), ApplicationMark, application_.Get());
}

Desktop::~Desktop() {
  discarded_.clear();
  RemovePropW(application_.Get(), ApplicationMark);
  SetWindowLongPtrW(application_.Get(), GWLP_USERDATA, 0);
}

void Desktop::SetApplicationTitle(std::wstring_view title) {
  SetWindowTextW(application_.Get(), std::wstring(title).c_str());
}

form::Screen Desktop::ScreenAt(const form::Rect& place) const { return screens_.At(place); }

form::Screen Desktop::PrimaryScreen() const { return screens_.Primary(); }

form::Size Desktop::MeasureText(std::wstring_view text, bool bold, form::Twips width) const {
  const int dpi = screens_.SystemDpi();
  const int pixels = win32::Screens::ToPixels(width, dpi);
  // On screens of another scale the font may come out wider: lines are broken a little before there, and get more room.
  const HFONT font = theme_.Font(dpi, bold ? FontStyle::Bold : FontStyle::Plain);
  const SIZE size = Prose(text, font, pixels - pixels / 64).Size();
  return {win32::Screens::ToTwips(size.cx + size.cx / 20 + 1, dpi), win32::Screens::ToTwips(size.cy + 1, dpi)};
}

void Desktop::RunModal(form::Form& form) {
  while (!Ended() && form.Visible()) HandleNext();
}

void Desktop::Run() {
  while (!Ended()) HandleNext();
}

void Desktop::HandleNext() {
  MSG message;
  if (GetMessageW(&message, nullptr, 0, 0) <= 0) return End();
  FormWindow* const window = message.hwnd != nullptr ? FormWindow::From(GetAncestor(message.hwnd, GA_ROOT)) : nullptr;
  bool done = false;
  if (window != nullptr && !window->Retired()) {
    const auto handling = window->Handling();
    Guard([&] { done = window->Preview(message); });
  }
  if (!done) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  Sweep();
}

void Desktop::ReportError() const {
  try {
    if (OnError) OnError(std::current_exception());
  } catch (...) {
    // Not even the question could be asked. No exception may reach the system's code.
  }
}

void Desktop::StartTimer(form::Timer& timer) {
  StopTimer(timer);
  if (timer.Interval() <= 0) return;
  // Each start has its own id, so that a pending tick of an earlier start is ignored.
  timers_.push_back({++lastTimerId_, &timer});
  SetTimer(application_.Get(), lastTimerId_, static_cast<UINT>(timer.Interval()), nullptr);
}

void Desktop::StopTimer(form::Timer& timer) {
  const auto found = std::find_if(timers_.begin(), timers_.end(),
                                  [&](const RunningTimer& running) { return running.Timer == &timer; });
  if (found == timers_.end()) return;
  KillTimer(application_.Get(), found->Id);
  timers_.erase(found);
}

void Desktop::Tick(UINT_PTR id) {
  const auto found =
      std::find_if(timers_.begin(), timers_.end(), [&](const RunningTimer& running) { return running.Id == id; });
  if (found == timers_.end() || Ended()) return;
  form::Timer& timer = *found->Timer;
  Guard([&] { timer.InputTick(); });
}

LRESULT CALLBACK Desktop::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const desktop = reinterpret_cast<Desktop*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (desktop != nullptr) {
    switch (message) {
      case WM_TIMER:
        desktop->Tick(wParam);
        return 0;
      case WM_QUERYENDSESSION:
        return TRUE;
      case WM_ENDSESSION:
        if (wParam != 0) desktop->SessionEnds();
        return 0;
      case WM_SETTINGCHANGE:
      case WM_SYSCOLORCHANGE:
      case WM_THEMECHANGED:
      case WM_DISPLAYCHANGE:
        desktop->SettingsChanged();
        break;
      case WM_CLOSE:
        return 0;
      default:
        break;
    }
  }
  return DefWindowProcW(handle, message, wParam, lParam);
}

void Desktop::WakeUp() { PostMessageW(application_.Get(), WM_NULL, 0, 0); }

void Desktop::SessionEnds() {
  if (main_ == nullptr || Ended()) return;
  FormWindow& window = *main_;
  const auto handling = window.Handling();
  Guard([&] { window.Form().InputClose(); });
}

void Desktop::SettingsChanged() {
  theme_.Forget();
  screens_.Forget();
  // By index, because forms may be unloaded in the process.
  std::size_t next = 0;
  while (next < windows_.size()) {
    FormWindow& window = *windows_[next++];
    const auto handling = window.Handling();
    Guard([&] { window.ScreensChanged(); });
  }
}

std::unique_ptr<form::FormWindow> Desktop::MakeWindow(form::Form& form) {
  const bool modal = ModalForm() == &form;
  auto window = std::make_unique<FormWindow>(*this, form, main_ == nullptr);
  if (!modal && main_ == nullptr) main_ = window.get();
  windows_.push_back(window.get());
  window->ShowEnabled();
  return window;
}

void Desktop::Discard(std::unique_ptr<form::FormWindow> window) {
  std::unique_ptr<FormWindow> gone(static_cast<FormWindow*>(window.release()));
  std::erase(windows_, gone.get());
  if (main_ == gone.get()) main_ = nullptr;
  if (active_ == gone.get()) active_ = nullptr;
  // Windows destroys owned windows together with their owner.
  for (FormWindow* other : windows_) {
    if (other->OwnerWindow() == gone->Hwnd()) other->SetOwnerWindow(application_.Get());
  }
  gone->Retire();
  discarded_.push_back(std::move(gone));
  if (!Ended()) WakeUp();
}

void Desktop::Sweep() {
  const auto gone = std::stable_partition(discarded_.begin(), discarded_.end(),
                                          [](const auto& window) { return window->IsHandling(); });
  if (gone == discarded_.end()) return;
  // Destroying a window may trigger handlers, which may discard further windows.
  std::vector<std::unique_ptr<FormWindow>> doomed(std::make_move_iterator(gone),
                                                  std::make_move_iterator(discarded_.end()));
  discarded_.erase(gone, discarded_.end());
}

void Desktop::ModalChanged() {
  for (FormWindow* window : windows_) window->ShowEnabled();
}

HWND Desktop::OwnerFor(const FormWindow& window) const {
  // Wine can't stop a window being topmost while its owner is directly behind it.
  if (IsMain(window)) return nullptr;
  // Nor can it make a window topmost that owns another one above it. An attached form is placed explicitly.
  if (window.Form().Host() != nullptr) return nullptr;
  const FormWindow* owner = main_;
  if (ModalForm() == &window.Form() && active_ != nullptr && active_ != &window) owner = active_;
  // A window owned by a minimised or hidden one is invisible.
  const bool useful = owner != nullptr && IsWindowVisible(owner->Hwnd()) != FALSE && IsIconic(owner->Hwnd()) == FALSE;
  return useful ? owner->Hwnd() : application_.Get();
}

void Desktop::StandBehind(const FormWindow& window) const {
  if (!IsMain(window) || GetWindow(window.Hwnd(), GW_HWNDNEXT) == application_.Get()) return;
  SetWindowPos(application_.Get(), window.Hwnd(), 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

FormWindow* Desktop::SuccessorOf(const FormWindow& window) const {
  const auto suits = [&](const FormWindow* other) {
    return other != nullptr && other != &window && other->Form().Host() == nullptr &&
           IsWindowVisible(other->Hwnd()) != FALSE && IsWindowEnabled(other->Hwnd()) != FALSE &&
           IsIconic(other->Hwnd()) == FALSE;
  };
  FormWindow* const owner = FormWindow::From(window.OwnerWindow());
  if (suits(owner)) return owner;
  const auto found = std::find_if(windows_.rbegin(), windows_.rend(), suits);
  return found != windows_.rend() ? *found : nullptr;
}

}  // namespace vantor::win32
