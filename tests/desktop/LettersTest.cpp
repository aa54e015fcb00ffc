// desktop: --env LC_ALL=en_US.UTF-8
// desktop: --env LC_ALL=ja_JP.UTF-8
// desktop: --env LC_ALL=hi_IN.UTF-8 --env LOCPATH=/locale
//
// Letters of any language on the whole way: read, typed, completed, shown, started and stored, on systems whose code
// page holds one byte a letter (1252), two (932), or everything (65001).

#include <doctest/doctest.h>

#include <algorithm>

#include "desktop/System.h"

namespace vantor::desktop {
namespace {

/// A name as the code page has it, and what stands in the line when its first letters are typed in another case.
const struct {
  UINT CodePage;
  std::string Name, Bytes, Typed, Completed;
} OfCodePage[] = {
    {1252, "\u00C9t\u00E9 \u00DF", "\xC9t\xE9 \xDF", "\u00E9T", "\u00C9t[\u00E9 \u00DF]"},
    // The second byte of the first letter is a backslash.
    {932, "\u8868\u0436 \uFF37", "\x95\x5C\x84\x77 \x82\x76", "\u8868\u0416", "\u8868\u0436[ \uFF37]"},
    {65001, "\u0416\u00E9\u0905", "\xD0\x96\xC3\xA9\xE0\xA4\x85", "\u0436\u00C9", "\u0416\u00E9[\u0905]"},
};

}  // namespace

TEST_CASE("letters of any language are read, typed, completed, shown, started and stored") {
  const auto* row = std::ranges::find(OfCodePage, GetACP(), [](const auto& each) { return each.CodePage; });
  if (row == std::end(OfCodePage)) {
    MESSAGE("skipped: no row for the code page ", GetACP());
    return;
  }
  CAPTURE(row->CodePage);
  const std::string cafe = "Caf\u00E9";
  const std::string mixed = "\u65E5\u672C \u0416\u00E4";  // in no code page of one language
  const Folder folder;
  Recorder recorder(folder);
  for (const std::string& name : {cafe, mixed}) folder.CopyProgram("recorder.exe", name + ".exe");
  folder.Write(mixed + ".vantortest");
  folder.WriteSettings({.FileUpper = 0, .ProgUpper = 1, .WebUpper = 0});
  const std::string mark = "\xEF\xBB\xBF";
  const std::string programs = ListBytes({{cafe, folder.Path(cafe + ".exe")}, {mixed, folder.Path(mixed + ".exe")}});
  const std::string files = ListBytes({{mixed, folder.Path(mixed + ".vantortest")}});
  const std::string webs = ListBytes({{row->Bytes, "http://" + row->Bytes}});
  folder.WriteData("ListProg", mark + programs);
  folder.WriteData("ListFile", mark + files);
  folder.WriteData("ListWeb", webs);

  const Program program(folder);
  program.AwaitBar();
  const std::string path = folder.Path(mixed);
  const struct {
    std::string Typed, Completed, Started;
  } lines[] = {
      {"p-CAF\u00C9", "p-" + cafe, '"' + folder.Path(cafe + ".exe") + '"'},
      {"p-\u65E5", "p-\u65E5[\u672C \u0416\u00E4]", '"' + path + ".exe\""},
      {"p=" + path + ".exe", "p=" + path + ".exe", '"' + path + ".exe\""},
      {"f-\u65E5\u672C \u0436", "f-\u65E5\u672C \u0416[\u00E4]",
       '"' + folder.Path("recorder.exe") + "\" document \"" + path + ".vantortest\""},
  };
  for (const auto& line : lines) {
    program.TypeLine(line.Typed);
    CHECK_BECOMES(program.LineWithSelection(), line.Completed);
    input::Press(VK_RETURN);
    CHECK(recorder.Next() == line.Started);
    CHECK_BECOMES(program.Line(), "");
  }
  program.TypeLine("w-" + row->Typed);
  CHECK_BECOMES(program.LineWithSelection(), "w-" + row->Completed);
  const Panel panel(program, VK_F4, "List");
  panel.Open();
  CHECK(window::Text(window::OfClass(panel.Button("File List :"), "ComboBox").at(0)) == mixed);
  panel.Close();
  program.Exit();

  // With the mark where the code page lacks a letter.
  const std::string marked = row->CodePage == CP_UTF8 ? "" : mark;
  CHECK(folder.Data("ListProg") == marked + programs);
  CHECK(folder.Data("ListFile") == marked + files);
  CHECK(folder.Data("ListWeb") == webs);
}

}  // namespace vantor::desktop
