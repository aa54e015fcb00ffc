// flows FILE...: plays flows in memory and reports those that failed. README.md describes them.

#include <cstdio>

#include "flows/Player.h"

int main(int count, char** arguments) {
  if (count < 2) {
    std::fputs("usage: flows FILE...\n", stderr);
    return 2;
  }
  const auto tell = [](const std::string& line) { std::fprintf(stderr, "%s\n", line.c_str()); };
  return vantor::flows::PlayAll({arguments + 1, arguments + count}, tell) ? 0 : 1;
}
