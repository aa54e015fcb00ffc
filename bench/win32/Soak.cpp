// Long use: checks whether the system resources that the program holds level off. Run by tools/soak.
//
//   Soak.exe PERCENT [KIND]
//
// Performs this percentage of the long run, or of one kind of use (commands, matches, panels, messages, drags), with
// the Vantor.exe next to it. Prints what was held before and after each kind of use, one line each. The exit code is 1
// if it did not level off, or the program did not do what it should.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "driver/Program.h"

namespace vantor::desktop {
namespace {

/// The resources that a process holds. Wine does not count USER objects (0); its windows are counted instead.
struct Usage {
  DWORD Gdi = 0;
  DWORD User = 0;
  DWORD Handles = 0;
  int Windows = 0;
  long PrivateKilobytes = 0;  // under Wine only: pages of its own that it has written to
};

/// The number of a process's handles, from the system's own list.
DWORD HandlesOf(DWORD process) {
  struct Entry {
    ULONG Owner;
    UCHAR Type, Flags;
    USHORT Value;
    void* Object;
    ULONG Access;
  };
  using Query = LONG(NTAPI*)(int what, void* to, ULONG size, ULONG* needed);
  constexpr int AllHandles = 16;
  const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
  constexpr ULONG Room = 1 << 20;
  std::vector<ULONG> list(Room);
  if (query(AllHandles, list.data(), Room * sizeof(ULONG), nullptr) != 0) return 0;
  const auto* const first = reinterpret_cast<const Entry*>(list.data() + 1);
  return static_cast<DWORD>(
      std::count_if(first, first + list[0], [process](const Entry& entry) { return entry.Owner == process; }));
}

/// The GDI objects under Wine, from its own table, to which the process's environment block points. Regions are not
/// counted: Wine keeps one each time any program shows a window with round corners.
DWORD GdiObjectsUnderWine(HANDLE process) {
  struct Basic {
    void* Status;
    const char* Environment;
    void* Rest[4];
  } basic = {};
  struct Entry {
    ULONGLONG Object;
    ULONG Owner;
    USHORT Unique;
    UCHAR Type, Flags;
    ULONGLONG Pointer;
  };
  using Query = LONG(NTAPI*)(HANDLE of, int what, void* to, ULONG size, ULONG* needed);
  constexpr std::size_t TableAt = 0x94;  // in the block of a 32-bit process
  constexpr UCHAR Region = 4;
  const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess")));
  const void* table = nullptr;
  std::vector<Entry> entries(0x4000);
  if (query(process, 0, &basic, sizeof basic, nullptr) != 0 ||
      !ReadProcessMemory(process, basic.Environment + TableAt, &table, sizeof table, nullptr) ||
      !ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr)) {
    return 0;
  }
  return static_cast<DWORD>(std::count_if(entries.begin(), entries.end(),
                                          [](const Entry& entry) { return entry.Type != 0 && entry.Type != Region; }));
}

BOOL CALLBACK Count(HWND /*window*/, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

long PrivateKilobytes() {
  for (const auto& entry : std::filesystem::directory_iterator("Z:\\proc")) {
    std::string name;
    std::ifstream(entry.path() / "comm") >> name;
    if (!name.starts_with("Vantor.exe")) continue;
    std::ifstream rollup(entry.path() / "smaps_rollup");
    for (std::string word; rollup >> word;) {
      long kilobytes = 0;
      if (word == "Private_Dirty:" && rollup >> kilobytes) return kilobytes;
    }
  }
  return 0;
}

/// Input that is posted to the program's windows, as fast as they handle it.
struct Soak {
  Folder Place;
  Program Running;
  HWND Bar;

  Soak() : Running((Prepare(Place), Place)), Bar(Running.AwaitBar()) {}

  static void Prepare(const Folder& folder) {
    folder.WriteSettings({.WebUpper = 1});
    folder.WriteData(L"ListWeb", ListBytes({{L"One", L"http://one"}, {L"Two", L"http://two"}}));
    folder.CopyProgram(L"recorder.exe", L"recorder.exe");
  }
  void Key(HWND window, WPARAM key) const {
    PostMessageW(window, WM_KEYDOWN, key, 1);
    PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  }
  void Type(const std::wstring& line) const {
    Key(Running.Control(L"TextMain"), VK_F12);
    Await("an empty line", [&] { return Running.Line().empty(); });
    for (const wchar_t c : line) PostMessageW(Running.Control(L"TextMain"), WM_CHAR, c, 1);
  }
  void Enter(const std::wstring& line) const { Type(line + L'\r'); }
  /// The program's window that has the keyboard; null if none has it.
  [[nodiscard]] HWND Focused() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(Bar, nullptr), &info);
    return info.hwndFocus;
  }
  [[nodiscard]] DWORD ProcessId() const { return window::ProcessOf(Bar); }
  void DismissMessages() const {
    while (HWND message = Running.Message()) {
      PostMessageW(message, WM_CLOSE, 0, 0);
      Await("the message to close", [&] { return !IsWindowVisible(message); });
    }
  }
  [[nodiscard]] Usage Now() const {
    Usage usage;
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, ProcessId());
    usage.Gdi = UnderWine() ? GdiObjectsUnderWine(process) : GetGuiResources(process, GR_GDIOBJECTS);
    usage.User = GetGuiResources(process, GR_USEROBJECTS);
    usage.Handles = HandlesOf(ProcessId());
    CloseHandle(process);
    for (HWND window = FindWindowExW(nullptr, nullptr, nullptr, nullptr); window != nullptr;
         window = GetWindow(window, GW_HWNDNEXT)) {
      if (window::ProcessOf(window) != ProcessId()) continue;
      ++usage.Windows;
      EnumChildWindows(window, Count, reinterpret_cast<LPARAM>(&usage.Windows));
    }
    if (UnderWine()) usage.PrivateKilobytes = PrivateKilobytes();
    return usage;
  }

  void Command(int number) const {
    if (number % 20 == 0) {
      Enter(L"p=" + Place / L"recorder.exe");
      Await("the program to start", [&] { return Running.Line().empty(); });
    } else {
      // Enter on a word that is completed but starts nothing, and on a name that is not listed.
      const std::wstring line = number % 2 == 0 ? L"c.fonts" : L"w-nosuch";
      Enter(line);
      Await("the line", [&] { return Running.Line() == line; });
    }
  }
  /// Shows the matching names and moves through them; the next line hides them.
  void Match(int /*number*/) const {
    Type(L"w-o");
    Await("the list", [&] { return Running.Control(L"ListMatches") != nullptr; });
    Key(Running.Control(L"TextMain"), VK_DOWN);
    Await("the second name", [&] { return Running.Line() == L"w-Two"; });
  }
  void Panel(int number) const {
    constexpr WPARAM keys[] = {VK_F2, VK_F3, VK_F4, VK_F6, VK_F7, VK_F8};
    const WPARAM key = keys[static_cast<std::size_t>(number) % std::size(keys)];
    // Both keys go to a window known to be there: the keyboard may be with none while the window manager moves it.
    HWND focused = Running.Control(L"TextMain");
    for (const bool open : {true, false}) {
      Key(focused, key);
      Await("the panel", [&] {
        focused = Focused();
        const HWND front = GetAncestor(focused, GA_ROOT);
        return front != nullptr && (front != Bar) == open && IsWindowVisible(front);
      });
    }
  }
  void Message(int /*number*/) const {
    Enter(L"p=nosuchprogram");
    Await("the message", [&] { return Running.Message() != nullptr; });
    DismissMessages();
  }
  /// The finder is dragged to the bar itself.
  void Find(int /*number*/) const {
    const POINT bar = window::Middle(Bar);
    SetCursorPos(bar.x, bar.y);
    const auto marked = [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; };
    PostMessageW(FinderButton(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    Await("the mark", marked);
    PostMessageW(FinderButton(), WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    Await("the mark to go", [&] { return !marked(); });
    if (Running.Message() != nullptr) throw std::runtime_error("the finder found nothing");
  }
  [[nodiscard]] HWND FinderButton() const { return Running.Control(L"CommandFindPath"); }
};

/// Performs each kind of use, or only the named one. Returns whether what is held has levelled off.
bool Measure(int hundredths, std::wstring_view only) {
  bool level = true;
  const Soak soak;
  using Act = void (Soak::*)(int) const;
  const struct {
    const wchar_t* Name;
    Act Do;
    int Count;  // of the long run
  } kinds[] = {{L"commands", &Soak::Command, 10'000},
               {L"matches", &Soak::Match, 5'000},
               {L"panels", &Soak::Panel, 6'000},
               {L"messages", &Soak::Message, 1'000},
               {L"drags", &Soak::Find, 500}};
  for (const auto& kind : kinds) {
    if (!only.empty() && only != kind.Name) continue;
    const bool finder = kind.Do == &Soak::Find;
    if (finder) {
      soak.Key(soak.Running.Control(L"TextMain"), VK_F2);
      Await("the add box", [&] { return soak.FinderButton() != nullptr; });
    }
    const int count = kind.Count * hundredths / 100;
    // What is created once at the first use is created before.
    const int warmUp = std::max(count / 10, 12);
    for (int i = 0; i < warmUp; ++i) (soak.*kind.Do)(i);
    const Usage before = soak.Now();
    for (int i = 0; i < count; ++i) (soak.*kind.Do)(i);
    const Usage after = soak.Now();
    std::printf(
        "%d %ls: GDI %lu to %lu, USER %lu to %lu, handles %lu to %lu, windows %d to %d, private %ld to %ld KB\n", count,
        kind.Name, before.Gdi, after.Gdi, before.User, after.User, before.Handles, after.Handles, before.Windows,
        after.Windows, before.PrivateKilobytes, after.PrivateKilobytes);
    std::fflush(stdout);
    // Wine's management service keeps a handle and more and more memory each time any program asks it.
    const int asked = finder && UnderWine() ? count : 0;
    // Some come and go with what Windows does in the meantime.
    level = level && after.Gdi <= before.Gdi + 10 && after.User <= before.User + 10 &&
            after.Handles <= before.Handles + 10 + static_cast<DWORD>(asked) && after.Windows <= before.Windows + 4 &&
            (asked > 0 || after.PrivateKilobytes <= before.PrivateKilobytes + 2048);
  }
  return level;
}

}  // namespace
}  // namespace vantor::desktop

int wmain(int count, wchar_t** arguments) {
  try {
    const int percent = count > 1 ? _wtoi(arguments[1]) : 100;
    const bool level = vantor::desktop::Measure(percent, count > 2 ? arguments[2] : L"");
    if (!level) std::puts("what is held did not level off");
    return level ? 0 : 1;
  } catch (const std::exception& error) {
    std::puts(error.what());
    return 1;
  }
}
