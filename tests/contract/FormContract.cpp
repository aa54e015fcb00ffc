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
    SetBounds({1500, 1500, 4500, 1500});
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

}  // namespace

TEST_CASE("a form is loaded on first use, hidden and shown without a second load, and loaded anew after an unload") {
  const auto someone = MakePerson();
  std::string told;
  RecordingForm form(someone->Ui(), told);
  form.Text.SetText(L"kept");
  CHECK(told.empty());
  CHECK_FALSE(someone->IsShown(form));
  form.Show();
  form.Hide();
  CHECK_FALSE(someone->IsShown(form));
  form.Show();
  CHECK(someone->WaitUntil([&] { return someone->IsShown(form); }));
  CHECK(someone->ShownText(form.Text) == L"kept");
  CHECK(told == "load ");
  form.Unload();
  form.Unload();
  CHECK(told == "load unload ");
  CHECK_FALSE(someone->IsShown(form));
  form.Show();
  CHECK(someone->WaitUntil([&] { return someone->IsShownFocused(form.Text); }));
  CHECK(told == "load unload load ");
  form.Unload();
}

TEST_CASE("a form sees the function keys whichever control has the focus") {
  const auto someone = MakePerson();
  std::string told;
  RecordingForm form(someone->Ui(), told);
  form.Show();
  REQUIRE(someone->WaitUntil([&] { return someone->IsShownFocused(form.Text); }));
  told.clear();
  someone->Press(Key::F1);
  form.Close.SetFocus();
  someone->Press(Key::F10);
  someone->Press(Key::F12);
  form.List.AddItem(L"one");
  form.List.SetFocus();
  someone->Press(Key::F4);  // drops lists elsewhere
  someone->Press(Key::F2);
  CHECK(told == "F1 F10 F12 F4 F2 ");
  form.Unload();
}

TEST_CASE("a modal form keeps the user from the others until it goes, also when it unloads itself") {
  const auto someone = MakePerson();
  std::string told;
  RecordingForm behind(someone->Ui(), told);
  RecordingForm modal(someone->Ui(), told);
  int behindClicks = 0;
  behind.Close.Click = [&] { ++behindClicks; };
  modal.Close.Click = [&] { modal.Unload(); };
  modal.SetBounds({1500, 4500, 4500, 1500});
  behind.Show();
  REQUIRE(someone->WaitUntil([&] { return someone->IsShownFocused(behind.Text); }));

  someone->WhenModal([&](Form& open) {
    CHECK(&open == &modal);
    CHECK(someone->WaitUntil([&] { return someone->IsShownFocused(modal.Text); }));
    someone->Click(behind.Close);
    CHECK(behindClicks == 0);
    someone->Type(L"x");
    someone->Click(modal.Close);
  });
  modal.ShowModal();

  CHECK(modal.Text.Text() == L"x");
  CHECK(behind.Text.Text().empty());
  CHECK_FALSE(someone->IsShown(modal));
  CHECK(someone->WaitUntil([&] { return someone->IsShownFocused(behind.Text); }));
  someone->Click(behind.Close);
  CHECK(behindClicks == 1);
  behind.Unload();
}

TEST_CASE("a timer ticks every interval while it is enabled, and not while its own tick is being handled") {
  const auto someone = MakePerson();
  std::string told;
  RecordingForm form(someone->Ui(), told);
  int ticks = 0;
  form.Clock.Tick = [&] {
    if (++ticks == 3) form.Clock.SetEnabled(false);
  };
  form.Clock.SetEnabled(true);
  CHECK(someone->WaitUntil([&] { return ticks == 3; }));
  CHECK_FALSE(form.Clock.Enabled());

  RecordingForm other(someone->Ui(), told);
  bool overlap = false;
  bool inside = false;
  form.Clock.Tick = [&] {
    overlap = overlap || inside;
    inside = true;
    int others = 0;
    other.Clock.Tick = [&] { ++others; };
    other.Clock.SetEnabled(true);
    someone->WhenModal([&](Form& open) {
      CHECK(someone->WaitUntil([&] { return others >= 3; }));
      open.Unload();
    });
    other.ShowModal();
    other.Clock.SetEnabled(false);
    form.Clock.SetEnabled(false);
    inside = false;
    ++ticks;
  };
  form.Clock.SetEnabled(true);
  CHECK(someone->WaitUntil([&] { return ticks == 4; }));
  CHECK_FALSE(overlap);
}

TEST_CASE("the end of the program takes all windows away and asks nobody") {
  const auto someone = MakePerson();
  std::string told;
  RecordingForm form(someone->Ui(), told);
  RecordingForm modal(someone->Ui(), told);
  form.Show();
  someone->WhenModal([&](Form&) { someone->Ui().End(); });
  modal.ShowModal();
  CHECK(told == "load load ");
  CHECK_FALSE(someone->IsShown(form));
  CHECK_FALSE(someone->IsShown(modal));
}
