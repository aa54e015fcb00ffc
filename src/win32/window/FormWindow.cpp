#include "win32/window/FormWindow.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "win32/draw/Screens.h"
#include "win32/window/Accessible.h"
#include "win32/window/ButtonWindow.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

namespace {

constexpr wchar_t FormClass[] = L"VantorForm";
/// A form's edge, in twips.
constexpr form::Twips LineThickness = 15;
/// The program's icon in its resources.
constexpr WORD IconId = 1;

// Messages of the form's window to itself, for what is put off.
constexpr UINT AcceptDropsMessage = WM_APP + 1;
constexpr UINT DroppedMessage = WM_APP + 2;

void RegisterFormClass(WNDPROC procedure) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSW description{};
  if (GetClassInfoW(instance, FormClass, &description) != FALSE) return;
  description = {};
  description.lpfnWndProc = procedure;
  description.hInstance = instance;
  description.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(IconId));
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = FormClass;
  RegisterClassW(&description);
}

struct Styles {
  DWORD Style;
  DWORD Extended;
};

Styles StylesOf(const form::Form& form) {
  if (form.BorderStyle() == form::BorderStyle::Dialog) {
    return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_DLGMODALFRAME};
  }
  // The box and the menu are not drawn, but let the taskbar minimise the window.
  return {WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN, 0};
}

int Scaled(int screenDpi, const form::Form& form) { return static_cast<int>(std::lround(screenDpi * form.Scale())); }

form::MouseButton HeldButton(WPARAM buttons) {
  if ((buttons & MK_LBUTTON) != 0) return form::MouseButton::Left;
  if ((buttons & MK_RBUTTON) != 0) return form::MouseButton::Right;
  if ((buttons & MK_MBUTTON) != 0) return form::MouseButton::Middle;
  return form::MouseButton::None;
}

}  // namespace

