#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "service/System.h"
#include "win32/service/Instance.h"

namespace vantor::win32 {

class System final : public service::System {
 public:
  using TitleSetter = std::function<void(std::wstring_view)>;

  /// `program` distinguishes copies of this program from other programs; `setTitle` sets the application window's
  /// title.
  System(std::wstring_view program, TitleSetter setTitle) : instance_(program), setTitle_(std::move(setTitle)) {}

  [[nodiscard]] std::wstring WindowsDirectory() override;
  [[nodiscard]] std::wstring ProgramFolder() override;
  [[nodiscard]] bool PreviousInstance() override { return instance_.OtherRuns(); }
  void SetTitle(std::wstring_view title) override { setTitle_(title); }
  /// Waits up to 3 seconds for a copy that is still starting.
  [[nodiscard]] bool ActivateInstance(std::wstring_view title) override;

 private:
  Instance instance_;
  TitleSetter setTitle_;
};

}  // namespace vantor::win32
