#include "desktop/Input.h"

#include <stdexcept>
#include <vector>

#include "desktop/Text.h"
#include "desktop/Wine.h"

namespace vantor::desktop::input {
namespace {

INPUT Key(WORD key, WORD scan, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = scan;
  input.ki.dwFlags = flags;
  return input;
}

void AddStroke(std::vector<INPUT>& inputs, WORD key) {
  const auto scan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  inputs.push_back(Key(key, scan, 0));
  inputs.push_back(Key(key, scan, KEYEVENTF_KEYUP));
}

void Send(std::vector<INPUT> inputs) { SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)); }

void Mouse(POINT at, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  // Whole pixels, each aimed at its middle.
  input.mi.dx = (at.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
  input.mi.dy = (at.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof(INPUT));
}

/// Under Wine the window manager of the X display moves windows, and looks at the display's own mouse only: this drag
/// is the display's. It first moves a little, until the window is seen to follow, and then all the way.
constexpr char DragScript[] = R"script(
xdotool mousemove $1 $2
eval $(xdotool getmouselocation --shell)
eval $(xdotool getwindowgeometry --shell $WINDOW)
left=$X top=$Y step=8
xdotool mousedown 1
while [ $X.$Y = $left.$top -a $SECONDS -lt 10 ]; do
  step=$((17 - step))
  xdotool mousemove $(($1 + step)) $2
  eval $(xdotool getwindowgeometry --shell $WINDOW)
done
xdotool mousemove $(($3 + step - X + left)) $(($4 - Y + top))
xdotool mouseup 1)script";

void DragOnDisplay(POINT from, POINT to) {
  std::string commandLine = std::string(R"(Z:\bin\bash -c ")") + DragScript + "\" drag";
  for (const LONG number : {from.x, from.y, to.x, to.y}) commandLine += ' ' + std::to_string(number);
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessA("Z:\\bin\\bash", commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process)) {
    throw std::runtime_error("no xdotool to drag with");
  }
  WaitForSingleObject(process.hProcess, 20000);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

}  // namespace

void Type(const std::string& text) {
  std::vector<INPUT> inputs;
  for (const wchar_t character : Wide(text)) {
    const SHORT key = VkKeyScanW(character);
    const int modifiers = key >> 8;
    if (key == -1 || modifiers > 1) {
      inputs.push_back(Key(0, character, KEYEVENTF_UNICODE));
      inputs.push_back(Key(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
      continue;
    }
    if (modifiers == 1) inputs.push_back(Key(VK_SHIFT, 0, 0));
    AddStroke(inputs, static_cast<WORD>(key & 0xFF));
    if (modifiers == 1) inputs.push_back(Key(VK_SHIFT, 0, KEYEVENTF_KEYUP));
  }
  Send(std::move(inputs));
}

void Press(WORD key) {
  std::vector<INPUT> inputs;
  AddStroke(inputs, key);
  Send(std::move(inputs));
}

void Click(POINT at) {
  Mouse(at, 0);
  Mouse(at, MOUSEEVENTF_LEFTDOWN);
  Mouse(at, MOUSEEVENTF_LEFTUP);
}

void DoubleClick(POINT at) {
  Click(at);
  Click(at);
}

void Hold(POINT at) {
  Mouse(at, 0);
  Mouse(at, MOUSEEVENTF_LEFTDOWN);
}

void Move(POINT to) { Mouse(to, 0); }

void LetGo(POINT at) { Mouse(at, MOUSEEVENTF_LEFTUP); }

void Drag(POINT from, POINT to) {
  if (UnderWine()) {
    DragOnDisplay(from, to);
    return;
  }
  Mouse(from, 0);
  Mouse(from, MOUSEEVENTF_LEFTDOWN);
  constexpr int Steps = 8;
  for (int step = 1; step <= Steps; ++step) {
    Mouse({from.x + (to.x - from.x) * step / Steps, from.y + (to.y - from.y) * step / Steps}, 0);
  }
  Mouse(to, MOUSEEVENTF_LEFTUP);
}

}  // namespace vantor::desktop::input
