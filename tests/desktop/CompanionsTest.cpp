// The maker's other programs: their panel, their code, and what is told when one is gone.

#include <doctest/doctest.h>

#include "desktop/Program.h"
#include "desktop/Recorder.h"

namespace vantor::desktop {

TEST_CASE("companions are listed, completed and started; one that vanished is told; without any there is no button") {
  const Folder outer;
  const Folder folder(outer.Path("Orbel\\"));
  const std::string names[] = {"Draw it", "\u00C9cran"};
  std::string paths[2];
  for (int i = 0; i < 2; ++i) {
    const std::string name = "Orbel\\" + names[i] + "\\" + names[i] + ".exe";
    outer.CopyProgram("recorder.exe", name);
    paths[i] = outer.Path(name);
  }
  const std::string help = folder.Path("VantorHelp.exe");
  folder.CopyProgram("recorder.exe", "VantorHelp.exe");
  folder.WriteSettings({});
  Recorder recorder(folder);
  const auto started = [&recorder](const std::string& path) { CHECK(recorder.Next() == '"' + path + '"'); };
  const std::string button = "Show | Hide Run (Orbel's Program)";
  {
    const Program program(folder);
    program.AwaitBar();
    CHECK(program.Button(button) != nullptr);
    const Panel panel(program, VK_F5, "Orbel's Programs");
    panel.Open();
    HWND list = window::OfClass(panel.Find(), "ListBox").at(0);
    std::vector<std::string> entries;
    for (WPARAM i = 0; i < 3; ++i) {
      wchar_t text[MAX_PATH] = L"";
      SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
      entries.push_back(Narrow(text));
    }
    CHECK(entries == std::vector<std::string>{names[0], names[1], "VantorHelp"});
    CHECK(SendMessageW(list, LB_GETCOUNT, 0, 0) == 3);
    panel.Close();

    panel.Open();
    input::Press(VK_DOWN);
    CHECK_BECOMES(SendMessageW(list, LB_GETCURSEL, 0, 0), 1);
    input::Press(VK_RETURN);
    started(paths[1]);
    program.AwaitBar();
    panel.Open();
    CHECK(SendMessageW(list, LB_GETCURSEL, 0, 0) == 1);
    input::Press(VK_DOWN);
    panel.Click("Open");
    started(help);

    program.AwaitBar();
    program.TypeLine("r-d");
    CHECK_BECOMES(program.LineWithSelection(), "r-D[raw it]");
    input::Press(VK_RETURN);
    started(paths[0]);
    CHECK_BECOMES(program.Line(), "");
    program.Enter("r-\u00E9");
    started(paths[1]);

    // What was started has to end before its file can go.
    for (const std::string& path : paths) {
      Await("the end of " + path, [&] { return DeleteFileW(Wide(path).c_str()) != FALSE; });
    }
    const std::string gone = "There was some error. Could not run the program.\n";
    program.Enter("r-draw");
    program.ExpectMessage(gone);
    program.AwaitBar();
    CHECK(program.Line() == "r-Draw it");
    panel.Open();
    input::Press(VK_UP);
    input::Press(VK_RETURN);
    program.ExpectMessage(gone);
    program.Exit();
  }
  Await("the end of the help", [&] { return DeleteFileW(Wide(help).c_str()) != FALSE; });
  const Program program(folder);
  program.AwaitBar();
  CHECK(program.Button(button) == nullptr);
  input::Press(VK_F5);
  program.Enter("r-d");
  input::Type("x");
  CHECK_BECOMES(program.Line(), "r-dx");
  CHECK(Panel(program, VK_F5, "Orbel's Programs").Find() == nullptr);
  CHECK(recorder.Lines().size() == 4);
}

}  // namespace vantor::desktop
