// desktop: --env LANG=ja_JP.UTF-8
#include <doctest/doctest.h>

#include <windows.h>

#include "win32/Language.h"

TEST_CASE("a code page of two bytes a character") {
  if (GetACP() != 932) {
    MESSAGE("not on a Japanese system");
    return;
  }
  const vantor::win32::Language language;
  CHECK(language.FromCodePage("\x83\x41.exe") == L"\x30A2.exe");
  CHECK(language.ToCodePage(L"\x30A2.exe") == "\x83\x41.exe");
  // The second byte of this one is a backslash; the best fit of the yen sign would be one.
  CHECK(language.FromCodePage("\x95\x5C") == L"\x8868");
  CHECK_FALSE(language.ToCodePage(L"\x00A5"));
  CHECK_FALSE(language.ToCodePage(L"\x00E4"));
  // A character cut in half, at the end and before one that is whole.
  CHECK(language.FromCodePage("a\x83") == L"a\xFFFD");
  CHECK(language.FromCodePage("a\xFF\x83\x41z").substr(2) == L"\x30A2z");
}
