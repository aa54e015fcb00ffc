#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

namespace vantor::fuzz {

using Bytes = std::span<const unsigned char>;

/// The functions that the fuzzers run: each takes any bytes, and aborts if the program does what it must never do.
struct Target {
  std::string_view Name;
  void (*Run)(Bytes bytes);
};

/// Data files are loaded and saved.
void FuzzFiles(Bytes bytes);
/// The program is used.
void FuzzWalk(Bytes bytes);

inline constexpr Target Targets[] = {{"files", FuzzFiles}, {"walk", FuzzWalk}};

inline const Target& TargetOf(std::string_view name) {
  for (const Target& target : Targets) {
    if (target.Name == name) return target;
  }
  std::fprintf(stderr, "targets: files, walk\n");
  std::exit(2);
}

/// A finding.
inline void Require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

/// The bytes as decisions, one after another; zeros when there are no more.
class Choices {
 public:
  explicit Choices(Bytes bytes) : bytes_(bytes) {}

  [[nodiscard]] bool Left() const { return !bytes_.empty(); }
  unsigned Byte() {
    if (bytes_.empty()) return 0;
    const unsigned byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }
  /// 0 to count - 1.
  std::size_t Below(std::size_t count) {
    const std::size_t number = count > 256 ? Byte() * 256 + Byte() : Byte();
    return count > 0 ? number % count : 0;
  }
  /// The next bytes, at most so many.
  std::string Take(std::size_t most = std::string::npos) {
    const Bytes taken = bytes_.first(std::min(most, bytes_.size()));
    bytes_ = bytes_.subspan(taken.size());
    return {taken.begin(), taken.end()};
  }

 private:
  Bytes bytes_;
};

}  // namespace vantor::fuzz
