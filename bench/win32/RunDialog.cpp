// The system's own Run dialog, in a host of a few lines: what a user of Windows would open instead of the bar.

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  // RunFileDlg has no name in shell32, only this number.
  constexpr WORD RunFileDialog = 61;
  using Open = void(WINAPI*)(HWND owner, HICON icon, const wchar_t* folder, const wchar_t* title, const wchar_t* text,
                             UINT flags);
  HMODULE const shell = LoadLibraryW(L"shell32.dll");
  const auto open =
      shell == nullptr
          ? nullptr
          : reinterpret_cast<Open>(reinterpret_cast<void*>(GetProcAddress(shell, MAKEINTRESOURCEA(RunFileDialog))));
  if (open == nullptr) return 1;
  open(nullptr, nullptr, nullptr, nullptr, nullptr, 0);
  return 0;
}
