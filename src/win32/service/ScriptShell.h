#pragma once

#include <string>
#include <string_view>

#include "service/ScriptShell.h"
#include "win32/base/Com.h"

namespace vantor::win32 {

/// Asks "WScript.Shell", created for each call, and Windows itself if that object lacks the call.
class ScriptShell final : public service::ScriptShell {
 public:
  explicit ScriptShell(Apartment& apartment) : apartment_(apartment) {}

  [[nodiscard]] bool Run(std::wstring_view target) override;
  [[nodiscard]] std::wstring ExpandVariables(std::wstring_view text) override;
  [[nodiscard]] bool Open(std::wstring_view target) override;
  [[nodiscard]] std::wstring SpecialFolder(std::wstring_view name) override;
  [[nodiscard]] std::wstring RegistryRead(std::wstring_view name) override;
  void RegistryWrite(std::wstring_view name, std::wstring_view value) override;
  void RegistryDelete(std::wstring_view name) override;
  [[nodiscard]] bool SaveShortcut(const service::Shortcut& shortcut) override;

 private:
  [[nodiscard]] LateBound Make();
  void SaveByObject(const service::Shortcut& shortcut);

  Apartment& apartment_;
};

}  // namespace vantor::win32
