#pragma once

#include <windows.h>

namespace vantor::win32 {

/// Converts wheel messages to rows to scroll by, according to the user's settings. Fractions of a row, which
/// high-resolution wheels send, are added up to whole rows.
class Wheel {
 public:
  /// Positive is down. `page` is the number of rows for users who have chosen to scroll by pages.
  [[nodiscard]] int Rows(WPARAM turned, int page) {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int perNotch = lines == WHEEL_PAGESCROLL ? page : static_cast<int>(lines);
    turned_ -= static_cast<short>(HIWORD(turned)) * perNotch;
    const int rows = turned_ / WHEEL_DELTA;
    turned_ -= rows * WHEEL_DELTA;
    return rows;
  }

 private:
  int turned_ = 0;
};

}  // namespace vantor::win32
