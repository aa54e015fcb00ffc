#include <doctest/doctest.h>

#include <string>

#include "form/Button.h"
#include "form/Headless.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "form/TextBox.h"

namespace vantor::form {
namespace {

/// The window behind a control, which remembers the last notification.
struct Listener : ControlWindow {
  void Changed(Property property) override { Last = static_cast<int>(property); }
  void TakeFocus() override { Last = -2; }
  int Last = -1;
};

TEST_CASE("a window is told of each change of its control, and of nothing that is no change") {
  Headless desktop;
  Form form(desktop, L"Form");
  TextBox text(form, L"Text");
  ComboBox list(form, L"List");
  CommandButton button(form, L"Button");
  CheckBox check(form, L"Check");
  Label label(form, L"Label");
  Frame frame(form, L"Frame");
  Image image(form, L"Image");
  PictureBox picture(form, L"Picture");
  form.Show();
  const struct {
    Control& Of;
    Property Told;
    std::function<void()> Change;
    bool Always = false;  // also when the value is as it was
  } rows[] = {
      {text, Property::Bounds,
       [&] {
         text.SetBounds({1, 2, 3, 4});
       }},
      {text, Property::Visible, [&] { text.SetVisible(false); }},
      {text, Property::Enabled, [&] { text.SetEnabled(false); }},
      {text, Property::Colors, [&] { text.SetBackColor(Color::LineBlue); }},
      {text, Property::Colors, [&] { text.SetForeColor(Color::LineBlue); }},
      {text, Property::ToolTip, [&] { text.SetToolTip(L"x"); }},
      {text, Property::ToolTip, [&] { text.SetAccessibleName(L"x"); }},
      {text, Property::Text, [&] { text.SetText(L"x"); }},
      {text, Property::Selection, [&] { text.SelectAll(); }, true},
      {list, Property::List, [&] { list.AddItem(L"x"); }, true},
      {list, Property::ListIndex, [&] { list.SetListIndex(0); }},
      {list, Property::List, [&] { list.SetList(0, L"y"); }, true},
      {list, Property::List, [&] { list.RemoveItem(0); }, true},
      {list, Property::List, [&] { list.Clear(); }, true},
      {button, Property::Caption, [&] { button.SetCaption(L"x"); }},
      {button, Property::Picture, [&] { button.SetPicture({form::Background::Normal}); }},
      {check, Property::Caption, [&] { check.SetCaption(L"x"); }},
      {check, Property::Value, [&] { check.SetValue(true); }},
      {label, Property::Caption, [&] { label.SetCaption(L"x"); }},
      {frame, Property::Caption, [&] { frame.SetCaption(L"x"); }},
      {image, Property::Picture, [&] { image.SetPicture({form::Background::Normal}); }},
      {picture, Property::Picture, [&] { picture.SetPicture({form::Background::Normal}); }},
  };
  button.SetToolTip(L"Name---F1");
  CHECK(button.AccessibleName() == L"Name");
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    Listener window;
    row.Of.AttachWindow(&window);
    row.Change();
    CHECK(window.Last == static_cast<int>(row.Told));
    window.Last = -1;
    if (!row.Always) row.Change();
    CHECK(window.Last == -1);
    row.Of.AttachWindow(nullptr);
  }
}

}  // namespace
}  // namespace vantor::form
