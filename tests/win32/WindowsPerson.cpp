#include <windows.h>

#include <deque>
#include <exception>
#include <stdexcept>
#include <utility>
#include <vector>

#include "contract/Person.h"
#include "form/Control.h"
#include "win32/ControlWindow.h"
#include "win32/WindowsDesktop.h"

namespace vantor::contract {

namespace {

/// A key that nothing reacts to. Input is handled in order, so when its release arrives all before it has been.
constexpr WORD SentinelKey = 0xE8;
constexpr DWORD Patience = 5000;  // milliseconds

HWND HandleOf(const form::Control& control) {
  const win32::ControlWindow* const window = win32::ControlWindow::Of(&control);
  return window != nullptr ? window->Hwnd() : nullptr;
}

HWND HandleOf(const form::Form& form) {
  const form::FormWindow* const window = form.Window();
  return window != nullptr ? static_cast<const win32::FormWindow*>(window)->Hwnd() : nullptr;
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

INPUT KeyInput(WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

INPUT MouseInput(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

/// Uses the keyboard and the mouse of the desktop that the test runs on. The windows must belong to this thread.
class WindowsPerson : public Person {
 public:
  WindowsPerson() {
    current_ = this;
    hook_ = SetWindowsHookExW(WH_GETMESSAGE, WatchMessages, nullptr, GetCurrentThreadId());
    watch_ = SetTimer(nullptr, 0, 10, WatchModal);
    desktop_.OnError = [this](const std::exception_ptr& error) {
      if (!error_) error_ = error;
    };
  }
  ~WindowsPerson() override {
    KillTimer(nullptr, watch_);
    UnhookWindowsHookEx(hook_);
    current_ = nullptr;
  }
  WindowsPerson(const WindowsPerson&) = delete;
  WindowsPerson& operator=(const WindowsPerson&) = delete;

  form::UserInterface& Ui() override { return desktop_; }

  void Type(std::wstring_view text) override {
    for (const wchar_t character : text) {
      const SHORT code = VkKeyScanW(character);
      const auto key = static_cast<WORD>(code & 0xFF);
      const bool shift = (code & 0x100) != 0;
      std::vector<INPUT> inputs;
      if (shift) inputs.push_back(KeyInput(VK_SHIFT, false));
      inputs.push_back(KeyInput(key, false));
      inputs.push_back(KeyInput(key, true));
      if (shift) inputs.push_back(KeyInput(VK_SHIFT, true));
      Do(inputs);
    }
  }

  void Press(form::Key key) override {
    Do({KeyInput(static_cast<WORD>(key), false), KeyInput(static_cast<WORD>(key), true)});
  }

  void Click(form::Control& control) override { ClickTimes(control, 1); }
  void DoubleClick(form::Control& control) override { ClickTimes(control, 2); }

  bool WaitUntil(const std::function<bool()>& condition) override {
    const DWORD start = GetTickCount();
    while (true) {
      desktop_.HandlePending();
      Rethrow();
      if (condition()) return true;
      if (GetTickCount() - start > Patience) return false;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
  }

  void WhenModal(std::function<void(form::Form&)> script) override { scripts_.push_back(std::move(script)); }

  std::wstring ShownText(const form::Control& control) override { return TextOf(HandleOf(control)); }
  std::wstring ShownSelection(const form::Control& control) override {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(HandleOf(control), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return ShownText(control).substr(start, end - start);
  }
  bool IsShown(const form::Control& control) override { return IsWindowVisible(HandleOf(control)) != FALSE; }
  bool IsShownEnabled(const form::Control& control) override { return IsWindowEnabled(HandleOf(control)) != FALSE; }
  bool IsShown(const form::Form& form) override { return IsWindowVisible(HandleOf(form)) != FALSE; }
  bool IsShownFocused(const form::Control& control) override {
    const HWND form = HandleOf(control.OwnerForm());
    return form != nullptr && IsWindowVisible(form) != FALSE && GetForegroundWindow() == form &&
           GetFocus() == HandleOf(control);
  }

 private:
  static LRESULT CALLBACK WatchMessages(int code, WPARAM removed, LPARAM message) {
    const auto& seen = *reinterpret_cast<const MSG*>(message);
    const bool released = seen.message == WM_KEYUP || seen.message == WM_SYSKEYUP;
    if (code >= 0 && removed == PM_REMOVE && released && seen.wParam == SentinelKey) ++current_->sentinelsSeen_;
    return CallNextHookEx(nullptr, code, removed, message);
  }

  /// Runs the next script when the modal form it is for has come up. Called from the modal form's own loop.
  static void CALLBACK WatchModal(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    WindowsPerson& person = *current_;
    form::Form* const modal = person.desktop_.ModalForm();
    if (modal == nullptr || person.inScript_ == modal || !person.IsShown(*modal)) return;
    try {
      if (person.scripts_.empty()) throw std::logic_error("a modal form that the test does not expect");
      const auto script = std::move(person.scripts_.front());
      person.scripts_.pop_front();
      const auto* const outer = std::exchange(person.inScript_, modal);
      script(*modal);
      person.inScript_ = outer;
    } catch (...) {
      // Exceptions must not pass through the system.
      person.inScript_ = nullptr;
      if (!person.error_) person.error_ = std::current_exception();
      modal->Unload();
    }
  }

  void Rethrow() {
    if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
  }

  /// Puts the input in and handles it.
  void Do(std::vector<INPUT> inputs) {
    const int awaited = sentinelsSeen_ + 1;
    inputs.push_back(KeyInput(SentinelKey, false));
    inputs.push_back(KeyInput(SentinelKey, true));
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    if (!WaitUntil([&] { return sentinelsSeen_ >= awaited; })) throw std::logic_error("the input does not arrive");
    desktop_.HandlePending();
    Rethrow();
  }

  void ClickTimes(form::Control& control, int times) {
    RECT place{};
    GetWindowRect(HandleOf(control), &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    // Two clicks on one place must not come out as a double click unless they are one.
    WaitUntil([&] { return GetTickCount() - lastClick_ > GetDoubleClickTime(); });
    std::vector<INPUT> inputs;
    for (int i = 0; i < times; ++i) {
      inputs.push_back(MouseInput(MOUSEEVENTF_LEFTDOWN));
      inputs.push_back(MouseInput(MOUSEEVENTF_LEFTUP));
    }
    lastClick_ = GetTickCount();
    Do(std::move(inputs));
  }

  static inline WindowsPerson* current_ = nullptr;

  win32::Desktop desktop_;
  HHOOK hook_ = nullptr;
  UINT_PTR watch_ = 0;
  std::deque<std::function<void(form::Form&)>> scripts_;
  const form::Form* inScript_ = nullptr;
  std::exception_ptr error_;
  int sentinelsSeen_ = 0;
  DWORD lastClick_ = 0;
};

}  // namespace

std::unique_ptr<Person> MakePerson() { return std::make_unique<WindowsPerson>(); }

}  // namespace vantor::contract
