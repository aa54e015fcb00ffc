#include <doctest/doctest.h>

#include "fake/StoredList.h"

namespace vantor::list {
namespace {

using test::ItemsOf;
using test::StoredList;
using test::Texts;

std::wstring DataFile(std::wstring_view name) { return L"C:\\Vantor\\Vantor\\" + std::wstring(name) + L".Orbel"; }

TEST_CASE("a group that became empty is not loaded again, and a place beyond 16 bits is saved as the nearest") {
  fake::Computer computer;
  StoredList first(computer);
  first.Add(LaunchGroup::File, L"A, b", L"C:\\Work\\notes.txt");
  first.Add(LaunchGroup::Web, L"x", L"http://x");
  first.Save();
  first.RemoveFirst(LaunchGroup::File);
  first.Files.SaveLaunchList(first.Choose.List, 40000, -40000);
  CHECK(computer.Disk.Bytes(DataFile(L"Set")).starts_with("2\r\n-1\r\n-1\r\n-1\r\n0\r\n32767\r\n-32768\r\n"));
  CHECK(computer.Disk.Bytes(DataFile(L"ListFile")) == "\"A, b\",\"C:\\Work\\notes.txt\"\r\n");
  StoredList second(computer);
  second.Load();
  CHECK(ItemsOf(second.Choose.List) == Texts{L"x>http://x"});
}

TEST_CASE("settings that lack a field, or have what is no number in one, are not whole") {
  const std::pair<std::string_view, bool> rows[] = {
      {"5\n3\n-1\n-1\n-1\n70\n80\n\"x\"\n0\n0\n9", true},
      {"5\r\n3\r", false},
      {"5\r\n99999\r\n0\r\nabc\r\n0\r\n7\r\n8\r\n\"\"\r\n1\r\n1\r\n1\r\nmore\r\n", false},
      {"5\r\n0\r\n0\r\n0\r\n0\r\n7\r\n8\r\n\"not closed\r\n1\r\n1\r\n1\r\n", false},
  };
  for (const auto& row : rows) {
    CAPTURE(row.first);
    fake::Computer computer;
    computer.Disk.AddFile(DataFile(L"Set"), row.first);
    Settings settings;
    CHECK(LoadSettings(computer, computer, DataFile(L"Set"), settings) == row.second);
    CHECK(settings.OptionMask == 5);
  }
}

TEST_CASE("files cut at any byte give the items before the cut, whatever the upper index says") {
  constexpr std::string_view whole = "\"one\",\"http://1\"\r\n\"two, 2\",\"http://2\"\r\nthree , http://3\r\n";
  constexpr std::size_t ends[] = {whole.find('\r'), whole.find("\r\nthree"), whole.size() - 2};
  const Texts all{L"one>http://1", L"two, 2>http://2", L"three>http://3"};
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    for (const int upper : {-32768, -1, 0, 1, 2, 32767}) {
      CAPTURE(length);
      CAPTURE(upper);
      fake::Computer computer;
      StoredList list(computer);
      list.Settings.WebUpper = static_cast<std::int16_t>(upper);
      computer.Disk.AddFile(DataFile(L"ListWeb"), whole.substr(0, length));
      list.Choose.Load();
      Texts items = ItemsOf(list.Choose.List);
      // Of a target without quotes any part is one.
      if (items.size() == 3 && length < ends[2]) items.pop_back();
      const auto kept = std::count_if(std::begin(ends), std::end(ends), [&](auto end) { return end <= length; });
      const auto expected = std::min<std::ptrdiff_t>(kept, std::max(upper + 1, 0));
      CHECK(items == Texts(all.begin(), all.begin() + expected));
    }
  }
}

}  // namespace
}  // namespace vantor::list
