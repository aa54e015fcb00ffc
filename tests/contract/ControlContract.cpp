#include <doctest/doctest.h>

#include <stdexcept>
#include <string>

#include "contract/Person.h"
#include "form/Button.h"
#include "form/ListControl.h"
#include "form/RowList.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "form/Timer.h"

using namespace vantor::form;
using vantor::contract::Look;
using vantor::contract::Person;

namespace {

/// A form that writes down what it and its controls are told.
class TestForm : public Form, private RowSource {
 public:
  explicit TestForm(UserInterface& ui) : Form(ui, L"TestForm") {
    MoveTo(1500, 1500);
    SetInside({6000, 5700});
    int top = 150;
    for (Control* control : Controls()) {
      if (control->Container() != nullptr) continue;
      control->SetBounds({150, top, 5700, control == &Box ? 900 : 450});
      top += control->Height() + 150;
    }
    InFrame.SetBounds({150, 300, 3000, 450});
    Rows.SetRowHeight(150);
    Text.Change = [this] { Told += L'[' + Text.Text() + L']'; };
    Combo.Click = [this] { Told += L'(' + Combo.Text() + L')'; };
    Button.Click = [this] { Told += L"button "; };
    InFrame.Click = [this] { Told += L"in frame "; };
    Check.Click = [this] { Told += L"check "; };
    First.Click = [this] { Told += L"first "; };
    Second.Click = [this] { Told += L"second "; };
  }

  std::wstring Told;
  TextBox Text{*this, L"Text"};
  CommandButton Button{*this, L"Button"};
  CheckBox Check{*this, L"Check"};
  ComboBox Combo{*this, L"Combo"};
  OptionButton First{*this, L"First"};
  OptionButton Second{*this, L"Second"};
  Frame Box{*this, L"Box"};
  CommandButton InFrame{Box, L"InFrame"};
  RowList Rows{*this, L"Rows", *this};
  Timer Clock{*this, 100};

 protected:
  void Form_Load() override { Told += L"load "; }
  void Form_Unload() override { Told += L"unload "; }
  void Form_KeyUp(Key key) override {
    if (key >= Key::F1 && key <= Key::F12) Told += L'F' + std::to_wstring(static_cast<int>(key) - 0x6F) + L' ';
  }

 private:
  [[nodiscard]] int RowCount() const override { return 10; }
  [[nodiscard]] Row RowAt(int index) const override { return {std::to_wstring(index), 0, 0, L""}; }
};

struct Stage {
  std::unique_ptr<Person> Someone = vantor::contract::MakePerson();
  TestForm Form{Someone->Ui()};

  ~Stage() { Form.Unload(); }
  void Show() {
    Form.Show();
    AwaitFocus(Form.Text);
    Form.Told.clear();
  }
  void AwaitFocus(const Control& control) const {
    REQUIRE(Someone->WaitUntil([&] {
      const auto look = Someone->LookAt(control);
      return control.HasFocus() && (!look || look->Focused);
    }));
  }
  /// What is told while this is done. Afterwards each control must look as it says that it is.
  std::wstring After(const std::function<void()>& act) {
    Form.Told.clear();
    act();
    for (const Control* control : Form.Controls()) {
      const auto look = Someone->LookAt(*control);
      if (!look) continue;
      const Control* const in = control->Container();
      CHECK(look->Shown == (Form.Visible() && control->Visible() && (in == nullptr || in->Visible())));
      if (!look->Shown) continue;
      CHECK(look->Enabled == control->Enabled());
      CHECK((!look->Focused || control->HasFocus()));
      if (control == &Form.Combo) CHECK(look->Text == Form.Combo.Text());
      if (control != &Form.Text) continue;
      CHECK(look->Text == Form.Text.Text());
      CHECK((look->SelStart == Form.Text.SelStart() && look->SelLength == Form.Text.SelLength()));
    }
    return Form.Told;
  }
  std::wstring AfterTyping(std::wstring_view text) {
    return After([&] { Someone->Type(text); });
  }
};

}  // namespace

