// Every code of the command language, typed into the bar, and what the recorder saw started.

#include <doctest/doctest.h>
#include <shlobj.h>

#include <string>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Recorder.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Wine.h"

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

std::string SpecialFolder(int id) {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path);
  return Narrow(path);
}

/// A folder with one item in each group of the list.
class ListedFolder : public Folder {
 public:
  ListedFolder() {
    CopyProgram("recorder.exe", "My Tools\\recorder.exe");
    Write("My Notes.vantortest", "notes");
    MakeFolder("My Folder");
    WriteSettings({.FileUpper = 0, .FoldUpper = 0, .ProgUpper = 1, .WebUpper = 0});
    Write("Vantor\\ListFile.Orbel", ListBytes({{"Notes", Path("My Notes.vantortest")}}));
    Write("Vantor\\ListFold.Orbel", ListBytes({{"Papers", Path("My Folder")}}));
    Write("Vantor\\ListProg.Orbel",
          ListBytes({{"Tool", Path("recorder.exe")}, {"Spaced", Path("My Tools\\recorder.exe")}}));
    Write("Vantor\\ListWeb.Orbel", ListBytes({{"Site", "http://www.listed.example/a?b=c&d"}}));
  }
};

void RunRows(const std::vector<Row>& rows, const Folder& folder, Program& program, Recorder& recorder) {
  for (const Row& row : rows) {
    CAPTURE(row.Line);
    const std::string line = Fill(row.Line, folder);
    program.AwaitBar();
    program.TypeLine(line);
    input::Press(VK_RETURN);
    CHECK(recorder.Next() == Fill(row.Started, folder));
    CHECK_BECOMES(program.Line(), row.Left);
  }
  // What had started twice, or after the line was cleared, would be here by now.
  CHECK(recorder.Lines().size() == rows.size());
}

}  // namespace

TEST_CASE("programs and documents start from codes and from the list") {
  const ListedFolder folder;
  Recorder recorder(folder);
  Program program(folder);
  RunRows({{R"(p={r} one  Two "3 4")", R"({r} one  Two "3 4")"},
           {R"(P={f}\recorder.exe plain)", R"({f}\recorder.exe plain)"},
           {R"(p={f}\My Tools\recorder.exe)", R"("{f}\My Tools\recorder.exe")"},
           {"p-to", "{r}"},
           {"P-SPACED", R"("{f}\My Tools\recorder.exe")"},
           {R"(f={f}\My Notes.vantortest)", R"({r} document "{f}\My Notes.vantortest")"},
           {"f-no", R"({r} document "{f}\My Notes.vantortest")"}},
          folder, program, recorder);
  program.Exit();
}

TEST_CASE("folders, addresses, mails and Control Panel pages reach the system's programs") {
  SKIP_UNLESS(UnderWine(), "a system whose programs may be replaced");
  const ListedFolder folder;
  Recorder recorder(folder);
  recorder.ReplaceSystem();
  Program program(folder);
  const auto http = [](const std::string& address) { return "{r} http \"" + address + '"'; };
  const std::string explorer = "{w}explorer.exe ";
  const std::string panel = "rundll32.exe shell32.dll,Control_RunDLL";
  RunRows({{"d={f}\\My Folder", explorer + "{f}\\My Folder"},
           {"d-pap", explorer + "{f}\\My Folder"},
           {"d.desk", explorer + SpecialFolder(CSIDL_DESKTOPDIRECTORY)},
           {"d.ALLUSERSPROGRAMS", explorer + SpecialFolder(CSIDL_COMMON_PROGRAMS)},
           {"d.sends", explorer + SpecialFolder(CSIDL_PERSONAL)},
           {"d.sendt", explorer + SpecialFolder(CSIDL_SENDTO)},
           {"d.fonts", explorer + SpecialFolder(CSIDL_FONTS)},
           {"e=someone@there.example", "{r} mailto \"mailto:someone@there.example\""},
           {"e.bug", "{r} mailto \"mailto:bugs@orbel.example?subject=Vantor - Found Bug\""},
           {"e.sup", "{r} mailto \"mailto:support@orbel.example?subject=Vantor - Need Support\""},
           {"w=https://as.typed.example/x", "{r} https \"https://as.typed.example/x\""},
           {"w:host.example/a/b", http("http://host.example/a/b")},
           {"w;Host.example", http("http://www.Host.example")},
           {"c/word", http("http://www.word.com")},
           {"g/word", http("http://www.word.gov")},
           {"i/word", http("http://www.word.info")},
           {"n/word", http("http://www.word.net")},
           {"o/word", http("http://www.word.org")},
           {"t/word", http("http://www.word.tv")},
           {"w-si", http("http://www.listed.example/a?b=c&d")},
           {"c.mouse", panel + " main.cpl @0", "c.Mouse"},
           {"c.Themes", panel + " desk.cpl,,4", "c.Themes"},
           {"c.dialup", "rundll32.exe rnaui.dll,RnaWizard", "c.Dialup"},
           {"c.add", "rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter", "c.AddNewPrinter"},
           {"c.control", panel, "c.ControlPanel"}},
          folder, program, recorder);
  program.Exit();
}

TEST_CASE("lines that mean nothing stay, start nothing and show nothing") {
  const ListedFolder folder;
  const Recorder recorder(folder);
  Program program(folder);
  program.AwaitBar();
  for (const std::string line : {"p=", "p", "ab", "zz=1", "x=abc", "c.fonts", "p-nothing", "w-", "c.nosuch"}) {
    CAPTURE(line);
    program.TypeLine(line);
    input::Press(VK_RETURN);
    // The next key is handled after Enter was.
    input::Type("!");
    CHECK_BECOMES(program.Line(), line + "!");
    CHECK(program.Message() == nullptr);
  }
  CHECK(recorder.Lines().empty());
}

}  // namespace vantor::desktop
