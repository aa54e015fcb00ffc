#include <doctest/doctest.h>

#include "fake/FakeLanguage.h"
#include "form/Headless.h"
#include "list/NameMatch.h"

using namespace vantor;

TEST_CASE("names are listed regardless of letter case, paths only when identical") {
  const fake::FakeLanguage language;
  form::Headless desktop;
  form::Form form(desktop, L"frmTest");
  form::ComboBox box(form, L"Combo");
  CHECK(list::CheckNameListed(language, L"", box).empty());
  for (const wchar_t* entry : {L"Editor", L"\u00C9t\u00E9", L"\u041F\u0440\u043E\u0435\u043A\u0442"})
    box.AddItem(entry);
  for (const wchar_t* name : {L"EDITOR", L"editor", L"\u00E9T\u00C9", L"\u043F\u0420\u043E\u0435\u043A\u0442"}) {
    CHECK(list::CheckNameListed(language, name, box) == L"MessageNameAlreadyListed");
  }
  for (const wchar_t* name : {L"Edito", L"Editor ", L"\u00CAt\u00E9", L""}) {
    CHECK(list::CheckNameListed(language, name, box).empty());
  }
  CHECK(list::PathAlreadyListed(L"Editor", box) == L"MessagePathAlreadyListed");
  CHECK(list::PathAlreadyListed(L"editor", box).empty());
}

TEST_CASE("letters that share a place in the memory of letters are kept apart") {
  const fake::FakeLanguage language;
  list::NameMatch match(language, L"\u0431\u0131");  // 256 apart from each other: 0x431 and 0x131
  CHECK(match.Begins(L"\u0411\u0131x"));
  CHECK(!match.Begins(L"\u0131\u0411"));
  CHECK(match.Equals(L"\u0411\u0131"));
}
