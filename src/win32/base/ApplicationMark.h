#pragma once

namespace vantor::win32 {

/// The class that the run time of such programs gives its hidden application window; other copies look for it.
inline constexpr wchar_t ApplicationClass[] = L"ThunderRT6Main";
/// The property by which this program's is told from any other program's of that class.
inline constexpr wchar_t ApplicationMark[] = L"Orbel.Vantor.Application";

}  // namespace vantor::win32
