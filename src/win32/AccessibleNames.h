#pragma once

#include <windows.h>

#include <string>

namespace vantor::win32 {

/// Tells screen readers what a window without a caption of its own is called. "" leaves it to the system. Fails
/// silently where the system has no such service.
void NameForReaders(HWND window, const std::wstring& name);

}  // namespace vantor::win32
