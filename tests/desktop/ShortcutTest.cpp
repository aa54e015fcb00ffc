// desktop: --root win32
// desktop: --root win64
// The contents of the desktop shortcut.

#include <doctest/doctest.h>

#include "driver/Program.h"
#include "driver/Recorder.h"

namespace vantor::desktop {

TEST_CASE("the desktop shortcut starts the program, in its folder, by Ctrl+Shift+L") {
  const std::string file = SystemFolder(CSIDL_DESKTOPDIRECTORY) + "\\Vantor.lnk";
  SKIP_UNLESS(!Exists(file), "a desktop without the shortcut");
  const Folder folder;
  folder.WriteSettings({});
  const Program program(folder);
  program.AwaitBar();
  program.Press(VK_F6);
  program.AwaitForm(L"CommandOptionShortcut");
  program.Click(L"CommandOptionShortcut");
  program.AwaitForm(L"LabelMessage");
  const std::string link = BytesOf(file);
  const std::string path = folder.Path("Vantor.exe");
  for (const std::string& part : {path, Utf16(path), Utf16(folder.Path() + "\\"), Utf16("Vantor")})
    CHECK(link.find(part) != std::string::npos);
  CHECK(link.substr(60, 4) == std::string("\1\0\0\0", 4));  // a window of the usual size
  CHECK(link.substr(64, 2) == "L\3");                       // Ctrl+Shift+L
  DeleteFileW(Wide(file).c_str());
}

}  // namespace vantor::desktop
