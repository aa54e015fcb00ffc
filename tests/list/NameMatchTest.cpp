#include "list/NameMatch.h"

#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::list {

TEST_CASE("names are listed regardless of letter case, paths only when identical") {
  test::TestProgram program;
  const fake::Computer& language = program.Computer;
  form::ComboBox& box = program.Choose.ComboListProgName;
  CHECK(CheckNameListed(language, L"", box).empty());
  for (const auto* entry : {L"Editor", L"\u00C9t\u00E9", L"\u041F\u0440\u043E\u0435\u043A\u0442"}) box.AddItem(entry);
  for (const auto* name : {L"EDITOR", L"editor", L"\u00E9T\u00C9", L"\u043F\u0420\u043E\u0435\u043A\u0442"})
    CHECK(CheckNameListed(language, name, box) == L"MessageNameAlreadyListed");
  for (const auto* name : {L"Edito", L"Editor ", L"\u00CAt\u00E9", L""})
    CHECK(CheckNameListed(language, name, box).empty());
  CHECK(PathAlreadyListed(L"Editor", box) == L"MessagePathAlreadyListed");
  CHECK(PathAlreadyListed(L"editor", box).empty());
}

TEST_CASE("letters that share a place in the memory of letters are kept apart") {
  const fake::Computer language;
  NameMatch match(language, L"\u0431\u0131");  // 256 apart from each other: 0x431 and 0x131
  CHECK(match.Begins(L"\u0411\u0131x"));
  CHECK(!match.Begins(L"\u0131\u0411"));
  CHECK(match.Equals(L"\u0411\u0131"));
}

}  // namespace vantor::list
