#include "text/Utf8.h"

namespace vantor::text {
namespace {

constexpr char32_t Replacement = 0xFFFD;

bool IsHigh(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool IsLow(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

/// Consumes one character of the text: two units if they are a surrogate pair.
char32_t Take(std::wstring_view text, std::size_t& at) {
  const auto unit = static_cast<char32_t>(text[at++]);
  if (IsHigh(unit) && at < text.size() && IsLow(static_cast<char32_t>(text[at])))
    return 0x10000 + ((unit - 0xD800) << 10) + (static_cast<char32_t>(text[at++]) - 0xDC00);
  return unit;
}

void AppendWide(std::wstring& text, char32_t c) {
  if (sizeof(wchar_t) == 2 && c >= 0x10000) {
    text += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
    text += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
  } else {
    text += static_cast<wchar_t>(c);
  }
}

/// Consumes one character that begins at `at`, or a single byte if none begins there.
char32_t Take(std::string_view bytes, std::size_t& at) {
  const auto first = static_cast<unsigned char>(bytes[at++]);
  if (first < 0x80) return first;
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  if (first < 0xC2 || first > 0xF4 || bytes.size() - at < static_cast<std::size_t>(more)) return Replacement;
  char32_t c = first & (0x3Fu >> more);
  for (int i = 0; i < more; ++i) {
    const auto next = static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    if ((next & 0xC0) != 0x80) return Replacement;
    c = (c << 6) | (next & 0x3Fu);
  }
  // An overlong form, or not a character at all.
  static constexpr char32_t Least[] = {0, 0x80, 0x800, 0x10000};
  if (c < Least[more] || c > 0x10FFFF) return Replacement;
  at += static_cast<std::size_t>(more);
  return c;
}

}  // namespace

void AppendUtf8(std::string& bytes, std::wstring_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = Take(text, at);
    if (c < 0x80) {
      bytes += static_cast<char>(c);
      continue;
    }
    const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    static constexpr char32_t Mark[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(Mark[more] | (c >> (6 * more)));
    for (int i = more - 1; i >= 0; --i) bytes += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3F));
  }
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) AppendWide(text, Take(bytes, at));
  return text;
}

bool IsAscii(std::string_view bytes) {
  unsigned char all = 0;
  for (const char byte : bytes) all = static_cast<unsigned char>(all | static_cast<unsigned char>(byte));
  return all < 0x80;
}

}  // namespace vantor::text
