// flows FILE...: plays flows, and tells those that failed. README.md says what they are.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "flows/Player.h"

int main(int count, char** arguments) {
  using vantor::flows::Result;
  int played = 0;
  int failed = 0;
  for (int i = 1; i < count; ++i) {
    const std::filesystem::path path = arguments[i];
    std::ifstream file(path, std::ios::binary);
    const std::string script(std::istreambuf_iterator<char>(file), {});
    if (!file) std::fprintf(stderr, "%s can't be read\n", arguments[i]);
    const Result result = file ? vantor::flows::Play(path.filename().string(), script) : Result::Failed;
    played += result != Result::Skipped ? 1 : 0;
    failed += result == Result::Failed ? 1 : 0;
  }
  std::fprintf(stderr, "%d flows, %d failed\n", played, failed);
  return failed == 0 && played > 0 ? 0 : 1;
}
