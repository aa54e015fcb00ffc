// What functions built with -fstack-protector ask for. The compiler's own library would fetch the guard from the
// system's cryptography: libraries and milliseconds at every start.

#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C" {

std::uintptr_t __stack_chk_guard = 0xBB40E64E;  // for what runs before the guard is drawn

[[noreturn]] void __stack_chk_fail();
}

/// The stack has been overwritten, so nothing of this program may run any more: Windows ends it at once.
void __stack_chk_fail() {
  constexpr int StackCookieCheckFailure = 2;  // FAST_FAIL_STACK_COOKIE_CHECK_FAILURE
  asm volatile("int $0x29" : : "c"(StackCookieCheckFailure));
  __builtin_unreachable();
}

namespace {

/// Draws the guard, before any other constructor: of what nobody outside foresees together, the time in its finest
/// measure and where Windows has put stack and program.
[[gnu::constructor(101), gnu::used]] void DrawGuard() {
  LARGE_INTEGER counter = {};
  QueryPerformanceCounter(&counter);
  FILETIME now = {};
  GetSystemTimeAsFileTime(&now);
  constexpr std::uint32_t Spread = 0x9E3779B1;  // a prime that carries every bit upwards
  std::uint32_t guard = 0;
  for (const DWORD part :
       {static_cast<DWORD>(counter.QuadPart), static_cast<DWORD>(counter.QuadPart >> 32), now.dwLowDateTime,
        GetCurrentProcessId(), GetCurrentThreadId(), static_cast<DWORD>(reinterpret_cast<std::uintptr_t>(&counter)),
        static_cast<DWORD>(reinterpret_cast<std::uintptr_t>(&__stack_chk_guard))}) {
    guard = (guard ^ static_cast<std::uint32_t>(part)) * Spread;
    guard ^= guard >> 15;
  }
  // A text that runs over its end can't write the zero.
  __stack_chk_guard = guard & 0xFFFFFF00;
}

}  // namespace
