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

namespace {

/// A byte is put in, taken out or changed, or the rest becomes that of another input.
void Change(std::string& input, const std::string& other, std::mt19937& numbers) {
  const std::size_t at = numbers() % (input.size() + 1);
  if (numbers() % 4 == 0)
    input.replace(at, input.npos, other, numbers() % (other.size() + 1));
  else
    input.replace(at, numbers() % 2, numbers() % 2, static_cast<char>(numbers()));
}

void Run(const std::string& input) {
  const std::vector<std::uint8_t> bytes(input.begin(), input.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return 2;
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> seeds{""};
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    std::fprintf(stderr, "%s\n", path.filename().c_str());
    Run(seeds.back());
  }
  std::mt19937 numbers(20);
  // What fails can be looked at again: the file goes into the folder of the seeds.
  const char* const kept = "walk.input";
  for (int run = std::atoi(arguments[2]); run > 0; --run) {
    std::string input = seeds[numbers() % seeds.size()];
    for (std::size_t changes = 1 + numbers() % 8; changes > 0; --changes)
      Change(input, seeds[numbers() % seeds.size()], numbers);
    std::ofstream(kept, std::ios::binary) << input;
    Run(input);
  }
  std::filesystem::remove(kept);
  return 0;
}
