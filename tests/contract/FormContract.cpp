#include <doctest/doctest.h>

#include <string>

#include "contract/Person.h"
#include "form/Button.h"
#include "form/ListControl.h"
#include "form/TextBox.h"
#include "form/Timer.h"

using namespace vantor::form;
using vantor::contract::MakePerson;

namespace {

class RecordingForm : public Form {
 public:
  RecordingForm(UserInterface& ui, std::string& told) : Form(ui, L"RecordingForm"), told_(told) {
    MoveTo(1500, 1500);
    SetInside({4500, 1500});
    Text.SetBounds({150, 150, 4200, 450});
    Close.SetBounds({150, 750, 1500, 450});
    List.SetBounds({1800, 750, 1500, 315});
  }

  TextBox Text{*this, L"Text"};
  CommandButton Close{*this, L"Close"};
  ComboBox List{*this, L"List"};
  Timer Clock{*this, 100};

 protected:
  void Form_Load() override { told_ += "load "; }
  void Form_Unload() override { told_ += "unload "; }
  void Form_KeyUp(Key key) override {
    if (key >= Key::F1 && key <= Key::F12) told_ += "F" + std::to_string(static_cast<int>(key) - 0x6F) + " ";
  }

 private:
  std::string& told_;
};

/// Somebody with a form, and one more for what opens over it.
struct Stage {
  std::unique_ptr<vantor::contract::Person> Someone = MakePerson();
  std::string Told;
  RecordingForm First{Someone->Ui(), Told};
  RecordingForm Second{Someone->Ui(), Told};

  void AwaitFocus(const Control& control) const {
    REQUIRE(Someone->WaitUntil([&] { return Someone->IsShownFocused(control); }));
  }
};

}  // namespace

TEST_CASE("a form is loaded once until its unload, hidden and shown, and sees the function keys of every control") {
  Stage stage;
  RecordingForm& form = stage.First;
  form.Text.SetText(L"kept");
  CHECK(stage.Told.empty());
  CHECK_FALSE(stage.Someone->IsShown(form));
  form.Show();
  form.Hide();
  CHECK_FALSE(stage.Someone->IsShown(form));
  form.Show();
  stage.AwaitFocus(form.Text);
  CHECK(stage.Someone->ShownText(form.Text) == L"kept");
  stage.Someone->Press(Key::F1);
  form.Close.SetFocus();
  stage.Someone->Press(Key::F10);
  form.List.AddItem(L"one");
  form.List.SetFocus();
  stage.Someone->Press(Key::F4);  // drops lists elsewhere
  stage.Someone->Press(Key::F12);
  form.Unload();
  form.Unload();
  CHECK_FALSE(stage.Someone->IsShown(form));
  form.Show();
  stage.AwaitFocus(form.List);
  CHECK(stage.Told == "load F1 F10 F4 F12 unload load ");
  form.Unload();
}

TEST_CASE("a modal form keeps the user from the others until it goes, also when it unloads itself") {
  Stage stage;
  RecordingForm& behind = stage.First;
  RecordingForm& modal = stage.Second;
  int behindClicks = 0;
  behind.Close.Click = [&] { ++behindClicks; };
  modal.Close.Click = [&] { modal.Unload(); };
  modal.MoveTo(1500, 4500);
  modal.SetInside({4500, 1500});
  behind.Show();
  stage.AwaitFocus(behind.Text);
  stage.Someone->WhenModal([&](Form& open) {
    CHECK(&open == &modal);
    stage.AwaitFocus(modal.Text);
    stage.Someone->Click(behind.Close);
    CHECK(behindClicks == 0);
    stage.Someone->Type(L"x");
    stage.Someone->Click(modal.Close);
  });
  modal.ShowModal();

  CHECK(modal.Text.Text() == L"x");
  CHECK(behind.Text.Text().empty());
  CHECK_FALSE(stage.Someone->IsShown(modal));
  stage.AwaitFocus(behind.Text);
  stage.Someone->Click(behind.Close);
  CHECK(behindClicks == 1);
  behind.Unload();
}

TEST_CASE("a timer ticks every interval while it is enabled, and not while its own tick is being handled") {
  Stage stage;
  Timer& clock = stage.First.Clock;
  Timer& other = stage.Second.Clock;
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
    stage.Second.ShowModal();
    other.SetEnabled(false);
    CHECK(ticks == 3);
    clock.SetEnabled(false);
  };
  clock.SetEnabled(true);
  CHECK(stage.Someone->WaitUntil([&] { return ticks == 3 && !clock.Enabled(); }));
}
