#include "text/SequentialFile.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "text/Numbers.h"

namespace vantor::text {
namespace {

using Fields = std::vector<std::wstring>;

TEST_CASE("fields are read as an input statement reads them") {
  const std::pair<std::wstring_view, Fields> cases[] = {
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
  for (const auto& [text, expected] : cases) {
    const std::string shown(text.begin(), text.end());
    CAPTURE(shown);
    Fields fields;
    SequentialReader reader(text);
    while (const auto field = reader.Read())
      fields.push_back((field->Quoted ? L"Q:" : L"") + std::wstring(field->Text));
    CHECK(fields == expected);
  }
}

TEST_CASE("numbers are whole fields within their range, and sizes of disks read back to themselves") {
  CHECK(ParseInt16(L" -32768 ") == INT16_MIN);
  CHECK(ParseInt16(L"+7") == 7);
  for (const auto* text : {L"", L" ", L"32768", L"99999999999999999999", L"1x", L"-", L"1 2", L"0x10", L"2.0"})
    CHECK_FALSE(ParseInt16(text));
  for (const auto* text : {L"", L"inf", L"nan", L"0x1p3", L"1,5", L"1.2.3", L".", L"1e", L"--1"})
    CHECK_FALSE(ParseDouble(text));
  CHECK(ParseDouble(L" -2.5E+3 ") == -2500);
  CHECK(ParseDouble(L".1") == 0.1);
  CHECK(ParseDouble(L"1e-9999") == 0);
  for (const double size : {0.0, 80023715840.0, 9007199254740991.0}) {
    SequentialWriter writer;
    writer.Write(size);
    const std::string_view bytes = writer.Bytes();
    CHECK(bytes.find_first_not_of("0123456789") == bytes.size() - 2);
    CHECK(ParseDouble(std::wstring(bytes.begin(), bytes.end() - 2)) == size);
  }
}

}  // namespace
}  // namespace vantor::text