FormWindow::FormWindow(win32::Desktop& desktop, form::Form& form, bool onTaskbar)
    : desktop_(desktop),
      form_(form),
      screenDpi_(Screens::DpiOf(Screens::PixelsOf(form.Bounds()))),
      dpi_(Scaled(screenDpi_, form)),
      owner_(desktop.ApplicationWindow()),
      tips_(*this) {
  RegisterFormClass(Procedure);
  const Styles styles = StylesOf(form_);
  const RECT place = PlaceInPixels();
  handle_.Reset(CreateWindowExW(styles.Extended | (onTaskbar ? WS_EX_APPWINDOW : 0), FormClass, form_.Caption().c_str(),
                                styles.Style, place.left, place.top, place.right - place.left, place.bottom - place.top,
                                owner_, nullptr, GetModuleHandleW(nullptr), nullptr));
  SetWindowLongPtrW(Hwnd(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  for (form::Control* control : form_.Controls()) control->AttachWindow(&unmade_);
  MakeControls(nullptr);
  if (form_.TopMost()) SetTopMost(true);
  // Only once the form has been shown: what this needs of the system takes its time.
  if (form_.AcceptsDrops()) PostMessageW(Hwnd(), AcceptDropsMessage, 0, 0);
}

FormWindow::~FormWindow() {
  retired_ = true;
  drops_.reset();
  handle_.Reset();
}

FormWindow* FormWindow::From(HWND handle) {
  if (handle == nullptr || GetWindowThreadProcessId(handle, nullptr) != GetCurrentThreadId() ||
      GetClassLongPtrW(handle, GCLP_WNDPROC) != reinterpret_cast<ULONG_PTR>(Procedure)) {
    return nullptr;
  }
  return reinterpret_cast<FormWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
}

void FormWindow::MakeControls(const form::Control* container) {
  const std::vector<form::Control*>& controls = form_.Controls();
  const bool others = std::any_of(controls.begin(), controls.end(), [&](const form::Control* control) {
    return control->Container() == container && win32::ControlWindow::Of(control) != nullptr;
  });
  // From the foremost to the hindmost, because the system puts a new window behind its siblings.
  HWND before = HWND_TOP;
  for (auto next = controls.rbegin(); next != controls.rend(); ++next) {
    form::Control* const control = *next;
    if (control->Container() != container) continue;
    if (control->Window() == &unmade_ && control->Visible() && !ButtonWindow::IsOnFace(*control)) {
      controls_.push_back(win32::ControlWindow::Make(*this, *control));
      if (others) {
        SetWindowPos(controls_.back()->Hwnd(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      }
    }
    if (const auto* window = win32::ControlWindow::Of(control)) before = window->Hwnd();
  }
  for (const form::Control* control : controls) {
    if (control->Container() == container && win32::ControlWindow::Of(control) != nullptr) MakeControls(control);
  }
}

void FormWindow::SetOwnerWindow(HWND owner) {
  if (owner == owner_) return;
  owner_ = owner;
  SetWindowLongPtrW(Hwnd(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

ControlWindow* FormWindow::Find(HWND handle) const {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) { return control->Hwnd() == handle; });
  return found != controls_.end() ? found->get() : nullptr;
}

void FormWindow::Retire() {
  retired_ = true;
  ShowWindow(Hwnd(), SW_HIDE);
}

void FormWindow::Changed(form::Property property) {
  switch (property) {
    case form::Property::Bounds:
      TakeScale();
      Place();
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

void FormWindow::AcceptDrops() {
  drops_.emplace(
      Hwnd(), [this] { return !retired_ && form_.AcceptsInput(); },
      [this](form::DroppedItems items) {
        dropped_ = std::move(items);
        PostMessageW(Hwnd(), DroppedMessage, 0, 0);  // the program that they come from is waiting
      });
}

void FormWindow::TakeDrop() {
  form::DroppedItems items = std::exchange(dropped_, {});
  if (items.Paths.size() == 1) items.Address = WebAddressIn(items.Paths.front());
  if (!items.Address.empty()) items.Paths.clear();
  for (std::wstring& path : items.Paths) path = ShortcutTarget(path);
  SetForegroundWindow(Hwnd());
  form_.InputDrop(items);
}

void FormWindow::ShowVisible() {
  if (form_.Visible()) {
    SetOwnerWindow(desktop_.OwnerFor(*this));
    Place();
    if (const int dpi = Screens::DpiOf(Hwnd()); dpi != screenDpi_) TakeScreenDpi(dpi);  // one may not be told hidden
    SetWindowPos(Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    if (form_.WindowState() == form::WindowState::Minimized) {
      ShowWindow(Hwnd(), SW_MINIMIZE);
    } else {
      SetForegroundWindow(Hwnd());
      desktop_.StandBehind(*this);
      UpdateWindow(Hwnd());
    }
    return;
  }
  // Otherwise the system brings another program's window to the front.
  if (GetActiveWindow() == Hwnd()) {
    if (const FormWindow* successor = desktop_.SuccessorOf(*this)) SetActiveWindow(successor->Hwnd());
  }
  ShowWindow(Hwnd(), SW_HIDE);
  SetOwnerWindow(nullptr);  // Wine does not let a window into the topmost band that owns a hidden one
  desktop_.WakeUp();
}

void FormWindow::ShowEnabled() {
  const form::Form* const modal = desktop_.ModalForm();
  EnableWindow(Hwnd(), modal == nullptr || modal == &form_);
}

void FormWindow::SetTopMost(bool topMost) {
  SetWindowPos(Hwnd(), topMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  if (topMost) tips_.Raise();
  desktop_.StandBehind(*this);
}

void FormWindow::Drag() {
  // The system has taken the button's release by the time the move ends.
  const DWORD point = GetMessagePos();
  ReleaseCapture();
  SendMessageA(Hwnd(), WM_NCLBUTTONDOWN, HTCAPTION, static_cast<LPARAM>(point));
  if (!retired_) ReportPlace();
}

void FormWindow::Activate() {
  if (IsWindowVisible(Hwnd()) == FALSE || GetActiveWindow() == Hwnd()) return;
  // Another program's window that the user works in is left in front.
  DWORD process = 0;
  const HWND foreground = GetForegroundWindow();
  if (foreground != nullptr) GetWindowThreadProcessId(foreground, &process);
  if (process == 0 || process == GetCurrentProcessId()) {
    SetForegroundWindow(Hwnd());
  } else {
    SetActiveWindow(Hwnd());
  }
}

RECT FormWindow::PlaceInPixels() const {
  RECT place = Screens::PixelsOf(form_.Bounds());
  // While it is between two screens, its size is still that of its controls.
  place.right = place.left + Screens::ToPixels(form_.Inside().Width, dpi_);
  place.bottom = place.top + Screens::ToPixels(form_.Inside().Height, dpi_);
  const Styles styles = StylesOf(form_);
  if ((styles.Style & WS_CAPTION) == WS_CAPTION) {
    const POINT corner{place.left, place.top};
    Screens::AddEdges(place, styles.Style, styles.Extended, screenDpi_);
    OffsetRect(&place, corner.x - place.left, corner.y - place.top);
  }
  return place;
}

void FormWindow::Place() {
  if (placing_ || IsIconic(Hwnd()) != FALSE) return;
  const RECT place = PlaceInPixels();
  RECT old;
  GetWindowRect(Hwnd(), &old);
  if (EqualRect(&place, &old) != FALSE) return;
  placing_ = true;
  SetWindowPos(Hwnd(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  FitInside();
  placing_ = false;
}

/// Not every Windows scales a title bar with the screen: what counts is that the controls have their room.
void FormWindow::FitInside() const {
  RECT inside;
  RECT whole;
  GetClientRect(Hwnd(), &inside);
  GetWindowRect(Hwnd(), &whole);
  const LONG width = Screens::ToPixels(form_.Inside().Width, dpi_);
  const LONG height = Screens::ToPixels(form_.Inside().Height, dpi_);
  if (inside.right == width && inside.bottom == height) return;
  SetWindowPos(Hwnd(), nullptr, 0, 0, whole.right - whole.left + width - inside.right,
               whole.bottom - whole.top + height - inside.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::ReportPlace() {
  if (placing_ || !form_.Visible() || IsIconic(Hwnd()) != FALSE) return;
  RECT place;
  GetWindowRect(Hwnd(), &place);
  const RECT known = PlaceInPixels();
  if (place.left == known.left && place.top == known.top) return;
  const form::Rect bounds = Screens::TwipsOf(place);
  form_.InputMoved(bounds.Left, bounds.Top);
}

void FormWindow::Refresh() {
  for (const auto& control : controls_) control->Refresh();
  RedrawWindow(Hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

/// Where the top left corner goes when the resolution changes. While the user drags the form, what is under the cursor
/// stays there; and the form's middle stays on the screen that it came to, or it would be sent back to the other.
POINT FormWindow::CornerAt(int dpi) const {
  RECT place;
  GetWindowRect(Hwnd(), &place);
  POINT fixed{place.left, place.top};
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  if (GetGUIThreadInfo(GetCurrentThreadId(), &thread) && (thread.flags & GUI_INMOVESIZE) != 0) GetCursorPos(&fixed);
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  GetMonitorInfoW(MonitorFromWindow(Hwnd(), MONITOR_DEFAULTTONEAREST), &screen);
  const auto corner = [&](LONG at, LONG from, LONG to, LONG screenFrom, LONG screenTo) {
    const LONG half = MulDiv(to - from, dpi, screenDpi_) / 2;
    return std::clamp(at - MulDiv(at - from, dpi, screenDpi_), screenFrom - half, screenTo - half - 1);
  };
  return {corner(fixed.x, place.left, place.right, screen.rcMonitor.left, screen.rcMonitor.right),
          corner(fixed.y, place.top, place.bottom, screen.rcMonitor.top, screen.rcMonitor.bottom)};
}

void FormWindow::OnDpiChanged(int dpi) {
  const POINT corner = CornerAt(dpi);
  placing_ = true;
  SetWindowPos(Hwnd(), nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  placing_ = false;
  TakeScreenDpi(dpi);
}

void FormWindow::TakeScreenDpi(int dpi) {
  screenDpi_ = dpi;
  ReportPlace();
  form_.InputResolution();
  TakeScale();
  Place();
}

void FormWindow::TakeScale() {
  const int dpi = Scaled(screenDpi_, form_);
  if (dpi == dpi_) return;
  dpi_ = dpi;
  Place();
  tips_.Forget();
  Refresh();
}

void FormWindow::ScreensChanged() {
  if (const int dpi = Screens::DpiOf(Hwnd()); dpi != screenDpi_) {
    TakeScreenDpi(dpi);
  } else {
    ReportPlace();  // the same pixels may lie elsewhere on the desktop now
  }
  Refresh();
  form_.InputScreensChanged();
}

void FormWindow::OnSize(WPARAM kind) {
  if (!form_.Visible()) return;
  const auto state = kind == SIZE_MINIMIZED ? form::WindowState::Minimized : form::WindowState::Normal;
  if (state == form_.WindowState()) return;
  form_.InputWindowState(state);
  if (state == form::WindowState::Minimized) return;
  Place();  // the program may have moved the form meanwhile
  if (GetActiveWindow() == Hwnd()) GiveFocus();
}

/// The form itself does nothing with the keyboard.
void FormWindow::GiveFocus() const {
  const form::Control* const control = form_.ActiveControl();
  if (control != nullptr && control->Window() != nullptr) control->Window()->TakeFocus();
}

void FormWindow::MouseMoves(WPARAM buttons) { form_.InputMouseMove(HeldButton(buttons)); }

bool FormWindow::Preview(const MSG& message) {
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
      return OnKey(message);
    default:
      if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) tips_.Relay(message);
      return false;
  }
}

bool FormWindow::OnKey(const MSG& message) {
  const WPARAM key = message.wParam;
  if (key >= keysDown_.size()) return false;
  const ControlWindow* const control = ControlWindow::From(message.hwnd);
  if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) {
    const bool functionKey = key >= VK_F1 && key <= VK_F12;
    keysDown_[key] = functionKey || control == nullptr || !control->KeepsKeys();
    const bool plainTab = key == VK_TAB && message.message == WM_KEYDOWN && GetKeyState(VK_CONTROL) >= 0;
    if (!plainTab || !form_.AcceptsInput()) return false;
    form_.MoveFocus(GetKeyState(VK_SHIFT) < 0);
    return true;
  }
  // A key that went down elsewhere was meant for elsewhere: the Enter that closed a message, say.
  if (!keysDown_[key]) return false;
  keysDown_[key] = false;
  form_.InputKeyUp(static_cast<form::Key>(key));
  return retired_;
}

bool FormWindow::Reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case WM_COMMAND:
      if (ControlWindow* control = ControlWindow::From(reinterpret_cast<HWND>(lParam))) {
        control->OnCommand(HIWORD(wParam));
        result = 0;
        return true;
      }
      return false;
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      ControlWindow* const control = ControlWindow::From(item.hwndItem);
      if (control == nullptr) return false;
      control->OnDraw(item);
      result = TRUE;
      return true;
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN: {
      ControlWindow* const control = ControlWindow::From(reinterpret_cast<HWND>(lParam));
      if (control == nullptr) return false;
      result = reinterpret_cast<LRESULT>(control->OnColor(reinterpret_cast<HDC>(wParam)));
      return true;
    }
    default:
      return false;
  }
}

LRESULT CALLBACK FormWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  FormWindow* const window = From(handle);
  if (window == nullptr || window->retired_) return DefWindowProcW(handle, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    static_cast<void>(window->handle_.Release());  // the system destroys it, not this program
    return DefWindowProcW(handle, message, wParam, lParam);
  }
  const Handling handling(*window);
  LRESULT result = 0;
  window->desktop_.Guard([&] { result = window->OnMessage(message, wParam, lParam); });
  return result;
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (Reflect(message, wParam, lParam, result)) return result;
  switch (message) {
    case WM_ERASEBKGND: {
      RECT area;
      GetClientRect(Hwnd(), &area);
      Theme& look = desktop_.Look();
      const auto dc = reinterpret_cast<HDC>(wParam);
      if (form_.BorderStyle() == form::BorderStyle::Line) {
        FillRect(dc, &area, look.Brush(look.Colors().Line));
        const int thickness = Screens::ToPixels(LineThickness, dpi_);
        InflateRect(&area, -thickness, -thickness);
      }
      FillRect(dc, &area, look.Brush(look.Background(form_.BackColor())));
      return 1;
    }
    case WM_LBUTTONDOWN:
      SetCapture(Hwnd());  // a narrow gap between buttons is soon left
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return 0;
    case WM_MOUSEMOVE:
      MouseMoves(wParam);
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) {
        keysDown_.fill(false);
      } else {
        desktop_.Activated(*this);
        desktop_.StandBehind(*this);  // other programs' windows may have come between
      }
      break;
    case WM_SETFOCUS:
      GiveFocus();
      return 0;
    case WM_SIZE:
      OnSize(wParam);
      break;
    case WM_WINDOWPOSCHANGED:
      ReportPlace();
      break;  // WM_SIZE comes of it
    case WM_DPICHANGED:
      OnDpiChanged(Screens::WithTextScale(HIWORD(wParam)));  // not where it says: any program may send an address
      return 0;
    case WM_SYSCOMMAND:
      // F10 and Alt would begin a menu that the form doesn't have; Alt and Space open the system's.
      if ((wParam & 0xFFF0) == SC_KEYMENU && lParam != VK_SPACE) return 0;
      break;
    case WM_GETOBJECT:
      if (const auto answer = AnswerReader(Hwnd(), desktop_.Com(), wParam, lParam)) return *answer;
      break;
    case WM_NOTIFY:
      if (tips_.OnNotify(*reinterpret_cast<NMHDR*>(lParam))) return 0;
      break;
    case AcceptDropsMessage:
      AcceptDrops();
      return 0;
    case DroppedMessage:
      TakeDrop();
      return 0;
    case WM_CLOSE:
      form_.InputClose();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (wParam != 0) desktop_.SessionEnds();
      return 0;
    default:
      break;
  }
  return DefWindowProcW(Hwnd(), message, wParam, lParam);
}

}  // namespace vantor::win32
