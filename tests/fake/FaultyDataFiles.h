#pragma once

#include <algorithm>
#include <cstddef>

#include "FakeDataFiles.h"

namespace vantor::fake {

/// Data files whose medium fails at a given byte.
class FaultyDataFiles : public FakeDataFiles {
 public:
  enum class Fault {
    None,
    Killed,  // the program ends there: Killed is thrown, at every call from then on
    Pulled,  // the medium is gone from then on
    Full,    // files in one folder, and in the folders in it, hold so many bytes and no more
  };
  struct Killed {};

  FaultyDataFiles(FakeDisk& disk, std::wstring_view folder) : FakeDataFiles(disk), disk_(disk), folder_(folder) {}

  /// `bytes` is what can be written yet, every call counting as one byte more; on a full medium its size.
  void Set(Fault fault, std::size_t bytes) {
    fault_ = fault;
    left_ = bytes;
    used_ = 0;
  }
  /// What a run without a fault would have needed.
  [[nodiscard]] std::size_t Used() const { return used_; }
  [[nodiscard]] std::size_t Size() const { return SizeOf(folder_); }

  std::optional<std::string> Read(std::wstring_view path) override {
    if (Gone()) return std::nullopt;
    return FakeDataFiles::Read(path);
  }
  bool Write(std::wstring_view path, std::string_view bytes) override {
    if (fault_ == Fault::Full && Size() + bytes.size() > left_) return false;
    return Spend(bytes.size() + 1) > bytes.size() && FakeDataFiles::Write(path, bytes);
  }
  bool WriteInPlace(std::wstring_view path, std::string_view bytes) override {
    std::size_t room = bytes.size();
    if (fault_ == Fault::Full) {
      const auto* old = disk_.Find(path);
      const std::size_t others = Size() - (old ? old->Bytes.size() : 0);
      room = std::min(room, left_ - std::min(left_, others));
    } else if (fault_ != Fault::None) {
      const std::size_t left = left_;
      if (left == 0) Spend(1);
      if (left == 0) return false;
      room = std::min(room, left - 1);
    }
    const bool opened = FakeDataFiles::WriteInPlace(path, bytes.substr(0, room));
    Spend(bytes.size() + 1);
    return opened && room == bytes.size();
  }
  bool Remove(std::wstring_view path) override { return Spend(1) == 1 && FakeDataFiles::Remove(path); }
  bool MakeFolder(std::wstring_view path) override { return Spend(1) == 1 && FakeDataFiles::MakeFolder(path); }

 private:
  [[nodiscard]] bool Gone() const {
    if (left_ > 0) return false;
    if (fault_ == Fault::Killed) throw Killed();
    return fault_ == Fault::Pulled;
  }
  /// How much of it there is yet.
  std::size_t Spend(std::size_t bytes) {
    used_ += bytes;
    if (fault_ == Fault::None || fault_ == Fault::Full) return bytes;
    const std::size_t spent = std::min(bytes, left_);
    left_ -= spent;
    if (spent < bytes) static_cast<void>(Gone());
    return spent;
  }
  [[nodiscard]] std::size_t SizeOf(std::wstring_view folder) const {
    std::size_t size = 0;
    for (const auto* entry : disk_.In(folder)) size += entry->IsFolder ? SizeOf(entry->Path) : entry->Bytes.size();
    return size;
  }

  FakeDisk& disk_;
  std::wstring folder_;
  Fault fault_ = Fault::None;
  std::size_t left_ = 0;
  std::size_t used_ = 0;
};

}  // namespace vantor::fake
