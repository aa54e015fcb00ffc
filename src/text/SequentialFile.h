#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace vantor::text {

/// Builds the text of a sequential file: one record per line, lines ended by CR LF.
class SequentialWriter {
 public:
  /// A number without quotes.
  template <std::integral Integer>
  void Write(Integer value) {
    AppendInteger(value);
  }
  /// A whole number below 2^63, such as a disk's size in bytes, without an exponent. Fractions are truncated.
  void Write(double value) { AppendInteger(static_cast<long long>(value)); }
  /// A text in double quotes. There is no escaping: a double quote inside ends the field on reading.
  void Write(std::wstring_view text);
  /// Two texts in double quotes, separated by one comma.
  void Write(std::wstring_view first, std::wstring_view second);

  /// Reserves space for a text of so many bytes.
  void Reserve(std::size_t bytes);
  [[nodiscard]] std::wstring Text() const;

  /// The text in UTF-8, and whether it is ASCII only: an ASCII text is the same in every code page, so most files are
  /// written without being converted.
  [[nodiscard]] std::string_view Bytes() const { return {buffer_.data(), used_}; }
  [[nodiscard]] bool Ascii() const { return ascii_; }

 private:
  void AppendInteger(long long value);
  void Append(std::string_view bytes);
  void AppendQuoted(std::wstring_view text);
  /// The end of the text, followed by space for so many more bytes.
  char* Room(std::size_t bytes);

  std::string buffer_;  // longer than the text, so that appending a field is one copy
  std::size_t used_ = 0;
  bool ascii_ = true;
};

/// Reads fields one after another, as an input statement does: a quoted field ends at its closing quote and
/// keeps its commas; an unquoted one ends at a comma or a line end and loses the blanks around it. CR, LF and
/// CR LF all end a line. Anything between a closing quote and the next comma or line end is skipped.
template <class Char>
class FieldReader {
 public:
  using View = std::basic_string_view<Char>;

  /// The text must outlive the reader and its fields.
  explicit FieldReader(View text) : rest_(text) {}

  struct Field {
    View Text;  // a part of the reader's text
    bool Quoted = false;
  };
  /// The next field; nothing at the end of the text, or if a quoted field has no closing quote.
  [[nodiscard]] std::optional<Field> Read();

 private:
  /// Consumes the characters up to and including the next comma or line end. Returns those before it.
  View TakeToDelimiter();

  View rest_;
};

using SequentialReader = FieldReader<wchar_t>;
/// The same for bytes that are ASCII only.
using AsciiReader = FieldReader<char>;

}  // namespace vantor::text
