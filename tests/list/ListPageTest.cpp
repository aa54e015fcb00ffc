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
