#include <doctest/doctest.h>

#include "fake/TestProgram.h"

using vantor::test::Texts;

TEST_CASE("the run value is written and deleted only when that changes something") {
  const std::wstring value = L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";
  const std::wstring file = L"C:\\Vantor\\Vantor.exe";
  const struct {
    std::wstring Before;
    std::size_t Box;
    Texts Done;
  } rows[] = {{L"", 0, {L"write " + file}},
              {file, 2, {}},
              {file, 0, {L"delete " + value}},
              {file, 0, {}},
              {L"", 0, {}},
              {L"C:\\Old.exe", 0, {L"write " + file}}};
  vantor::test::StartedProgram program;
  auto& page = program.Program.OptionsPage;
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    program.Computer.Registry = {{value, row.Before}};
    program.Computer.Asked.clear();
    program.Desktop.Press(vantor::form::Key::F6);
    program.Desktop.Click(page.CheckOptionMain[row.Box]);
    program.Desktop.Click(page.CommandOptionOK);
    CHECK(program.Computer.Asked == row.Done);
  }
}