TEST_CASE("a text box tells of every change of its text, once, and what hears of it has the last word") {
  Stage stage;
  stage.Show();
  TextBox& box = stage.Form.Text;
  // Set by the program, with the caret at the start; then typed, over the selection too.
  CHECK(stage.After([&] { box.SetText(L"Vantor"); }) == L"[Vantor]");
  CHECK(stage.After([&] { box.SetText(L"Vantor"); }).empty());
  CHECK(stage.AfterTyping(L"x") == L"[xVantor]");
  box.SelectAll();
  CHECK(stage.AfterTyping(L"p=\b-") == L"[p][p=][p][p-]");
  CHECK(box.SelStart() == 2);

  box.Change = [&] {
    if (box.Text() != L"d.my") return;
    box.SetText(L"d.MyDocuments");
    box.Select(4, 9);
  };
  stage.After([&] { box.SetText(L""); });
  stage.AfterTyping(L"d.my");
  CHECK((box.Text() == L"d.MyDocuments" && box.SelLength() == 9));
  stage.AfterTyping(L"\b");
  CHECK(box.Text() == L"d.My");
  // A selection is brought into the text.
  stage.After([&] { box.Select(2, 9); });
  CHECK(box.SelLength() == 2);
  stage.After([&] { box.Select(-3, 2); });
  CHECK(box.SelStart() == 0);

  // A key press comes before the change.
  std::wstring seen;
  box.KeyPress = [&](wchar_t& character) {
    seen += character;
    if (character == L'a') character = 0;
    if (character == L'b') character = L'B';
  };
  box.DblClick = [&] { seen += L'2'; };
  box.SetText(L"");
  stage.AfterTyping(L"abc\r\b\x1b");
  CHECK(box.Text() == L"B");
  stage.Someone->DoubleClick(box);
  CHECK(seen == L"abc\r\b\x1b\x32");
}

TEST_CASE("while an input method composes, the arrow keys are its own, and its end is told once") {
  Stage stage;
  stage.Show();
  TextBox& box = stage.Form.Text;
  std::string told;
  box.KeyDown = [&](Key& /*key*/) { told += 'k'; };
  box.Compose = [&](bool begins) { told += begins ? '(' : ')'; };
  box.Change = [&] { told += box.Composing() ? 'c' : 'C'; };
  stage.Someone->Press(Key::Down);
  stage.Someone->Compose(box, true);
  stage.Someone->Press(Key::Down);
  stage.Someone->Type(L"x");
  stage.Someone->Compose(box, false);
  stage.Someone->Compose(box, true);
  stage.Someone->Compose(box, false);
  CHECK(told == "k(cC()");
}

TEST_CASE("a list of rows shows a page of them, scrolls by the wheel as far as they go, and leaves the focus alone") {
  Stage stage;
  stage.Show();
  RowList& list = stage.Form.Rows;
  std::string told;
  list.Click = [&](int row) { told += std::to_string(row); };
  stage.Form.Text.Wheel = [&](int rows) { list.ScrollTo(list.TopRow() + rows); };
  const auto clicked = [&] {
    stage.Someone->Click(list);  // the middle of three rows
    return told.back();
  };
  CHECK(clicked() == '1');
  stage.Someone->Turn(list, 3);
  CHECK(clicked() == '4');
  stage.Someone->Turn(list, 9);
  CHECK(clicked() == '8');
  stage.Someone->Turn(stage.Form.Text, -3);
  CHECK(clicked() == '5');
  list.SetCurrentRow(1);
  CHECK(clicked() == '2');
  list.SetCurrentRow(9);
  CHECK(clicked() == '8');
  list.ShowRows(-1);
  CHECK(clicked() == '1');
  CHECK(told.size() == 7);
  CHECK(stage.Form.Text.HasFocus());
}

TEST_CASE("controls that are disabled, hidden or inside such a frame ignore the user") {
  Stage stage;
  stage.Show();
  TestForm& form = stage.Form;
  const auto clickBoth = [&] {
    stage.Someone->Click(form.Button);
    stage.Someone->Click(form.InFrame);
  };
  CHECK(stage.After(clickBoth) == L"button in frame ");
  for (Control* control : {static_cast<Control*>(&form.Button), static_cast<Control*>(&form.Box)})
    control->SetEnabled(false);
  CHECK(stage.After([&] { form.Button.DoClick(); }).empty());
  CHECK(stage.After(clickBoth).empty());
  for (Control* control : {static_cast<Control*>(&form.Button), static_cast<Control*>(&form.Box)}) {
    control->SetEnabled(true);
    control->SetVisible(false);
  }
  CHECK(stage.After(clickBoth).empty());
  form.Text.SetEnabled(false);
  CHECK(stage.AfterTyping(L"x").empty());
}

TEST_CASE("a check box tells of each change of its value, an option button of being chosen") {
  Stage stage;
  stage.Show();
  TestForm& form = stage.Form;
  CHECK(stage.After([&] { form.Check.SetValue(true); }) == L"check ");
  CHECK(stage.After([&] { form.Check.SetValue(true); }).empty());
  CHECK(stage.After([&] { stage.Someone->Click(form.Check); }) == L"check ");
  CHECK_FALSE(form.Check.Value());
  CHECK(stage.After([&] { form.First.SetValue(true); }) == L"first ");
  CHECK(stage.After([&] { stage.Someone->Click(form.Second); }) == L"second ");
  CHECK(stage.After([&] { stage.Someone->Click(form.Second); }).empty());
  CHECK((!form.First.Value() && form.Second.Value()));
}

