// What functions compiled with -fstack-protector need. The compiler's own library would get the guard from the system's
// cryptography, which costs libraries and milliseconds at every start.

#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C" {

std::uintptr_t __stack_chk_guard = 0xBB40E64E;  // for code that runs before the guard is set

[[noreturn]] void __stack_chk_fail();
}

/// The stack has been overwritten, so no more code of this program may run: Windows ends it at once.
void __stack_chk_fail() {
  constexpr int StackCookieCheckFailure = 2;  // FAST_FAIL_STACK_COOKIE_CHECK_FAILURE
  asm volatile("int $0x29" : : "c"(StackCookieCheckFailure));
  __builtin_unreachable();
}

namespace {

/// Sets the guard before any other constructor runs, to a value that can't be predicted from outside: a mixture of the
/// time at the finest resolution and the addresses of the stack and the program.
[[gnu::constructor(101), gnu::used]] void DrawGuard() {
  LARGE_INTEGER counter = {};
  QueryPerformanceCounter(&counter);
  FILETIME now = {};
  GetSystemTimeAsFileTime(&now);
  constexpr std::uint32_t Spread = 0x9E3779B1;  // a prime that spreads every bit upwards
  std::uint32_t guard = 0;
  for (const DWORD part :
       {static_cast<DWORD>(counter.QuadPart), static_cast<DWORD>(counter.QuadPart >> 32), now.dwLowDateTime,
        GetCurrentProcessId(), GetCurrentThreadId(), static_cast<DWORD>(reinterpret_cast<std::uintptr_t>(&counter)),
        static_cast<DWORD>(reinterpret_cast<std::uintptr_t>(&__stack_chk_guard))}) {
    guard = (guard ^ static_cast<std::uint32_t>(part)) * Spread;
    guard ^= guard >> 15;
  }
  // A text that overflows its buffer can't write the zero byte.
  __stack_chk_guard = guard & 0xFFFFFF00;
}

}  // namespace
