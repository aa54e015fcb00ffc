// The time from the start of a process to its first paint and to the first key that its text box accepts, for the
// programs named on the command line, and the time that a second start of one of them takes.
//
//   StartTime.exe ROUNDS NAME=COMMAND…           median and fastest in milliseconds, also as multiples of those of the
//                                                first program, for paint and key; one line for each program
//   StartTime.exe ROUNDS --second NAME=COMMAND   the same for a second start, which brings the first copy to the front
//
// The exit code is 1 if a program showed no text box, or did not come to the front.

#include <cstdio>
#include <cstdlib>

#include "Starts.h"

namespace {

Contestant FromArgument(const std::wstring& argument) {
  const std::size_t equals = argument.find(L'=');
  return {argument.substr(0, equals), argument.substr(equals + 1)};
}

int SecondStarts(const Contestant& program, int rounds) {
  const StartedProcess first(program.Command);
  HDC const screen = GetDC(nullptr);
  const double begin = NowMs();
  while (!HasPainted(first.Id(), screen) && NowMs() - begin < PatienceMs) Sleep(0);
  ReleaseDC(nullptr, screen);
  HWND const bar = GetAncestor(EditOf(first.Id()), GA_ROOT);
  std::vector<double> times;
  for (int round = 0; round <= rounds; ++round) {
    // Another window is in front meanwhile.
    HWND const other = CreateWindowExW(0, L"STATIC", L"Other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 300, 300, 200, 100,
                                       nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(other);
    const double time = TimeSecondStart(program.Command, bar);
    DestroyWindow(other);
    if (time < 0) {
      std::fprintf(stderr, "%ls did not come forward\n", program.Name.c_str());
      return 1;
    }
    if (round > 0) times.push_back(time);
  }
  const Figures figures = FiguresOf(times);
  std::printf("%6.1f %6.1f                 %ls\n", figures.Median, figures.Quickest, program.Name.c_str());
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 3) return 2;
  const int rounds = std::max(_wtoi(argv[1]), 1);
  if (argc == 4 && std::wstring(argv[2]) == L"--second") return SecondStarts(FromArgument(argv[3]), rounds);
  std::vector<Contestant> contestants;
  for (int i = 2; i < argc; ++i) contestants.push_back(FromArgument(argv[i]));
  MeasureStarts(contestants, rounds);
  int status = 0;
  for (const Contestant& contestant : contestants) {
    if (contestant.Absent) {
      std::fprintf(stderr, "%ls showed no text box that took a key\n", contestant.Name.c_str());
      status = 1;
      continue;
    }
    std::fputs(LineOf(contestant, contestants.front()).c_str(), stdout);
  }
  return status;
}
