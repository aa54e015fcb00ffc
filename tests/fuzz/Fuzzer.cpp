// The entry point of libFuzzer, and of what runs the same without it.

#include <cstdint>

#include "fuzz/Wanderer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vantor::fuzz::Choices choices({data, size});
  vantor::fuzz::Wanderer(choices).Run();
  return 0;
}
