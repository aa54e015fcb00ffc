#include "text/DirectionMarks.h"

#include <algorithm>

namespace vantor::text {

std::wstring WithSignsForMarks(std::wstring_view text) {
  constexpr wchar_t Sign = 0xFFFD;  // the replacement character
  std::wstring shown(text);
  std::replace_if(shown.begin(), shown.end(), IsDirectionMark, Sign);
  return shown;
}

}  // namespace vantor::text
