#include "win32/draw/Prose.h"

#include <algorithm>

#include "win32/base/Handle.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

namespace {

constexpr std::wstring_view ColumnGap = L"   ";

int WidthOf(HDC dc, std::wstring_view text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

/// The start of the gap before the second column; the end of the line if it has none. Leading blanks do not count.
std::size_t GapOf(std::wstring_view line) {
  const std::size_t word = std::min(line.find_first_not_of(L' '), line.size());
  return std::min(line.find(ColumnGap, word), line.size());
}

/// Removes the first line from a text and returns it without trailing blanks.
std::wstring_view TakeLine(std::wstring_view& text) {
  const std::size_t end = std::min(text.find(L"\r\n"), text.size());
  const std::wstring_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 2, text.size()));
  return line.substr(0, line.find_last_not_of(L' ') + 1);
}

}  // namespace

Prose::Prose(std::wstring_view text, HFONT font, int width) : font_(font), lineHeight_(TextHeight(font)) {
  const MemoryDcHandle dc(CreateCompatibleDC(nullptr));
  const Selected selected(dc.Get(), font);
  for (std::wstring_view rest = text; !rest.empty();) {
    const std::wstring_view line = TakeLine(rest);
    const std::size_t gap = GapOf(line);
    if (gap < line.size()) column_ = std::max(column_, WidthOf(dc.Get(), line.substr(0, gap)));
  }
  column_ += WidthOf(dc.Get(), ColumnGap);
  do Break(dc.Get(), TakeLine(text), width);
  while (!text.empty());
}

void Prose::Break(HDC dc, std::wstring_view line, int width) {
  const std::size_t gap = GapOf(line);
  if (gap < line.size()) {
    Add(dc, line.substr(0, gap), 0);
    Add(dc, line.substr(line.find_first_not_of(L' ', gap)), column_);
    ++rows_;
    return;
  }
  do {
    int fit = 0;
    SIZE size{};
    GetTextExtentExPointW(dc, line.data(), static_cast<int>(line.size()), width, &fit, nullptr, &size);
    auto end = static_cast<std::size_t>(std::max(fit, 1));
    if (end < line.size()) {
      const std::size_t blank = line.rfind(L' ', end);
      if (blank != std::wstring_view::npos && blank > line.find_first_not_of(L' ')) end = blank;
    }
    Add(dc, line.substr(0, end), 0);
    line.remove_prefix(std::min(line.find_first_not_of(L' ', end), line.size()));
    ++rows_;
  } while (!line.empty());
}

void Prose::Add(HDC dc, std::wstring_view text, int left) {
  pieces_.push_back({text, left, rows_});
  width_ = std::max(width_, left + WidthOf(dc, text));
}

void Prose::Draw(HDC dc, POINT corner, int height, COLORREF color) const {
  const Selected selected(dc, font_);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, color);
  // Lines may be higher than on the screen that they were measured for.
  const int tooHigh = std::max(rows_ * lineHeight_ - height, 0);
  for (const Piece& piece : pieces_) {
    const int top = piece.Row * lineHeight_ - MulDiv(tooHigh, piece.Row, std::max(rows_ - 1, 1));
    DrawPlaced(dc, corner.x + piece.Left, corner.y + top, piece.Text);
  }
}

}  // namespace vantor::win32
