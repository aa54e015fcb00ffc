#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "driver/Program.h"
#include "driver/Recorder.h"
#include "flows/Words.h"

namespace vantor::flows {

namespace input = desktop::input;
namespace window = desktop::window;
using desktop::Await;

/// The real program, and a person with real keys and a real mouse. Needs nothing but Windows; what would change an
/// installation that is not the test's own, or needs drives of certain kinds, is left to Wine. NativeWorld.h says what
/// the functions are for.
class World {
 public:
  static constexpr std::wstring_view Name = L"real";

  World() = default;
  virtual ~World() {
    for (HWND window : {other_, front_}) DestroyWindow(window);
    // What a failed flow has left behind.
    if (GetAsyncKeyState(VK_LBUTTON) < 0) input::LetGo(mouse_);
    program_.reset();
    for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      if (runBefore_.empty()) RegDeleteKeyValueW(root, desktop::RunKey, desktop::RunValue);
    }
    std::error_code ignored;
    if (!shortcutBefore_) std::filesystem::remove(Shortcut(), ignored);
  }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  virtual void GoOnUntil(const std::function<bool()>& condition) = 0;
  void Foresee(const Text& step) {
    if (!runBefore_.empty() && step.starts_with(L"see run value"))
      throw Skip("Vantor starts with this Windows already");
    if (shortcutBefore_ && step.find(L"Vantor.lnk") != step.npos) throw Skip("there is a shortcut already");
    if (desktop::OwnDesktop()) return;
    for (const auto* start : {L"started run ", L"started open ", L" > run ", L" > open "}) {
      const Text what = Cut(step, start).second;
      if (!what.empty() && !what.starts_with(L"{f}")) throw Skip("starts what is not the test's");
    }
  }
  void NeedDrive(const Text& letter, const Text& type) {
    const auto wanted = static_cast<UINT>(DriveType(type) + 1);
    const Text root = letter + L":\\";
    if (!desktop::OwnDesktop() || GetDriveTypeW(root.c_str()) != wanted) throw Skip("needs a drive of another kind");
    std::error_code empty;  // is told as an error for a root
    for (const auto& entry : std::filesystem::directory_iterator(root, empty)) std::filesystem::remove_all(entry);
  }
  void SetHome(const Text& letter, const Text& type) {
    NeedDrive(letter, type);
    home_ = std::make_unique<desktop::Folder>(letter + L":\\");
  }
  [[nodiscard]] Text MeaningOf(const Text& word) const {
    if (word == L"f") return home_->Path;
    if (word == L"rest") return home_->Path.substr(1);
    if (word == L"other") return desktop::OwnPath();
    if (word == L"w") return desktop::SystemFolder(CSIDL_WINDOWS) + L'\\';
    if (word == L"Desktop") return desktop::SystemFolder(CSIDL_DESKTOPDIRECTORY);
    if (word == L"MyDocuments") return desktop::SystemFolder(CSIDL_PERSONAL);
    return word == L"SendTo" ? desktop::SystemFolder(CSIDL_SENDTO) : Text();
  }

