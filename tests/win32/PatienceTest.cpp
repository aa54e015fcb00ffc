#include <doctest/doctest.h>
#include <windows.h>

#include <memory>

#include "win32/Handle.h"
#include "win32/Patience.h"

using namespace vantor::win32;

TEST_CASE("work that ends is waited for, work that does not for five seconds at most") {
  bool done = false;
  CHECK(EndsInTime([&] { done = true; }));
  CHECK(done);

  // As with a service that never answers: the work goes on behind, and comes to its end later.
  const auto answer = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const auto ended = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const DWORD begin = GetTickCount();
  CHECK_FALSE(EndsInTime([answer, ended] {
    WaitForSingleObject(answer->Get(), INFINITE);
    SetEvent(ended->Get());
  }));
  CHECK(GetTickCount() - begin >= 4900);
  SetEvent(answer->Get());
  CHECK(WaitForSingleObject(ended->Get(), 20000) == WAIT_OBJECT_0);
}
