#include "text/SequentialFile.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <type_traits>

#include "text/Utf8.h"

namespace vantor::text {
namespace {

constexpr std::string_view LineEnd = "\r\n";

template <class Char>
constexpr bool IsBlank(Char c) {
  return c == ' ' || c == '\t';
}

template <class Char>
std::basic_string_view<Char> TrimBlanks(std::basic_string_view<Char> text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

using Unit = std::make_unsigned_t<wchar_t>;

/// Copies an ASCII text in double quotes and returns the end. `all` collects the bits of all characters, so that the
/// caller can check whether the text was ASCII.
char* CopyQuoted(char* to, std::wstring_view text, Unit& all) {
  Unit bits = 0;
  *to++ = '"';
  for (const wchar_t c : text) {
    bits |= static_cast<Unit>(c);
    *to++ = static_cast<char>(c);
  }
  *to++ = '"';
  all |= bits;
  return to;
}

}  // namespace

void SequentialWriter::AppendInteger(long long value) {
  char digits[24];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
  Append({digits, end});
  Append(LineEnd);
}

void SequentialWriter::Write(std::wstring_view text) {
  AppendQuoted(text);
  Append(LineEnd);
}

void SequentialWriter::Write(std::wstring_view first, std::wstring_view second) {
  // A save spends most of its time here, so the space is checked once for the whole record.
  char* const start = Room(first.size() + second.size() + 7);
  Unit all = 0;
  char* to = CopyQuoted(start, first, all);
  *to++ = ',';
  to = CopyQuoted(to, second, all);
  to = std::copy(LineEnd.begin(), LineEnd.end(), to);
  if (all < 0x80) {
    used_ += static_cast<std::size_t>(to - start);
    return;
  }
  AppendQuoted(first);
  Append(",");
  AppendQuoted(second);
  Append(LineEnd);
}

void SequentialWriter::AppendQuoted(std::wstring_view text) {
  Unit all = 0;
  CopyQuoted(Room(text.size() + 2), text, all);
  if (all < 0x80) {
    used_ += text.size() + 2;
    return;
  }
  ascii_ = false;
  std::string bytes = "\"";
  AppendUtf8(bytes, text);
  Append(bytes += '"');
}

void SequentialWriter::Append(std::string_view bytes) {
  std::copy(bytes.begin(), bytes.end(), Room(bytes.size()));
  used_ += bytes.size();
}

char* SequentialWriter::Room(std::size_t bytes) {
  if (buffer_.size() - used_ < bytes) buffer_.resize(std::max(used_ + bytes, 2 * buffer_.size()));
  return buffer_.data() + used_;
}

void SequentialWriter::Reserve(std::size_t bytes) { static_cast<void>(Room(bytes)); }

std::wstring SequentialWriter::Text() const { return FromUtf8(Bytes()); }

template <class Char>
auto FieldReader<Char>::Read() -> std::optional<Field> {
  while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
  if (rest_.empty()) return std::nullopt;
  if (rest_.front() != '"') return Field{TrimBlanks(TakeToDelimiter()), false};

  const std::size_t close = rest_.find('"', 1);
  if (close == View::npos) {
    rest_ = {};
    return std::nullopt;
  }
  const Field field{rest_.substr(1, close - 1), true};
  rest_.remove_prefix(close + 1);
  TakeToDelimiter();
  return field;
}

template <class Char>
auto FieldReader<Char>::TakeToDelimiter() -> View {
  std::size_t end = 0;
  while (end < rest_.size() && rest_[end] != ',' && rest_[end] != '\r' && rest_[end] != '\n') ++end;
  const View taken = rest_.substr(0, end);
  const bool pair = end + 1 < rest_.size() && rest_[end] == '\r' && rest_[end + 1] == '\n';
  rest_.remove_prefix(std::min(end + (pair ? 2 : 1), rest_.size()));
  return taken;
}

template class FieldReader<wchar_t>;
template class FieldReader<char>;

}  // namespace vantor::text
