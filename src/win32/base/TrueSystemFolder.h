#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace vantor::win32 {

/// While one of these exists, file calls of its thread see the same files as a 64-bit program. Otherwise a 64-bit
/// Windows redirects this program: to SysWOW64 instead of System32, and to the 32-bit version of regedit.exe. A library
/// loaded meanwhile would be a 64-bit one, which fails. So it is kept only during a single call, and the libraries that
/// the call loads are loaded before; their names are given here. On a 32-bit Windows it does nothing.
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

/// Whether this is the path of a file or folder for which this program would be redirected without the above.
[[nodiscard]] bool IsRedirected(std::wstring_view path);

/// A path as people and 64-bit programs know it. What 32-bit programs start by the name "Sysnative" is in System32.
[[nodiscard]] std::wstring KnownPath(std::wstring path);

/// The same for a shortcut's target as the shell reports it here. If the shortcut refers to the folder of programs, the
/// shell takes that of 32-bit programs; if there is no such file in it, the other folder is meant.
[[nodiscard]] std::wstring KnownTarget(std::wstring path);

}  // namespace vantor::win32
