// Time from the start of a process to the first paint of its text box, for the programs named on the command line,
// in turns, so that whatever else the machine does falls on all of them alike.
//
//   StartTime.exe ROUNDS PROGRAM…
//
// Prints the median and the quickest of the rounds in milliseconds, a line a program. The first round warms up and
// does not count. A program that shows no light-blue text box within 30 seconds ends the run with exit code 1.

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "RunningBar.h"

namespace {

/// Milliseconds to the first paint; below 0 when there was none.
double TimeStart(const wchar_t* program) {
  HDC const screen = GetDC(nullptr);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process;
  const double begin = NowMs();
  if (!CreateProcessW(program, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) return -1;
  double time = -1;
  while (NowMs() - begin < PatienceMs) {
    if (HasPainted(process.dwProcessId, screen)) {
      time = NowMs() - begin;
      break;
    }
    Sleep(0);
  }
  TerminateProcess(process.hProcess, 0);
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  ReleaseDC(nullptr, screen);
  return time;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 3) return 2;
  const int rounds = std::max(_wtoi(argv[1]), 1);
  std::vector<std::vector<double>> times(static_cast<std::size_t>(argc));
  for (int round = 0; round <= rounds; ++round) {
    for (int program = 2; program < argc; ++program) {
      const double time = TimeStart(argv[program]);
      if (time < 0) {
        std::fprintf(stderr, "%ls has painted no text box\n", argv[program]);
        return 1;
      }
      if (round > 0) times[static_cast<std::size_t>(program)].push_back(time);
    }
  }
  for (int program = 2; program < argc; ++program) {
    std::vector<double>& own = times[static_cast<std::size_t>(program)];
    std::sort(own.begin(), own.end());
    std::printf("%6.1f %6.1f %ls\n", own[own.size() / 2], own.front(), argv[program]);
  }
  return 0;
}
