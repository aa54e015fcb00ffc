#include <doctest/doctest.h>

#include "fake/Play.h"

namespace vantor::start {
namespace {

using flows::Text;
using test::Play;
using test::World;

TEST_CASE("the maker's programs are found beside this one and in the drive's root, each once, the help last") {
  const struct {
    Text Home, Files, Expected;
    Text Shared = {};  // what others may write to
  } rows[] = {
      {L"C:\\MyOrbel\\Vantor", L"C:\\Orbel\\Draw\\Other.exe | C:\\Orbel\\Draw.exe | C:\\MyOrbel\\Draw\\Draw.exe", L""},
      {L"C:\\Vantor", L"C:\\Vantor\\VantorHelp.exe | C:\\ORBEL\\Write\\write.EXE | C:\\Orbel\\Draw it\\Draw it.exe",
       L"C:\\Orbel\\Draw it\\Draw it.exe | C:\\Orbel\\Write\\Write.exe | C:\\Vantor\\VantorHelp.exe"},
      // Both ways lead to the same folder, which contains this program.
      {L"C:\\oRBEL\\Vantor", L"C:\\oRBEL\\Vantor\\Vantor.exe | C:\\oRBEL\\Draw\\Draw.exe",
       L"C:\\Orbel\\Draw\\Draw.exe"},
      {L"C:\\Apps\\orbel\\Vantor",
       L"C:\\Apps\\Orbel\\Draw\\Draw.exe | C:\\Apps\\Orbel\\Zip\\Zip.exe | C:\\Orbel\\DRAW\\Draw.exe",
       L"C:\\Orbel\\DRAW\\DRAW.exe | C:\\Apps\\orbel\\Zip\\Zip.exe"},
      // What somebody else may have put there is accepted only on a medium.
      {L"C:\\Vantor", L"C:\\Orbel\\Draw\\Draw.exe", L"", L"C:\\Orbel\\"},
      {L"C:\\Vantor", L"C:\\Orbel\\Draw\\Draw.exe", L"", L"C:\\Orbel\\Draw\\Draw.exe"},
      {L"E:\\Vantor", L"E:\\Orbel\\Draw\\Draw.exe", L"E:\\Orbel\\Draw\\Draw.exe", L"E:\\Orbel\\"},
  };
  for (const auto& row : rows) {
    flows::Texts paths;
    Play(L"look\ngiven program " + row.Files +
             L"\ngiven data MediaSet \"Vantor Media 1\" | \"Ready\" | \"Anna\"\nstart\nlook",
         [&](World& world) {
           world.Computer.Home = row.Home;
           world.Computer.Shared = row.Shared;
           if (!world.Program) return;
           for (const auto& companion : world.Program->Environment.Companions) paths.push_back(companion.Path);
         });
    CHECK(flows::Joined(paths) == row.Expected);
  }
}

TEST_CASE("a share or an unknown drive is refused, without contacting a server; the Windows folder is accepted") {
  for (const auto* home : {L"\\\\server\\share\\Vantor", L"\\\\?\\Volume{1}\\Vantor", L"C:\\Vantor"}) {
    Play(L"given first start\nlook\nstart\ntold The Program encountered a problem > see end", [&](World& world) {
      world.Computer.Home = home;
      world.Computer.Disk.Drives[L'C'].Type = 0;
    });
  }
  const Text longest = L"C:\\" + Text(251, L'w');
  for (const auto& [windows, folder] : {std::pair<Text, Text>(L"c:\\vantor", L"c:\\vantor\\"),
                                        {L"C:\\VANTOR\\", L"C:\\VANTOR\\"},
                                        {L"", L""},
                                        {longest, longest + L"\\"},
                                        {longest + L"w", L""}}) {
    Play(L"look\nstart\nlook\nsee line [Vantor]", [&, given = windows, expected = folder](World& world) {
      world.Computer.Windows = given;
      CHECK((!world.Program || world.Program->Environment.WindowsFolder == expected));
    });
  }
}

TEST_CASE("a second copy hands over to the first, or goes on when that has no window") {
  flows::Texts titles;
  const auto look = [&](World& world) {
    world.Computer.Previous = true;
    titles = world.Computer.Asked;
  };
  Play(L"look\nstart\nsee end\nlook", look);
  CHECK(titles == flows::Texts{L"title Vantor Orbel", L"title BypassThisInstance"});
  Play(L"given failing ActivateInstance\nlook\nstart\nsee line [Vantor]\nlook", look);
  CHECK((titles.size() == 3 && titles[2] == titles[0]));
}

TEST_CASE("a first run from a medium that can't be written to is refused, and removes what it made if it can") {
  // The disk counts each call and the bytes that it writes.
  constexpr std::size_t Calls = 2;
  constexpr std::size_t Settings = 52;
  const std::string setup = "\"Vantor Media 1\"\r\n\"Setup\"\r\n\"\"\r\n";
  const Text begin = L"given home E\ngiven first start\nlook\nstart\n";
  const Text asked = L"answer Ada\ntold If you missed it > see line [Vantor]";
  using Fault = fake::FakeDisk::Fault;
  for (const Fault fault : {Fault::Gone, Fault::Full}) {
    for (std::size_t bytes = 0; bytes < setup.size() + Settings; bytes += 4) {
      const bool triesAgain = fault == Fault::Full || bytes < Calls + setup.size();
      Play(begin + L"told There was problem writing Data > see end\nlook\nstart\n" +
               (triesAgain ? asked : L"told To run this Program from a Removable Media there > see end"),
           [&](World& world) {
             fake::FakeDisk& disk = world.Computer.Disk;
             world.Program ? disk.Mend() : disk.Break(fault, bytes + (fault == Fault::Full ? disk.Size() : 0));
           });
    }
  }
  // Ended during its first write, to the file next to it or in place.
  for (const auto* name : {L"MediaSet.Orbel", L"MediaSet.Orbel~"}) {
    for (std::size_t length = 0; length < setup.size(); length += 6)
      Play(begin + asked,
           [&](World& world) { world.Write(Text(L"E:\\Vantor\\Vantor\\") + name, setup.substr(0, length)); });
  }
}

}  // namespace
}  // namespace vantor::start
