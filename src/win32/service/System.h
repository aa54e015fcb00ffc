#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "service/System.h"
#include "win32/base/Handle.h"

namespace vantor::win32 {

/// A program's file runs only once per user and session: the first copy holds a name by which the others recognise it.
class System final : public service::System {
 public:
  using TitleSetter = std::function<void(std::wstring_view)>;

  /// `program` distinguishes copies of this program from other programs and must not contain a backslash; `setTitle`
  /// sets the application window's title.
  System(std::wstring_view program, TitleSetter setTitle) : program_(program), setTitle_(std::move(setTitle)) {}
  ~System() override;
  System(const System&) = delete;
  System& operator=(const System&) = delete;

  [[nodiscard]] std::wstring WindowsDirectory() override;
  [[nodiscard]] std::wstring ProgramFolder() override;
  /// Whether some process holds the name. Once this returns false, this copy holds it.
  [[nodiscard]] bool PreviousInstance() override;
  void SetTitle(std::wstring_view title) override { setTitle_(title); }
  /// Waits up to 3 seconds for a copy that is still starting. Only windows count that have the program's mark and whose
  /// process runs the same file.
  [[nodiscard]] bool ActivateInstance(std::wstring_view title) override;

 private:
  std::wstring program_;
  TitleSetter setTitle_;
  KernelHandle mutex_;
  bool owned_ = false;
};

}  // namespace vantor::win32
