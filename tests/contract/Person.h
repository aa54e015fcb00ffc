#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "form/Control.h"
#include "form/Form.h"
#include "form/Keys.h"
#include "form/UserInterface.h"

namespace vantor::contract {

/// A person who uses a back end with the keyboard and the mouse. What is done has been handled
/// when the call returns.
class Person {
 public:
  Person() = default;
  virtual ~Person() = default;
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  virtual form::UserInterface& Ui() = 0;

  /// Types characters into whatever has the focus. Backspace is '\b', Enter '\r', Escape '\x1b'.
  virtual void Type(std::wstring_view text) = 0;
  virtual void Press(form::Key key) = 0;
  /// Points at the control's middle and clicks, also where it is disabled, or hidden.
  virtual void Click(form::Control& control) = 0;
  virtual void DoubleClick(form::Control& control) = 0;
  /// Turns the wheel over the control by a multiple of 3 rows; down is positive.
  virtual void Turn(form::Control& control, int rows) = 0;
  /// An input method begins to compose in the box, or ends.
  virtual void Compose(form::TextBox& box, bool begins) = 0;
  /// Lets time pass until the condition holds; false when it does not within 5 seconds.
  virtual bool WaitUntil(const std::function<bool()>& condition) = 0;
  /// What this person does when the next modal form is open.
  virtual void WhenModal(std::function<void(form::Form&)> script) = 0;

  /// Whether what is typed now goes to the control.
  virtual bool HasKeyboard(const form::Control& control) { return control.HasFocus(); }
};

/// A person in front of the back end that this test program is about.
std::unique_ptr<Person> MakePerson();

}  // namespace vantor::contract
