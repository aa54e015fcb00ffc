#include "desktop/Program.h"

#include "desktop/Input.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

bool IsMessage(HWND window) {
  const std::string caption = window::Text(window);
  return caption == "myMessage" || caption.starts_with("Message For - ");
}

}  // namespace

Program::Program(const Folder& folder) : Program(folder.Path("Vantor.exe")) {}

Program::Program(const std::string& path) {
  std::wstring commandLine = Wide('"' + path + '"');
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      Wide(path.substr(0, path.rfind('\\'))).c_str(), &startup, &process_)) {
    throw std::runtime_error("Vantor.exe does not start");
  }
}

Program::Program(DWORD process) {
  process_.dwProcessId = process;
  process_.hProcess = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process);
  if (process_.hProcess == nullptr) throw std::runtime_error("no such program runs");
}

Program::~Program() {
  if (Running()) {
    TerminateProcess(process_.hProcess, 99);
    WaitForSingleObject(process_.hProcess, 5000);
  }
  if (process_.hThread != nullptr) CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

HWND Program::Bar() const {
  for (HWND window : window::OfProcess(process_.dwProcessId)) {
    if (window::Control(window, "BUTTON", "Exit")) return window;
  }
  return nullptr;
}

HWND Program::Message() const {
  for (HWND window : window::OfProcess(process_.dwProcessId)) {
    if (IsMessage(window)) return window;
  }
  return nullptr;
}

HWND Program::AwaitBar() {
  Await("the bar to have the input", [this] { return window::HasInput(Bar()); });
  return Bar();
}

HWND Program::AwaitMessage() {
  Await("a message to have the input", [this] { return window::HasInput(Message()); });
  return Message();
}

HWND Program::TextMain() const {
  const auto edits = window::OfClass(Bar(), "Edit");
  return edits.empty() ? nullptr : edits.front();  // those of the unfolded box stand to its right
}

std::string Program::Line() const { return window::Text(TextMain()); }

std::string Program::LineWithSelection() const {
  std::wstring text = Wide(Line());
  const auto selection = static_cast<DWORD>(SendMessageW(TextMain(), EM_GETSEL, 0, 0));
  const std::size_t begin = LOWORD(selection);
  const std::size_t end = HIWORD(selection);
  if (begin < end && end <= text.size()) text.insert(end, L"]").insert(begin, L"[");
  return Narrow(text);
}

void Program::TypeLine(const std::string& line) {
  input::Press(VK_F12);
  Await("an empty line", [this] { return Line().empty(); });
  input::Type(line);
  // A proposal may make it longer, and change its case.
  Await("the line " + line, [this, typed = Wide(line)] {
    const std::wstring shown = Wide(Line()).substr(0, typed.size());
    const int length = static_cast<int>(typed.size());
    return shown.size() == typed.size() &&
           CompareStringOrdinal(shown.data(), length, typed.data(), length, TRUE) == CSTR_EQUAL;
  });
}

HWND Program::Button(const std::string& name) const { return window::Control(Bar(), "BUTTON", name); }

std::string Program::MessageText() const {
  std::string texts;
  if (HWND message = Message()) {
    for (HWND control : window::Controls(message)) texts += window::Text(control) + '\n';
  }
  return texts;
}

void Program::ExpectMessage(const std::string& text) {
  AwaitMessage();
  CHECK(('\n' + MessageText()).find('\n' + text + '\n') != std::string::npos);
  AnswerMessage();
}

void Program::AnswerMessage(const std::string& word) {
  HWND message = AwaitMessage();
  HWND button = window::Control(message, "BUTTON", word);
  if (!button) throw std::runtime_error("no button " + word + " in: " + MessageText());
  input::Click(window::Middle(button));
  Await("the message to close", [message] { return !IsWindowVisible(message); });
}

bool Program::Running() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

DWORD Program::AwaitEnd() {
  Await("the program to end", [this] { return !Running(); });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

void Program::Exit() {
  AwaitBar();
  input::Press(VK_F10);
  if (AwaitEnd() != 0) throw std::runtime_error("the program failed at its end");
}

}  // namespace vantor::desktop
