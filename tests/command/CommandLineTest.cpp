#include <doctest/doctest.h>

#include "bar/StartedProgram.h"

using namespace vantor;
using list::LaunchGroup;
using test::StartedProgram;
using Starts = std::vector<std::wstring>;

namespace {

void FillList(StartedProgram& bar) {
  bar.Add(LaunchGroup::Prog, L"notepad", L"C:\\Program Files\\Note, pad.exe");
  bar.Add(LaunchGroup::Prog, L"Net tool", L"C:\\net.exe");
  bar.Add(LaunchGroup::File, L"Letter", L"C:\\My docs\\letter.doc");
  bar.Add(LaunchGroup::Fold, L"Pictures", L"C:\\My pictures");
  bar.Add(LaunchGroup::Web, L"News", L"http://news.example/a?b=c");
}

}  // namespace

TEST_CASE("every code starts its target and empties the line") {
  struct Row {
    const wchar_t* Typed;
    const wchar_t* Started;
  };
  constexpr Row Rows[] = {
      {L"p=notepad c:\\a b.txt", L"run notepad c:\\a b.txt"},
      {L"p= calc", L"run  calc"},
      {L"f=C:\\a b.txt", L"shell C:\\a b.txt"},
      {L"d=C:\\My docs", L"run C:\\WINDOWS\\explorer.exe C:\\My docs"},
      {L"d.SENDTO", L"run C:\\WINDOWS\\explorer.exe C:\\Send"},
      {L"d.nosuch", L"run C:\\WINDOWS\\explorer.exe C:\\Documents"},
      {L"d.nethood", L"run C:\\WINDOWS\\explorer.exe C:\\Documents"},
      {L"e.b", L"mail mailto:bugs@orbel.example?subject=Vantor - Found Bug"},
      {L"E.SUG", L"mail mailto:suggestions@orbel.example?subject=Vantor - Suggestions"},
      {L"t=12a3 4", L"call 1234|Vantor"},
      {L"w=ftp://x.example", L"shell ftp://x.example"},
      {L"w;x.example", L"shell http://www.x.example"},
      {L"p-N", L"run C:\\Program Files\\Note, pad.exe"},
      {L"p-ne", L"run C:\\net.exe"},
      {L"F-let", L"shell C:\\My docs\\letter.doc"},
      {L"d-p", L"run C:\\WINDOWS\\explorer.exe C:\\My pictures"},
      {L"w-News", L"shell http://news.example/a?b=c"},
  };
  StartedProgram bar;
  bar.Services.ScriptShell.SpecialFolders[L"SendTo"] = L"C:\\Send";
  FillList(bar);
  for (const Row& row : Rows) {
    CAPTURE(std::wstring(row.Typed));
    bar.Type(row.Typed);
    bar.Desktop.Type(L"\r");
    CHECK(bar.TakeStarts() == Starts{row.Started});
    CHECK(bar.Main.TextMain.Text().empty());
  }
}

TEST_CASE("a failed start is told and keeps the line, except for mails to the maker and calls") {
  struct Row {
    const wchar_t* Typed;
    const wchar_t* Message;  // "" when nothing is shown
    bool Keeps;
  };
  constexpr Row Rows[] = {
      {L"p=nosuch", L"There was some error. Could not run the program.", true},
      {L"p-notepad", L"There was some error. Could not run the program.", true},
      {L"d=nosuch", L"There was some error. Could not open the Folder.", true},
      {L"d.Desktop", L"There was some error. Could not open the Folder.", true},
      {L"w;x", L"There was some error. Could not start the required program.", true},
      {L"c.Mouse", L"", true},
      {L"e.bugs@orbel.example", L"There was some error. Could not start the required program.", false},
      {L"t=1", L"The phone number is not valid.", false},
  };
  StartedProgram bar;
  bar.Services.Programs.StartSucceeds = false;
  bar.Services.Programs.ShellOpenResult = 32;
  bar.Services.Programs.CallResult = -4;
  bar.Services.ScriptShell.RunSucceeds = false;
  FillList(bar);
  for (const Row& row : Rows) {
    CAPTURE(std::wstring(row.Typed));
    bar.Type(row.Typed);
    const bool shows = *row.Message != 0;
    if (shows) bar.ExpectMessage();
    bar.Desktop.Type(L"\r");
    CHECK(bar.Desktop.ModalScriptsDone());
    if (shows) CHECK(bar.Told.back() == row.Message);
    CHECK(bar.Main.TextMain.Text() == (row.Keeps ? row.Typed : L""));
  }
}

TEST_CASE("a mail link is put together from what is given") {
  fake::FakeServices fakes;
  const command::Starters starters(fakes.Programs, fakes.ScriptShell);
  fakes.Programs.ShellOpenResult = 33;
  CHECK(starters.SendMailTo(L"MailTo:a@b", L"", L"") == L"");
  CHECK(starters.SendMailTo(L"mail", L"", L"x & y") == L"");
  CHECK(starters.SendMailTo(L"a@b", L"s t", L"x") == L"");
  CHECK(fakes.Programs.ShellOpened ==
        Starts{L"MailTo:a@b", L"mailto:mail?body=x & y", L"mailto:a@b?subject=s t&body=x"});
}

TEST_CASE("an item that was renamed or removed since it was completed is not started") {
  StartedProgram bar;
  FillList(bar);
  bar.Type(L"p-notepad");
  bar.Choose.ComboListProgName.RemoveItem(0);
  bar.Choose.ComboListProgPath.RemoveItem(0);
  bar.Desktop.Type(L"\r");
  CHECK(bar.TakeStarts() == Starts{});
}
