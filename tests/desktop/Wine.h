#pragma once

#include <windows.h>

namespace vantor::desktop {

/// Whether this runs under Wine, in an installation that is the test's alone: its system files may be replaced.
inline bool UnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

}  // namespace vantor::desktop

/// Ends a test that can't be shown here, and says so.
#define SKIP_UNLESS(condition, why)   \
  do {                                \
    if (!(condition)) {               \
      MESSAGE("skipped: needs " why); \
      return;                         \
    }                                 \
  } while (false)
