#include "message/frmMessage.h"

#include <algorithm>
#include <iterator>

#include "form/Grid.h"
#include "state/Pictures.h"
#include "text/Ascii.h"

namespace vantor::message {
namespace {

namespace grid = form::grid;

// The layout, in twips.
constexpr form::Twips BandWidth = 540;
constexpr form::Twips Margin = 2 * grid::Margin;
constexpr form::Twips NarrowText = 4200;
// Holds the table of the first-start help without breaking its lines, and fits a screen 640 pixels wide.
constexpr form::Twips WideText = 7200;

constexpr form::Twips TitleBarHeight = 450;  // as it usually is, for the place on the screen only

struct ButtonSet {
  std::wstring_view Word;
  bool Ok;
  bool Cancel;
  std::wstring_view OkText;
  std::wstring_view CancelText;
  bool Timer = false;
};

constexpr ButtonSet ButtonSets[] = {
    {L"OK", true, false, L"OK", L"Cancel"},        {L"Cancel", false, true, L"OK", L"Cancel"},
    {L"OKCancel", true, true, L"OK", L"Cancel"},   {L"YesNo", true, true, L"Yes", L"No"},
    {L"TimerStart", false, false, L"", L"", true},
};

}  // namespace

frmMessage::frmMessage(form::UserInterface& ui) : Form(ui, L"frmMessage") {
  SetBorderStyle(form::BorderStyle::Dialog);
  SetBackColor(form::Color::WindowBackground);
  for (form::Control* control : Controls()) control->SetBackColor(form::Color::WindowBackground);

  PictureMessage.SetPicture({form::Background::Band, state::picture::Mark});
  PictureMessage.SetBackColor(form::Color::LineBlue);
  PictureMessage.SetTabStop(false);
  PictureMessage.SetAccessibleName(L"Vantor");
  CheckDoNotShow.SetCaption(L"Do not show this message again.");
  CheckDoNotShow.SetForeColor(form::Color::WindowText);
  CheckDoNotShow.SetVisible(false);
  CommandOK.Dress({});
  CommandCancel.Dress({});
  CommandOK.SetEnabled(false);
  CommandCancel.SetEnabled(false);
  TextInput0.SetBackColor(form::Color::LineBlue);
  TextInput0.SetVisible(false);
  LabelMessage.SetForeColor(form::Color::WindowText);
  LabelHead.SetForeColor(form::Color::WindowText);
  LabelHead.SetBold(true);
  LabelHead.SetOneLine(true);
  CommandOK.SetTabIndex(1);
  CommandCancel.SetTabIndex(2);
  CheckDoNotShow.SetTabIndex(3);

  CommandOK.Click = [this] { Leave(Answer::Accepted); };
  CommandCancel.Click = [this] { Leave(Answer::Cancelled); };
  TextInput0.Change = [this] { TextInput0_Change(); };
  TextInput0.KeyPress = [this](wchar_t& character) { TextInput0_KeyPress(character); };
}

bool frmMessage::ApplyButtonSet(std::wstring_view buttons) {
  const auto* const set = std::find_if(std::begin(ButtonSets), std::end(ButtonSets),
                                       [&](const ButtonSet& candidate) { return candidate.Word == buttons; });
  if (set == std::end(ButtonSets)) return false;
  CommandOK.SetEnabled(set->Ok);
  CommandCancel.SetEnabled(set->Cancel);
  LabelOK.SetCaption(set->OkText);
  LabelCancel.SetCaption(set->CancelText);
  Timer1.SetEnabled(set->Timer);
  return true;
}

void frmMessage::ApplyInputSet(std::wstring_view inputs) {
  if (inputs != L"Input0") return;
  TextInput0.SetVisible(true);
  TextInput0.SetTabIndex(0);
  TextInput0.SetAccessibleName(LabelHead.Caption());
}

form::Size frmMessage::RoomNeeded() const {
  const form::Size room = Form::RoomNeeded();
  return {room.Width, room.Height + grid::BarRoom};
}

void frmMessage::Arrange(const form::Rect& bar) {
  const std::wstring& text = LabelMessage.Caption();
  const form::Twips width = std::clamp(Ui().MeasureText(text, false, WideText).Width, NarrowText, WideText);
  const form::Twips left = BandWidth + Margin;
  form::Twips top = Margin;
  const auto place = [&](form::Control& control, form::Twips height) {
    control.SetBounds({left, top, width, height});
    top += height + grid::Margin;
  };
  place(LabelHead, LabelHead.LeastSize().Height);
  // The name prompts call the input "the above box".
  if (TextInput0.Visible()) place(TextInput0, TextInput0.HeightFor(grid::LineHeight));
  place(LabelMessage, Ui().MeasureText(text, false, width).Height);
  if (CheckDoNotShow.Visible()) place(CheckDoNotShow, CheckDoNotShow.HeightFor(grid::CheckHeight));

  top += grid::Margin;
  const form::Twips buttonWidth = std::max(CommandOK.FullWidth(), CommandCancel.FullWidth());
  CommandCancel.SetBounds({left + width - buttonWidth, top, buttonWidth, grid::ButtonHeight});
  CommandOK.SetBounds({CommandCancel.Left() - grid::Gap - buttonWidth, top, buttonWidth, grid::ButtonHeight});

  const form::Twips formWidth = left + width + Margin;
  const form::Twips formHeight = top + grid::ButtonHeight + Margin;
  PictureMessage.SetBounds({0, 0, BandWidth, formHeight});
  const form::Rect area = Ui().ScreenAt(bar).WorkArea;
  MoveTo(area.Left, area.Top);  // so that it is fitted to that screen
  SetInside({formWidth, formHeight});
  const form::Size shown{Bounds().Width, TitleBarHeight + Bounds().Height};
  const auto at = [&](form::Twips shownTop) {
    return form::Rect{area.Left + std::max((area.Width - shown.Width) / 2, 0),
                      form::Within(shownTop, shown.Height, area.Top, area.Bottom()), shown.Width, shown.Height};
  };
  const form::Rect places[] = {at(area.Top + (area.Height - shown.Height) / 2), at(bar.Bottom()),
                               at(bar.Top - shown.Height)};
  const auto* const best =
      std::ranges::min_element(places, {}, [&](const form::Rect& each) { return form::SharedArea(each, bar); });
  MoveTo(best->Left, best->Top);
}

void frmMessage::Form_KeyUp(form::Key key) {
  if (key == form::Key::Escape) Dismiss();
}

void frmMessage::TextInput0_Change() {
  if (asksForName_ && !TextInput0.Composing()) {
    // What is pasted passes no key press.
    std::wstring letters = TextInput0.Text();
    std::erase_if(letters, [](wchar_t c) { return !text::IsLetter(c); });
    if (letters != TextInput0.Text()) {
      TextInput0.SetText(letters);
      TextInput0.Select(static_cast<int>(letters.size()), 0);
      return;
    }
  }
  CommandOK.SetEnabled(!TextInput0.Text().empty());
}

void frmMessage::TextInput0_KeyPress(wchar_t& character) {
  if (!asksForName_ || character == form::CharBackspace || text::IsLetter(character)) return;
  const bool enter = character == form::CharEnter;
  character = 0;
  if (enter) Leave(TextInput0.Text().empty() ? Answer::Cancelled : Answer::Accepted);
}

void frmMessage::Dismiss() {
  if (CommandCancel.Enabled())
    Leave(Answer::Cancelled);
  else if (CommandOK.Enabled())
    Leave(Answer::Accepted);
}

void frmMessage::Leave(message::Answer answer) {
  answer_ = answer;
  Unload();
}

}  // namespace vantor::message
