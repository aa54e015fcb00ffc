#pragma once

#include <windows.h>

namespace vantor::win32 {

/// While one lives, windows of the system's classes are made in the looks of the user's theme: by version 6 of the
/// common controls. The bar itself has no use for it and draws its own edges, so the library is loaded with the first
/// panel that has a list, or the first tool tip, instead of with the program. Where it is missing, the plain make of
/// the same windows takes its place.
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
