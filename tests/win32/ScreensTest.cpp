#include <windows.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "driver/Check.h"
#include "driver/Window.h"
#include "form/Button.h"
#include "form/Form.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "win32/draw/Prose.h"
#include "win32/draw/Screens.h"
#include "win32/draw/Text.h"
#include "win32/draw/Theme.h"
#include "win32/window/ControlWindow.h"
#include "win32/window/WindowsDesktop.h"

using namespace vantor;

namespace {

class SampleForm : public form::Form {
 public:
  SampleForm(form::UserInterface& ui, form::BorderStyle border) : Form(ui, L"SampleForm") {
    SetBorderStyle(border);
    MoveTo(1500, 1200);
    SetInside({4500, 1500});
    Frame.SetBounds({150, 150, 4200, 1200});
    Button.SetBounds({300, 75, 1215, 390});
    Text.SetBounds({300, 600, 1500, 315});
    List.SetBounds({2100, 600, 1500, 315});
  }

  form::Frame Frame{*this, L"Frame"};
  form::CommandButton Button{Frame, L"Button"};
  form::TextBox Text{Frame, L"Text"};
  form::ComboBox List{Frame, L"List"};
};

HWND WindowOf(const form::Form& form) { return static_cast<const win32::FormWindow*>(form.Window())->Hwnd(); }
HWND WindowOf(const form::Control& control) { return win32::ControlWindow::Of(&control)->Hwnd(); }

/// Whether everything of the form has the size and place that its twips have at a resolution.
void CheckPixels(const win32::Desktop& desktop, const SampleForm& sample, int dpi) {
  CAPTURE(dpi);
  const auto check = [dpi](const RECT& place, int left, int top, int width, int height) {
    const auto pixels = [dpi](form::Twips twips) { return MulDiv(twips, dpi, 1440); };
    CHECK((place.left == pixels(left) && place.right - place.left == pixels(width)));
    CHECK((place.top == pixels(top) && place.bottom - place.top == pixels(height)));
  };
  RECT inside;
  GetClientRect(WindowOf(sample), &inside);
  check(inside, 0, 0, sample.Inside().Width, sample.Inside().Height);
  LOGFONTW font{};
  for (const form::Control* control : sample.Controls()) {
    const HWND window = WindowOf(*control);
    RECT place = desktop::window::Bounds(window);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    check(place, control->Left(), control->Top(), control->Width(), control->Height());
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    CHECK(font.lfHeight == desktop.Screens().MessageFont(dpi).lfHeight);
  }
}

}  // namespace

TEST_CASE("a form that comes to a screen of another scale is laid out for it, with a title bar and without") {
  win32::Desktop desktop;
  for (const form::BorderStyle border : {form::BorderStyle::None, form::BorderStyle::Dialog}) {
    SampleForm sample(desktop, border);
    sample.Show();
    const form::Rect bounds = sample.Bounds();
    for (const int dpi : {96, 192, 120, 144, 96}) {
      SendMessageW(WindowOf(sample), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), 0);  // as another program may send it
      CheckPixels(desktop, sample, dpi);
    }
    CHECK(sample.Bounds() == bounds);
    sample.Unload();
  }
}

TEST_CASE("larger texts enlarge what holds them, as far as it fits the screen, and the font with it") {
  win32::Desktop desktop;
  SampleForm sample(desktop, form::BorderStyle::None);
  sample.Show();
  NONCLIENTMETRICSW usual{};
  usual.cbSize = sizeof usual;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof usual, &usual, 0);
  const auto ask = [&](LONG height) {
    NONCLIENTMETRICSW asked = usual;
    asked.lfMessageFont.lfHeight = height;
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof asked, &asked, 0);
    desktop.SettingsChanged();
  };
  ask(-18);
  CheckPixels(desktop, sample, 144);
  CHECK(desktop.Screens().MessageFont(144).lfHeight == -18);
  CHECK(desktop.PrimaryScreen().Bounds.Width == MulDiv(GetSystemMetrics(SM_CXSCREEN), 1440, 144));
  ask(-200);  // the form as large as fits, and its texts with it
  const form::Screen screen = desktop.PrimaryScreen();
  CHECK(sample.Scale() < 1);
  CHECK(sample.Bounds().Width > screen.WorkArea.Width * 9 / 10);
  CHECK(sample.Bounds().Right() <= screen.WorkArea.Right());
  CheckPixels(desktop, sample, static_cast<int>(std::lround(1440 / screen.TwipsPerPixelX * sample.Scale())));
  ask(usual.lfMessageFont.lfHeight);
  CheckPixels(desktop, sample, 96);
  sample.Unload();
}

TEST_CASE("texts and edges stand out from what they are on") {
  const win32::Screens screens;
  const win32::Theme theme(screens);
  const auto luminance = [](COLORREF color) {
    const auto linear = [](int part) {
      return part <= 10 ? part / 3294.6 : std::pow((part / 255.0 + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) + 0.0722 * linear(GetBValue(color));
  };
  const auto check = [&](double least, COLORREF front, const std::vector<COLORREF>& grounds) {
    for (const COLORREF ground : grounds) {
      CAPTURE(front);
      CAPTURE(ground);
      const auto [darker, lighter] = std::minmax({luminance(front), luminance(ground)});
      CHECK((lighter + 0.05) / (darker + 0.05) >= least);
    }
  };
  const win32::Palette& of = theme.Colors();
  constexpr COLORREF Panel = RGB(240, 240, 240);
  constexpr COLORREF Silver = RGB(192, 192, 192);
  constexpr COLORREF White = RGB(255, 255, 255);
  constexpr double Text = 4.5;
  constexpr double Edge = 3;
  check(Text, of.Disabled.Text, {of.Disabled.Fill, Panel});
  check(Text, theme.TextColor(form::Color::WindowText, false, Silver), {Silver});
  check(Text, of.Letter, {of.Normal.Fill, of.Hot.Fill, of.Pressed.Fill, of.Open.Fill});
  check(Edge, of.Line, {Panel, White});
  check(Edge, of.Outline, {Panel, White, RGB(32, 32, 32)});
  check(Edge, of.Open.Edge, {of.Open.Fill, Panel});
  check(Edge, of.Normal.Edge, {of.Normal.Fill, Panel});
}

TEST_CASE("a text is set in lines no wider than their room, and its second columns stand under each other") {
  const win32::Screens screens;
  const win32::Theme theme(screens);
  HFONT const font = theme.Font(96, win32::FontStyle::Plain);
  const auto size = [font](std::wstring_view text, int width) { return win32::Prose(text, font, width).Size(); };
  const int line = win32::TextHeight(font);
  CHECK(size(L"", 100).cy == line);
  CHECK(size(L"    two words \r\n\r\n", 1000).cy == 2 * line);
  CHECK(size(L"    two words", size(L"    words", 1000).cx).cy == 2 * line);
  CHECK(size(L"C:\\OneWordThatIsTooLong", 50).cx <= 50);
  CHECK(size(L"first words   x\r\n1        second words", 1000).cx == size(L"first words   second words", 1000).cx);
}
