// Flows on the real program, with real keys and a real mouse. Needs nothing but Windows; what would change an
// installation that is not the test's own, or needs drives of certain kinds, is left to Wine.

#include "driver/Program.h"
#include "driver/Recorder.h"
#include "flows/World.h"

namespace vantor::flows {
namespace {

using namespace desktop;

/// The recorder, and a desktop that is ready for flows.
class Stage {
 public:
  Stage() {
    if (OwnDesktop()) Starts.ReplaceSystem();
    if (!UnderWine()) return;
    // Keeps the window manager of the X display away, which would take a drag for one of its own mouse.
    SetRegistryText(HKEY_CURRENT_USER, WineKey, L"Managed", L"N");
    Run("cmd /c wmic logicaldisk get size >nul");  // the first answer of Wine's management service takes up to 16 s
  }
  ~Stage() { RegDeleteKeyValueW(HKEY_CURRENT_USER, WineKey, L"Managed"); }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

 private:
  static constexpr wchar_t WineKey[] = L"Software\\Wine\\X11 Driver";

  Folder place_;

 public:
  Recorder Starts{place_};
};

/// While one lives, Windows' own folders are those that 64-bit programs see.
class TrueFolders {
 public:
  TrueFolders() : switched_(Wow64DisableWow64FsRedirection(&before_) != FALSE) {}
  ~TrueFolders() {
    if (switched_) Wow64RevertWow64FsRedirection(before_);
  }
  TrueFolders(const TrueFolders&) = delete;
  TrueFolders& operator=(const TrueFolders&) = delete;

 private:
  void* before_ = nullptr;
  bool switched_;
};

class RealWorld : public World {
 public:
  explicit RealWorld(const Recorder& recorder) : recorder_(recorder), before_(recorder_.Lines().size()) {
    folders_.push_back(std::make_unique<desktop::Folder>());
  }
  ~RealWorld() override {
    for (HWND window : {other_, front_}) DestroyWindow(window);
    // What a failed flow has left behind.
    if (GetAsyncKeyState(VK_LBUTTON) < 0) input::LetGo(mouse_);
    program_.reset();
    if (startsWithWindows_) {
      for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) RegDeleteKeyValueW(root, RunKey, RunValue);
    }
    std::error_code ignored;
    if (hasShortcut_) std::filesystem::remove(Wide(Shortcut()), ignored);
  }
  RealWorld(const RealWorld&) = delete;
  RealWorld& operator=(const RealWorld&) = delete;

  void Foresee(const Text& line) override {
    startsWithWindows_ = startsWithWindows_ || line.starts_with(L"see run value");
    hasShortcut_ = hasShortcut_ || line.find(L"Vantor.lnk") != line.npos;
    if (OwnDesktop()) return;
    if (line.starts_with(L"see run value") && RunsWithWindows()) {
      startsWithWindows_ = false;
      throw Skip("Vantor starts with this Windows already");
    }
    if (line.find(L"Vantor.lnk") != line.npos && Exists(Shortcut())) {
      hasShortcut_ = false;
      throw Skip("there is a shortcut already");
    }
    const Text step = line.starts_with(L"real: ") ? line.substr(6) : line;
    const Text mark = step.starts_with(L"see started ") ? L"see started " : L" > ";
    if (!step.starts_with(L"see started ") && !step.starts_with(L"starts ")) return;
    const Text what = step.substr(step.rfind(mark) + mark.size());
    if (!what.starts_with(L"run {f}") && !what.starts_with(L"open {f}")) throw Skip("starts what is not the test's");
  }
  [[nodiscard]] std::wstring_view Name() const override { return L"real"; }
  void NeedDrive(wchar_t letter, std::wstring_view type) override {
    const UINT wanted = type == L"floppy"    ? DRIVE_REMOVABLE
                        : type == L"network" ? DRIVE_REMOTE
                        : type == L"fixed"   ? DRIVE_FIXED
                                             : DRIVE_CDROM;
    const Text root{letter, L':', L'\\'};
    if (!OwnDesktop() || GetDriveTypeW(root.c_str()) != wanted) throw Skip("needs a drive of another kind");
    if (type == L"empty") return;
    std::error_code empty;  // is told as an error for a root
    for (const auto& entry : std::filesystem::directory_iterator(root, empty)) std::filesystem::remove_all(entry);
  }
  void SetHome(wchar_t letter) override {
    folders_.push_back(std::make_unique<desktop::Folder>(Narrow({letter, L':', L'\\'})));
  }
  [[nodiscard]] Text Place(const Text& word) override {
    if (word == L"f") return Wide(folders_.back()->Path());
    if (word == L"rest") return Wide(folders_.back()->Path()).substr(1);
    if (word == L"other") return OwnPath();
    if (word == L"w") return Wide(SystemFolder(CSIDL_WINDOWS)) + L'\\';
    if (word == L"Desktop") return Wide(SystemFolder(CSIDL_DESKTOPDIRECTORY));
    if (word == L"MyDocuments") return Wide(SystemFolder(CSIDL_PERSONAL));
    return word == L"SendTo" ? Wide(SystemFolder(CSIDL_SENDTO)) : Text();
  }

