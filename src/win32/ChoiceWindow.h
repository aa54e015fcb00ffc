#pragma once

#include "form/Button.h"
#include "win32/ControlWindow.h"

namespace vantor::win32 {

/// What check boxes and option buttons share: the system draws them, and only the control ticks them.
class ChoiceWindow : public ControlWindow {
 public:
  void Refresh() override;
  void OnCommand(WORD notification) override;
  HBRUSH OnColor(HDC dc) override;

 protected:
  ChoiceWindow(FormWindow& owner, form::Control& control, DWORD style);

  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;

  [[nodiscard]] virtual const std::wstring& Caption() const = 0;
  [[nodiscard]] virtual bool Value() const = 0;
  virtual void Click() = 0;

 private:
  bool focusing_ = false;  // a button that gets the focus may say that it was clicked
  BrushHandle backdrop_;
};

class CheckWindow final : public ChoiceWindow {
 public:
  CheckWindow(FormWindow& owner, form::CheckBox& box) : ChoiceWindow(owner, box, BS_CHECKBOX), box_(box) {}

 protected:
  [[nodiscard]] const std::wstring& Caption() const override { return box_.Caption(); }
  [[nodiscard]] bool Value() const override { return box_.Value(); }
  void Click() override { box_.InputClick(); }

 private:
  form::CheckBox& box_;
};

class OptionWindow final : public ChoiceWindow {
 public:
  OptionWindow(FormWindow& owner, form::OptionButton& button)
      : ChoiceWindow(owner, button, BS_RADIOBUTTON), button_(button) {}

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  [[nodiscard]] const std::wstring& Caption() const override { return button_.Caption(); }
  [[nodiscard]] bool Value() const override { return button_.Value(); }
  void Click() override { button_.InputClick(); }

 private:
  /// Chooses the option button of the same container that comes next, or before.
  void ChooseNeighbour(bool backwards);

  form::OptionButton& button_;
};

}  // namespace vantor::win32
