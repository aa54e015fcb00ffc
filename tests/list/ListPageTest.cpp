#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::list {
namespace {

using test::ItemsOf;
using test::Texts;

/// The list panel, open over a list with items in all groups but that of the files.
struct OpenListPanel : test::StartedProgram {
  OpenListPanel() {
    for (const std::wstring name : {L"Mail", L"Edit", L"Calc"}) Add(LaunchGroup::Prog, name, L"C:\\" + name + L".exe");
    Add(LaunchGroup::Fold, L"Docs", L"C:\\My docs");
    Add(LaunchGroup::Web, L"News", L"http://news");
    Desktop.Press(form::Key::F4);
  }
  GroupFrame& Prog = Choose.Page.Prog;
};

TEST_CASE("an item opens after the panel has closed, by the starter of its group") {
  OpenListPanel panel;
  panel.Prog.Path.SetListIndex(1);
  CHECK(panel.Prog.Name.Text() == L"Edit");
  panel.Desktop.Click(panel.Prog.Open);
  CHECK(!panel.Choose.Visible());
  panel.Desktop.Press(form::Key::F4);
  panel.Desktop.Click(panel.Choose.Page.Fold.Open);
  panel.Desktop.Press(form::Key::F4);
  panel.Computer.Let("Run", fake::Outcome::Fails);
  panel.Expect();
  panel.Desktop.Click(panel.Choose.Page.Web.Open);
  CHECK(panel.Computer.Started == Texts{L"run C:\\Edit.exe", L"shell C:\\My docs", L"shell http://news"});
  CHECK(panel.Told == Texts{L"There was some error. Could not start the required program."});
}

TEST_CASE("the rename box opens and closes, and OK follows the text; what is removed leaves the next one chosen") {
  OpenListPanel panel;
  GroupFrame& prog = panel.Prog;
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
  panel.Desktop.Click(prog.Remove);
  CHECK(ItemsOf(panel.Choose.List.Of(LaunchGroup::Prog)) == Texts{L"Mail>C:\\Mail.exe", L"Calc>C:\\Calc.exe"});
  CHECK(prog.Name.ListIndex() == prog.Path.ListIndex());
  CHECK(prog.Name.Text() == L"Mail");
}

}  // namespace
}  // namespace vantor::list
