// desktop: --drive e:=floppy --drive f:=cdrom --drive g:=network --drive h:=ramdisk --drive i:=floppy
// Where the program may run, and a list that travels with its drive. A kind of drive that is not there is passed over.

#include <doctest/doctest.h>

#include <cctype>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Recorder.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

/// Roots of the writable drives of a kind, beyond A: and B:. Only on a test desktop is a medium ours to write to.
std::vector<std::string> Roots(UINT type) {
  std::vector<std::string> roots;
  for (char letter = 'C'; UnderWine() && letter < 'Z'; ++letter) {
    const std::string root = std::string(1, letter) + ":\\";
    if (GetDriveTypeA(root.c_str()) == type) roots.push_back(root);
  }
  return roots;
}

void CheckRefused(UINT type, const std::string& text) {
  const std::vector<std::string> roots = Roots(type);
  SKIP_UNLESS(!roots.empty(), "a test desktop with such a drive");
  const Folder folder(roots.front());
  Program program(folder);
  program.AwaitMessage();
  CHECK(program.MessageText().find(text) != std::string::npos);
  CHECK(program.Bar() == nullptr);
  program.AnswerMessage();
  program.AwaitEnd();
  CHECK(folder.Read("Vantor\\Set.Orbel") == "(none)");
}

std::string MediaSettings(const std::string& state, const std::string& user = "Anna") {
  return "\"Vantor Media 1\"\r\n\"" + state + "\"\r\n\"" + user + "\"\r\n";
}

}  // namespace

TEST_CASE("a CD is refused") {
  CheckRefused(DRIVE_CDROM,
               "This Program runs from Removable Media, such as, Floppy or Flash Drive but not from CD/DVD-ROM.\r\n\r\n"
               "Program will exit now.\n");
}

TEST_CASE("a network drive is refused") {
  CheckRefused(DRIVE_REMOTE, "The Program encountered a problem and will exit now.\n");
}

TEST_CASE("floppies and RAM disks keep the data on the medium") {
  for (const UINT type : {UINT{DRIVE_REMOVABLE}, UINT{DRIVE_RAMDISK}}) {
    const std::vector<std::string> roots = Roots(type);
    SKIP_UNLESS(!roots.empty(), "a test desktop with such a drive");
    const Folder folder(roots.front());
    Program program(folder);
    program.AnswerMessage("Cancel");  // of the question for a name
    program.AnswerMessage();
    program.Exit();
    CHECK(folder.Read("Vantor\\MediaSet.Orbel") == MediaSettings("Ready", "myFriend"));
    CHECK(folder.Read("Vantor\\Set.Orbel") == Settings().Bytes());
  }
}

TEST_CASE("a medium whose set-up was broken off, or is not known, is refused") {
  const std::vector<std::string> roots = Roots(DRIVE_REMOVABLE);
  SKIP_UNLESS(!roots.empty(), "a test desktop with a removable drive");
  const std::pair<std::string, std::string> rows[] = {
      {MediaSettings("Setup"), "To run this Program from a Removable Media there is a simple setup process to follow."},
      {"garbage", "To run the Program from this Media Program setup need to be Reset."},
      {"", "To run the Program from this Media Program setup need to be Reset."}};
  for (const auto& [bytes, text] : rows) {
    const Folder folder(roots.front());
    folder.Write("Vantor\\Set.Orbel", Settings().Bytes());
    folder.Write("Vantor\\MediaSet.Orbel", bytes);
    Program program(folder);
    program.AwaitMessage();
    CHECK(program.MessageText().find(text) != std::string::npos);
    program.AnswerMessage();
    program.AwaitEnd();
    CHECK(folder.Read("Vantor\\MediaSet.Orbel") == bytes);
  }
}

TEST_CASE("a drive that gets another letter keeps its list") {
  const std::vector<std::string> roots = Roots(DRIVE_REMOVABLE);
  SKIP_UNLESS(roots.size() >= 2, "a test desktop with two removable drives");
  std::string stored = ListBytes({{"Tool", "#:\\tools\\recorder.exe"}});
  for (const std::string& root : roots) {
    const Folder folder(root);
    Recorder recorder(folder);
    const std::string inside = folder.Path().substr(3);
    stored = ListBytes({{"Tool", "#:\\" + inside + "\\recorder.exe"}, {"Gone", "#:\\" + inside + "\\gone.exe"}});
    folder.Write("Vantor\\MediaSet.Orbel", MediaSettings("Ready"));
    folder.Write("Vantor\\Set.Orbel", Settings{.ProgUpper = 1}.Bytes());
    folder.Write("Vantor\\ListProg.Orbel", stored);
    Program program(folder);
    program.AwaitBar();
    program.TypeLine("p-to");
    input::Press(VK_RETURN);
    CHECK(recorder.Next() == '"' + folder.Path("recorder.exe") + '"');
    program.Exit();
    CHECK(folder.Read("Vantor\\ListProg.Orbel") == ListBytes({{"Tool", "#:\\" + inside + "\\recorder.exe"}}));
    CHECK(folder.Read("Vantor\\Set.Orbel") == Settings{.ProgUpper = 0}.Bytes());
  }
}

}  // namespace vantor::desktop
