#pragma once

#include <string_view>

#include "service/Services.h"
#include "win32/base/Com.h"
#include "win32/service/DataFiles.h"
#include "win32/service/FileSystem.h"
#include "win32/service/Language.h"
#include "win32/service/Management.h"
#include "win32/service/Processes.h"
#include "win32/service/Programs.h"
#include "win32/service/ScriptShell.h"
#include "win32/service/System.h"
#include "win32/service/WindowPicker.h"

namespace vantor::win32 {

/// The Windows side of all services. COM is entered when a service first needs it.
class WindowsServices {
 public:
  WindowsServices(std::wstring_view program, System::TitleSetter setTitle)
      : fileSystem_(apartment_),
        programs_(apartment_),
        scriptShell_(apartment_),
        system_(program, std::move(setTitle)) {}

  [[nodiscard]] service::Services All() {
    return {dataFiles_,   fileSystem_, language_,  management_,  programs_,
            scriptShell_, system_,     processes_, windowPicker_};
  }

 private:
  Apartment apartment_;  // first, so that it is left last
  DataFiles dataFiles_;
  FileSystem fileSystem_;
  Language language_;
  Management management_;
  Programs programs_;
  ScriptShell scriptShell_;
  System system_;
  Processes processes_;
  WindowPicker windowPicker_;
};

}  // namespace vantor::win32
