#pragma once

#include "service/Language.h"

namespace vantor::fake {

/// Letters of Latin-1 and Russian, and one of two code pages.
class FakeLanguage : public service::Language {
 public:
  enum class CodePage { Western, Cyrillic };  // as 1252 and 1251
  CodePage SystemCodePage = CodePage::Western;

  std::wstring Lower(std::wstring_view text) const override {
    std::wstring result(text);
    for (wchar_t& c : result) {
      if (InRange(c, L'A', L'Z') || InRange(c, 0x410, 0x42F) || (InRange(c, 0xC0, 0xDE) && c != 0xD7))
        c += 32;
      else if (InRange(c, 0x400, 0x40F))
        c += 80;
    }
    return result;
  }
  std::wstring Upper(std::wstring_view text) const override {
    std::wstring result(text);
    for (wchar_t& c : result) {
      if (InRange(c, L'a', L'z') || InRange(c, 0x430, 0x44F) || (InRange(c, 0xE0, 0xFE) && c != 0xF7))
        c -= 32;
      else if (InRange(c, 0x450, 0x45F))
        c -= 80;
    }
    return result;
  }

  std::wstring FromCodePage(std::string_view bytes) const override {
    std::wstring result;
    result.reserve(bytes.size());
    for (const char byte : bytes) result += Decode(static_cast<unsigned char>(byte));
    return result;
  }
  std::optional<std::string> ToCodePage(std::wstring_view text) const override {
    std::string result;
    result.reserve(text.size());
    for (const wchar_t c : text) {
      int byte = c < 0x80 ? static_cast<int>(c) : 0x80;
      while (byte < 0x100 && (byte >= 0x80 && Decode(byte) != c)) ++byte;
      if (byte == 0x100 || c == 0xFFFD) return std::nullopt;
      result += static_cast<char>(byte);
    }
    return result;
  }

 private:
  static bool InRange(wchar_t c, int first, int last) { return c >= first && c <= last; }

  [[nodiscard]] wchar_t Decode(int byte) const {
    static constexpr wchar_t Western80[] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                            0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};
    if (byte < 0x80) return static_cast<wchar_t>(byte);
    if (SystemCodePage == CodePage::Western) return byte < 0xA0 ? Western80[byte - 0x80] : static_cast<wchar_t>(byte);
    if (byte >= 0xC0) return static_cast<wchar_t>(0x410 + byte - 0xC0);
    return byte == 0xA8 ? wchar_t{0x401} : byte == 0xB8 ? wchar_t{0x451} : wchar_t{0xFFFD};
  }
};

}  // namespace vantor::fake
