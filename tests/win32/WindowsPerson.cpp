#include <windows.h>

#include <deque>
#include <exception>
#include <stdexcept>
#include <utility>

#include "contract/Person.h"
#include "driver/Input.h"
#include "form/TextBox.h"
#include "win32/window/ControlWindow.h"
#include "win32/window/WindowsDesktop.h"

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

  form::UserInterface& Ui() override { return desktop_; }

  void Type(std::wstring_view text) override {
    for (const wchar_t character : text) {
      desktop::input::Type(std::wstring(1, character));
      AwaitHandled();
    }
  }
  void Press(form::Key key) override {
    desktop::input::Press(static_cast<WORD>(key));
    AwaitHandled();
  }
  void Click(form::Control& control) override {
    desktop::input::Click(desktop::window::Middle(HandleOf(control)));
    AwaitHandled();
  }
  void DoubleClick(form::Control& control) override {
    desktop::input::Click(desktop::window::Middle(HandleOf(control)), true);
    AwaitHandled();
  }
  void Turn(form::Control& control, int rows) override {
    desktop::input::Mouse(desktop::window::Middle(HandleOf(control)));
    desktop::input::Wheel(rows);
    AwaitHandled();
  }
  void Compose(form::TextBox& box, bool begins) override {
    SendMessageW(HandleOf(box), begins ? WM_IME_STARTCOMPOSITION : WM_IME_ENDCOMPOSITION, 0, 0);
  }

  bool WaitUntil(const std::function<bool()>& condition) override {
    const DWORD start = GetTickCount();
    while (true) {
      desktop_.HandlePending();
      if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
      if (condition()) return true;
      if (GetTickCount() - start > Patience) return false;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
  }

  void WhenModal(std::function<void(form::Form&)> script) override { scripts_.push_back(std::move(script)); }

  bool HasKeyboard(const form::Control& control) override {
    HWND const window = HandleOf(control);
    return IsWindowVisible(window) && desktop::window::Focus(HandleOf(control.OwnerForm())) == window;
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
    if (modal == nullptr || person.inScript_ == modal || !IsWindowVisible(HandleOf(*modal))) return;
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

  /// Waits until the input that was sent has been handled.
  void AwaitHandled() {
    const int awaited = sentinelsSeen_ + 1;
    desktop::input::Press(SentinelKey);
    if (!WaitUntil([&] { return sentinelsSeen_ >= awaited; })) throw std::logic_error("the input does not arrive");
  }

  static inline WindowsPerson* current_ = nullptr;

  win32::Desktop desktop_;
  HHOOK hook_ = nullptr;
  UINT_PTR watch_ = 0;
  std::deque<std::function<void(form::Form&)>> scripts_;
  const form::Form* inScript_ = nullptr;
  std::exception_ptr error_;
  int sentinelsSeen_ = 0;
};

}  // namespace

std::unique_ptr<Person> MakePerson() { return std::make_unique<WindowsPerson>(); }

}  // namespace vantor::contract
