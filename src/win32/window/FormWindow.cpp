#include "win32/window/FormWindow.h"

#include "win32/draw/Areas.h"
#include "win32/draw/Screens.h"
#include "win32/draw/WindowEdge.h"
#include "win32/window/Accessible.h"
#include "win32/window/ControlWindow.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

namespace {

constexpr wchar_t DialogClass[] = L"VantorDialog";
constexpr wchar_t LineClass[] = L"VantorForm";  // without a title bar, but with a shadow
/// The program's icon in its resources.
constexpr WORD IconId = 1;

const wchar_t* FormClass(form::BorderStyle border, WNDPROC procedure) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  const wchar_t* const name = border == form::BorderStyle::Line ? LineClass : DialogClass;
  WNDCLASSW description{};
  if (GetClassInfoW(instance, name, &description) != FALSE) return name;
  description = {};
  if (border == form::BorderStyle::Line) description.style = CS_DROPSHADOW;
  description.lpfnWndProc = procedure;
  description.hInstance = instance;
  description.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(IconId));
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = name;
  RegisterClassW(&description);
  return name;
}

/// After a drag, one more move may be reported with the button held down although it is up: the mouse itself is asked.
bool LeftIsHeld(WPARAM buttons) {
  const int left = GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON;
  return (buttons & MK_LBUTTON) != 0 && GetAsyncKeyState(left) < 0;
}

}  // namespace

