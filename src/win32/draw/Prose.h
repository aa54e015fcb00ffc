#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace vantor::win32 {

/// A text set in lines. They are broken where it says; between words, or within one, where they are too long; and three
/// blanks or more within a line stand for the way to a second column, which all such lines share.
class Prose {
 public:
  /// Sets the text, which outlives this, to a width in pixels in a font.
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
