#include <doctest/doctest.h>

#include "bar/StartedProgram.h"

using namespace vantor;
using form::Key;
using test::StartedProgram;
using Texts = std::vector<std::wstring>;

namespace {

constexpr wchar_t RunValue[] = L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";

struct Preferences : StartedProgram {
  Preferences() { Desktop.Press(Key::F6); }
  options::OptionsPage& Page = Program.OptionsPage;

  /// Opens the page, ticks or clears boxes, and presses OK.
  void Change(std::initializer_list<std::size_t> boxes) {
    if (!Page.FrameOptions.Visible() || !Program.frmChoose.Visible()) Desktop.Press(Key::F6);
    for (const std::size_t box : boxes) Desktop.Click(Page.CheckOptionMain[box]);
    Desktop.Click(Page.CommandOptionOK);
  }
};

}  // namespace

TEST_CASE("the run value is written and deleted only when that changes something") {
  Preferences preferences;
  auto& shell = preferences.Services.ScriptShell;
  const std::wstring written = std::wstring(L"write ") + RunValue + L"=C:\\Vantor\\Vantor.exe";
  const std::wstring deleted = std::wstring(L"delete ") + RunValue;
  const auto callsOf = [&](std::initializer_list<std::size_t> boxes) {
    shell.RegistryCalls.clear();
    preferences.Change(boxes);
    return shell.RegistryCalls;
  };
  CHECK(callsOf({0}) == Texts{written});
  CHECK(callsOf({2}) == Texts{});
  CHECK(callsOf({0}) == Texts{deleted});
  shell.Registry[RunValue] = L"C:\\Vantor\\Vantor.exe";
  CHECK(callsOf({0}) == Texts{});
  shell.Registry.clear();
  CHECK(callsOf({0}) == Texts{});
  shell.Registry[RunValue] = L"C:\\Old\\Vantor.exe";
  CHECK(callsOf({0}) == Texts{written});
}
