#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace vantor::win32 {

/// A text laid out in lines. Lines that are too long wrap between words, or within a word. Three or more blanks within
/// a line separate two columns, the second of which is aligned in all such lines.
class Prose {
 public:
  /// Lays the text out for a width in pixels in a font. The text must outlive this object.
  Prose(std::wstring_view text, HFONT font, int width);

  /// Pixels.
  [[nodiscard]] SIZE Size() const { return {width_, rows_ * lineHeight_}; }
  /// Draws it from a corner, without a ground. In a height that is less than its own the lines come nearer to each
  /// other.
  void Draw(HDC dc, POINT corner, int height, COLORREF color) const;

 private:
  struct Piece {
    std::wstring_view Text;
    int Left = 0;
    int Row = 0;
  };

  void Break(HDC dc, std::wstring_view line, int width);
  void Add(HDC dc, std::wstring_view text, int left);

  HFONT font_;
  std::vector<Piece> pieces_;
  int column_ = 0;
  int width_ = 0;
  int rows_ = 0;
  int lineHeight_;
};

}  // namespace vantor::win32
