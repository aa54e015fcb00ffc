#include "text/Path.h"

namespace vantor::text {

std::wstring_view DriveName(std::wstring_view path) {
  if (path.size() >= 2 && path[1] == L':') return path.substr(0, 2);
  if (!path.starts_with(L"\\\\")) return {};
  const std::size_t share = path.find(L'\\', 2);
  if (share == path.npos) return {};
  return path.substr(0, path.find(L'\\', share + 1));
}

}  // namespace vantor::text
