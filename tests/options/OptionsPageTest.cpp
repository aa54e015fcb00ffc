#include <doctest/doctest.h>

#include "fake/TestProgram.h"

using vantor::test::Texts;

TEST_CASE("the run value is the machine's where that may be written, else the user's, and changes only when it must") {
  const std::wstring path = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";
  const std::wstring machine = L"HKEY_LOCAL_MACHINE" + path;
  const std::wstring user = L"HKEY_CURRENT_USER" + path;
  const std::wstring file = L"C:\\Vantor\\Vantor.exe";
  const std::wstring old = L"C:\\Old.exe";
  const std::wstring write = L"write " + file;
  const struct {
    bool Administrator;
    std::wstring Machine, User;
    std::size_t Box;  // the first is ticked and cleared in turn
    Texts Done;
    std::wstring MachineThen, UserThen;
  } rows[] = {
      {true, L"", L"", 0, {write}, file, L""},
      {true, file, L"", 2, {}, file, L""},
      {true, file, L"", 0, {L"delete " + machine}, L"", L""},
      {true, file, L"", 0, {}, file, L""},
      {true, L"", L"", 0, {}, L"", L""},
      {true, old, file, 0, {write, L"delete " + user}, file, L""},
      {true, file, file, 0, {L"delete " + machine, L"delete " + user}, L"", L""},
      {false, L"", L"", 0, {write, write}, L"", file},
      {false, old, file, 0, {L"delete " + machine, L"delete " + user}, old, L""},
      {false, L"", file, 0, {}, L"", file},
      {false, L"", file, 0, {L"delete " + user}, L"", L""},
      {false, old, file, 0, {write}, old, file},
  };
  vantor::test::StartedProgram program;
  auto& page = program.Program.OptionsPage;
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    program.Computer.Administrator = row.Administrator;
    program.Computer.Registry = {{machine, row.Machine}, {user, row.User}};
    program.Computer.Asked.clear();
    program.Desktop.Press(vantor::form::Key::F6);
    program.Desktop.Click(page.CheckOptionMain[row.Box]);
    program.Desktop.Click(page.CommandOptionOK);
    CHECK(program.Computer.Asked == row.Done);
    CHECK(program.Computer.Registry[machine] == row.MachineThen);
    CHECK(program.Computer.Registry[user] == row.UserThen);
  }
}
