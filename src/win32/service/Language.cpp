#include "win32/service/Language.h"

#include <windows.h>

#include <algorithm>

namespace vantor::win32 {

namespace {

constexpr wchar_t Meaningless = 0xFFFD;  // the replacement character

// Letters below 128 are mapped without the rules of the user's language: names that are equal in one country are equal
// in all.
std::wstring Map(std::wstring_view text, DWORD mapping, wchar_t first, wchar_t last, int distance) {
  std::wstring mapped(text);
  bool plain = true;
  for (wchar_t& character : mapped) {
    if (character >= first && character <= last) character = static_cast<wchar_t>(character + distance);
    plain = plain && character < 128;
  }
  // This is the end for most names; a thousand of them take less time than one call to the system.
  if (plain) return mapped;
  const int length = static_cast<int>(text.size());
  LCMapStringW(LOCALE_USER_DEFAULT, mapping, text.data(), length, mapped.data(), length);
  return mapped;
}

/// The text of bytes that are all valid in the code page; nothing if one of them is not.
std::optional<std::wstring> Decode(std::string_view bytes) {
  if (bytes.empty()) return std::wstring();
  const int size = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');  // no code page yields more characters than bytes
  const int length = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(), size);
  if (length == 0) return std::nullopt;
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace

std::wstring Language::Lower(std::wstring_view text) const { return Map(text, LCMAP_LOWERCASE, L'A', L'Z', 'a' - 'A'); }

std::wstring Language::Upper(std::wstring_view text) const { return Map(text, LCMAP_UPPERCASE, L'a', L'z', 'A' - 'a'); }

std::wstring Language::FromCodePage(std::string_view bytes) const {
  if (auto whole = Decode(bytes)) return *std::move(whole);
  // Some bytes are invalid. The rest is decoded character by character.
  CPINFO codePage = {};
  GetCPInfo(CP_ACP, &codePage);
  std::wstring text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t most = std::min<std::size_t>(std::max(1U, codePage.MaxCharSize), bytes.size());
    std::size_t taken = 1;
    std::wstring meant(1, Meaningless);
    for (std::size_t size = 1; size <= most; ++size) {
      if (auto character = Decode(bytes.substr(0, size))) {
        meant = *std::move(character);
        taken = size;
        break;
      }
    }
    text += meant;
    bytes.remove_prefix(taken);
  }
  return text;
}

std::optional<std::string> Language::ToCodePage(std::wstring_view text) const {
  if (text.empty()) return std::string();
  const int length = static_cast<int>(text.size());
  const bool unicode = GetACP() == CP_UTF8;
  // UTF-8 has every character except unpaired surrogates, and supports neither a substitute nor reporting its use.
  const DWORD flags = unicode ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  BOOL lost = FALSE;
  BOOL* const tellLoss = unicode ? nullptr : &lost;

  std::string bytes(text.size() * 3, '\0');  // no code page needs more than three bytes for 16 bits
  const int size = WideCharToMultiByte(CP_ACP, flags, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                                       nullptr, tellLoss);
  if (size == 0 || lost) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

}  // namespace vantor::win32
