#include <doctest/doctest.h>

#include <set>
#include <string>

#include "fake/Computer.h"
#include "form/Button.h"
#include "form/FileLists.h"
#include "form/Headless.h"
#include "form/RowList.h"
#include "form/TextBox.h"

namespace vantor::form {
namespace {

/// The window behind a control, which remembers the notifications.
struct Listener : ControlWindow {
  void Changed(Property property) override { Told.insert(property); }
  void TakeFocus() override {}
  std::set<Property> Told;
};

struct TenRows final : RowSource {
  [[nodiscard]] int RowCount() const override { return 10; }
  [[nodiscard]] Row RowAt(int /*index*/) const override { return {}; }
};

TEST_CASE("a window is told of each change of its control, and of nothing that is no change") {
  Headless desktop;
  Form form(desktop, L"Form");
  TextBox text(form, L"Text");
  ComboBox list(form, L"List");
  CommandButton button(form, L"Button");
  const TenRows ten;
  RowList rowList(form, L"Rows", ten);
  fake::Computer computer;
  DriveList drives(form, L"Drives", computer);
  FolderList folders(form, L"Folders", computer);
  FileList files(form, L"Files", computer);
  form.Show();
  const struct {
    Control& Of;
    Property Told;
    std::function<void()> Change;
    bool Always = false;  // also when the value is as it was
  } rows[] = {
      {text, Property::Visible, [&] { text.SetVisible(false); }},
      {text, Property::Enabled, [&] { text.SetEnabled(false); }},
      {text, Property::Colors, [&] { text.SetForeColor(Color::LineBlue); }},
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
      {rowList, Property::List, [&] { rowList.ShowRows(0); }, true},
      {rowList, Property::ListIndex, [&] { rowList.SetCurrentRow(1); }, true},
      {rowList, Property::Scroll, [&] { rowList.ScrollTo(3); }},
      {drives, Property::List, [&] { drives.Refresh(); }, true},
      {drives, Property::List, [&] { drives.SetDrive(L"Q:"); }},
      {drives, Property::ListIndex, [&] { drives.SetDrive(L"E:"); }},
      {drives, Property::ListIndex, [&] { drives.Refresh(); }, true},
      {folders, Property::ListIndex, [&] { (void)folders.SetPath(L"C:\\Work\\"); }},
      {files, Property::List, [&] { files.SetPath(L"C:\\Work"); }},
  };
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    Listener window;
    row.Of.AttachWindow(&window);
    row.Change();
    CHECK(window.Told.contains(row.Told));
    window.Told.clear();
    if (!row.Always) row.Change();
    CHECK(window.Told.empty());
    row.Of.AttachWindow(nullptr);
  }
  int clicks = 0;
  rowList.Click = [&](int /*row*/) { ++clicks; };
  for (const int row : {-1, 9, 10}) desktop.ClickRow(rowList, row);
  CHECK(clicks == 1);
  CHECK_THROWS_AS(list.SetListIndex(0), std::out_of_range);
  // A chosen drive that is gone stays chosen; a folder's entry is that of the folder.
  computer.Disk.Drives.erase(L'E');
  drives.Refresh();
  CHECK(drives.Drive() == L"e:");
  CHECK((folders.Text() == L"Work" && folders.PathOf(0) == L"C:\\"));
}

}  // namespace
}  // namespace vantor::form
