#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace vantor::win32 {

/// While one lives, the calling thread's file calls see what a 64-bit program's would. On a 64-bit Windows this program
/// is otherwise led to other files than it names: to SysWOW64 in the place of System32, and to the 32-bit twin of
/// regedit.exe. A library loaded meanwhile would be a 64-bit one, which fails. So it is held round one call, and what
/// that call loads is loaded before, by the bare names given here. On a 32-bit Windows it does nothing.
class TrueSystemFolder {
 public:
  explicit TrueSystemFolder(std::initializer_list<const wchar_t*> libraries = {});
  ~TrueSystemFolder();
  TrueSystemFolder(const TrueSystemFolder&) = delete;
  TrueSystemFolder& operator=(const TrueSystemFolder&) = delete;

 private:
  void* before_ = nullptr;
  bool switched_ = false;
};

/// Whether Windows is a 64-bit one.
[[nodiscard]] bool On64BitWindows();

/// Whether this is the path of a file or folder that this program would be led away from without the above.
[[nodiscard]] bool IsRedirected(std::wstring_view path);

/// A path as people and 64-bit programs know it. What a 32-bit program started by the name "Sysnative" lies in
/// System32.
[[nodiscard]] std::wstring KnownPath(std::wstring path);

/// The same for a shortcut's target as the shell reads it here. Where the shortcut says "the folder of the programs",
/// the shell takes that of the 32-bit ones: with nothing of that name in it, the other is meant.
[[nodiscard]] std::wstring KnownTarget(std::wstring path);

}  // namespace vantor::win32
