#pragma once

#include <windows.h>

namespace vantor::win32 {

/// While one of these exists, windows of the system's classes are created in the user's theme, by version 6 of the
/// common controls. The bar does not need it, because it draws its own edges; so the library is loaded with the first
/// panel that has a list, or the first tool tip, instead of with the program. If it is missing, the windows look plain.
class CommonControls {
 public:
  CommonControls();
  CommonControls(const CommonControls&) = delete;
  CommonControls& operator=(const CommonControls&) = delete;
  ~CommonControls();

 private:
  ULONG_PTR cookie_ = 0;
};

}  // namespace vantor::win32
