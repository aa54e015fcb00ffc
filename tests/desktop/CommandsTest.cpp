// desktop: --root win32
// desktop: --root win64
// Every code of the command language, typed into the bar, and what the recorder saw started; what fails is told.

#include <doctest/doctest.h>

#include <string>

#include "desktop/System.h"

namespace vantor::desktop {
namespace {

struct Row {
  std::string Line;     // {f} stands for the test's folder
  std::string Started;  // {r} stands for the recorder in quotes, {w} for the Windows folder
  std::string Left;     // what stays in the line, completed
};

std::string Fill(std::string text, const Folder& folder) {
  wchar_t windows[MAX_PATH];
  GetWindowsDirectoryW(windows, MAX_PATH);
  const std::pair<std::string, std::string> words[] = {
      {"{f}", folder.Path()}, {"{r}", '"' + folder.Path("recorder.exe") + '"'}, {"{w}", Narrow(windows) + "\\"}};
  for (const auto& [word, by] : words) {
    while (text.find(word) != std::string::npos) text.replace(text.find(word), word.size(), by);
  }
  return text;
}

/// A folder with one item in each group of the list.
class ListedFolder : public Folder {
 public:
  ListedFolder() {
    CopyProgram("recorder.exe", "My Tools\\recorder.exe");
    Write("My Notes.vantortest", "notes");
    Write("My Folder\\in it");
    WriteSettings({.FileUpper = 0, .FoldUpper = 0, .ProgUpper = 1, .WebUpper = 0});
    WriteData("ListFile", ListBytes({{"Notes", Path("My Notes.vantortest")}}));
    WriteData("ListFold", ListBytes({{"Papers", Path("My Folder")}}));
    WriteData("ListProg", ListBytes({{"Tool", Path("recorder.exe")}, {"Spaced", Path("My Tools\\recorder.exe")}}));
    WriteData("ListWeb", ListBytes({{"Site", "http://www.listed.example/a?b=c&d"}}));
  }
};

void PutOnClipboard(const std::wstring& text) {
  Await("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  CopyMemory(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

}  // namespace

TEST_CASE("every code starts its target, as it was typed or listed, once") {
  const ListedFolder folder;
  Recorder recorder(folder);
  std::vector<Row> rows = {{R"(p={r} one  Two "3 4")", R"({r} one  Two "3 4")"},
                           {R"(P={f}\recorder.exe plain)", R"({f}\recorder.exe plain)"},
                           {R"(p={f}\My Tools\recorder.exe)", R"("{f}\My Tools\recorder.exe")"},
                           {"p-to", "{r}"},
                           {"P-SPACED", R"("{f}\My Tools\recorder.exe")"},
                           {R"(f={f}\My Notes.vantortest)", R"({r} document "{f}\My Notes.vantortest")"},
                           {"f-no", R"({r} document "{f}\My Notes.vantortest")"}};
  if (UnderWine()) {
    recorder.ReplaceSystem();
    const std::string explorer = "{w}explorer.exe ";
    const std::string http = "{r} http \"http://";
    const std::string mail = "{r} mailto \"mailto:";
    const std::string panel = "rundll32.exe shell32.dll,Control_RunDLL";
    const std::vector<Row> bySystem = {
        {"d={f}\\My Folder", explorer + "{f}\\My Folder"},
        {"d-pap", explorer + "{f}\\My Folder"},
        {"d.desk", explorer + SystemFolder(CSIDL_DESKTOPDIRECTORY)},
        {"d.ALLUSERSPROGRAMS", explorer + SystemFolder(CSIDL_COMMON_PROGRAMS)},
        {"d.sends", explorer + SystemFolder(CSIDL_PERSONAL)},
        {"d.sendt", explorer + SystemFolder(CSIDL_SENDTO)},
        {"d.fonts", explorer + SystemFolder(CSIDL_FONTS)},
        {"e=someone@there.example", mail + "someone@there.example\""},
        {"e.bug", mail + "bugs@orbel.example?subject=Vantor - Found Bug\""},
        {"e.sup", mail + "support@orbel.example?subject=Vantor - Need Support\""},
        {"w=https://as.typed.example/x", "{r} https \"https://as.typed.example/x\""},
        {"w:host.example/a/b", http + "host.example/a/b\""},
        {"w;Host.example", http + "www.Host.example\""},
        {"c/word", http + "www.word.com\""},
        {"g/word", http + "www.word.gov\""},
        {"i/word", http + "www.word.info\""},
        {"n/word", http + "www.word.net\""},
        {"o/word", http + "www.word.org\""},
        {"t/word", http + "www.word.tv\""},
        {"w-si", http + "www.listed.example/a?b=c&d\""},
        {"c.mouse", panel + " main.cpl @0", "c.Mouse"},
        {"c.Themes", panel + " desk.cpl,,4", "c.Themes"},
        {"c.dialup", "rundll32.exe rnaui.dll,RnaWizard", "c.Dialup"},
        {"c.add", "rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter", "c.AddNewPrinter"},
        {"c.control", panel, "c.ControlPanel"}};
    rows.insert(rows.end(), bySystem.begin(), bySystem.end());
  }
  const Program program(folder);
  for (const Row& row : rows) {
    CAPTURE(row.Line);
    program.Enter(Fill(row.Line, folder));
    CHECK(recorder.Next() == Fill(row.Started, folder));
    CHECK_BECOMES(program.Line(), row.Left);
  }
  for (const std::string line : {"p=", "p", "ab", "zz=1", "x=abc", "c.fonts", "p-nothing", "w-", "c.nosuch"}) {
    CAPTURE(line);
    program.Enter(line);
    // The next key is handled after Enter was.
    input::Type("!");
    CHECK_BECOMES(program.Line(), line + "!");
    CHECK(program.Message() == nullptr);
  }
  // What had started twice, or from a line that means nothing, would be here by now.
  CHECK(recorder.Lines().size() == rows.size());
  program.Exit();
}

TEST_CASE("what cannot be started is told, above all that stays on top, and the line stays or goes") {
  const ListedFolder folder;
  folder.CopyProgram("recorder.exe", "recorder.exe");
  const std::string runError = "There was some error. Could not run the program.\n";
  const std::string startError = "There was some error. Could not start the required program.\n";
  const std::string unknownFile = "f=" + folder.Path("no such file.txt");
  std::vector<Row> rows = {{"p=nosuchprogram", runError, "p=nosuchprogram"},
                           {"p=\"", runError, "p=\""},
                           {"p-Tool", runError, "p-Tool"},  // it vanishes while the program runs
                           {unknownFile, startError, unknownFile},
                           {"w=nosuchscheme://x", startError, "w=nosuchscheme://x"}};
  if (UnderWine()) {
    Recorder::RemoveSystemPrograms();
    const std::string noDialler = "No Windows Telephony dialing application is running and none could be started.\n";
    const std::vector<Row> bySystem = {{"d=C:\\", "There was some error. Could not open the Folder.\n", "d=C:\\"},
                                       {"e.bugs", startError, ""},
                                       {"e=a@b.example", startError, "e=a@b.example"},
                                       {"t=12", noDialler, ""}};
    rows.insert(rows.end(), bySystem.begin(), bySystem.end());
  }
  const Program program(folder);
  HWND bar = program.AwaitBar();
  DeleteFileW(Wide(folder.Path("recorder.exe")).c_str());
  for (const Row& row : rows) {
    CAPTURE(row.Line);
    program.Enter(row.Line);
    CHECK(window::Text(program.AwaitMessage()) == "Message For - Anna");
    CHECK_FALSE(window::IsTopMost(bar));
    program.ExpectMessage(row.Started);
    program.AwaitBar();
    CHECK(program.Line() == row.Left);
    CHECK_BECOMES(window::IsTopMost(bar), true);
  }
  // A pasted line ends at its first break; with what can't be seen, or longer than the shell bears, it starts nothing.
  // What is typed behind a message is not for the bar.
  const std::pair<std::wstring, std::string> pastes[] = {
      {L"p=no\tsuch\x7f\r\nsecond line", runError},
      {L"p=\x202E\x0378?*", runError},
      {L"w=nosuchscheme:" + std::wstring(2000, L'x'), startError},
  };
  for (const auto& paste : pastes) {
    PutOnClipboard(paste.first);
    input::Press(VK_F12);
    CHECK_BECOMES(program.Line(), "");
    SendMessageW(program.TextMain(), WM_PASTE, 0, 0);
    const std::string pasted = program.Line();
    CHECK(pasted.find('\n') == std::string::npos);
    input::Press(VK_RETURN);
    program.AwaitMessage();
    for (const WORD key : {WORD{'Q'}, WORD{VK_F4}, WORD{VK_F10}, WORD{VK_F9}}) input::Press(key);
    program.ExpectMessage(paste.second);
    program.AwaitBar();
    CHECK(program.Line() == pasted);
  }
  if (!UnderWine()) return;
  program.TypeLine("t=12");
  input::Type("a-3");
  CHECK_BECOMES(program.Line(), "t=123");
  // No text belongs to this failure.
  program.Enter("c.mouse");
  input::Type("!");
  CHECK_BECOMES(program.Line(), "c.Mouse!");
  CHECK(program.Message() == nullptr);
}

}  // namespace vantor::desktop
