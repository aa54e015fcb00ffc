#include <doctest/doctest.h>

#include "fake/Play.h"

namespace vantor::command {
namespace {

using test::Play;
using test::World;

TEST_CASE("a name or an address is opened for what it is, and for nothing that a part or a variable of it names") {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"w;x.example", L"shell \"http://www.x.example\""},
      {L"w=http://x/?a\\", L"open http://x/?a\\"},
      {L"w=%TEMP%", L"shell \"%TEMP%\""},
      {L"w-N", L"shell \"http://news.example/?%22%TEMP%22\""},
      {L"w-v", L"open http://news.example/%TEMP%"},
      {L"w-t", L""},
      {L"f=edit C:\\Work\\%TEMP%.txt", L"shell edit C:\\Work\\%TEMP%.txt"},
      {L"f-p", L"open C:\\Work\\%TEMP%.txt"},
      {L"f-l", L"shell \"C:\\Work\\my letter.doc\""},
      {L"f=C:\\Work\\", L"shell \"C:\\Work\""},
      {L"p-n", L"run \"C:\\net tool.exe\""},
      {L"p-q", L""},
  };
  std::wstring flow =
      L"given program C:\\Work\\%TEMP%.txt | C:\\Work\\my letter.doc | C:\\net tool.exe\n"
      L"given data ListFile Percent,C:\\Work\\%TEMP%.txt | Letter,C:\\Work\\my letter.doc\n"
      L"given data ListProg Net tool,C:\\net tool.exe | Quoted,//host/a.exe\" /b\n"
      L"given data ListWeb News,http://news.example/?\"%TEMP\" | Value,http://news.example/%TEMP% | "
      L"Turned,http://news.example/{turn}gpj\x2069\x202F\n"
      L"given settings FileUpper=1 ProgUpper=1 WebUpper=2\nstart\n";
  flows::Texts expected{L"title Vantor Orbel"};
  for (const auto& [line, started] : rows) {
    flow += L"enter " + line + (started.empty() ? L"\ntold There was some error." : L"\nsee line") + L'\n';
    if (!started.empty()) expected.push_back(started);
  }
  Play(flow + L"line w-t\nlook", [&](World& world) {
    // Taken, so that nothing is left at the end that the flow has not seen.
    CHECK(std::exchange(world.Computer.Asked, {}) == expected);
    CHECK(world.Program->frmMatches.ListMatches.RowAt(0).Detail == L"http://news.example/\xFFFDgpj\xFFFD\x202F");
  });
}

TEST_CASE("the message says why a telephone call fails") {
  const std::pair<int, std::wstring> rows[] = {
      {-4, L"The phone number is not valid."},
      {-3, L"The queue of pending Windows Telephony dialing requests is full."},
      {-2, L"No Windows Telephony dialing application is running and none could be started."},
  };
  for (const auto& [error, text] : rows) {
    Play(L"given failing RequestMakeCall\nlook\nstart\nenter t=1\ntold " + text,
         [error = error](World& world) { world.Computer.CallError = error; });
  }
}

TEST_CASE("the last 100 lines that were started come back") {
  std::wstring flow = L"start";
  for (int number = 0; number <= 100; ++number)
    flow += L"\nstarts w=" + std::to_wstring(number) + L" > open " + std::to_wstring(number);
  for (int presses = 0; presses <= 100; ++presses) flow += L"\npress Up";
  Play(flow + L"\nsee line w=1");
}

}  // namespace
}  // namespace vantor::command
