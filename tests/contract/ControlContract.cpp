#include <doctest/doctest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "contract/Person.h"
#include "form/Button.h"
#include "form/ListControl.h"
#include "form/RowList.h"
#include "form/Static.h"
#include "form/TextBox.h"

using namespace vantor::form;
using vantor::contract::MakePerson;
using vantor::contract::Person;

namespace {

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
    Show();
  }

  TextBox Text{*this, L"Text"};
  CommandButton Button{*this, L"Button"};
  CheckBox Check{*this, L"Check"};
  ComboBox Combo{*this, L"Combo"};
  OptionButton First{*this, L"First"};
  OptionButton Second{*this, L"Second"};
  Frame Box{*this, L"Box"};
  CommandButton InFrame{Box, L"InFrame"};
  RowList Rows{*this, L"Rows", *this};

 private:
  [[nodiscard]] int RowCount() const override { return 10; }
  [[nodiscard]] Row RowAt(int index) const override { return {std::to_wstring(index), 0, 0, L""}; }
};

struct Stage {
  std::unique_ptr<Person> Someone = MakePerson();
  TestForm Form{Someone->Ui()};

  Stage() {
    REQUIRE(Someone->WaitUntil([&] { return Someone->IsShownFocused(Form.Text); }));
  }
  ~Stage() { Form.Unload(); }
};

}  // namespace

TEST_CASE("a text box tells of every change of its text, once") {
  Stage stage;
  TextBox& box = stage.Form.Text;
  std::vector<std::wstring> changes;
  box.Change = [&] { changes.push_back(box.Text()); };
  // Set by the program, with the caret at the start.
  box.SetText(L"Vantor");
  box.SetText(L"Vantor");
  CHECK(stage.Someone->ShownText(box) == L"Vantor");
  stage.Someone->Type(L"x");
  // Typed, over the selection.
  box.SelectAll();
  stage.Someone->Type(L"p=\b-");
  CHECK(changes == std::vector<std::wstring>{L"Vantor", L"xVantor", L"p", L"p=", L"p", L"p-"});
  CHECK(stage.Someone->ShownText(box) == L"p-");
  CHECK(box.SelStart() == 2);

  // A handler that completes the text has the last word.
  box.Change = [&] {
    if (box.Text() != L"d.my") return;
    box.SetText(L"d.MyDocuments");
    box.Select(4, 9);
  };
  box.SetText(L"");
  stage.Someone->Type(L"d.my");
  CHECK(stage.Someone->ShownText(box) == L"d.MyDocuments");
  CHECK(stage.Someone->ShownSelection(box) == L"Documents");
  stage.Someone->Type(L"\b");
  CHECK(box.Text() == L"d.My");
  // A selection is brought into the text.
  box.Select(2, 9);
  CHECK(box.SelLength() == 2);
  CHECK(stage.Someone->ShownSelection(box) == L"My");
  box.Select(-3, 2);
  CHECK(stage.Someone->ShownSelection(box) == L"d.");
}

TEST_CASE("KeyPress comes before the change, and may swallow the character or put another in its place") {
  Stage stage;
  TextBox& box = stage.Form.Text;
  std::wstring seen;
  box.KeyPress = [&](wchar_t& character) {
    seen += character;
    if (character == L'a') character = 0;
    if (character == L'b') character = L'B';
  };
  int doubleClicks = 0;
  box.DblClick = [&] { ++doubleClicks; };
  stage.Someone->Type(L"abc\r\b\x1b");
  CHECK(seen == L"abc\r\b\x1b");
  CHECK(stage.Someone->ShownText(box) == L"B");
  CHECK(box.Text() == L"B");
  stage.Someone->DoubleClick(box);
  CHECK(doubleClicks == 1);
}

TEST_CASE("while an input method composes, the arrow keys are its own, and its end is told once") {
  Stage stage;
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
  CHECK(stage.Someone->IsShownFocused(stage.Form.Text));
}

TEST_CASE("controls that are disabled, hidden or inside such a frame ignore the user") {
  Stage stage;
  TestForm& form = stage.Form;
  int clicks = 0;
  for (CommandButton* button : {&form.Button, &form.InFrame}) button->Click = [&] { ++clicks; };
  const auto clicksNow = [&] {
    stage.Someone->Click(form.Button);
    stage.Someone->Click(form.InFrame);
    return clicks;
  };
  CHECK(clicksNow() == 2);

  form.Button.SetEnabled(false);
  form.Box.SetEnabled(false);
  form.Button.DoClick();
  CHECK(clicksNow() == 2);
  CHECK_FALSE(stage.Someone->IsShownEnabled(form.Button));

  form.Button.SetEnabled(true);
  form.Button.SetVisible(false);
  form.Box.SetEnabled(true);
  form.Box.SetVisible(false);
  CHECK(clicksNow() == 2);
  CHECK_FALSE(stage.Someone->IsShown(form.Button));

  form.Text.SetEnabled(false);
  stage.Someone->Type(L"x");
  CHECK(form.Text.Text().empty());
}

TEST_CASE("a check box tells of each change of its value, an option button of being chosen") {
  Stage stage;
  TestForm& form = stage.Form;
  std::string told;
  form.Check.Click = [&] { told += 'c'; };
  form.First.Click = [&] { told += '1'; };
  form.Second.Click = [&] { told += '2'; };
  form.Check.SetValue(true);
  form.Check.SetValue(true);
  stage.Someone->Click(form.Check);
  CHECK_FALSE(form.Check.Value());
  form.First.SetValue(true);
  stage.Someone->Click(form.Second);
  stage.Someone->Click(form.Second);
  CHECK(told == "cc12");
  CHECK_FALSE(form.First.Value());
  CHECK(form.Second.Value());
}

TEST_CASE("a list keeps its selection on its entry, and tells of a new one once") {
  Stage stage;
  ComboBox& combo = stage.Form.Combo;
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  for (const wchar_t* item : {L"one", L"two", L"three", L"four"}) combo.AddItem(item);
  CHECK(combo.ListIndex() == -1);
  combo.SetListIndex(2);
  combo.SetListIndex(2);
  CHECK(clicks == 1);
  CHECK(stage.Someone->ShownText(combo) == L"three");

  combo.RemoveItem(0);
  CHECK(combo.ListIndex() == 1);
  combo.SetList(1, L"THREE");
  CHECK(stage.Someone->ShownText(combo) == L"THREE");

  combo.SetFocus();
  stage.Someone->Press(Key::Down);
  CHECK(combo.Text() == L"four");
  combo.RemoveItem(2);
  CHECK(combo.ListIndex() == -1);
  CHECK(stage.Someone->ShownText(combo).empty());
  CHECK(clicks == 2);
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