FormWindow::FormWindow(win32::Desktop& desktop, form::Form& form, bool onTaskbar)
    : desktop_(desktop),
      form_(form),
      owner_(desktop.ApplicationWindow()),
      placement_(*this),
      keys_(form),
      controls_(*this),
      tips_(*this),
      drops_(*this) {
  const WindowStyles styles = StylesOf(form_);
  const RECT place = placement_.BoundsInPixels();
  handle_.Reset(CreateWindowExW(styles.Extended | (onTaskbar ? WS_EX_APPWINDOW : 0),
                                FormClass(form_.BorderStyle(), Procedure), form_.Caption().c_str(), styles.Style,
                                place.left, place.top, place.right - place.left, place.bottom - place.top, owner_,
                                nullptr, GetModuleHandleW(nullptr), nullptr));
  SetWindowLongPtrW(Hwnd(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  // The bar is there as soon as one can type: the other windows and the outline are made when its text box is painted,
  // before any input is handled.
  if (form::Control* const first = onTaskbar ? form_.ActiveControl() : nullptr) {
    controls_.MakeFirst(*first);
  } else {
    Complete();
  }
  if (form_.TopMost()) SetTopMost(true);
  if (form_.AcceptsDrops()) drops_.BeginLater();
}

FormWindow::~FormWindow() {
  retired_ = true;
  drops_.End();
  handle_.Reset();
}

FormWindow* FormWindow::From(HWND handle) {
  if (handle == nullptr || GetWindowThreadProcessId(handle, nullptr) != GetCurrentThreadId() ||
      GetClassLongPtrW(handle, GCLP_WNDPROC) != reinterpret_cast<ULONG_PTR>(Procedure)) {
    return nullptr;
  }
  return reinterpret_cast<FormWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
}

void FormWindow::Complete() {
  complete_ = true;
  controls_.Make(nullptr);
  Shape();
}

void FormWindow::SetOwnerWindow(HWND owner) {
  if (owner == owner_) return;
  owner_ = owner;
  SetWindowLongPtrW(Hwnd(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

void FormWindow::Retire() {
  retired_ = true;
  ShowWindow(Hwnd(), SW_HIDE);
}

void FormWindow::Changed(form::Property property) {
  switch (property) {
    case form::Property::Bounds:
      TakeScale();
      placement_.Apply();
      break;
    case form::Property::Visible:
      ShowVisible();
      break;
    case form::Property::Caption:
      SetWindowTextW(Hwnd(), form_.Caption().c_str());
      break;
    case form::Property::Colors:
      RedrawWindow(Hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      break;
    case form::Property::Value:
      if (form_.Visible()) {
        ShowWindow(Hwnd(), form_.WindowState() == form::WindowState::Minimized ? SW_MINIMIZE : SW_RESTORE);
      }
      break;
    default:
      break;
  }
}

void FormWindow::ShowVisible() {
  if (form_.Visible()) {
    SetOwnerWindow(desktop_.OwnerFor(*this));
    placement_.Apply();
    if (placement_.TakeScreenDpi()) TakeScale();  // a hidden window may not have been told
    if (form_.Host() != nullptr) return ShowOnHost();
    SetWindowPos(Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    if (form_.WindowState() == form::WindowState::Minimized) {
      ShowWindow(Hwnd(), SW_MINIMIZE);
    } else {
      SetForegroundWindow(Hwnd());
      desktop_.StandBehind(*this);
      UpdateWindow(Hwnd());
    }
    if (!complete_) {
      Complete();
      UpdateWindow(Hwnd());
    }
    return;
  }
  // Otherwise the system would bring another program's window to the front.
  if (GetActiveWindow() == Hwnd()) {
    if (const FormWindow* successor = desktop_.SuccessorOf(*this)) SetActiveWindow(successor->Hwnd());
  }
  ShowWindow(Hwnd(), SW_HIDE);
  // A screen reader may have been led to a row of it.
  if (form_.Host() != nullptr) NotifyWinEvent(EVENT_OBJECT_FOCUS, GetFocus(), OBJID_CLIENT, CHILDID_SELF);
  SetOwnerWindow(nullptr);  // Wine does not make a window topmost that owns a hidden one
  desktop_.WakeUp();
}

/// Shows the window without taking the focus from the host.
void FormWindow::ShowOnHost() {
  SetWindowPos(Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  SetTopMost(form_.TopMost());
  ShowWindow(Hwnd(), SW_SHOWNA);
  RedrawWindow(Hwnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void FormWindow::ShowEnabled() {
  const form::Form* const modal = desktop_.ModalForm();
  EnableWindow(Hwnd(), modal == nullptr || modal == &form_);
}

void FormWindow::SetTopMost(bool topMost) {
  SetWindowPos(Hwnd(), topMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  if (topMost) tips_.Raise();
  if (const auto* host = form_.Host() != nullptr ? static_cast<FormWindow*>(form_.Host()->Window()) : nullptr) {
    SetWindowPos(host->Hwnd(), Hwnd(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    desktop_.StandBehind(*host);
  }
  desktop_.StandBehind(*this);
}

void FormWindow::Drag() {
  // The system has consumed the release of the button by the time the move ends.
  const DWORD point = GetMessagePos();
  ReleaseCapture();
  SendMessageA(Hwnd(), WM_NCLBUTTONDOWN, HTCAPTION, static_cast<LPARAM>(point));
  if (!retired_) placement_.Report();
}

void FormWindow::Activate() {
  if (IsWindowVisible(Hwnd()) == FALSE || GetActiveWindow() == Hwnd()) return;
  // If the user is working in another program's window, that stays in front.
  DWORD process = 0;
  const HWND foreground = GetForegroundWindow();
  if (foreground != nullptr) GetWindowThreadProcessId(foreground, &process);
  if (process == 0 || process == GetCurrentProcessId()) {
    SetForegroundWindow(Hwnd());
  } else {
    SetActiveWindow(Hwnd());
  }
}

/// Fits the window's outline to its size.
void FormWindow::Shape() const {
  if (form_.BorderStyle() != form::BorderStyle::Line || IsIconic(Hwnd()) != FALSE) return;
  RoundCorners(Hwnd(), desktop_.Theme().Colors(), Dpi() / 96.0);
  // Controls at the old edge still show a part of it.
  RedrawWindow(Hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::Refresh() {
  Shape();
  controls_.Refresh();
  RedrawWindow(Hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void FormWindow::TakeScale() {
  if (!placement_.TakeScale()) return;
  tips_.Forget();
  Refresh();
}

void FormWindow::OnDpiChanged(int dpi) {
  placement_.MoveForDpi(dpi);
  placement_.TakeScreenDpi(dpi);
  TakeScale();
  placement_.Apply();
}

void FormWindow::ScreensChanged() {
  if (!placement_.TakeScreenDpi()) placement_.Report();  // the same pixels may now be at another place on the desktop
  TakeScale();
  Refresh();
  form_.InputScreensChanged();
}

void FormWindow::OnSize(WPARAM kind) {
  if (!form_.Visible()) return;
  const auto state = kind == SIZE_MINIMIZED ? form::WindowState::Minimized : form::WindowState::Normal;
  if (state == form_.WindowState()) return;
  form_.InputWindowState(state);
  if (state == form::WindowState::Minimized) return;
  placement_.Apply();  // the program may have moved the form while it was minimised
  if (GetActiveWindow() == Hwnd()) GiveFocus();
}

/// Passes the focus on to a control, because the form itself does not use it.
void FormWindow::GiveFocus() const {
  const form::Control* const control = form_.ActiveControl();
  if (control != nullptr && control->Window() != nullptr) control->Window()->TakeFocus();
}

bool FormWindow::Preview(const MSG& message) {
  if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) {
    const bool character = message.message == WM_CHAR || message.message == WM_SYSCHAR;
    return !character && keys_.OnKey(message);
  }
  if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) tips_.Relay(message);
  return false;
}

void FormWindow::MouseMoves(WPARAM buttons) {
  form_.InputMouseMove(LeftIsHeld(buttons) ? form::MouseButton::Left : form::MouseButton::None);
}

LRESULT CALLBACK FormWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  FormWindow* const window = From(handle);
  if (window == nullptr || window->retired_) return DefWindowProcW(handle, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    static_cast<void>(window->handle_.Release());  // the system destroys it, not this program
    return DefWindowProcW(handle, message, wParam, lParam);
  }
  const auto handling = window->Handling();
  LRESULT result = 0;
  window->desktop_.Guard([&] { result = window->OnMessage(message, wParam, lParam); });
  return result;
}

/// Paints the colour of the form, and its line.
void FormWindow::PaintBackground(HDC dc) const {
  const RECT area = ClientArea(Hwnd());
  const Theme& theme = desktop_.Theme();
  const COLORREF background = theme.Background(form_.BackColor());
  if (form_.BorderStyle() == form::BorderStyle::Line) {
    PaintWindow(dc, {area.right, area.bottom}, theme, background, Dpi() / 96.0);
  } else {
    FillRect(dc, &area, theme.Brush(background));
  }
}

void FormWindow::OnActivate(bool active) {
  form_.InputActive(active);
  if (active) {
    desktop_.Activated(*this);
    desktop_.StandBehind(*this);  // other programs' windows may have got in between
  } else {
    keys_.Forget();
  }
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = ControlWindow::Reflect(message, wParam, lParam)) return *result;
  switch (message) {
    case WM_ERASEBKGND:
      PaintBackground(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_MOUSEACTIVATE:
      if (form_.Host() != nullptr) return MA_NOACTIVATE;
      break;
    case WM_LBUTTONDOWN:
      form_.InputMouseDown();
      SetCapture(Hwnd());  // the mouse soon leaves a narrow gap between buttons
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return 0;
    case WM_MOUSEMOVE:
      MouseMoves(wParam);
      return 0;
    case WM_ACTIVATE:
      OnActivate(LOWORD(wParam) != WA_INACTIVE);
      break;
    case WM_SETFOCUS:
      GiveFocus();
      return 0;
    case WM_SIZE:
      Shape();
      OnSize(wParam);
      break;
    case WM_WINDOWPOSCHANGED:
      placement_.Report();
      break;  // which sends WM_SIZE
    case WM_DPICHANGED:
      // The place that it suggests is ignored: any program may send any address.
      OnDpiChanged(desktop_.Screens().WithTextScale(HIWORD(wParam)));
      return 0;
    case WM_CLOSE:
      form_.InputClose();
      return 0;
    default:
      return OnSystemMessage(message, wParam, lParam);
  }
  return DefWindowProcW(Hwnd(), message, wParam, lParam);
}

/// Handles messages of the system and other programs.
LRESULT FormWindow::OnSystemMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SYSCOMMAND:
      // F10 and Alt would open a menu that the form doesn't have; Alt+Space opens the system menu.
      if ((wParam & 0xFFF0) == SC_KEYMENU && lParam != VK_SPACE) return 0;
      break;
    case WM_GETOBJECT:
      if (const auto answer = AnswerAccessibility(Hwnd(), desktop_.Com(), wParam, lParam)) return *answer;
      break;
    case WM_NOTIFY:
      if (tips_.OnNotify(*reinterpret_cast<NMHDR*>(lParam))) return 0;
      break;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (wParam != 0) desktop_.SessionEnds();
      return 0;
    default:
      if (drops_.OnMessage(message, wParam)) return 0;
      break;
  }
  return DefWindowProcW(Hwnd(), message, wParam, lParam);
}

}  // namespace vantor::win32
