#include "start/Companions.h"

#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::start {

using test::Texts;

TEST_CASE("the maker's programs are found beside this one and in the drive's root, each once, the help last") {
  const struct {
    std::wstring Program;
    Texts Files;
    Texts Expected;  // the paths; each one's name is that of its file
  } rows[] = {
      {L"C:\\Vantor", {}, {}},
      {L"C:\\Vantor", {L"C:\\Orbel\\Draw\\Other.exe", L"C:\\Orbel\\Draw.exe", L"C:\\Orbels\\Draw\\Draw.exe"}, {}},
      {L"C:\\Vantor",
       {L"C:\\Vantor\\VantorHelp.exe", L"C:\\ORBEL\\Write\\write.EXE", L"C:\\Orbel\\Draw it\\Draw it.exe"},
       {L"C:\\Orbel\\Draw it\\Draw it.exe", L"C:\\Orbel\\Write\\Write.exe", L"C:\\Vantor\\VantorHelp.exe"}},
      // The same folder by both ways, and this program in it.
      {L"C:\\oRBEL\\Vantor",
       {L"C:\\oRBEL\\Vantor\\Vantor.exe", L"C:\\oRBEL\\Draw\\Draw.exe"},
       {L"C:\\Orbel\\Draw\\Draw.exe"}},
      {L"C:\\Apps\\orbel\\Vantor",
       {L"C:\\Apps\\Orbel\\Draw\\Draw.exe", L"C:\\Apps\\Orbel\\Zip\\Zip.exe", L"C:\\Orbel\\DRAW\\Draw.exe"},
       {L"C:\\Orbel\\DRAW\\DRAW.exe", L"C:\\Apps\\orbel\\Zip\\Zip.exe"}},
      {L"C:\\Apps\\MyOrbel\\Vantor", {L"C:\\Apps\\MyOrbel\\Draw\\Draw.exe"}, {}},
      {L"C:\\", {L"C:\\VantorHelp.exe", L"C:\\Draw\\Draw.exe"}, {L"C:\\VantorHelp.exe"}},
  };
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    test::TestProgram program;
    program.Computer.Home = row.Program;
    for (const std::wstring& file : row.Files) program.Computer.Disk.AddFile(file);
    program.Program.frmMove.Load();
    Texts paths;
    for (const Companion& companion : FindCompanions(program.Computer.Services(), program.Program.Environment)) {
      paths.push_back(companion.Path);
      CHECK(companion.Path.ends_with(L'\\' + companion.Name + L".exe"));
    }
    CHECK(paths == row.Expected);
    CHECK(program.Computer.Open == 0);
  }
}

}  // namespace vantor::start
