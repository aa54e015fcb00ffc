#include "bar/frmMain.h"

#include <algorithm>
#include <cmath>

#include "form/Grid.h"
#include "panel/PanelPlace.h"

namespace vantor::bar {

using form::Key;
using form::Twips;
namespace menu = panel::menu;

// Measures keep to a grid of 60 twips, which is a whole number of pixels on most screens.
constexpr Twips UsualHeight = 540;
constexpr Twips ButtonWidth = 360;
using form::grid::Gap;  // between the bar's edge and its contents; the bar can be dragged by it
constexpr Twips MarkSize = 300;
constexpr Twips TextWidth = 2700;  // so that the unfolded bar keeps its margin on a screen 800 pixels wide
constexpr Twips TextHeight = 390;

constexpr int PixelsBeforeWebBox = 8;
// Kept free at the screen's edges, for the boxes that unfold to the right of the bar and below it.
constexpr Twips RightMargin = 480;
constexpr Twips BottomMargin = 600;

constexpr std::int16_t IdleTicksBeforeName = 60;

// The number of CommandMenu buttons before the command line; the others follow it.
constexpr std::size_t MenusBeforeText = 4;

frmMain::frmMain(form::UserInterface& ui, const BarParts& parts)
    : Form(ui, L"frmMain"),
      Web(*this, parts.Panels, parts.List, parts.Services.Language, parts.Messages),
      parts_(parts),
      commandLine_(*this, TextMain, parts.Matches, parts.List, parts.CommandState, parts.Starters, parts.Messages,
                   parts.Services, parts.Environment) {
  SetCaption(state::ProductName);
  SetBorderStyle(form::BorderStyle::Line);
  FrameButtons.SetBorder(false);
  parts_.Panels.SetBar(*this);
  NameControls();
  HandleEvents();
}

void frmMain::NameControls() {
  CommandWeb.SetToolTip(L"Show | Hide Add URL---F1");
  for (std::size_t i = 0; i < menu::Count; ++i) {
    CommandMenu[i].SetToolTip(panel::MenuButtons[i].ToolTip);
  }
  CommandMin.SetToolTip(L"Minimize---F9");
  CommandExit.SetToolTip(L"Exit---F10");
  ImageLauncher.SetAccessibleName(state::ProductName);
  TextMain.SetAccessibleName(L"Command Line");

  int tabIndex = 0;
  CommandWeb.SetTabIndex(tabIndex++);
  for (std::size_t i = 0; i < menu::Count; ++i) {
    if (i == MenusBeforeText) TextMain.SetTabIndex(tabIndex++);
    CommandMenu[i].SetTabIndex(tabIndex++);
  }
  CommandMin.SetTabIndex(tabIndex++);
  CommandExit.SetTabIndex(tabIndex++);
  Web.TextWebUrl.SetTabIndex(tabIndex++);
  Web.TextWebName.SetTabIndex(tabIndex++);
  Web.CommandAddWeb.SetTabIndex(tabIndex++);
}

void frmMain::HandleEvents() {
  using command::CommandLine;
  message::Messages& messages = parts_.Messages;
  messages.Connect(CommandWeb, CommandWeb.Click, L"Click", this, &frmMain::CommandWeb_Click);
  for (std::size_t i = 0; i < menu::Count; ++i) {
    messages.Connect(CommandMenu[i], CommandMenu[i].Click, L"Click", this, &frmMain::CommandMenu_Click, i);
  }
  messages.Connect(CommandMin, CommandMin.Click, L"Click", this, &frmMain::CommandMin_Click);
  messages.Connect(CommandExit, CommandExit.Click, L"Click", this, &frmMain::CommandExit_Click);
  messages.Connect(TextMain, TextMain.KeyPress, L"KeyPress", &commandLine_, &CommandLine::TextMain_KeyPress);
  messages.Connect(TextMain, TextMain.KeyDown, L"KeyDown", &commandLine_, &CommandLine::TextMain_KeyDown);
  messages.Connect(TextMain, TextMain.Change, L"Change", &commandLine_, &CommandLine::TextMain_Change);
  messages.Connect(TextMain, TextMain.Wheel, L"Wheel", &commandLine_, &CommandLine::TextMain_Wheel);
  messages.Connect(TextMain, TextMain.Compose, L"Compose", &commandLine_, &CommandLine::TextMain_Compose);
  messages.Connect(TextMain, TextMain.DblClick, L"DblClick", this, &frmMain::EmptyTextMain);
  messages.Connect(TextMain, TextMain.KeyDone, L"KeyDone", &commandLine_, &CommandLine::TextMain_KeyDone);
  form::RowList& matches = parts_.Matches.ListMatches;
  messages.Connect(matches, matches.Click, L"Click", &commandLine_, &CommandLine::ListMatches_Click);
  messages.Connect(TimerOnTop.Tick, L"TimerOnTop_Timer", this, &frmMain::TimerOnTop_Timer);
  messages.Connect(TimerWatchOnTop.Tick, L"TimerWatchOnTop_Timer", this, &frmMain::TimerWatchOnTop_Timer);
  parts_.Matches.SetHost(*this);
  parts_.Matches.Place = [this](form::Size list) { return PlaceAtLine(list); };
}

// --- loading and unloading

void frmMain::Form_Load() {
  parts_.Messages.Trap(L"Form_Load", [this] {
    addWebShown_ = parts_.Options.ShowAddUrlAtStart != 0;
    const list::Settings& settings = parts_.Settings;
    const form::Rect place{settings.Left, settings.Top, UsualHeight, UsualHeight};
    twipsPerPixelX_ = Ui().ScreenAt(place).TwipsPerPixelX;
    MoveTo(place.Left, place.Top);
    LayOut();
    ShowWidth();
    // The screens may have changed since the place was saved: part of the bar must be visible so that it can be
    // dragged.
    const form::Rect& bar = Bounds();
    screen_ = Ui().ScreenAt(bar);
    const form::Rect& screen = screen_.Bounds;
    if (form::Overlap(bar.Left, bar.Right(), screen.Left, screen.Right()) < bar.Height ||
        form::Overlap(bar.Top, bar.Bottom(), screen.Top, screen.Bottom()) < bar.Height / 2) {
      KeepOnScreen();
    }
    ShowWebFace();
    ShowMenuFaces();
    Web.SetShown(addWebShown_);
    TextMain.SetText(state::ProductName);
    TextMain.SelectAll();
    TextMain.SetFocus();
    TimerOnTop.SetEnabled(StayOnTop());
  });
}

void frmMain::LayOut() {
  TextMain.SetBackColor(form::Color::LineBlue);
  ImageLauncher.SetPicture({form::Background::None, state::picture::Mark});
  const auto dress = [](form::CommandButton& button, form::Drawing drawing) {
    button.SetPictures({BButton[0].Background, drawing}, {BButton[1].Background, drawing},
                       {BButton[2].Background, drawing});
    button.SetFaceMargins({0, Gap, 0, Gap});
  };
  for (std::size_t i = 0; i < menu::Count; ++i) {
    CommandMenu[i].SetVisible(parts_.Panels.Available(i));
    dress(CommandMenu[i], panel::MenuButtons[i].Closed.Picture.Drawing);
  }
  dress(CommandWeb, BButton[6].Drawing);
  dress(CommandMin, state::picture::Minimize);
  dress(CommandExit, state::picture::Exit);
  CommandExit.SetFaceMargins({0, Gap, Gap, Gap});

  // These are the usual sizes; the user's font may need more.
  height_ = std::max(
      {UsualHeight, Web.LeastHeight(), CommandMenu[0].LeastSize().Height, TextMain.LeastSize().Height + 2 * Gap});
  Twips left = Gap;
  const auto place = [this, &left](form::Control& control, Twips width, Twips height) {
    if (!control.Visible()) return;
    control.SetBounds({left, (height_ - height) / 2, width, height});
    left += width + Gap;
  };
  place(ImageLauncher, MarkSize, MarkSize);
  place(CommandWeb, ButtonWidth, height_);
  for (std::size_t i = 0; i < menu::Count; ++i) {
    if (i == MenusBeforeText) place(TextMain, TextWidth, TextMain.HeightFor(TextHeight));
    place(CommandMenu[i], ButtonWidth, height_);
  }
  place(CommandMin, ButtonWidth, height_);
  place(CommandExit, ButtonWidth + Gap, height_);

  narrowWidth_ = CommandExit.Right();
  FrameButtons.SetBounds({0, 0, narrowWidth_, height_});
  Web.LayOut(narrowWidth_ + static_cast<Twips>(std::lround(PixelsBeforeWebBox * twipsPerPixelX_)), height_);
  wideWidth_ = Web.FrameWeb.Right();
}

void frmMain::Form_Unload() {
  TimerOnTop.SetEnabled(false);
  TimerWatchOnTop.SetEnabled(false);
  parts_.Messages.Trap(L"Form_Unload", [this] {
    parts_.Choose.Load();  // until then its boxes are empty, and an empty list would be saved
    parts_.ListFiles.SaveLaunchList(parts_.List, Bounds().Left, Bounds().Top);
  });
  Ui().End();
}

// --- place and size

void frmMain::Form_MouseMove(form::MouseButton held) {
  if (held != form::MouseButton::Left) return;
  parts_.Messages.Trap(L"Form_MouseMove", [this] {
    Drag();
    KeepOnScreen();
  });
}

void frmMain::Form_Moved() {
  parts_.Messages.Trap(L"Form_Moved", [this] {
    if (Dragging())
      parts_.Panels.BarMoved();
    else
      KeepOnScreen();
  });
}

void frmMain::Form_ScreensChanged() {
  parts_.Messages.Trap(L"Form_ScreensChanged", [this] {
    // Most settings do not concern the bar, which may be in a place where a drag could not have left it.
    if (Ui().ScreenAt(Bounds()) == screen_) return;
    KeepOnScreen();
    MoveInto(screen_.WorkArea);  // a taskbar may now be where the bar was
    parts_.Panels.BarMoved();
  });
}

void frmMain::ShowWidth() { SetInside({addWebShown_ ? wideWidth_ : narrowWidth_, height_}); }

form::Size frmMain::RoomNeeded() const { return {wideWidth_ + RightMargin, height_ + BottomMargin}; }

void frmMain::KeepOnScreen() {
  screen_ = Ui().ScreenAt(Bounds());
  const form::Rect& screen = screen_.Bounds;
  const auto shown = [this](Twips length) { return static_cast<Twips>(std::ceil(length * Scale())); };
  const Twips right = screen.Right() - Bounds().Width - shown(RightMargin);
  const Twips bottom = screen.Bottom() - Bounds().Height - shown(BottomMargin);
  MoveTo(std::min(std::max(Bounds().Left, screen.Left), right), std::min(std::max(Bounds().Top, screen.Top), bottom));
  parts_.Panels.BarMoved();
}

form::Rect frmMain::PlaceAtLine(form::Size list) const {
  const auto shown = [this](Twips length) { return static_cast<Twips>(std::lround(length * Scale())); };
  const form::Rect& bar = Bounds();
  const form::Rect line{bar.Left + shown(TextMain.Left()), bar.Top, shown(TextMain.Width()), bar.Height};
  return panel::PlacePanel(line, {shown(list.Width), shown(list.Height)}, Ui().ScreenAt(bar).WorkArea);
}

// --- staying on top

void frmMain::PauseOnTop() {
  // Whatever opens has the focus now, unless the bar is minimised and waiting to be restored.
  if (WindowState() != form::WindowState::Minimized) TimerWatchOnTop.SetEnabled(false);
  if (!TimerOnTop.Enabled()) return;
  TimerOnTop.SetEnabled(false);
  SetTopMost(false);
}

void frmMain::ResumeOnTop() {
  if (Loaded() && parts_.CommandState.OpenPanelIndex == command::NoIndex) TimerOnTop.SetEnabled(StayOnTop());
}

void frmMain::TimerOnTop_Timer() {
  SetTopMost(true);
  if (!TextMain.Text().empty() || TextMain.Composing()) {
    idleTicks_ = 0;
  } else if (++idleTicks_ > IdleTicksBeforeName) {
    idleTicks_ = 0;
    TextMain.SetText(state::ProductName);
    TextMain.SelectAll();
  }
}

void frmMain::CommandMin_Click() {
  WatchForRestore();
  SetWindowState(form::WindowState::Minimized);
}

void frmMain::Form_Minimized() {
  parts_.Messages.Trap(L"Form_Minimized", [this] { WatchForRestore(); });
}

void frmMain::WatchForRestore() {
  parts_.Panels.Close();
  PauseOnTop();
  TimerWatchOnTop.SetEnabled(true);
}

void frmMain::TimerWatchOnTop_Timer() {
  if (WindowState() == form::WindowState::Minimized) return;
  TimerWatchOnTop.SetEnabled(false);
  TimerOnTop.SetEnabled(StayOnTop());
  TextMain.SetFocus();
}

void frmMain::ShowMenuFaces() {
  for (std::size_t i = 0; i < menu::Count; ++i) {
    const panel::MenuFace face = parts_.Panels.FaceOf(i);
    CommandMenu[i].SetCaption(face.Caption);
    CommandMenu[i].SetPicture(face.Picture);
    CommandMenu[i].SetState(face.State);
  }
}

// --- the add-web box

void frmMain::CommandWeb_Click() {
  addWebShown_ = !addWebShown_;
  Web.SetShown(addWebShown_);
  ShowWidth();
  ShowWebFace();
  const form::Rect bar = Bounds();
  if (addWebShown_) {
    MoveTo(std::min(bar.Left, Ui().ScreenAt(bar).Bounds.Right() - bar.Width), bar.Top);
    pull_ = {bar.Left, Bounds().Left, bar.Top};
  } else if (bar.Left == pull_.To && bar.Top == pull_.Top) {
    MoveTo(pull_.From, bar.Top);
  }
  parts_.Panels.BarMoved();
  ClearLine();
}

void frmMain::OfferWebSite(std::wstring_view address) {
  parts_.Messages.Trap(L"OfferWebSite", [&] {
    if (!addWebShown_) CommandWeb_Click();
    Web.TextWebUrl.SetText(address);
    Web.TextWebName.SetFocus();
  });
}

void frmMain::ShowWebFace() {
  CommandWeb.SetPicture(BButton[addWebShown_ ? 7 : 6]);
  CommandWeb.SetState(addWebShown_ ? form::ButtonState::Unfolded : form::ButtonState::Folded);
}

void frmMain::ClearLine() {
  if (!Visible() || WindowState() == form::WindowState::Minimized) return;
  TextMain.SetText({});
  TextMain.SetFocus();
}

// --- hot keys

void frmMain::Form_KeyUp(form::Key key) {
  parts_.Messages.Trap(L"Form_KeyUp", [&] {
    if (key != Key::Escape)
      HotKey(key);
    else if (ActiveControl() != &TextMain)  // the line has had it as a character
      commandLine_.Escape();
  });
}

void frmMain::HotKey(form::Key key) {
  const auto click = [](form::CommandButton& button) {
    if (button.Visible()) button.DoClick();
  };
  if (key >= Key::F2 && key <= Key::F8) {
    click(CommandMenu[static_cast<std::size_t>(key) - static_cast<std::size_t>(Key::F2)]);
    return;
  }
  switch (key) {
    case Key::F1:
      return click(CommandWeb);
    case Key::F9:
      return click(CommandMin);
    case Key::F10:
      return click(CommandExit);
    case Key::F12:
      return ClearLine();
    default:
      return;
  }
}

}  // namespace vantor::bar
