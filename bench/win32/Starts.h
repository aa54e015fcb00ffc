#pragma once

// Measures programs from the start of their process to the first paint of their text box, to the first key that it
// accepts, and to the end of a second copy that only brings the first one to the front. Programs are started in turns,
// so that other load on the machine affects all of them equally.

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "RunningBar.h"

/// A process that ends with this object.
class StartedProcess {
 public:
  explicit StartedProcess(std::wstring command) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    started_ = CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                              &process_) != FALSE;
  }
  ~StartedProcess() {
    if (!started_) return;
    TerminateProcess(process_.hProcess, 0);
    WaitForSingleObject(process_.hProcess, INFINITE);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  StartedProcess(const StartedProcess&) = delete;
  StartedProcess& operator=(const StartedProcess&) = delete;

  [[nodiscard]] bool Started() const { return started_; }
  [[nodiscard]] DWORD Id() const { return process_.dwProcessId; }
  [[nodiscard]] HANDLE Handle() const { return process_.hProcess; }

 private:
  PROCESS_INFORMATION process_{};
  bool started_ = false;
};

/// Milliseconds from the start of a command to the first paint of its text box; below 0 if it has none.
inline double TimeToPaint(const std::wstring& command) {
  HDC const screen = GetDC(nullptr);
  const double begin = NowMs();
  const StartedProcess process(command);
  double time = -1;
  while (process.Started() && time < 0 && NowMs() - begin < PatienceMs) {
    if (HasPainted(process.Id(), screen)) time = NowMs() - begin;
    Sleep(0);
  }
  ReleaseDC(nullptr, screen);
  return time;
}

/// Milliseconds from the start of a command until its text box has accepted a key; below 0 if it accepts none.
inline double TimeToKey(const std::wstring& command) {
  const double begin = NowMs();
  const StartedProcess process(command);
  HWND edit = nullptr;
  while (process.Started() && edit == nullptr && NowMs() - begin < PatienceMs) {
    edit = EditOf(process.Id());
    Sleep(0);
  }
  // The text is compared with its current state, so that only the key can add this letter to its end.
  constexpr wchar_t Letter = L'~';
  if (edit == nullptr || !PostMessageW(edit, WM_CHAR, Letter, 1)) return -1;
  while (NowMs() - begin < PatienceMs) {
    wchar_t text[64] = L"";
    DWORD_PTR length = 0;
    SendMessageTimeoutW(edit, WM_GETTEXT, 64, reinterpret_cast<LPARAM>(text), SMTO_NORMAL, 1000, &length);
    if (std::wstring(text).find(Letter) != std::wstring::npos) return NowMs() - begin;
  }
  return -1;
}

/// Milliseconds from the start of a second copy until the bar of the first one is in front; below 0 if that does not
/// happen, or the second copy does not end.
inline double TimeSecondStart(const std::wstring& command, HWND bar) {
  const double begin = NowMs();
  const StartedProcess second(command);
  while (GetForegroundWindow() != bar) {
    if (!second.Started() || NowMs() - begin > PatienceMs) return -1;
    Sleep(0);
  }
  const double time = NowMs() - begin;
  return WaitForSingleObject(second.Handle(), static_cast<DWORD>(PatienceMs)) == WAIT_OBJECT_0 ? time : -1;
}

/// The median and the fastest of several measurements, in milliseconds.
struct Figures {
  double Median = -1;
  double Quickest = -1;
};

/// Below 0 if there are no measurements.
inline Figures FiguresOf(std::vector<double> times) {
  if (times.empty()) return {};
  std::sort(times.begin(), times.end());
  return {times[times.size() / 2], times.front()};
}

/// A program to be measured. If it shows no text box, it is left out of all further rounds.
struct Contestant {
  std::wstring Name;
  std::wstring Command;
  bool Absent = false;
  std::vector<double> Paints{};
  std::vector<double> Keys{};
};

/// After one round to warm up, starts each program `rounds` times for its paint and as often for its key.
inline void MeasureStarts(std::vector<Contestant>& contestants, int rounds) {
  for (int round = 0; round <= rounds; ++round) {
    for (Contestant& contestant : contestants) {
      if (contestant.Absent) continue;
      const double paint = TimeToPaint(contestant.Command);
      const double key = paint < 0 ? -1 : TimeToKey(contestant.Command);
      contestant.Absent = key < 0;
      if (round == 0 || contestant.Absent) continue;
      contestant.Paints.push_back(paint);
      contestant.Keys.push_back(key);
    }
  }
}

/// One line: median and fastest, also as multiples of those of `first`, for paint and key.
inline std::string LineOf(const Contestant& contestant, const Contestant& first) {
  const Figures paint = FiguresOf(contestant.Paints);
  const Figures key = FiguresOf(contestant.Keys);
  const Figures firstPaint = FiguresOf(first.Paints);
  const Figures firstKey = FiguresOf(first.Keys);
  char line[160];
  std::snprintf(line, sizeof line, "%6.1f %6.1f %5.2f %5.2f   %6.1f %6.1f %5.2f %5.2f   %ls\n", paint.Median,
                paint.Quickest, paint.Median / firstPaint.Median, paint.Quickest / firstPaint.Quickest, key.Median,
                key.Quickest, key.Median / firstKey.Median, key.Quickest / firstKey.Quickest, contestant.Name.c_str());
  return line;
}
