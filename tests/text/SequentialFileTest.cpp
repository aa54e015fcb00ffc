#include "text/SequentialFile.h"

#include <doctest/doctest.h>

#include <vector>

#include "fake/FakeServices.h"
#include "text/Numbers.h"

namespace vantor::text {
namespace {

using Fields = std::vector<std::wstring>;

Fields ReadAll(std::wstring_view text) {
  Fields fields;
  SequentialReader reader(text);
  while (const auto field = reader.Read()) fields.push_back((field->Quoted ? L"Q:" : L"") + std::wstring(field->Text));
  return fields;
}

TEST_CASE("Fields are read as an input statement reads them") {
  const struct {
    std::wstring_view Text;
    Fields Expected;
  } cases[] = {
      {L"", {}},
      {L"\"a, b\",\"C:\\x, y\"\r\n\"c\",\"d\"\r\n", {L"Q:a, b", L"Q:C:\\x, y", L"Q:c", L"Q:d"}},
      {L" 12 , -1\t\r\n7", {L"12", L"-1", L"7"}},
      {L"1\n2\r3\r\n4", {L"1", L"2", L"3", L"4"}},
      {L"\r\n5\r\n", {L"", L"5"}},
      {L"  \"a\"  ,  \"b\"  \n\"\"", {L"Q:a", L"Q:b", L"Q:"}},
      {L"\"a \"b\" c\",\"d\"\r\n\"e\"", {L"Q:a ", L"Q:d", L"Q:e"}},  // the next record is not lost
      {L"\"a\",\"cut", {L"Q:a"}},
      {L"plain \"x\",y", {L"plain \"x\"", L"y"}},
  };
  for (const auto& c : cases) {
    CAPTURE(std::string(c.Text.begin(), c.Text.end()));
    CHECK(ReadAll(c.Text) == c.Expected);
  }
}

TEST_CASE("Values are written one a line, and doubles read back to themselves") {
  SequentialWriter writer;
  writer.Write(std::int16_t{-1});
  writer.Write(L"it");
  writer.Write(L"a,b", L"");
  CHECK(writer.Bytes() == "-1\r\n\"it\"\r\n\"a,b\",\"\"\r\n");
}

TEST_CASE("Sizes of disks read back to themselves") {
  const std::pair<double, std::string> sizes[] = {
      {0, "0"}, {80023715840.0, "80023715840"}, {9007199254740991.0, "9007199254740991"}};
  for (const auto& [size, written] : sizes) {
    SequentialWriter writer;
    writer.Write(size);
    CHECK(writer.Bytes() == written + "\r\n");
    CHECK(ParseDouble(std::wstring(written.begin(), written.end())) == size);
  }
  CHECK(ParseDouble(L" -2.5E+3 ") == -2500);
  CHECK(ParseDouble(L"80023715840.0") == 80023715840);
  CHECK(ParseDouble(L".1") == 0.1);
  CHECK(ParseDouble(L"1e-9999") == 0);
}

TEST_CASE("Numbers are whole fields within their range") {
  CHECK(ParseInt16(L" -32768 ") == INT16_MIN);
  CHECK(ParseInt16(L"+7") == 7);
  for (const auto* text : {L"", L" ", L"32768", L"99999999999999999999", L"1x", L"-", L"1 2", L"0x10", L"2.0"})
    CHECK_FALSE(ParseInt16(text));
  for (const auto* text : {L"", L"inf", L"nan", L"0x1p3", L"1,5", L"1.2.3", L".", L"1e", L"--1"})
    CHECK_FALSE(ParseDouble(text));
}

TEST_CASE("A file keeps every character, in the code page or in UTF-8 with its mark") {
  fake::FakeServices services;
  const auto language = std::cref(services.Language);
  const wchar_t halfPair[] = {L'x', static_cast<wchar_t>(0xD83D), 0};
  const std::wstring path = L"C:\\Vantor\\x";
  const struct {
    std::wstring Text;
    std::string Bytes;
  } cases[] = {{L"plain", "\"plain\"\r\n"},
               {L"\u00C9t\u00E9 \u20AC", "\"\xC9t\xE9 \x80\"\r\n"},
               {L"\u0416 \u4E2D \U0001F600", "\xEF\xBB\xBF\"\xD0\x96 \xE4\xB8\xAD \xF0\x9F\x98\x80\"\r\n"},
               {halfPair, "\xEF\xBB\xBF\"x\xED\xA0\xBD\"\r\n"}};
  for (const auto& c : cases) {
    SequentialWriter writer;
    writer.Write(c.Text);
    REQUIRE(WriteTextFile(services.DataFiles, language, path, writer));
    CHECK(services.Disk.Bytes(path) == c.Bytes);
    CHECK(ReadTextFile(services.DataFiles, language, path) == L"\"" + c.Text + L"\"\r\n");
  }
  services.Disk.Bytes(path) =
      "\xEF\xBB\xBF"
      "a\xC3(\xF5\xE2\x82";
  CHECK(ReadTextFile(services.DataFiles, language, path) == L"a\uFFFD(\uFFFD\uFFFD\uFFFD");
  CHECK_FALSE(ReadTextFile(services.DataFiles, language, L"C:\\missing"));
}

}  // namespace
}  // namespace vantor::text