TEST_CASE("a list keeps its selection on its entry, and tells of a new one once") {
  Stage stage;
  stage.Show();
  ComboBox& combo = stage.Form.Combo;
  for (const wchar_t* item : {L"one", L"two", L"three", L"four"}) combo.AddItem(item);
  CHECK(combo.ListIndex() == -1);
  CHECK(stage.After([&] { combo.SetListIndex(2); }) == L"(three)");
  CHECK(stage.After([&] { combo.SetListIndex(2); }).empty());
  CHECK(stage.After([&] { combo.RemoveItem(0); }).empty());
  CHECK(combo.ListIndex() == 1);
  CHECK(stage.After([&] { combo.SetList(1, L"THREE"); }).empty());
  combo.SetFocus();
  CHECK(stage.After([&] { stage.Someone->Press(Key::Down); }) == L"(four)");
  CHECK(stage.After([&] { combo.RemoveItem(2); }).empty());
  CHECK(combo.ListIndex() == -1);
  CHECK_THROWS_AS(combo.RemoveItem(2), std::out_of_range);
  CHECK_THROWS_AS(combo.SetListIndex(2), std::out_of_range);

  // A list that follows another, and is followed by it, ends after one round.
  ComboBox other(stage.Form, L"Other");
  for (const wchar_t* item : {L"a", L"b"}) other.AddItem(item);
  combo.Click = [&] { other.SetListIndex(combo.ListIndex()); };
  other.Click = [&] { combo.SetListIndex(other.ListIndex()); };
  other.SetListIndex(1);
  CHECK(combo.ListIndex() == 1);
}

TEST_CASE("a form is loaded once until its unload, hidden and shown, and sees the function keys of every control") {
  Stage stage;
  TestForm& form = stage.Form;
  CHECK(stage.After([&] { form.Text.SetText(L"kept"); }) == L"[kept]");
  CHECK(stage.After([&] { form.Show(); }) == L"load ");
  CHECK(stage.After([&] { form.Hide(); }).empty());
  form.Show();
  stage.AwaitFocus(form.Text);
  form.Combo.AddItem(L"one");
  const auto press = [&](Control& control, Key key) {
    control.SetFocus();
    return stage.After([&] { stage.Someone->Press(key); });
  };
  CHECK(press(form.Text, Key::F1) == L"F1 ");
  CHECK(press(form.Button, Key::F10) == L"F10 ");
  CHECK(press(form.Combo, Key::F4) == L"F4 ");  // drops lists elsewhere
  CHECK(stage.After([&] { form.Unload(); }) == L"unload ");
  CHECK(stage.After([&] { form.Unload(); }).empty());
  form.Show();
  stage.AwaitFocus(form.Combo);
  CHECK(form.Told == L"load ");
}

TEST_CASE("a modal form keeps the user from the others until it goes, also when it unloads itself") {
  Stage stage;
  TestForm& behind = stage.Form;
  TestForm modal(stage.Someone->Ui());
  modal.MoveTo(1500, 7500);
  modal.Button.Click = [&] { modal.Unload(); };
  stage.Show();
  stage.Someone->WhenModal([&](Form& open) {
    CHECK(&open == &modal);
    stage.AwaitFocus(modal.Text);
    stage.Someone->Click(behind.Button);
    stage.Someone->Type(L"x");
    stage.Someone->Click(modal.Button);
  });
  CHECK(stage.After([&] { modal.ShowModal(); }).empty());
  CHECK(modal.Text.Text() == L"x");
  stage.AwaitFocus(behind.Text);
  CHECK(stage.After([&] { stage.Someone->Click(behind.Button); }) == L"button ");
}

TEST_CASE("a timer ticks every interval while it is enabled, and not while its own tick is being handled") {
  Stage stage;
  TestForm second(stage.Someone->Ui());
  Timer& clock = stage.Form.Clock;
  Timer& other = second.Clock;
  int ticks = 0;
  int others = 0;
  other.Tick = [&] { ++others; };
  clock.Tick = [&] {
    if (++ticks < 3) return;
    // Three times as long as the other's interval: this one's would come, too.
    stage.Someone->WhenModal([&](Form& open) {
      CHECK(stage.Someone->WaitUntil([&] { return others >= 3; }));
      open.Unload();
    });
    other.SetEnabled(true);
    second.ShowModal();
    other.SetEnabled(false);
    CHECK(ticks == 3);
    clock.SetEnabled(false);
  };
  clock.SetEnabled(true);
  CHECK(stage.Someone->WaitUntil([&] { return ticks == 3 && !clock.Enabled(); }));
}
