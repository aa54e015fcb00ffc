#include <doctest/doctest.h>

#include "fake/Play.h"
#include "fake/StoredList.h"
#include "list/DataFile.h"
#include "text/Utf8.h"

namespace vantor::list {
namespace {

using test::ItemsOf;
using test::StoredList;
using test::Texts;

std::wstring DataFile(std::wstring_view name) { return L"C:\\Vantor\\Vantor\\" + std::wstring(name) + L".Orbel"; }

TEST_CASE("a file keeps every character, in the code page or in UTF-8 with its mark") {
  fake::Computer computer;
  const std::wstring halfPairs{L'x', static_cast<wchar_t>(0xDE00), static_cast<wchar_t>(0xD83D)};
  const std::pair<std::wstring, std::string> cases[] = {
      {L"\u00C9t\u00E9 \u20AC", "\"\xC9t\xE9 \x80\"\r\n"},
      {L"\u0416 \u4E2D \U0001F600", "\xEF\xBB\xBF\"\xD0\x96 \xE4\xB8\xAD \xF0\x9F\x98\x80\"\r\n"},
      {halfPairs, "\xEF\xBB\xBF\"x\xED\xB8\x80\xED\xA0\xBD\"\r\n"}};
  for (const auto& [text, bytes] : cases) {
    text::SequentialWriter writer;
    writer.Write(text);
    CHECK(EncodeText(writer, computer) == bytes);
    CHECK(DecodeText(bytes, computer) == L"\"" + text + L"\"\r\n");
  }
  std::string pair;  // of halves, as Windows has such characters
  text::AppendUtf8(pair, std::wstring{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)});
  CHECK(pair == "\xF0\x9F\x98\x80");
  CHECK(DecodeText("\xEF\xBB\xBF!\xC3(\xF5\x80\x80\x80", computer) == L"!\uFFFD(\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST_CASE("files cut at any byte give the items before the cut, whatever the upper index says") {
  constexpr std::string_view whole = "\"one\",\"http://1\"\r\n\"two, 2\",\"http://2\"\r\nthree , http://3\r\n";
  constexpr std::size_t ends[] = {whole.find('\r'), whole.find("\r\nthree"), whole.size() - 2};
  const Texts all{L"one>http://1", L"two, 2>http://2", L"three>http://3"};
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    for (const int upper : {-32768, -1, 0, 1, 2, 32767}) {
      CAPTURE(length);
      CAPTURE(upper);
      StoredList list;
      list.Settings.WebUpper = static_cast<std::int16_t>(upper);
      list.Disk.AddFile(DataFile(L"ListWeb"), whole.substr(0, length));
      list.Page.Load();
      Texts items = ItemsOf(list.List);
      // Of a target without quotes any part is one.
      if (items.size() == 3 && length < ends[2]) items.pop_back();
      const auto kept = std::ranges::count_if(ends, [&](auto end) { return end <= length; });
      CHECK(items == Texts(all.begin(), all.begin() + std::min<std::ptrdiff_t>(kept, std::max(upper + 1, 0))));
    }
  }
}

TEST_CASE("loading calls no other computer, and keeps what may be on one as it is") {
  StoredList list;
  std::string kept;
  for (const auto* target : {R"(\\host\a.exe)", R"(//host/a.exe)", R"(/\host\a.exe)", R"(\\?\UNC\host\a.exe)",
                             R"(\??\UNC\host\a.exe)", R"(\\.\C:\a.exe)", R"(\\?\C:\Work\Tool.EXE)"}) {
    kept += std::string(R"("x",")") + target + "\"\r\n";
  }
  list.Disk.AddFile(DataFile(L"ListProg"), kept + R"("gone","\\?\C:\gone.exe")");
  list.Settings.ProgUpper = 7;
  list.Page.Load();
  CHECK(ItemsOf(list.List).size() == 7);
  list.Save();
  CHECK(list.Disk.At(DataFile(L"ListProg")).Bytes == kept);
}

TEST_CASE("four groups of 32,767 items come back whole, the last of them is completed, and there is no room for more") {
  test::Play(
      L"given settings FileUpper=32766 FoldUpper=32766 ProgUpper=32766 WebUpper=32766\nlook\nstart\n"
      L"starts f-item 32766 > open //host/32766\nstarts d-item 32766 > run {w}explorer.exe //host/32766\n"
      L"starts p-item 32766 > run //host/32766\nstarts w-item 32766 > open //host/32766\n"
      L"completes w-item 3276 > w-Item 3276\npress F1\nclick TextWebUrl\ntype http://new\nclick TextWebName\n"
      L"answer new\ntold This list is full.\n"
      L"exit > see settings FileUpper=32766 FoldUpper=32766 ProgUpper=32766 WebUpper=32766",
      [](test::World& world) {
        std::string records;
        for (int i = 0; i < 32767; ++i)
          records += "\"Item " + std::to_string(i) + "\",\"//host/" + std::to_string(i) + "\"\r\n";
        for (const auto* file : {L"ListFile", L"ListFold", L"ListProg", L"ListWeb"})
          world.Write(DataFile(file), records);
      });
}

}  // namespace
}  // namespace vantor::list
