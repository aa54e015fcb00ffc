#include <doctest/doctest.h>

#include <string>

#include "contract/Person.h"
#include "form/Button.h"
#include "form/RowList.h"
#include "form/TextBox.h"
#include "form/Timer.h"

// What no flow sees of the two back ends.

using namespace vantor::form;
using vantor::contract::Person;

namespace {

class TestForm : public Form, private RowSource {
 public:
  explicit TestForm(UserInterface& ui) : Form(ui, L"TestForm") {
    MoveTo(1500, 1500);
    SetInside({6000, 1950});
    int top = 150;
    for (Control* control : Controls()) {
      control->SetBounds({150, top, 5700, 450});
      top += 600;
    }
    Rows.SetRowHeight(150);
  }

  TextBox Text{*this, L"Text"};
  CommandButton Button{*this, L"Button"};
  RowList Rows{*this, L"Rows", *this};
  Timer Clock{*this, 100};

 private:
  [[nodiscard]] int RowCount() const override { return 10; }
  [[nodiscard]] Row RowAt(int index) const override { return {std::to_wstring(index), 0, 0, L""}; }
};

struct Stage {
  std::unique_ptr<Person> Someone = vantor::contract::MakePerson();
  TestForm Form{Someone->Ui()};
  TextBox& Box = Form.Text;

  Stage() {
    Form.Show();
    AwaitKeyboard(Box);
  }
  ~Stage() { Form.Unload(); }
  void AwaitKeyboard(const Control& control) const {
    REQUIRE(Someone->WaitUntil([&] { return Someone->HasKeyboard(control); }));
  }
};

}  // namespace

TEST_CASE(
    "a text box tells of every change of its text, once, after the key, and what hears of them has the last word") {
  Stage stage;
  TextBox& box = stage.Box;
  std::wstring told;
  box.KeyPress = [&](wchar_t& character) {
    if (character < L' ') told += L'!';
    if (character == L'a') character = 0;
    if (character == L'b') character = L'B';
  };
  box.Change = [&] {
    told += L'[' + box.Text() + L']';
    if (box.Text() != L"d.my") return;
    box.SetText(L"d.MyDocuments");
    box.Select(4, 9);
  };
  box.DblClick = [&] { told += L'2'; };
  const auto after = [&](const auto& act) {
    told.clear();
    act();
    return told;
  };
  const auto afterTyping = [&](std::wstring_view text) { return after([&] { stage.Someone->Type(text); }); };
  // Set by the program, with the caret at the start; then typed, over a selection too.
  CHECK(after([&] { box.SetText(L"Vantor"); }) == L"[Vantor]");
  CHECK(after([&] { box.SetText(L"Vantor"); }).empty());
  CHECK(afterTyping(L"x") == L"[xVantor]");
  box.SelectAll();
  CHECK(afterTyping(L"p=\b-") == L"[p][p=]![p][p-]");
  CHECK(box.SelStart() == 2);
  CHECK(after([&] { box.SetText(L""); }) == L"[]");
  CHECK(afterTyping(L"d.my\b") == L"[d][d.][d.m][d.my][d.MyDocuments]![d.My]");
  // A selection is brought into the text.
  box.Select(2, 9);
  CHECK(afterTyping(L"a\rbc\x1b") == L"![d.B][d.Bc]!");
  box.Select(-3, 2);
  CHECK(afterTyping(L"\b") == L"![Bc]");
  CHECK(after([&] { stage.Someone->DoubleClick(box); }) == L"2");
}

TEST_CASE("while an input method composes, the arrow keys are its own, and its end is told once") {
  Stage stage;
  std::string told;
  stage.Box.KeyDown = [&](Key& /*key*/) { told += 'k'; };
  stage.Box.Compose = [&](bool begins) { told += begins ? '(' : ')'; };
  stage.Box.Change = [&] { told += stage.Box.Composing() ? 'c' : 'C'; };
  stage.Someone->Press(Key::Down);
  stage.Someone->Compose(stage.Box, true);
  stage.Someone->Press(Key::Down);
  stage.Someone->Type(L"x");
  stage.Someone->Compose(stage.Box, false);
  stage.Someone->Compose(stage.Box, true);
  stage.Someone->Compose(stage.Box, false);
  CHECK(told == "k(cC()");
}

TEST_CASE("a list of rows shows a page of them, scrolls by the wheel as far as they go, and leaves the focus alone") {
  Stage stage;
  RowList& list = stage.Form.Rows;
  std::string told;
  list.Click = [&](int row) { told += std::to_string(row); };
  stage.Box.Wheel = [&](int rows) { list.ScrollTo(list.TopRow() + rows); };
  const std::function<void()> rows[] = {
      [] {},
      [&] { stage.Someone->Turn(list, 3); },
      [&] { stage.Someone->Turn(list, 9); },
      [&] { stage.Someone->Turn(stage.Box, -3); },
      [&] { list.SetCurrentRow(1); },
      [&] { list.SetCurrentRow(9); },
      [&] { list.ShowRows(-1); },
  };
  for (const auto& act : rows) {
    act();
    stage.Someone->Click(list);  // the middle of three rows
  }
  CHECK(told == "1485281");
  CHECK(stage.Someone->HasKeyboard(stage.Box));
}

TEST_CASE("a modal form keeps the user from the others until it goes, while time passes, but not for whom it waits") {
  Stage stage;
  TestForm modal(stage.Someone->Ui());
  modal.MoveTo(1500, 4500);
  modal.Button.Click = [&] { modal.Unload(); };
  int clicks = 0;
  stage.Form.Button.Click = [&] { ++clicks; };
  int ticks = 0;
  int others = 0;
  modal.Clock.Tick = [&] { ++others; };
  stage.Form.Clock.Tick = [&] {
    if (++ticks < 3) return;
    stage.Someone->WhenModal([&](Form& open) {
      CHECK(&open == &modal);
      stage.AwaitKeyboard(modal.Text);
      stage.Someone->Click(stage.Form.Button);
      stage.Someone->Type(L"x");
      // Three times as long as the other's interval: this one's would come, too.
      CHECK(stage.Someone->WaitUntil([&] { return others >= 3; }));
      stage.Someone->Click(modal.Button);
    });
    modal.Clock.SetEnabled(true);
    modal.ShowModal();
    modal.Clock.SetEnabled(false);
    CHECK((ticks == 3 && clicks == 0 && modal.Text.Text() == L"x" && stage.Box.Text().empty()));
    stage.Form.Clock.SetEnabled(false);
  };
  stage.Form.Clock.SetEnabled(true);
  CHECK(stage.Someone->WaitUntil([&] { return ticks == 3 && !stage.Form.Clock.Enabled(); }));
  stage.AwaitKeyboard(stage.Box);
  stage.Someone->Click(stage.Form.Button);
  CHECK(clicks == 1);
}
