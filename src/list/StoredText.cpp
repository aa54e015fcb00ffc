#include "list/StoredText.h"

namespace vantor::list {
namespace {

std::wstring WithoutQuotes(std::wstring_view text, std::wstring_view substitute) {
  std::wstring result(text);
  for (auto at = result.find(L'"'); at != std::wstring::npos; at = result.find(L'"', at + substitute.size())) {
    result.replace(at, 1, substitute);
  }
  return result;
}

}  // namespace

std::wstring StoredName(std::wstring_view name) { return WithoutQuotes(name, L"'"); }

std::wstring StoredTarget(LaunchGroup group, std::wstring_view target) {
  return WithoutQuotes(target, group == LaunchGroup::Web ? L"%22" : L"'");
}

}  // namespace vantor::list
