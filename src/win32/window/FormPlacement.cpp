#include "win32/window/FormPlacement.h"

#include <algorithm>
#include <cmath>

#include "win32/draw/Areas.h"
#include "win32/draw/Screens.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

WindowStyles StylesOf(const form::Form& form) {
  if (form.BorderStyle() == form::BorderStyle::Dialog) {
    return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_DLGMODALFRAME};
  }
  if (form.Host() != nullptr) return {WS_POPUP | WS_CLIPCHILDREN, WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW};
  // The minimise box and the menu are not drawn, but let the taskbar minimise the window.
  return {WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN, 0};
}

FormPlacement::FormPlacement(FormWindow& owner)
    : owner_(owner), screenDpi_(AllScreens().DpiOf(AllScreens().PixelsOf(owner.Form().Bounds()))), dpi_(ScaledDpi()) {}

const Screens& FormPlacement::AllScreens() const { return owner_.Desktop().Screens(); }

int FormPlacement::ScaledDpi() const { return static_cast<int>(std::lround(screenDpi_ * owner_.Form().Scale())); }

RECT FormPlacement::BoundsInPixels() const {
  const form::Form& form = owner_.Form();
  RECT place = AllScreens().PixelsOf(form.Bounds());
  // While the form is between two screens, its size still is that of its controls.
  place.right = place.left + Screens::ToPixels(form.Inside().Width, dpi_);
  place.bottom = place.top + Screens::ToPixels(form.Inside().Height, dpi_);
  const WindowStyles styles = StylesOf(form);
  if ((styles.Style & WS_CAPTION) == WS_CAPTION) {
    const POINT corner{place.left, place.top};
    AllScreens().AddEdges(place, styles.Style, styles.Extended, screenDpi_);
    OffsetRect(&place, corner.x - place.left, corner.y - place.top);
  }
  return place;
}

void FormPlacement::Apply() {
  const HWND window = owner_.Hwnd();
  if (placing_ || IsIconic(window) != FALSE) return;
  const RECT place = BoundsInPixels();
  const RECT old = WindowArea(window);
  if (EqualRect(&place, &old) != FALSE) return;
  placing_ = true;
  SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  FitInside();
  placing_ = false;
}

/// Not every version of Windows scales title bars with the screen: what counts is the room for the controls.
void FormPlacement::FitInside() const {
  const HWND window = owner_.Hwnd();
  const RECT inside = ClientArea(window);
  const RECT whole = WindowArea(window);
  const LONG width = Screens::ToPixels(owner_.Form().Inside().Width, dpi_);
  const LONG height = Screens::ToPixels(owner_.Form().Inside().Height, dpi_);
  if (inside.right == width && inside.bottom == height) return;
  SetWindowPos(window, nullptr, 0, 0, whole.right - whole.left + width - inside.right,
               whole.bottom - whole.top + height - inside.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormPlacement::Report() {
  if (placing_ || !owner_.Form().Visible() || IsIconic(owner_.Hwnd()) != FALSE) return;
  const RECT place = WindowArea(owner_.Hwnd());
  const RECT known = BoundsInPixels();
  if (place.left == known.left && place.top == known.top) return;
  const form::Rect bounds = AllScreens().TwipsOf(place);
  owner_.Form().InputMoved(bounds.Left, bounds.Top);
}

/// The new place of the top left corner when the resolution changes. While the user drags the form, the point under the
/// cursor stays there; and the form's middle stays on its new screen, or the form would be sent back to the old one.
POINT FormPlacement::CornerAt(int dpi) const {
  const RECT place = WindowArea(owner_.Hwnd());
  POINT fixed{place.left, place.top};
  GUITHREADINFO thread{sizeof thread};
  if (GetGUIThreadInfo(GetCurrentThreadId(), &thread) && (thread.flags & GUI_INMOVESIZE) != 0) GetCursorPos(&fixed);
  const MONITORINFO screen = MonitorOf(owner_.Hwnd());
  const auto corner = [&](LONG at, LONG from, LONG to, LONG screenFrom, LONG screenTo) {
    const LONG half = MulDiv(to - from, dpi, screenDpi_) / 2;
    return std::clamp(at - MulDiv(at - from, dpi, screenDpi_), screenFrom - half, screenTo - half - 1);
  };
  return {corner(fixed.x, place.left, place.right, screen.rcMonitor.left, screen.rcMonitor.right),
          corner(fixed.y, place.top, place.bottom, screen.rcMonitor.top, screen.rcMonitor.bottom)};
}

void FormPlacement::MoveForDpi(int dpi) {
  const POINT corner = CornerAt(dpi);
  placing_ = true;
  SetWindowPos(owner_.Hwnd(), nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  placing_ = false;
}

bool FormPlacement::TakeScale() {
  const int dpi = ScaledDpi();
  if (dpi == dpi_) return false;
  dpi_ = dpi;
  Apply();
  return true;
}

bool FormPlacement::TakeScreenDpi(int dpi) {
  if (dpi == screenDpi_) return false;
  screenDpi_ = dpi;
  Report();
  owner_.Form().InputResolution();
  return true;
}

bool FormPlacement::TakeScreenDpi() { return TakeScreenDpi(AllScreens().DpiOf(owner_.Hwnd())); }

}  // namespace vantor::win32
