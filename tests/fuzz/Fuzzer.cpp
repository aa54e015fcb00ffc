// The entry points of libFuzzer. VANTOR_FUZZ names the target.

#include <cstdint>

#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const vantor::fuzz::Target& target = []() -> const vantor::fuzz::Target& {
    const char* const name = std::getenv("VANTOR_FUZZ");
    return vantor::fuzz::TargetOf(name != nullptr ? name : "");
  }();
  target.Run({data, size});
  return 0;
}
