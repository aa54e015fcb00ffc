#include "contract/Person.h"
#include "form/Headless.h"
#include "form/RowList.h"
#include "form/TextBox.h"

namespace vantor::contract {

namespace {

class HeadlessPerson : public Person {
 public:
  form::UserInterface& Ui() override { return desktop_; }
  void Type(std::wstring_view text) override { desktop_.Type(text); }
  void Press(form::Key key) override { desktop_.Press(key); }
  void Click(form::Control& control) override {
    if (auto* const rows = dynamic_cast<form::RowList*>(&control))
      desktop_.ClickRow(*rows, rows->TopRow() + rows->PageRows() / 2);
    else
      desktop_.Click(control);
  }
  void DoubleClick(form::Control& control) override { desktop_.DoubleClick(control); }
  void Turn(form::Control& control, int rows) override { desktop_.Wheel(control, rows); }
  void Compose(form::TextBox& box, bool begins) override { box.InputComposing(begins); }
  bool WaitUntil(const std::function<bool()>& condition) override {
    for (int passed = 0; passed < 5000 && !condition(); passed += 10) desktop_.Advance(10);
    return condition();
  }
  void WhenModal(std::function<void(form::Form&)> script) override { desktop_.WhenModal(std::move(script)); }

 private:
  form::Headless desktop_;
};

}  // namespace

std::unique_ptr<Person> MakePerson() { return std::make_unique<HeadlessPerson>(); }

}  // namespace vantor::contract
