#include <doctest/doctest.h>

#include "fake/TestProgram.h"
#include "list/NameMatch.h"

namespace vantor::list {
namespace {

using test::ItemsOf;
using test::Texts;

TEST_CASE("on the list page an item is opened by the starter of its group, renamed and removed") {
  test::StartedProgram panel;
  for (const std::wstring name : {L"Mail", L"Edit", L"Calc"})
    panel.Add(LaunchGroup::Prog, name, L"C:\\" + name + L".exe");
  panel.Add(LaunchGroup::Fold, L"Docs", L"C:\\My docs");
  panel.Add(LaunchGroup::Web, L"News", L"http://news");
  panel.Desktop.Press(form::Key::F4);
  GroupFrame& prog = panel.Choose.Page.Prog;
  prog.Path.SetListIndex(1);
  CHECK(prog.Name.Text() == L"Edit");
  panel.Computer.Asked.clear();
  for (GroupFrame* frame : {&prog, &panel.Choose.Page.Fold, &panel.Choose.Page.Web}) {
    panel.Desktop.Click(frame->Open);
    CHECK(!panel.Choose.Visible());
    panel.Desktop.Press(form::Key::F4);
  }
  CHECK(panel.Computer.Asked == Texts{L"run C:\\Edit.exe", L"shell C:\\My docs", L"shell http://news"});

  // OK follows the text of the rename box.
  panel.Desktop.Click(prog.Rename);
  prog.Name.SetListIndex(0);
  panel.Desktop.Type(L"\rMai");
  CHECK(prog.RenOK.Enabled());
  panel.Desktop.Type(L"l");
  CHECK(!prog.RenOK.Enabled());
  panel.Desktop.Click(prog.RenCancel);
  CHECK(!prog.FrameRename.Visible());
  prog.Name.SetListIndex(1);
  panel.Desktop.Click(prog.Remove);
  CHECK(ItemsOf(panel.Choose.List.Of(LaunchGroup::Prog)) == Texts{L"Mail>C:\\Mail.exe", L"Calc>C:\\Calc.exe"});
  CHECK((prog.Name.ListIndex() == 0 && prog.Path.ListIndex() == 0));
}

TEST_CASE("names are listed regardless of letter case, paths only when identical") {
  test::TestProgram program;
  form::ComboBox& box = program.Choose.ComboListProgName;
  for (const auto* entry : {L"Editor", L"\u00C9t\u00E9"}) box.AddItem(entry);
  for (const auto* name : {L"EDITOR", L"\u00E9T\u00C9"})
    CHECK(CheckNameListed(program.Computer, name, box) == L"MessageNameAlreadyListed");
  for (const auto* name : {L"Edito", L"Editor ", L"\u00CAt\u00E9", L""})
    CHECK(CheckNameListed(program.Computer, name, box).empty());
  CHECK(PathAlreadyListed(L"Editor", box) == L"MessagePathAlreadyListed");
  CHECK(PathAlreadyListed(L"editor", box).empty());
  // Letters that share a place in the memory of letters, 0x111 and 0x411, are kept apart.
  NameMatch match(program.Computer, L"\u0431");
  CHECK(!match.Begins(L"\u0111"));
  CHECK(match.Begins(L"\u0411x"));
}

}  // namespace
}  // namespace vantor::list
