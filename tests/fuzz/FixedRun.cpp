// fixed_fuzz TARGET FOLDER RUNS: all inputs of the folder, and then so many that are made from them, the same ones each
// time. For compilers without libFuzzer, and for a test that must give the same result today and tomorrow.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz/Targets.h"

namespace {

using Input = std::vector<unsigned char>;

/// Numbers that are the same everywhere.
class Dice {
 public:
  std::size_t Below(std::size_t count) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::size_t>(state_ >> 33) % count;
  }

 private:
  unsigned long long state_ = 20;
};

void Change(Input& input, const Input& other, Dice& dice) {
  const std::size_t at = dice.Below(input.size() + 1);
  switch (dice.Below(4)) {
    case 0:
      input.insert(input.begin() + static_cast<std::ptrdiff_t>(at), static_cast<unsigned char>(dice.Below(256)));
      break;
    case 1:
      input.resize(at);
      input.insert(input.end(), other.begin() + static_cast<std::ptrdiff_t>(dice.Below(other.size() + 1)), other.end());
      break;
    case 2:
      if (at < input.size()) input.erase(input.begin() + static_cast<std::ptrdiff_t>(at));
      break;
    default:
      if (at < input.size()) input[at] = static_cast<unsigned char>(dice.Below(256));
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) return 2;
  const vantor::fuzz::Target& target = vantor::fuzz::TargetOf(arguments[1]);
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[2])) paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<Input> seeds{{}};
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    std::fprintf(stderr, "%s\n", path.filename().c_str());
    target.Run(seeds.back());
  }
  Dice dice;
  const int runs = std::atoi(arguments[3]);
  for (int run = 0; run < runs; ++run) {
    Input input = seeds[dice.Below(seeds.size())];
    for (std::size_t changes = 1 + dice.Below(8); changes > 0; --changes)
      Change(input, seeds[dice.Below(seeds.size())], dice);
    // What fails can be looked at again: the file goes into the folder of the seeds.
    std::ofstream(std::string(arguments[1]) + ".input", std::ios::binary)
        .write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
    target.Run(input);
  }
  std::filesystem::remove(std::string(arguments[1]) + ".input");
  std::printf("%zu inputs kept, %d made from them\n", paths.size(), runs);
  return 0;
}
