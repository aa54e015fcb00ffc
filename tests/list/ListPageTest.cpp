#include <doctest/doctest.h>

#include "fake/TestProgram.h"
#include "list/NameMatch.h"

namespace vantor::list {
namespace {

TEST_CASE("names are listed regardless of letter case, paths only when identical") {
  test::TestProgram program;
  form::ComboBox& box = program.Page.ComboListProgName;
  for (const auto* entry : {L"Editor", L"\u00C9t\u00E9"}) box.AddItem(entry);
  for (const auto* name : {L"EDITOR", L"\u00E9T\u00C9"})
    CHECK(CheckNameListed(program.Computer, name, box) == L"MessageNameAlreadyListed");
  for (const auto* name : {L"Edito", L"Editor ", L"\u00CAt\u00E9", L""})
    CHECK(CheckNameListed(program.Computer, name, box).empty());
  CHECK(PathAlreadyListed(L"Editor", box) == L"MessagePathAlreadyListed");
  CHECK(PathAlreadyListed(L"editor", box).empty());
  // Letters that share a place in the memory of letters, 0x111 and 0x411, are kept apart.
  NameMatch match(program.Computer, L"\u0431");
  CHECK(!match.Begins(L"\u0111"));
  CHECK(match.Begins(L"\u0411x"));
}

}  // namespace
}  // namespace vantor::list
