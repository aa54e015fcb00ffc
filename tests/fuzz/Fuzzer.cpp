// The entry point of libFuzzer, and of what runs the same without it.

#include <cstdint>

#include "fuzz/Wanderer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vantor::fuzz::Wanderer({reinterpret_cast<const char*>(data), size}).Run();
  return 0;
}
