// What users and their programs do without meaning to.

#include <doctest/doctest.h>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

void PutOnClipboard(UINT format, const std::wstring& text) {
  Await("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  CopyMemory(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  SetClipboardData(format, memory);
  CloseClipboard();
}

}  // namespace

TEST_CASE("a clipboard full of nonsense, a very long line, and keys behind a message") {
  const Folder folder;
  folder.WriteSettings({});
  Program program(folder);
  program.AwaitBar();

  // The one line of the box ends at the first break; what is pasted before it is not started with what can't be seen.
  const std::wstring nonsense[] = {L"p=no\tsuch\x7f\r\nsecond line", std::wstring(1, L'\xD800') + L"\xFFFF\x202E",
                                   L"p=" + std::wstring(2000, L'x')};
  for (const std::wstring& text : nonsense) {
    PutOnClipboard(CF_UNICODETEXT, text);
    input::Press(VK_F12);
    CHECK_BECOMES(program.Line().empty(), true);
    SendMessageW(program.TextMain(), WM_PASTE, 0, 0);
    CHECK(program.Line().find('\n') == std::string::npos);
    input::Press(VK_RETURN);
    if (text.starts_with(L"p=")) {
      program.AwaitMessage();
      CHECK(program.MessageText().find("Could not run the program") != std::string::npos);
      // What is typed while the message is there is not for the bar.
      const std::string line = program.Line();
      for (const WORD key : {WORD{'Q'}, WORD{VK_F4}, WORD{VK_F10}, WORD{VK_F9}}) input::Press(key);
      CHECK(program.Line() == line);
      program.AnswerMessage();
      program.AwaitBar();
    }
  }
  PutOnClipboard(CF_BITMAP + 0x200, L"no text at all");
  input::Press(VK_F12);
  SendMessageW(program.TextMain(), WM_PASTE, 0, 0);
  CHECK(program.Line().empty());
  program.Exit();
}

TEST_CASE("two copies started at the same moment end up as one, and nothing is lost") {
  const Folder folder;
  folder.WriteSettings({.WebUpper = 0});
  folder.Write("Vantor\\ListWeb.Orbel", ListBytes({{"One", "http://one"}}));
  Program one(folder);
  Program two(folder);
  CHECK(Eventually([&] { return one.Running() != two.Running(); }));
  Program& left = one.Running() ? one : two;
  left.AwaitBar();
  left.Exit();
  CHECK(folder.Read("Vantor\\ListWeb.Orbel") == ListBytes({{"One", "http://one"}}));
}

}  // namespace vantor::desktop
