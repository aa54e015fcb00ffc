#include <doctest/doctest.h>

#include "bar/StartedProgram.h"

using namespace vantor;
using form::Key;
using list::LaunchGroup;
using test::StartedProgram;
using Texts = std::vector<std::wstring>;

namespace {

/// The list panel, open over a list with items in all groups but that of the files.
struct ListPanel : StartedProgram {
  ListPanel() {
    for (const wchar_t* name : {L"Mail", L"Edit", L"Calc"}) {
      Add(LaunchGroup::Prog, name, std::wstring(L"C:\\") + name + L".exe");
    }
    Add(LaunchGroup::Fold, L"Docs", L"C:\\My docs");
    Add(LaunchGroup::Web, L"News", L"http://news");
    Desktop.Press(Key::F4);
  }
  list::GroupFrame& Prog = Program.frmChoose.Page.Prog;
};

}  // namespace

TEST_CASE("the list panel opens with an entry selected in each group that has items, and closes by each way") {
  ListPanel panel;
  start::Program& program = panel.Program;
  list::frmChoose& choose = program.frmChoose;
  CHECK(choose.Visible());
  CHECK(panel.Prog.Name.HasFocus());
  CHECK(panel.Prog.Name.Text() == L"Mail");
  CHECK(panel.Prog.Path.Text() == L"C:\\Mail.exe");
  CHECK(!choose.Page.File.Open.Enabled());
  CHECK(!choose.Page.File.Rename.Enabled());
  CHECK(choose.Page.Fold.Remove.Enabled());
  CHECK(choose.LabelListCancel.Caption() == L"Cancel");
  // Below the bar, and on the screen.
  CHECK(choose.Bounds().Top >= program.frmMain.Bounds().Bottom());
  CHECK(choose.Bounds().Right() <= 12000);

  const auto closedBy = [&](auto&& close) {
    program.frmMain.TextMain.SetText(L"x");
    close();
    CHECK(!choose.Visible());
    CHECK(program.frmMain.TextMain.HasFocus());
    CHECK(program.CommandState.OpenPanelIndex == -1);
    panel.Desktop.Press(Key::F4);
    CHECK(choose.Visible());
  };
  closedBy([&] { panel.Desktop.Press(Key::Escape); });
  closedBy([&] { panel.Desktop.Click(choose.CommandListCancel); });
  closedBy([&] { panel.Desktop.Click(program.frmMain.CommandMenu[2]); });
  closedBy([&] { panel.Desktop.Press(Key::F4); });
  closedBy([&] { choose.InputClose(); });
  panel.Desktop.Press(Key::F8);  // another panel on the same form
  CHECK(choose.Visible());
  CHECK(!choose.Page.FrameList.Visible());
  CHECK(program.CodePage.FrameCode.Visible());
}

TEST_CASE("an item opens after the panel has closed, by the starter of its group") {
  ListPanel panel;
  start::Program& program = panel.Program;
  panel.Prog.Path.SetListIndex(1);
  CHECK(panel.Prog.Name.Text() == L"Edit");
  panel.Desktop.Click(panel.Prog.Open);
  CHECK(!program.frmChoose.Visible());
  panel.Desktop.Press(Key::F4);
  panel.Desktop.Click(program.frmChoose.Page.Fold.Open);
  panel.Desktop.Press(Key::F4);
  panel.Services.ScriptShell.RunSucceeds = false;
  panel.ExpectMessage();
  panel.Desktop.Click(program.frmChoose.Page.Web.Open);
  CHECK(panel.Services.Programs.CommandLines == Texts{L"C:\\Edit.exe"});
  CHECK(panel.Services.ScriptShell.Runs == Texts{L"C:\\My docs", L"http://news"});
  CHECK(panel.Told.size() == 1);
}

TEST_CASE("renaming refuses a name of the same group in any letter case, and takes any other") {
  ListPanel panel;
  const auto rename = [&](std::wstring_view name) {
    if (!panel.Prog.FrameRename.Visible()) panel.Desktop.Click(panel.Prog.Rename);
    CHECK(panel.Prog.TextRename.HasFocus());
    panel.Desktop.Type(name);
    panel.Desktop.Type(L"\r");
  };
  for (const wchar_t* refused : {L"EDIT", L"mail", L"Mail"}) {
    panel.ExpectMessage();
    rename(refused);
    CHECK(panel.Prog.FrameRename.Visible());
    CHECK(panel.Prog.TextRename.Text().empty());
  }
  CHECK(panel.Told.size() == 3);
  const std::wstring longName(1000, L'\u0416');
  for (const std::wstring& taken : {std::wstring(L"News"), std::wstring(L"\""), longName}) {
    rename(taken);
    CHECK(panel.Prog.Name.Text() == taken);
    CHECK(!panel.Prog.FrameRename.Visible());
    CHECK(panel.Prog.Rename.Picture() == form::Picture::ButtonNormal);
  }
  CHECK(panel.Prog.Path.Entries() == Texts{L"C:\\Mail.exe", L"C:\\Edit.exe", L"C:\\Calc.exe"});
}

TEST_CASE("the rename box opens and closes, and OK follows the text") {
  ListPanel panel;
  list::GroupFrame& prog = panel.Prog;
  panel.Desktop.Click(prog.Rename);
  CHECK(prog.Rename.Picture() == form::Picture::ButtonOpen);
  panel.Desktop.Type(L"\rMai");
  CHECK(prog.RenOK.Enabled());
  panel.Desktop.Type(L"l");
  CHECK(!prog.RenOK.Enabled());
  prog.Name.SetListIndex(1);
  CHECK(prog.RenOK.Enabled());
  panel.Desktop.Click(prog.RenCancel);
  CHECK(!prog.FrameRename.Visible());
  panel.Desktop.Click(prog.Rename);
  CHECK(prog.TextRename.Text().empty());
  panel.Desktop.Click(prog.Rename);
  CHECK(!prog.FrameRename.Visible());
  CHECK(prog.Name.Entries() == Texts{L"Mail", L"Edit", L"Calc"});
}

TEST_CASE("removing goes on with the first entry, to the last, and adding begins anew") {
  ListPanel panel;
  list::GroupFrame& prog = panel.Prog;
  prog.Name.SetListIndex(1);
  panel.Desktop.Click(prog.Remove);
  CHECK(prog.Name.Entries() == Texts{L"Mail", L"Calc"});
  CHECK(prog.Path.Entries() == Texts{L"C:\\Mail.exe", L"C:\\Calc.exe"});
  CHECK(prog.Name.ListIndex() == 0);
  CHECK(prog.Path.ListIndex() == 0);
  panel.Desktop.Click(prog.Rename);
  panel.Desktop.Type(L"x");
  panel.Desktop.Click(prog.Remove);
  panel.Desktop.Click(prog.Remove);
  for (const form::CommandButton* button : {&prog.Open, &prog.Rename, &prog.Remove, &prog.RenOK}) {
    CHECK(!button->Enabled());
  }
  prog.TextRename.SetFocus();
  panel.Desktop.Type(L"\r");  // nothing left to rename
  panel.Desktop.Press(Key::Escape);
  panel.Add(LaunchGroup::Prog, L"Again", L"C:\\again.exe");
  panel.Desktop.Press(Key::F4);
  CHECK(prog.Name.Text() == L"Again");
  CHECK(prog.Open.Enabled());
}
