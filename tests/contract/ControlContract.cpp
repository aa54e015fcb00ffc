#include <doctest/doctest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "contract/Person.h"
#include "form/Button.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "form/TextBox.h"

using namespace vantor::form;
using vantor::contract::MakePerson;
using vantor::contract::Person;

namespace {

class TestForm : public Form {
 public:
  explicit TestForm(UserInterface& ui) : Form(ui, L"TestForm") {
    SetBounds({1500, 1500, 6000, 5100});
    int top = 150;
    for (Control* control : Controls()) {
      if (control->Container() != nullptr) continue;
      control->SetBounds({150, top, 5700, control->Kind() == ControlKind::Frame ? 900 : 450});
      top += control->Height() + 150;
    }
    InFrame.SetBounds({150, 300, 3000, 450});
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
  ListBox List{*this, L"List"};
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

  SUBCASE("set by the program, with the caret at the start") {
    box.SetText(L"abc");
    box.SetText(L"abc");
    CHECK(changes == std::vector<std::wstring>{L"abc"});
    CHECK(box.SelStart() == 0);
    CHECK(box.SelLength() == 0);
    CHECK(stage.Someone->ShownText(box) == L"abc");
    stage.Someone->Type(L"x");
    CHECK(box.Text() == L"xabc");
  }
  SUBCASE("typed, over the selection") {
    box.SetText(L"Vantor");
    box.SelectAll();
    changes.clear();
    stage.Someone->Type(L"p=\b-");
    CHECK(changes == std::vector<std::wstring>{L"p", L"p=", L"p", L"p-"});
    CHECK(stage.Someone->ShownText(box) == L"p-");
    CHECK(box.SelStart() == 2);
  }
  SUBCASE("a handler that completes the text has the last word") {
    box.Change = [&] {
      if (box.Text() != L"d.my") return;
      box.SetText(L"d.MyDocuments");
      box.Select(4, 9);
    };
    stage.Someone->Type(L"d.my");
    CHECK(stage.Someone->ShownText(box) == L"d.MyDocuments");
    CHECK(stage.Someone->ShownSelection(box) == L"Documents");
    stage.Someone->Type(L"\b");
    CHECK(box.Text() == L"d.My");
  }
}

TEST_CASE("a selection is brought into the text") {
  Stage stage;
  TextBox& box = stage.Form.Text;
  box.SetText(L"abc");
  box.Select(2, 9);
  CHECK(box.SelLength() == 1);
  CHECK(stage.Someone->ShownSelection(box) == L"c");
  box.Select(-3, 2);
  CHECK(stage.Someone->ShownSelection(box) == L"ab");
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
  stage.Someone->Type(L"abc\r\b\x1b");
  CHECK(seen == L"abc\r\b\x1b");
  CHECK(box.Text() == L"B");
  CHECK(stage.Someone->ShownText(box) == L"B");
}

TEST_CASE("a locked text box takes text from the program only") {
  const auto someone = MakePerson();
  Form form(someone->Ui(), L"LockedForm");
  TextBox box(form, L"Box");
  form.SetBounds({1500, 1500, 6000, 4500});
  box.SetBounds({150, 150, 4500, 450});
  box.SetLocked(true);
  form.Show();
  REQUIRE(someone->WaitUntil([&] { return someone->IsShownFocused(box); }));
  box.SetText(L"C:\\Tools");
  someone->Type(L"x\b");
  CHECK(box.Text() == L"C:\\Tools");
  CHECK(someone->ShownText(box) == L"C:\\Tools");
  form.Unload();
}

TEST_CASE("a double click is told of") {
  Stage stage;
  int count = 0;
  stage.Form.Text.DblClick = [&] { ++count; };
  stage.Form.Text.SetText(L"abc");
  stage.Someone->DoubleClick(stage.Form.Text);
  CHECK(count == 1);
}

TEST_CASE("controls that are disabled, hidden or inside such a frame ignore the user") {
  Stage stage;
  int clicks = 0;
  for (CommandButton* button : {&stage.Form.Button, &stage.Form.InFrame}) button->Click = [&] { ++clicks; };

  stage.Someone->Click(stage.Form.Button);
  stage.Someone->Click(stage.Form.InFrame);
  CHECK(clicks == 2);

  stage.Form.Button.SetEnabled(false);
  stage.Form.Box.SetEnabled(false);
  stage.Someone->Click(stage.Form.Button);
  stage.Someone->Click(stage.Form.InFrame);
  stage.Form.Button.DoClick();
  CHECK(clicks == 2);
  CHECK_FALSE(stage.Someone->IsShownEnabled(stage.Form.Button));

  stage.Form.Button.SetEnabled(true);
  stage.Form.Button.SetVisible(false);
  stage.Form.Box.SetEnabled(true);
  stage.Form.Box.SetVisible(false);
  stage.Someone->Click(stage.Form.Button);
  stage.Someone->Click(stage.Form.InFrame);
  CHECK(clicks == 2);
  CHECK_FALSE(stage.Someone->IsShown(stage.Form.Button));

  stage.Form.Text.SetEnabled(false);
  stage.Someone->Type(L"x");
  CHECK(stage.Form.Text.Text().empty());
}

TEST_CASE("the keyboard presses what has the focus, and Tab walks in tab order past what can't be reached") {
  Stage stage;
  int clicks = 0;
  stage.Form.Button.Click = [&] { ++clicks; };
  stage.Someone->Press(Key::Tab);
  CHECK(stage.Someone->IsShownFocused(stage.Form.Button));
  stage.Someone->Press(Key::Space);
  stage.Someone->Press(Key::Enter);
  CHECK(clicks == 2);
  stage.Form.Check.SetEnabled(false);
  stage.Form.Combo.SetTabStop(false);
  stage.Someone->Press(Key::Tab);
  CHECK(stage.Someone->IsShownFocused(stage.Form.First));
  stage.Form.First.SetVisible(false);
  CHECK_FALSE(stage.Form.First.HasFocus());
  stage.Form.Text.SetFocus();
  CHECK(stage.Someone->IsShownFocused(stage.Form.Text));
}

TEST_CASE("a check box tells of each change of its value, an option button of being chosen") {
  Stage stage;
  std::string told;
  stage.Form.Check.Click = [&] { told += 'c'; };
  stage.Form.First.Click = [&] { told += '1'; };
  stage.Form.Second.Click = [&] { told += '2'; };
  stage.Form.Check.SetValue(true);
  stage.Form.Check.SetValue(true);
  stage.Someone->Click(stage.Form.Check);
  CHECK_FALSE(stage.Form.Check.Value());
  CHECK(told == "cc");
  stage.Form.First.SetValue(true);
  stage.Someone->Click(stage.Form.Second);
  stage.Someone->Click(stage.Form.Second);
  CHECK(told == "cc12");
  CHECK_FALSE(stage.Form.First.Value());
  CHECK(stage.Form.Second.Value());
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
  CHECK(combo.Text() == L"three");
  combo.SetList(1, L"THREE");
  CHECK(stage.Someone->ShownText(combo) == L"THREE");

  combo.SetFocus();
  stage.Someone->Press(Key::Down);
  CHECK(combo.Text() == L"four");
  CHECK(clicks == 2);
  combo.RemoveItem(2);
  CHECK(combo.ListIndex() == -1);
  CHECK(stage.Someone->ShownText(combo).empty());
  CHECK(clicks == 2);
  CHECK_THROWS_AS(combo.RemoveItem(2), std::out_of_range);
  CHECK_THROWS_AS(combo.SetListIndex(2), std::out_of_range);
}

TEST_CASE("a list box is filled at once, walked by the arrows, and Enter chooses") {
  Stage stage;
  ListBox& list = stage.Form.List;
  std::wstring told;
  list.Click = [&] { told += list.Text(); };
  list.DblClick = [&] { told += L'!'; };
  list.SetEntries({L"a", L"b", L"c"});
  CHECK(list.ListIndex() == -1);
  list.SetListIndex(0);
  list.SetFocus();
  stage.Someone->Press(Key::Down);
  stage.Someone->Press(Key::Down);
  stage.Someone->Press(Key::Up);
  stage.Someone->Press(Key::Enter);
  CHECK(told == L"abcb!");
  list.SetEntries({L"d"});
  CHECK(list.ListIndex() == -1);
  stage.Someone->Press(Key::Down);
  CHECK(list.Text() == L"d");
}

TEST_CASE("two lists that follow each other end after one round") {
  Stage stage;
  ComboBox other(stage.Form, L"Other");
  for (ComboBox* box : {&stage.Form.Combo, &other}) {
    box->AddItem(L"a");
    box->AddItem(L"b");
  }
  stage.Form.Combo.Click = [&] { other.SetListIndex(stage.Form.Combo.ListIndex()); };
  other.Click = [&] { stage.Form.Combo.SetListIndex(other.ListIndex()); };
  other.SetListIndex(1);
  CHECK(stage.Form.Combo.ListIndex() == 1);
}