  [[nodiscard]] static std::optional<std::string> InCodePage(const Text& text) {
    std::string bytes(text.size() * 4, '\0');
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(size));
    Text back = text;
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, back.data(), static_cast<int>(back.size()));
    return back == text ? std::optional(bytes) : std::nullopt;
  }
  void Write(const Text& path, const std::string& bytes) {
    MayChange(path);
    void* redirection = nullptr;
    const bool redirected = Wow64DisableWow64FsRedirection(&redirection) != FALSE;  // as 64-bit programs see folders
    const std::filesystem::path place = path;
    std::error_code ignored;  // by what can't be written then
    std::filesystem::create_directories(place.parent_path(), ignored);
    std::ofstream(place, std::ios::binary) << bytes;
    if (redirected) Wow64RevertWow64FsRedirection(redirection);
  }
  void MakeFile(const Text& path) { Write(path, ""); }
  void MakeProgram(const Text& path) {
    Write(path, desktop::BytesOf(desktop::Beside(desktop::Recorder::ProgramName())));
  }
  void MakeFolder(const Text& path) {
    MayChange(path);
    std::filesystem::create_directories(path);
  }
  void Remove(const Text& path) {
    MayChange(path);
    // What was started has to end before its file can go.
    std::error_code error;
    Await("the file to go", [&] { return std::filesystem::remove(path, error), !error; });
  }
  [[nodiscard]] std::string Read(const Text& path) { return desktop::BytesOf(path); }

  void Start() {
    program_.reset();
    program_ = std::make_unique<desktop::Program>(*home_);
    Await("the program to have the input", [this] { return program_->Active() || !program_->Running(); });
    program_->AwaitHandled();
  }
  void Press(form::Key key) { program_->Press(static_cast<WORD>(key)); }
  void PressControl(form::Key key) {
    program_->Use([&] { input::PressControl(static_cast<WORD>(key)); });
  }
  void Type(const Text& text) { program_->Type(text); }
  void Paste(const Text& text) {
    program_->Use([&] { input::Paste(text); });
  }
  void Compose(const Text& text) {
    SendMessageW(window::Focus(program_->Active()), WM_IME_STARTCOMPOSITION, 0, 0);
    Type(text);
  }
  void EndComposing(const Text& text) {
    HWND const box = window::Focus(program_->Active());
    Type(text);
    SendMessageW(box, WM_IME_ENDCOMPOSITION, 0, 0);
  }
  void Click(const Text& name, const Text& entry) { program_->Click(name, entry); }
  void DoubleClick(const Text& name, const Text& entry) { program_->Click(name, entry, true); }
  void Turn(const Text& name, int rows) {
    program_->Use([&] {
      input::Mouse(window::Middle(program_->Control(name)));
      input::Wheel(rows);
    });
  }
  void Leave() {
    ShowWindow(front_, SW_SHOW);
    input::Click(front_);
    Await("the other program to be in front", [this] { return GetForegroundWindow() == front_; });
  }
  void Hold(const Text& name) {
    program_->AwaitInput();
    Await("the mark to go", [] { return FindWindowW(L"VantorMark", nullptr) == nullptr; });
    mouse_ = window::Middle(program_->Control(name));
    input::Hold(mouse_);
  }
  void MoveOver(const Text& window) {
    ShowWindow(other_, window == L"other" ? SW_SHOWNOACTIVATE : SW_HIDE);
    mouse_ = window::Middle(window == L"other" ? other_ : program_->Control(window));
    input::Mouse({mouse_.x - 4, mouse_.y - 4});
    input::Mouse(mouse_);
    Await("the mark", [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; });
  }
  void Release() {
    input::LetGo(mouse_);
    program_->AwaitHandled();
    ShowWindow(other_, SW_HIDE);
  }
  void Drag(int right, int down) {
    program_->AwaitBar();
    const RECT exit = window::Bounds(program_->Control(L"CommandExit"));
    mouse_ = {exit.left - 2, (exit.top + exit.bottom) / 2};
    input::Hold(mouse_);
    mouse_.x += 4;  // the first move begins the drag, which goes by where the mouse is then
    input::Mouse(mouse_);
    Await("the bar to be dragged", [this] { return window::IsDragged(Bar()); });
    const RECT before = window::Bounds(Bar());
    mouse_ = {mouse_.x + right, mouse_.y + down};
    // Under Wine a mouse that is moved for a program may first be seen where it was.
    Await("the bar to follow the mouse", [&] {
      input::Mouse(mouse_);
      const RECT bar = window::Bounds(Bar());
      return !EqualRect(&bar, &before);
    });
    input::LetGo(mouse_);
    input::Mouse({mouse_.x, mouse_.y + 60});  // the hand goes on
  }
  void Restore() {
    OpenIcon(Bar());
    SetForegroundWindow(Bar());
    program_->AwaitInput();
  }
  void Close() { PostMessageW(Bar(), WM_CLOSE, 0, 0); }
  void Wait(int /*seconds*/) {}  // time passes by itself
  // Only in memory.
  void Drop(const Text& /*dropped*/) { OnlyInMemory(); }
  void Fail(const Text& /*call*/) { OnlyInMemory(); }
  void Throw(const Text& /*call*/) { OnlyInMemory(); }
  void SetScreen(const Text& /*size*/) { OnlyInMemory(); }

  [[nodiscard]] Text StatesOf(const Text& name) {
    HWND const window = name.empty() ? Bar() : program_->Control(name);
    Text states = program_->Running() ? L"," : L",end,";
    if (window == nullptr) return states + L"hidden,";
    states += IsWindowEnabled(window) ? L"shown,enabled," : L"shown,disabled,";
    states += window::IsTopMost(GetAncestor(window, GA_ROOT)) ? L"on top," : L"not on top,";
    states += SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED ? L"ticked," : L"cleared,";
    if (window::Focus(program_->Active()) == window) states += L"focus,";
    return IsIconic(window) ? states + L"minimised," : states;
  }
  [[nodiscard]] Text Title() { return window::Text(program_->Active()); }
  [[nodiscard]] Text Place() {
    const RECT bar = window::Bounds(Bar());
    return std::to_wstring(bar.left) + L' ' + std::to_wstring(bar.top);
  }
  [[nodiscard]] Text Line() {
    HWND const box = program_->Control(L"TextMain");
    Text text = window::Text(box);
    const auto selection = static_cast<DWORD>(SendMessageW(box, EM_GETSEL, 0, 0));
    const std::size_t begin = LOWORD(selection);
    const std::size_t end = HIWORD(selection);
    return begin < end && end <= text.size() ? text.insert(end, L"]").insert(begin, L"[") : text;
  }
  /// For all, or for this user.
  [[nodiscard]] Text RunValue() {
    for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      Text value = desktop::RegistryText(root, desktop::RunKey, desktop::RunValue);
      if (value != L"(none)") return value;
    }
    return {};
  }
  [[nodiscard]] Text EntriesOf(const Text& name) { return Joined(desktop::List(program_->Control(name)).Entries()); }
  [[nodiscard]] Text TextOf(const Text& name) {
    HWND const window = program_->Control(name);
    const bool list = name == L"ListMatches" || window::ClassName(window) == L"ListBox";
    return list ? desktop::List(window).Selected() : window::Text(window);
  }
  /// The first call makes the desktop ready.
  [[nodiscard]] static Texts Started() {
    static const desktop::Recorder recorder;
    return recorder.Starts();
  }
  static bool Becomes(const std::function<bool()>& condition) { return desktop::Eventually(condition); }

 private:
  [[nodiscard]] HWND Bar() const { return program_->Bar(); }
  /// On a user's own Windows nothing is changed but the test's folder, and a shortcut that was not there.
  void MayChange(const Text& path) const {
    if (!desktop::OwnDesktop() && !path.starts_with(home_->Path + L'\\') && path != Shortcut())
      throw Skip("changes what is not the test's");
  }
  [[noreturn]] static void OnlyInMemory() { throw Failure("only in memory"); }
  static Text Shortcut() { return desktop::SystemFolder(CSIDL_DESKTOPDIRECTORY) + L"\\Vantor.lnk"; }

  std::unique_ptr<desktop::Folder> home_ = std::make_unique<desktop::Folder>();
  std::unique_ptr<desktop::Program> program_;
  HWND other_ = window::Make(WS_EX_TOPMOST | WS_EX_NOACTIVATE, {700, 300}, {100, 100});
  HWND front_ = window::Make(0, {700, 500}, {100, 100});
  Text runBefore_ = RunValue();
  bool shortcutBefore_ = std::filesystem::exists(Shortcut());
  POINT mouse_{};
};

}  // namespace vantor::flows
