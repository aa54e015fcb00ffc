#pragma once

#include <doctest/doctest.h>
#include <windows.h>

#include <stdexcept>
#include <string>

namespace vantor::desktop {

/// Asks until the condition holds. False when it does not within the time.
template <class Condition>
bool Eventually(Condition condition, DWORD milliseconds = 20000) {
  const ULONGLONG limit = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() >= limit) return false;
    // A window of the test's own has to answer meanwhile.
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
    Sleep(5);
  }
  return true;
}

/// Waits for what the rest of a test stands on; ends the test when it does not come.
template <class Condition>
void Await(const std::string& what, Condition condition) {
  if (!Eventually(condition)) throw std::runtime_error("waited in vain for " + what);
}

}  // namespace vantor::desktop

/// The value becomes the expected one within the limit. A failure shows what it was instead.
#define CHECK_BECOMES(value, expected)                                     \
  do {                                                                     \
    const auto& awaited = (expected);                                      \
    (void)vantor::desktop::Eventually([&] { return (value) == awaited; }); \
    CHECK((value) == awaited);                                             \
  } while (false)
