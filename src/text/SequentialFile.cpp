#include "text/SequentialFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "text/Utf8.h"

namespace vantor::text {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view LineEnd = "\r\n";

constexpr bool IsBlank(wchar_t c) { return c == L' ' || c == L'\t'; }
constexpr bool IsDelimiter(wchar_t c) { return c == L',' || c == L'\r' || c == L'\n'; }

std::wstring_view TrimBlanks(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace

void SequentialWriter::AppendInteger(long long value) {
  char digits[24];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
  bytes_.append(digits, end).append(LineEnd);
}

void SequentialWriter::Write(double value) {
  constexpr double ExactIntegers = 9007199254740992.0;  // 2^53
  if (std::fabs(value) <= ExactIntegers && value == std::trunc(value)) {
    AppendInteger(static_cast<long long>(value));
    return;
  }
  // The longest double without an exponent has 309 digits before its point; the smallest, 1074 after it. The
  // program never leaves the "C" locale, so that the point is a point. (std::to_chars would add 300 KB.)
  char digits[1400];
  int length = 0;
  for (int decimals = 0; decimals <= 1074; ++decimals) {
    length = std::snprintf(digits, sizeof digits, "%.*f", decimals, value);
    if (std::strtod(digits, nullptr) == value) break;
  }
  bytes_.append(digits, static_cast<std::size_t>(length)).append(LineEnd);
}

void SequentialWriter::Write(std::wstring_view text) {
  AppendQuoted(text);
  bytes_ += LineEnd;
}

void SequentialWriter::Write(std::wstring_view first, std::wstring_view second) {
  AppendQuoted(first);
  bytes_ += ',';
  AppendQuoted(second);
  bytes_ += LineEnd;
}

void SequentialWriter::AppendQuoted(std::wstring_view text) {
  const std::size_t start = bytes_.size();
  bytes_.resize(start + text.size() + 2, '"');
  char* to = bytes_.data() + start + 1;
  std::make_unsigned_t<wchar_t> all = 0;
  for (const wchar_t c : text) {
    all |= static_cast<std::make_unsigned_t<wchar_t>>(c);
    *to++ = static_cast<char>(c);
  }
  if (all < 0x80) return;
  ascii_ = false;
  bytes_.resize(start + 1);
  AppendUtf8(bytes_, text);
  bytes_ += '"';
}

std::wstring SequentialWriter::Text() const { return FromUtf8(bytes_); }

std::optional<SequentialReader::Field> SequentialReader::Read() {
  while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
  if (rest_.empty()) return std::nullopt;
  if (rest_.front() != L'"') return Field{TrimBlanks(TakeToDelimiter()), false};

  const std::size_t close = rest_.find(L'"', 1);
  if (close == std::wstring_view::npos) {
    rest_ = {};
    return std::nullopt;
  }
  const Field field{rest_.substr(1, close - 1), true};
  rest_.remove_prefix(close + 1);
  TakeToDelimiter();
  return field;
}

std::wstring_view SequentialReader::TakeToDelimiter() {
  const auto end = std::find_if(rest_.begin(), rest_.end(), IsDelimiter);
  const std::wstring_view taken = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
  rest_.remove_prefix(taken.size());
  if (rest_.starts_with(L"\r\n"))
    rest_.remove_prefix(2);
  else if (!rest_.empty())
    rest_.remove_prefix(1);
  return taken;
}

std::optional<std::wstring> ReadTextFile(service::DataFiles& files, const service::Language& language,
                                         std::wstring_view path) {
  const std::optional<std::string> bytes = files.Read(path);
  if (!bytes) return std::nullopt;
  if (bytes->starts_with(ByteOrderMark)) return FromUtf8(std::string_view(*bytes).substr(ByteOrderMark.size()));
  if (IsAscii(*bytes)) return std::wstring(bytes->begin(), bytes->end());
  return language.FromCodePage(*bytes);
}

bool WriteTextFile(service::DataFiles& files, const service::Language& language, std::wstring_view path,
                   const SequentialWriter& writer) {
  if (writer.Ascii()) return files.Write(path, writer.Bytes());
  if (const auto bytes = language.ToCodePage(writer.Text())) return files.Write(path, *bytes);
  return files.Write(path, std::string(ByteOrderMark) + writer.Bytes());
}

}  // namespace vantor::text
