#pragma once

#include <string_view>

#include "form/Button.h"
#include "form/Form.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "form/Timer.h"
#include "form/UserInterface.h"

namespace vantor::message {

/// How the user left a message. None: the program ended while it was open.
enum class Answer { None, Accepted, Cancelled };

/// The message box: a head line, a text, two buttons, and one input. Each
/// message gets a form of its own; its opener applies the answer.
class frmMessage : public form::Form {
 public:
  explicit frmMessage(form::UserInterface& ui);

  form::PictureBox PictureMessage{*this, L"PictureMessage"};
  form::CheckBox CheckDoNotShow{*this, L"CheckDoNotShow"};
  form::CommandButton CommandOK{*this, L"CommandOK"};
  form::CommandButton CommandCancel{*this, L"CommandCancel"};
  form::Timer Timer1{*this, 1000};
  form::TextBox TextInput0{*this, L"TextInput0"};
  // The words on the buttons, which are the buttons' captions.
  form::CommandButton& LabelCancel = CommandCancel;
  form::CommandButton& LabelOK = CommandOK;
  form::Label LabelMessage{*this, L"LabelMessage"};
  form::Label LabelHead{*this, L"LabelHead"};

  /// Enables and names the buttons. False for a word that is no button set.
  [[nodiscard]] bool ApplyButtonSet(std::wstring_view buttons);
  /// "Input0" shows the input and puts it first in tab order.
  void ApplyInputSet(std::wstring_view inputs);
  /// The input takes letters only, Enter in it answers.
  void AskForName() { asksForName_ = true; }
  /// Places the controls around their texts, and the form in the middle of the bar's screen, or below or above the bar
  /// where that covers less of it.
  void Arrange(const form::Rect& bar);

  [[nodiscard]] message::Answer Answer() const { return answer_; }

 protected:
  [[nodiscard]] form::Size RoomNeeded() const override;
  void Form_KeyUp(form::Key key) override;
  void Form_Close() override { Dismiss(); }

 private:
  void TextInput0_Change();
  void TextInput0_KeyPress(wchar_t& character);
  /// Refuses where that is possible, else accepts where that is.
  void Dismiss();
  void Leave(message::Answer answer);

  message::Answer answer_ = message::Answer::None;
  bool asksForName_ = false;
};

}  // namespace vantor::message