  [[nodiscard]] std::optional<std::string> InCodePage(const Text& text) override {
    std::string bytes(text.size() * 4, '\0');
    BOOL lost = FALSE;
    const bool utf8 = GetACP() == CP_UTF8;
    const int size =
        WideCharToMultiByte(CP_ACP, utf8 ? 0 : WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                            bytes.data(), static_cast<int>(bytes.size()), nullptr, utf8 ? nullptr : &lost);
    bytes.resize(static_cast<std::size_t>(size));
    return lost ? std::nullopt : std::optional(bytes);
  }

  void Write(const Text& path, const std::string& bytes) override {
    if (!OwnDesktop() && path.starts_with(Place(L"w"))) throw Skip("writes into the Windows folder");
    const TrueFolders trueFolders;
    const std::filesystem::path place = path;
    std::filesystem::create_directories(place.parent_path());
    std::ofstream(place, std::ios::binary) << bytes;
  }
  void MakeProgram(const Text& path) override { Write(path, BytesOf(Narrow(Beside(Wide(Recorder::ProgramName()))))); }
  void MakeFolder(const Text& path) override { std::filesystem::create_directories(path); }
  void Remove(const Text& path) override {
    // What was started has to end before its file can go.
    std::error_code error;
    Await("the file to go", [&] { return std::filesystem::remove(path, error), !error; });
  }
  [[nodiscard]] std::optional<std::string> Read(const Text& path) override {
    return Exists(Narrow(path)) ? std::optional(BytesOf(Narrow(path))) : std::nullopt;
  }

