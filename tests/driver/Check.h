#pragma once

// What doctest lacks for tests of windows.

#include <doctest/doctest.h>

#include "driver/Desktop.h"

/// Shows texts of Windows in failures.
template <>
struct doctest::StringMaker<std::wstring> {
  static String convert(const std::wstring& text) { return vantor::desktop::Narrow(text).c_str(); }
};

/// Checks that a value becomes the expected one in time. A failure shows the last value.
#define CHECK_BECOMES(value, expected)                                     \
  do {                                                                     \
    const auto awaited = (expected);                                       \
    (void)vantor::desktop::Eventually([&] { return (value) == awaited; }); \
    CHECK((value) == awaited);                                             \
  } while (false)

/// Ends a test that can't be run here, and reports that.
#define SKIP_UNLESS(condition, why)   \
  do {                                \
    if (!(condition)) {               \
      MESSAGE("skipped: needs " why); \
      return;                         \
    }                                 \
  } while (false)
