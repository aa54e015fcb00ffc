// The time from the key to the response of the list panel, for the programs named on the command line.
//
//   PanelTime.exe ROUNDS PROGRAM…
//
// Prints the time of the first opening, which creates the windows, and the median of the others in milliseconds, one
// line for each program. An opening ends when the panel is visible, painted and responding. The exit code is 1 if that
// does not happen.

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "RunningBar.h"

namespace {

struct Windows {
  DWORD Process;
  HWND Bar;
  HWND Panel;
};

BOOL CALLBACK FindPanel(HWND window, LPARAM parameter) {
  auto& windows = *reinterpret_cast<Windows*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  RECT place;
  const bool other = process == windows.Process && window != windows.Bar && IsWindowVisible(window);
  if (!other || !GetWindowRect(window, &place) || IsRectEmpty(&place)) return TRUE;
  windows.Panel = window;
  return FALSE;
}

HWND PanelOf(DWORD process, HWND bar) {
  Windows windows{process, bar, nullptr};
  EnumWindows(FindPanel, reinterpret_cast<LPARAM>(&windows));
  return windows.Panel;
}

/// Presses F4 on the bar. Returns the milliseconds until the panel has appeared or disappeared; below 0 if it did not.
double TimeKey(DWORD process, HWND edit, bool opens) {
  HWND const bar = GetAncestor(edit, GA_ROOT);
  const double begin = NowMs();
  PostMessageW(edit, WM_KEYDOWN, VK_F4, 1);
  PostMessageW(edit, WM_KEYUP, VK_F4, static_cast<LPARAM>(0xC0000001));
  while (NowMs() - begin < PatienceMs) {
    HWND const panel = PanelOf(process, bar);
    if ((panel != nullptr) == opens) {
      if (opens) RedrawWindow(panel, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
      SendMessageW(bar, WM_NULL, 0, 0);
      return NowMs() - begin;
    }
    Sleep(0);
  }
  return -1;
}

/// The times of all openings; none if the bar or a panel did not appear.
std::vector<double> TimeOpenings(const wchar_t* program, int rounds) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process;
  if (!CreateProcessW(program, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) return {};
  HDC const screen = GetDC(nullptr);
  const double begin = NowMs();
  bool painted = false;
  while (!painted && NowMs() - begin < PatienceMs) painted = HasPainted(process.dwProcessId, screen);
  ReleaseDC(nullptr, screen);
  std::vector<double> times;
  HWND const edit = EditOf(process.dwProcessId);
  for (int round = 0; painted && round <= rounds; ++round) {
    times.push_back(TimeKey(process.dwProcessId, edit, true));
    if (times.back() < 0 || TimeKey(process.dwProcessId, edit, false) < 0) {
      times.clear();
      break;
    }
  }
  TerminateProcess(process.hProcess, 0);
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return times;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 3) return 2;
  for (int program = 2; program < argc; ++program) {
    std::vector<double> times = TimeOpenings(argv[program], std::max(_wtoi(argv[1]), 1));
    if (times.empty()) {
      std::fprintf(stderr, "%ls has opened no panel\n", argv[program]);
      return 1;
    }
    std::sort(times.begin() + 1, times.end());
    std::printf("%6.1f %6.1f %ls\n", times.front(), times[1 + (times.size() - 1) / 2], argv[program]);
  }
  return 0;
}