  void Start() override {
    program_.reset();
    program_ = std::make_unique<Program>(*folders_.back());
    Await("the program to have the input", [this] { return program_->Active() || !program_->Running(); });
    program_->AwaitHandled();
  }
  void Press(form::Key key) override { program_->Press(static_cast<WORD>(key)); }
  void PressControl(form::Key key) override {
    program_->Use([&] { input::PressControl(static_cast<WORD>(key)); });
  }
  void Type(const Text& text) override { program_->Type(text); }
  void Paste(const Text& text) override {
    program_->Use([&] { input::Paste(text); });
  }
  void Compose(bool begins, const Text& text) override {
    HWND const box = window::Focus(program_->Active());
    if (begins) SendMessageW(box, WM_IME_STARTCOMPOSITION, 0, 0);
    Type(text);
    if (!begins) SendMessageW(box, WM_IME_ENDCOMPOSITION, 0, 0);
  }
  void Click(const Text& control, const Text& entry, bool twice) override { program_->Click(control, entry, twice); }
  void Turn(const Text& control, int rows) override {
    program_->Use([&] {
      input::Mouse(window::Middle(program_->Control(control)));
      input::Wheel(rows);
    });
  }
  void Leave() override {
    ShowWindow(front_, SW_SHOW);
    input::Click(front_);
    Await("the other program to be in front", [this] { return GetForegroundWindow() == front_; });
  }
  void Hold(const Text& control) override {
    program_->AwaitInput();
    Await("the mark to go", [] { return FindWindowW(L"VantorMark", nullptr) == nullptr; });
    mouse_ = window::Middle(program_->Control(control));
    input::Hold(mouse_);
  }
  void MoveOver(const Text& window) override {
    ShowWindow(other_, window == L"other" ? SW_SHOWNOACTIVATE : SW_HIDE);
    mouse_ = window::Middle(window == L"other" ? other_ : program_->Control(window));
    input::Mouse({mouse_.x - 4, mouse_.y - 4});
    input::Mouse(mouse_);
    Await("the mark", [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; });
  }
  void Release() override {
    input::LetGo(mouse_);
    program_->AwaitHandled();
    ShowWindow(other_, SW_HIDE);
  }
  void Drag(int right, int down) override {
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
  void Restore() override {
    OpenIcon(Bar());
    SetForegroundWindow(Bar());
    program_->AwaitInput();
  }
  void Close() override { PostMessageW(Bar(), WM_CLOSE, 0, 0); }

  [[nodiscard]] Text See(std::wstring_view what, const Text& name) override {
    const auto yes = [](bool condition) { return Text(condition ? L"yes" : L"no"); };
    if (!program_) return yes(false);
    if (what == L"running") return yes(program_->Running());
    if (what == L"run value") return RunsWithWindows().value_or(L"");
    if (what == L"title") return Wide(window::Text(program_->Active()));
    if (what == L"focus") {
      HWND const focus = window::Focus(program_->Active());
      return GetWindowLongW(focus, GWL_ID) == win32::ControlId(name) ? name : Wide(window::ClassName(focus));
    }
    if (what == L"minimised") return yes(IsIconic(Bar()) != FALSE);
    if (what == L"on top")
      return yes(window::IsTopMost(name.empty() ? Bar() : GetAncestor(program_->Control(name), GA_ROOT)));
    if (what == L"place") {
      const RECT bar = window::Bounds(Bar());
      return std::to_wstring(bar.left) + L' ' + std::to_wstring(bar.top);
    }
    if (what == L"line") return Line(program_->Control(L"TextMain"));
    HWND const window = program_->Control(name);
    if (what == L"shown") return yes(window != nullptr);
    if (window == nullptr) return what == L"text" ? L"" : L"not shown";
    if (what == L"enabled") return yes(IsWindowEnabled(window) != FALSE);
    if (what == L"ticked") return yes(SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
    if (what == L"entries") return Joined(program_->ListOf(name).Entries());
    const bool list = name == L"ListMatches" || window::ClassName(window) == "ListBox";
    return list ? program_->ListOf(name).Selected() : Wide(window::Text(window));
  }
  [[nodiscard]] Texts Started() override {
    Texts started;
    const auto lines = recorder_.Lines();
    for (auto line = lines.begin() + static_cast<std::ptrdiff_t>(before_); line != lines.end(); ++line) {
      Text plain = Wide(*line);
      std::erase(plain, L'"');
      Text how = L"run ";
      for (const Text opened : {L"document ", L"http ", L"https ", L"mailto "}) {
        const std::size_t at = plain.find(L"\\recorder.exe " + opened);
        if (at == plain.npos) continue;
        how = L"open ";
        plain.erase(0, plain.find(L".exe ", at) + 5 + opened.size());
        break;
      }
      started.push_back(how + plain);
    }
    return started;
  }
  bool Becomes(const std::function<bool()>& condition) override { return Eventually(condition); }

 private:
  [[nodiscard]] HWND Bar() const { return program_->Bar(); }
  /// What Windows starts with itself, for all or for this user.
  static std::optional<Text> RunsWithWindows() {
    for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      const std::string value = RegistryText(root, RunKey, RunValue);
      if (value != "(none)") return Wide(value);
    }
    return {};
  }
  static std::string Shortcut() { return SystemFolder(CSIDL_DESKTOPDIRECTORY) + "\\Vantor.lnk"; }
  /// A window of another program, which is this one.
  static HWND MakeWindow(DWORD style, POINT at) {
    return CreateWindowExW(style, L"STATIC", L"", WS_POPUP | SS_NOTIFY, at.x, at.y, 100, 100, nullptr, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
  }
  static Text Line(HWND box) {
    Text text = Wide(window::Text(box));
    const auto selection = static_cast<DWORD>(SendMessageW(box, EM_GETSEL, 0, 0));
    const std::size_t begin = LOWORD(selection);
    const std::size_t end = HIWORD(selection);
    return begin < end && end <= text.size() ? text.insert(end, L"]").insert(begin, L"[") : text;
  }

  const Recorder& recorder_;
  std::size_t before_;  // what was recorded before this flow
  std::vector<std::unique_ptr<desktop::Folder>> folders_;
  std::unique_ptr<Program> program_;
  HWND other_ = MakeWindow(WS_EX_TOPMOST | WS_EX_NOACTIVATE, {700, 300});
  HWND front_ = MakeWindow(0, {700, 500});
  bool startsWithWindows_ = false;  // by a value that this flow makes
  bool hasShortcut_ = false;
  POINT mouse_{};
};

}  // namespace

std::unique_ptr<World> MakeWorld(Steps& /*steps*/) {
  static const Stage stage;
  return std::make_unique<RealWorld>(stage.Starts);
}

}  // namespace vantor::flows
