#include "form/Headless.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "form/Button.h"
#include "form/ListControl.h"
#include "form/Timer.h"

namespace vantor::form {

namespace {

/// Applies a caret key to a single-line box.
void MoveCaret(TextBox& box, Key key) {
  switch (key) {
    case Key::Left:
    case Key::Up:
      return box.InputSelection(std::max(box.SelStart() - 1, 0), 0);
    case Key::Right:
    case Key::Down:
      return box.InputSelection(std::min(box.SelStart() + box.SelLength() + 1, static_cast<int>(box.Text().size())), 0);
    case Key::Home:
      return box.InputSelection(0, 0);
    case Key::End:
      return box.InputSelection(static_cast<int>(box.Text().size()), 0);
    default:
      return;
  }
}

}  // namespace

class Headless::Window : public FormWindow {
 public:
  Window(Headless& desktop, Form& form) : desktop_(desktop), form_(form) {}

  void Changed(Property property) override {
    const bool gone = property == Property::Visible && !form_.Visible() && form_.Host() == nullptr;
    if (gone) desktop_.TellActive(desktop_.ActiveForm());
    if (property == Property::Visible) SetTopMost(form_.Visible() && form_.TopMost());
  }
  void SetTopMost(bool topMost) override {
    std::erase(desktop_.topMost_, &form_);
    if (topMost) desktop_.topMost_.push_back(&form_);
  }
  void Drag() override {
    const Rect& bounds = form_.Bounds();
    form_.InputMoved(bounds.Left + std::exchange(desktop_.dragX_, 0), bounds.Top + std::exchange(desktop_.dragY_, 0));
  }
  void Activate() override {
    std::erase(desktop_.activated_, &form_);
    desktop_.activated_.push_back(&form_);
    desktop_.TellActive(&form_);
  }

