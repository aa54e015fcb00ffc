// fixed_fuzz FOLDER RUNS: all inputs of the folder, and then so many that are made from them, the same ones each
// time. For compilers without libFuzzer, and for a test that must give the same result today and tomorrow.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

static void Run(const std::string& input) {
  // What fails can be looked at again: the file goes into the folder of the seeds.
  std::ofstream("walk.input", std::ios::binary) << input;
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  std::filesystem::remove("walk.input");
}

int main(int count, char** arguments) {
  if (count != 3) return 2;
  std::vector<std::filesystem::path> paths(std::filesystem::directory_iterator(arguments[1]), {});
  std::ranges::sort(paths);
  std::vector<std::string> seeds;
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    Run(seeds.back());
  }
  std::mt19937 numbers(20);
  for (int run = std::atoi(arguments[2]); run > 0; --run) {
    // Parts of some inputs, each after bytes that are in none.
    std::string input;
    for (std::size_t parts = 1 + numbers() % 4; parts > 0; --parts) {
      const std::string& seed = seeds[numbers() % seeds.size()];
      for (std::size_t bytes = numbers() % 4; bytes > 0; --bytes) input += static_cast<char>(numbers());
      input += seed.substr(numbers() % (seed.size() + 1), numbers() % 256);
    }
    Run(input);
  }
  return 0;
}
