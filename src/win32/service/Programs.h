#pragma once

#include <string_view>

#include "service/Programs.h"
#include "win32/base/Com.h"

namespace vantor::win32 {

class Programs final : public service::Programs {
 public:
  explicit Programs(Apartment& apartment) : apartment_(apartment) {}

  [[nodiscard]] bool StartCommandLine(std::wstring_view commandLine) override;
  [[nodiscard]] int ShellOpen(std::wstring_view file) override;
  [[nodiscard]] int RequestMakeCall(std::wstring_view number, std::wstring_view applicationName) override;

 private:
  Apartment& apartment_;  // the shell's extensions are COM objects
};

}  // namespace vantor::win32
