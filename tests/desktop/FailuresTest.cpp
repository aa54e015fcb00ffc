// Commands that fail: the message, and the line that stays or goes.

#include <doctest/doctest.h>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Recorder.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

constexpr char RunError[] = "There was some error. Could not run the program.";
constexpr char StartError[] = "There was some error. Could not start the required program.";

void CheckFails(Program& program, const std::string& line, const std::string& text, const std::string& left) {
  CAPTURE(line);
  program.AwaitBar();
  program.TypeLine(line);
  input::Press(VK_RETURN);
  HWND message = program.AwaitMessage();
  CHECK(window::Text(message) == "Message For - Anna");
  CHECK(program.MessageText().find(text + '\n') != std::string::npos);
  CHECK_FALSE(window::IsTopMost(program.Bar()));
  program.AnswerMessage();
  program.AwaitBar();
  CHECK(program.Line() == left);
  CHECK_BECOMES(window::IsTopMost(program.Bar()), true);
}

}  // namespace

TEST_CASE("what cannot be started is told") {
  const Folder folder;
  folder.WriteSettings({});
  Program program(folder);
  const std::string unknownFile = "f=" + folder.Path("no such file.txt");
  CheckFails(program, "p=nosuchprogram", RunError, "p=nosuchprogram");
  CheckFails(program, "p=\"", RunError, "p=\"");
  CheckFails(program, unknownFile, StartError, unknownFile);
  CheckFails(program, "w=nosuchscheme://x", StartError, "w=nosuchscheme://x");
  program.Exit();
}

TEST_CASE("a failed mail to the maker clears the line, a failed Explorer keeps it, dialling clears it") {
  SKIP_UNLESS(UnderWine(), "a system whose programs may be removed");
  const Folder folder;
  folder.WriteSettings({});
  Recorder::RemoveSystemPrograms();
  Program program(folder);
  CheckFails(program, "d=C:\\", "There was some error. Could not open the Folder.", "d=C:\\");
  CheckFails(program, "e.bugs", StartError, "");
  CheckFails(program, "e=a@b.example", StartError, "e=a@b.example");
  program.TypeLine("t=12");
  input::Type("a-3");
  CHECK_BECOMES(program.Line(), "t=123");
  CheckFails(program, "t=123", "No Windows Telephony dialing application is running and none could be started.", "");

  // No text belongs to this failure.
  program.TypeLine("c.mouse");
  input::Press(VK_RETURN);
  input::Type("!");
  CHECK_BECOMES(program.Line(), "c.Mouse!");
  CHECK(program.Message() == nullptr);
}

TEST_CASE("an item that vanished while the program runs") {
  const Folder folder;
  folder.CopyProgram("recorder.exe", "recorder.exe");
  folder.WriteSettings({.ProgUpper = 0});
  folder.Write("Vantor\\ListProg.Orbel", ListBytes({{"Tool", folder.Path("recorder.exe")}}));
  Program program(folder);
  program.AwaitBar();
  DeleteFileA(folder.Path("recorder.exe").c_str());
  CheckFails(program, "p-Tool", RunError, "p-Tool");
}

}  // namespace vantor::desktop
