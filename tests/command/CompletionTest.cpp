#include <doctest/doctest.h>

#include "bar/StartedProgram.h"

using namespace vantor;
using list::LaunchGroup;
using test::StartedProgram;

TEST_CASE("typing completes to the first entry that begins so") {
  struct Row {
    const wchar_t* Typed = nullptr;
    const wchar_t* Text = nullptr;
    int SelStart = 0;
    int Item = command::NoIndex;
    int Mail = command::NoIndex;
  };
  constexpr Row Rows[] = {
      {L"c.a", L"c.Accessibility", 3},
      {L"c.add", L"c.AddNewPrinter", 5},
      {L"c.p", L"c.p", 3},
      {L"c.t", L"c.t", 3},
      {L"c.d", L"c.DateTime", 3},
      {L"c.di", L"c.Di", 4},
      {L"d.s", L"d.SendTo", 3},
      {L"d.startu", L"d.Startup", 8},
      {L"d.myd", L"d.MyDocuments", 5},
      {L"e.s", L"e.suggestions@orbel.example", 3, command::NoIndex, 1},
      {L"p-N", L"p-notepad", 3, 0},
      {L"p-NOTEPAD", L"p-notepad", 9, 0},
      {L"p-ne", L"p-Net tool", 4, 1},
      {L"p-\u041F\u0420", L"p-\u041F\u0440\u043E\u0435\u043A\u0442", 4, 2},
      {L"p-\u041F\u0440\u0430", L"p-\u041F\u0440\u0430", 5},
      {L"f-n", L"f-n", 3},
      {L"p-", L"p-", 2},
      {L"x-n", L"x-n", 3},
      {L"p=n", L"p=n", 3},
  };
  StartedProgram bar;
  bar.Add(LaunchGroup::Prog, L"notepad", L"C:\\n.exe");
  bar.Add(LaunchGroup::Prog, L"Net tool", L"C:\\t.exe");
  bar.Add(LaunchGroup::Prog, L"\u041F\u0440\u043E\u0435\u043A\u0442", L"C:\\p.exe");
  for (const Row& row : Rows) {
    CAPTURE(std::wstring(row.Typed));
    bar.Type(row.Typed);
    const form::TextBox& box = bar.Main.TextMain;
    CHECK(box.Text() == row.Text);
    CHECK(box.SelStart() == row.SelStart);
    CHECK(box.SelStart() + box.SelLength() == static_cast<int>(box.Text().size()));
    CHECK(bar.State.MatchedItemIndex == row.Item);
    CHECK(bar.State.MailTargetIndex == row.Mail);
  }
}

TEST_CASE("what an input method composes is completed at its end, and not forgotten by moving the caret") {
  StartedProgram bar;
  bar.Add(LaunchGroup::Prog, L"notepad", L"C:\\n.exe");
  bar.Main.TextMain.InputComposing(true);
  bar.Type(L"p-n");
  CHECK(bar.Main.TextMain.Text() == L"p-n");
  bar.Main.TextMain.InputComposing(false);
  CHECK(bar.Main.TextMain.Text() == L"p-notepad");
  CHECK(bar.State.MatchedItemIndex == 0);
  bar.Main.TextMain.InputSelection(0, 0);
  CHECK(bar.State.MatchedItemIndex == 0);
}
