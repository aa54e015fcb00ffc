#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::command {
namespace {

using list::LaunchGroup;
using test::Texts;

/// The bar, with a list.
struct Line : test::StartedProgram {
  Line() {
    Add(LaunchGroup::Prog, L"notepad", L"C:\\Program Files\\Note, pad.exe");
    Add(LaunchGroup::Prog, L"Net tool", L"C:\\net.exe");
    Add(LaunchGroup::Prog, L"\u041F\u0440\u043E\u0435\u043A\u0442", L"C:\\p.exe");
    Add(LaunchGroup::File, L"Letter", L"C:\\My docs\\letter.doc");
    Add(LaunchGroup::Fold, L"Pictures", L"C:\\My pictures");
    Add(LaunchGroup::File, L"Percent", L"C:\\Work\\%TEMP%.txt");
    Add(LaunchGroup::File, L"Work", L"C:\\Work\\");
    Add(LaunchGroup::Web, L"News", L"http://news.example/?\"%TEMP\"");
    Add(LaunchGroup::Web, L"Value", L"http://news.example/%TEMP%");
    Add(LaunchGroup::Web, L"Turned", L"http://news.example/\x202Egpj.exe");
    Computer.Disk.AddFile(L"C:\\Work\\%TEMP%.txt");
  }
  form::TextBox& Box = Main.TextMain;
};

TEST_CASE("every code starts its target and empties the line") {
  const std::pair<std::wstring_view, std::wstring_view> rows[] = {
      {L"p= calc", L"run  calc"},
      {L"d.nosuch", L"run C:\\WINDOWS\\explorer.exe C:\\Documents"},
      {L"d.nethood", L"run C:\\WINDOWS\\explorer.exe C:\\Documents"},
      {L"t=12a3 4", L"call 1234|Vantor"},
      {L"w;x.example", L"shell \"http://www.x.example\""},
      {L"w=%TEMP%", L"shell \"%TEMP%\""},
      {L"w-N", L"shell \"http://news.example/?%22%TEMP%22\""},
      {L"w-v", L"open http://news.example/%TEMP%"},
      {L"f=C:\\Work\\notes.txt", L"shell \"C:\\Work\\notes.txt\""},
      {L"f=edit C:\\Work\\%TEMP%.txt", L"shell edit C:\\Work\\%TEMP%.txt"},
      {L"f-l", L"shell C:\\My docs\\letter.doc"},
      {L"f-p", L"open C:\\Work\\%TEMP%.txt"},
      {L"f-w", L"shell \"C:\\Work\""},
      {L"p-N", L"run \"C:\\Program Files\\Note, pad.exe\""},
      {L"p-ne", L"run \"C:\\net.exe\""},
      {L"d-p", L"run C:\\WINDOWS\\explorer.exe C:\\My pictures"},
  };
  Line line;
  for (const auto& row : rows) {
    const auto& [typed, started] = row;
    CAPTURE(&row - rows);
    line.Computer.Asked.clear();
    line.Type(typed);
    line.Desktop.Type(L"\r");
    CHECK(line.Computer.Asked == Texts{std::wstring(started)});
    CHECK(line.Box.Text().empty());
  }
  // What can't be seen in a target is not handed on.
  line.Computer.Asked.clear();
  line.Type(L"w-t");
  line.Expect();
  line.Desktop.Type(L"\r");
  CHECK(line.Told.at(0) == L"There was some error. Could not start the required program.");
  // What was renamed or removed since it was completed is not started.
  line.Type(L"p-notepad");
  line.Choose.ComboListProgName.RemoveItem(0);
  line.Choose.ComboListProgPath.RemoveItem(0);
  line.Desktop.Type(L"\r");
  CHECK(line.Computer.Asked.empty());
}

TEST_CASE("a settings page that can't be shown is not told, a number that can't be dialled is and leaves the line") {
  Line line;
  line.Computer.Let("", fake::Outcome::Fails);
  line.Computer.CallError = -4;
  line.Type(L"c.Mouse");
  line.Desktop.Type(L"\r");
  CHECK(line.Box.Text() == L"c.Mouse");
  line.Type(L"t=1");
  line.Expect();
  line.Desktop.Type(L"\r");
  CHECK(line.Told == Texts{L"The phone number is not valid."});
  CHECK(line.Box.Text().empty());
}

TEST_CASE("typing completes to the first entry that begins so") {
  const struct {
    std::wstring_view Typed, Text;
    int SelStart = 0;
    int Item = NoIndex;
    int Mail = NoIndex;
  } rows[] = {
      {L"c.add", L"c.AddNewPrinter", 5},
      {L"c.t", L"c.t", 3},
      {L"d.myd", L"d.MyDocuments", 5},
      {L"e.s", L"e.suggestions@orbel.example", 3, NoIndex, 1},
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
  Line line;
  const CommandState& state = line.Program.CommandState;
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    line.Type(row.Typed);
    CHECK(line.Box.Text() == row.Text);
    CHECK(line.Box.SelStart() == row.SelStart);
    CHECK(line.Box.SelStart() + line.Box.SelLength() == static_cast<int>(row.Text.size()));
    CHECK(state.MatchedItemIndex == row.Item);
    CHECK(state.MailTargetIndex == row.Mail);
  }
  // What an input method composes is completed at its end, and not forgotten by moving the caret.
  line.Box.InputComposing(true);
  line.Type(L"p-n");
  CHECK(line.Box.Text() == L"p-n");
  line.Box.InputComposing(false);
  CHECK(line.Box.Text() == L"p-notepad");
  line.Box.InputSelection(0, 0);
  CHECK(state.MatchedItemIndex == 0);
}

}  // namespace
}  // namespace vantor::command
