#pragma once

#include <windows.h>

#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "form/UserInterface.h"
#include "win32/base/Com.h"
#include "win32/base/Handle.h"
#include "win32/draw/Theme.h"
#include "win32/window/FormWindow.h"

namespace vantor::win32 {

/// Forms as real windows. There is one per program, on the thread that uses it.
class Desktop final : public form::UserInterface {
 public:
  Desktop();
  ~Desktop() override;

  /// Called for exceptions that reach a window procedure or the message loop. They are caught there; the loop goes on.
  std::function<void(std::exception_ptr)> OnError;

  /// Sets the title of the hidden application window, by which other copies of the program find this one.
  void SetApplicationTitle(std::wstring_view title);
  /// The hidden window (class "ThunderRT6Main") that owns the forms' windows.
  [[nodiscard]] HWND ApplicationWindow() const { return application_.Get(); }

  [[nodiscard]] form::Screen ScreenAt(const form::Rect& place) const override;
  [[nodiscard]] form::Screen PrimaryScreen() const override;
  [[nodiscard]] form::Size MeasureText(std::wstring_view text, bool bold, form::Twips width) const override;
  void RunModal(form::Form& form) override;
  void Run() override;
  void StartTimer(form::Timer& timer) override;
  void StopTimer(form::Timer& timer) override;

  // For the windows.

  [[nodiscard]] const win32::Screens& Screens() const { return screens_; }
  [[nodiscard]] const win32::Theme& Theme() const { return theme_; }
  /// To be entered by whatever needs COM.
  [[nodiscard]] Apartment& Com() { return com_; }
  /// Runs a function and reports exceptions to OnError.
  template <class Work>
  void Guard(const Work& work) const {
    try {
      work();
    } catch (...) {
      ReportError();
    }
  }
  [[nodiscard]] bool IsMain(const FormWindow& window) const { return &window == main_; }
  /// The owner for a window, which it stays above: the bar for a panel, the active window for a modal form.
  [[nodiscard]] HWND OwnerFor(const FormWindow& window) const;
  /// Puts the application window directly behind the main form, where other copies of the program expect it.
  void StandBehind(const FormWindow& window) const;
  /// The window that comes to the front when this one closes; null for none.
  [[nodiscard]] FormWindow* SuccessorOf(const FormWindow& window) const;
  void Activated(FormWindow& window) { active_ = &window; }
  /// Makes the loops check again whether they are to end.
  void WakeUp() override;
  /// Windows shuts down: the main form closes, once.
  void SessionEnds();
  void SettingsChanged();

 protected:
  std::unique_ptr<form::FormWindow> MakeWindow(form::Form& form) override;
  void Discard(std::unique_ptr<form::FormWindow> window) override;
  void ModalChanged() override;

 private:
  struct RunningTimer {
    UINT_PTR Id;
    form::Timer* Timer;
  };

  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  void ReportError() const;
  void HandleNext();
  void Tick(UINT_PTR id);
  /// Destroys the discarded windows that are not handling a message any more.
  void Sweep();

  win32::Screens screens_;
  win32::Theme theme_{screens_};
  Apartment com_;
  WindowHandle application_;
  std::vector<FormWindow*> windows_;
  std::vector<std::unique_ptr<FormWindow>> discarded_;
  FormWindow* main_ = nullptr;    // the bar: the first form that was shown non-modally
  FormWindow* active_ = nullptr;  // the one activated last
  std::vector<RunningTimer> timers_;
  UINT_PTR lastTimerId_ = 0;
};

}  // namespace vantor::win32
