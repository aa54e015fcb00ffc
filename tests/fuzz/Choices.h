#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>

namespace vantor::fuzz {

using Bytes = std::span<const unsigned char>;

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
