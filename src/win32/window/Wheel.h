#pragma once

#include <windows.h>

namespace vantor::win32 {

/// Turns the wheel's messages into rows to scroll by, as the user has set. Fine wheels turn by parts of a row, which
/// are kept until they are a whole one.
class Wheel {
 public:
  /// Down is positive. `page` is the number of rows that the user may have set instead.
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
