#include "text/Path.h"

namespace vantor::text {

std::wstring_view DriveName(std::wstring_view path) {
  if (path.size() >= 2 && path[1] == L':') return path.substr(0, 2);
  if (!path.starts_with(L"\\\\")) return {};
  const std::size_t share = path.find(L'\\', 2);
  if (share == path.npos) return {};
  return path.substr(0, path.find(L'\\', share + 1));
}

bool LeadsElsewhere(std::wstring_view path) {
  const auto isSlash = [](wchar_t c) { return c == L'\\' || c == L'/'; };
  return (path.size() >= 2 && isSlash(path[0]) && isSlash(path[1])) || path.starts_with(L"\\??\\");
}

std::wstring_view WithoutLiteralMark(std::wstring_view path) {
  constexpr std::wstring_view Mark = L"\\\\?\\";
  const bool lettered = path.starts_with(Mark) && path.substr(Mark.size()).find(L":\\") == 1;
  return path.substr(lettered ? Mark.size() : 0);
}

}  // namespace vantor::text
