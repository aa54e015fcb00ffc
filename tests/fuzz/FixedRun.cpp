// fixed_fuzz TARGET FOLDER RUNS: all inputs of the folder, and then so many that are made from them, the same ones each
// time. For compilers without libFuzzer, and for a test that must give the same result today and tomorrow.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "fuzz/Targets.h"

namespace {

/// A byte is put in, taken out or changed, or the rest becomes that of another input.
void Change(std::string& input, const std::string& other, std::mt19937& numbers) {
  const std::size_t at = numbers() % (input.size() + 1);
  if (numbers() % 4 == 0)
    input.replace(at, input.npos, other, numbers() % (other.size() + 1));
  else
    input.replace(at, numbers() % 2, numbers() % 2, static_cast<char>(numbers()));
}

void Run(const vantor::fuzz::Target& target, const std::string& input) {
  const std::vector<unsigned char> bytes(input.begin(), input.end());
  target.Run(bytes);
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) return 2;
  const vantor::fuzz::Target& target = vantor::fuzz::TargetOf(arguments[1]);
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[2])) paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> seeds{""};
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    std::fprintf(stderr, "%s\n", path.filename().c_str());
    Run(target, seeds.back());
  }
  std::mt19937 numbers(20);
  // What fails can be looked at again: the file goes into the folder of the seeds.
  const std::string kept = std::string(arguments[1]) + ".input";
  for (int run = std::atoi(arguments[3]); run > 0; --run) {
    std::string input = seeds[numbers() % seeds.size()];
    for (std::size_t changes = 1 + numbers() % 8; changes > 0; --changes)
      Change(input, seeds[numbers() % seeds.size()], numbers);
    std::ofstream(kept, std::ios::binary) << input;
    Run(target, input);
  }
  std::filesystem::remove(kept);
  return 0;
}
