#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::command {
namespace {

using list::LaunchGroup;
using test::Texts;

TEST_CASE("a name or an address is opened for what it is, and for nothing that a part or a variable of it names") {
  test::StartedProgram line;
  line.Computer.Disk.AddFile(L"C:\\Work\\%TEMP%.txt");
  line.Add(LaunchGroup::Prog, L"Net tool", L"C:\\net tool.exe");
  line.Add(LaunchGroup::Prog, L"Quoted", L"\\\\host\\a.exe\" /b");
  line.Add(LaunchGroup::File, L"Percent", L"C:\\Work\\%TEMP%.txt");
  line.Add(LaunchGroup::File, L"Work", L"C:\\Work\\");
  line.Add(LaunchGroup::File, L"Gone", L"C:\\Work\\my letter.doc");
  line.Add(LaunchGroup::Web, L"News", L"http://news.example/?\"%TEMP\"");
  line.Add(LaunchGroup::Web, L"Value", L"http://news.example/%TEMP%");
  line.Add(LaunchGroup::Web, L"Turned", L"http://news.example/\x202Egpj\x2069\x202F");
  const std::pair<std::wstring_view, std::wstring_view> rows[] = {
      {L"w;x.example", L"shell \"http://www.x.example\""},
      {L"w=%TEMP%", L"shell \"%TEMP%\""},
      {L"w-N", L"shell \"http://news.example/?%22%TEMP%22\""},
      {L"w-v", L"open http://news.example/%TEMP%"},
      {L"w-t", L""},
      {L"f=edit C:\\Work\\%TEMP%.txt", L"shell edit C:\\Work\\%TEMP%.txt"},
      {L"f-p", L"open C:\\Work\\%TEMP%.txt"},
      {L"f-g", L"shell \"C:\\Work\\my letter.doc\""},
      {L"f-w", L"shell \"C:\\Work\""},
      {L"p-n", L"run \"C:\\net tool.exe\""},
      {L"p-q", L""},
  };
  for (const auto& row : rows) {
    const auto& [typed, started] = row;
    CAPTURE(&row - rows);
    line.Computer.Asked.clear();
    line.Type(typed);
    if (started.empty()) line.Expect();
    line.Desktop.Type(L"\r");
    CHECK(line.Computer.Asked == (started.empty() ? Texts{} : Texts{std::wstring(started)}));
    CHECK(line.Main.TextMain.Text().empty() != started.empty());
  }
  CHECK(line.Told.size() == 2);
  line.Type(L"w-t");
  CHECK(line.Program.frmMatches.ListMatches.RowAt(0).Detail == L"http://news.example/\xFFFDgpj\xFFFD\x202F");
}

TEST_CASE("why a telephone call fails is told") {
  test::StartedProgram line;
  line.Computer.Let("RequestMakeCall", fake::Outcome::Fails);
  const std::pair<int, std::wstring_view> rows[] = {
      {-4, L"The phone number is not valid."},
      {-3, L"The queue of pending Windows Telephony dialing requests is full."},
      {-2, L"No Windows Telephony dialing application is running and none could be started."},
  };
  for (const auto& [error, text] : rows) {
    line.Computer.CallError = error;
    line.Expect();
    line.Type(L"t=1\r");
    CHECK(line.Told.back() == text);
  }
}

TEST_CASE("the last 100 lines that were started come back") {
  test::StartedProgram line;
  for (int number = 0; number <= 100; ++number) line.Type(L"w=" + std::to_wstring(number) + L"\r");
  for (int presses = 0; presses <= 100; ++presses) line.Desktop.Press(form::Key::Up);
  CHECK(line.Main.TextMain.Text() == L"w=1");
}

}  // namespace
}  // namespace vantor::command
