#pragma once

namespace vantor::win32 {

/// The class of the hidden application window, by which other copies of the program find it.
inline constexpr wchar_t ApplicationClass[] = L"ThunderRT6Main";
/// The window property that distinguishes this program's window from others of that class.
inline constexpr wchar_t ApplicationMark[] = L"Orbel.Vantor.Application";

}  // namespace vantor::win32