 private:
  Headless& desktop_;
  Form& form_;
};

Headless::Headless() {
  Desktop.Bounds = {0, 0, 1024 * 15, 768 * 15};
  Desktop.WorkArea = {0, 0, 1024 * 15, 740 * 15};
}

Headless::~Headless() = default;

void Headless::Advance(int milliseconds) {
  const long long end = now_ + milliseconds;
  while (!Ended()) {
    const auto next =
        std::min_element(timers_.begin(), timers_.end(), [](const auto& a, const auto& b) { return a.Due < b.Due; });
    if (next == timers_.end() || next->Due > end) break;
    now_ = next->Due;
    next->Due += next->Timer->Interval();
    next->Timer->InputTick();  // may start and stop timers, so `next` is not valid after this
  }
  now_ = end;
}

void Headless::WhenModal(std::function<void(Form&)> script) { modalScripts_.push_back(std::move(script)); }

Form* Headless::ActiveForm() const {
  if (ModalForm() != nullptr) return ModalForm();
  const auto active =
      std::find_if(activated_.rbegin(), activated_.rend(), [](const Form* form) { return form->Visible(); });
  return active != activated_.rend() ? *active : nullptr;
}

bool Headless::IsTopMost(const Form& form) const {
  return std::find(topMost_.begin(), topMost_.end(), &form) != topMost_.end();
}

void Headless::Type(std::wstring_view text) {
  for (const wchar_t character : text) TypeCharacter(character);
}

void Headless::TypeCharacter(wchar_t character) {
  Form* const form = ActiveForm();
  Control* const control = form != nullptr ? form->ActiveControl() : nullptr;
  if (control != nullptr && control->AcceptsInput()) control->InputCharacter(character);
}

void Headless::Press(Key key) {
  Form* form = ActiveForm();
  Control* const control = form != nullptr ? form->ActiveControl() : nullptr;
  if (key == Key::Tab) {
    if (form != nullptr && form->AcceptsInput()) form->MoveFocus(false);
  } else if (key == Key::Back || key == Key::Enter || key == Key::Escape || key == Key::Space) {
    TypeCharacter(static_cast<wchar_t>(key));
  } else if (auto* box = dynamic_cast<TextBox*>(control); box != nullptr && box->AcceptsInput()) {
    MoveCaret(*box, box->InputKeyDown(key));
  } else if (auto* list = dynamic_cast<ListControl*>(control);
             list != nullptr && (key == Key::Up || key == Key::Down)) {
    list->InputWalk(list->ListIndex() + (key == Key::Down ? 1 : -1));
  }
  form = ActiveForm();  // the key is released over whatever has the focus now
  if (form != nullptr) form->InputKeyUp(key);
}

void Headless::PressControl(Key key) {
  const Form* const form = ActiveForm();
  auto* const box = form != nullptr ? dynamic_cast<TextBox*>(form->ActiveControl()) : nullptr;
  if (box == nullptr || !box->AcceptsInput()) return;
  if (key == Key::Back) box->InputWordBack();
  if (key == Key::A) box->InputSelection(0, static_cast<int>(box->Text().size()));
}

void Headless::Click(Control& control) {
  if (!control.AcceptsInput()) return;
  if (!control.IsFocusable()) control.OwnerForm().InputMouseDown();
  control.SetFocus();
  auto* const button = dynamic_cast<CommandButton*>(&control);
  if (button != nullptr) {
    button->InputMouseDown(MouseButton::Left);
    button->InputMouseUp(MouseButton::Left);
  }
  control.InputClick();
}

void Headless::DoubleClick(Control& control) {
  if (!control.AcceptsInput()) return;
  control.SetFocus();
  control.InputDblClick();
}

void Headless::ClickRow(RowList& list, int row) { list.InputRowClick(row); }

void Headless::Wheel(Control& control, int rows) {
  if (auto* list = dynamic_cast<RowList*>(&control)) {
    list->InputScroll(list->TopRow() + rows);
  } else {
    dynamic_cast<TextBox&>(control).InputWheel(rows);
  }
}

void Headless::Leave() { TellActive(nullptr); }

void Headless::TellActive(Form* active) {
  if (active == toldActive_) return;
  if (Form* const before = std::exchange(toldActive_, active)) before->InputActive(false);
  if (active != nullptr) active->InputActive(true);
}

void Headless::DragBy(Form& form, Twips x, Twips y) {
  dragX_ = x;
  dragY_ = y;
  form.InputMouseMove(MouseButton::Left);
}

Screen Headless::ScreenAt(const Rect& /*place*/) const { return Desktop; }

Screen Headless::PrimaryScreen() const { return Desktop; }

Size Headless::MeasureText(std::wstring_view text, bool /*bold*/, Twips width) const {
  const std::size_t charactersPerLine = static_cast<std::size_t>(std::max(width / CharacterWidth, 1));
  Size size;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(L"\r\n", start), text.size());
    const std::size_t length = end - start;
    const std::size_t lines = std::max<std::size_t>((length + charactersPerLine - 1) / charactersPerLine, 1);
    size.Height += LineHeight * static_cast<Twips>(lines);
    size.Width = std::max(size.Width, CharacterWidth * static_cast<Twips>(std::min(length, charactersPerLine)));
    start = end + 2;
  }
  return size;
}

void Headless::RunModal(Form& form) {
  if (modalScripts_.empty()) throw std::logic_error("a modal form that the test does not expect");
  const auto script = std::move(modalScripts_.front());
  modalScripts_.pop_front();
  script(form);
  if (form.Visible() && !Ended()) throw std::logic_error("the test leaves a modal form open");
}

void Headless::Run() {}

void Headless::StartTimer(Timer& timer) {
  if (timer.Interval() > 0) timers_.push_back({&timer, now_ + timer.Interval()});
}

void Headless::StopTimer(Timer& timer) {
  std::erase_if(timers_, [&](const RunningTimer& running) { return running.Timer == &timer; });
}

std::unique_ptr<FormWindow> Headless::MakeWindow(Form& form) { return std::make_unique<Window>(*this, form); }

void Headless::Discard(std::unique_ptr<FormWindow> window) { window.reset(); }

void Headless::FormGone(Form& form) {
  std::erase(activated_, &form);
  std::erase(topMost_, &form);
  if (toldActive_ == &form) toldActive_ = nullptr;
}

}  // namespace vantor::form
