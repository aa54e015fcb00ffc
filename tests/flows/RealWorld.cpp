// Flows on the real program, with real keys and a real mouse. Needs nothing but Windows; what would change an
// installation that is not the test's own, or needs drives of certain kinds, is left to Wine.

#include <windows.h>
// These need the one before them.
#include <oleacc.h>
#include <shlobj.h>

#include "desktop/System.h"
#include "flows/World.h"
#include "win32/window/ControlId.h"

namespace vantor::flows {
namespace {

using namespace desktop;

std::wstring OwnPath() {
  wchar_t own[MAX_PATH];
  return {own, GetModuleFileNameW(nullptr, own, MAX_PATH)};
}

const char* SystemRecorderName() { return UnderWine() && On64Bit() ? "\\recorder64.exe" : "\\recorder.exe"; }

/// Wine only: keeps the window manager of the X display away, which would take a drag for one of its own mouse.
void LeaveWindowsToWine() {
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Wine\\X11 Driver", L"Managed", REG_SZ, L"N", 2 * sizeof(wchar_t));
}

/// The recorder, in the place of all that flows start.
Recorder& SystemRecorder() {
  static const desktop::Folder folder;
  static Recorder recorder(folder);
  static const bool prepared = UnderWine() && (recorder.ReplaceSystem(), LeaveWindowsToWine(), true);
  (void)prepared;
  return recorder;
}

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

/// A list whose rows are drawn, so that they are learnt as a screen reader does.
class ReadList {
 public:
  explicit ReadList(HWND window) {
    CoInitialize(nullptr);
    void* object = nullptr;
    if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object))) return;
    object_ = static_cast<IAccessible*>(object);
    object_->get_accChildCount(&count_);
  }
  ~ReadList() {
    if (object_ != nullptr) object_->Release();
  }
  ReadList(const ReadList&) = delete;
  ReadList& operator=(const ReadList&) = delete;

  /// The rows in sight.
  [[nodiscard]] Texts Rows() const {
    Texts rows;
    for (long row = 1; row <= count_; ++row) {
      if (InSight(row)) rows.push_back(TextOf(row));
    }
    return rows;
  }
  /// All that is said of the current row.
  [[nodiscard]] Text Current() const {
    VARIANT selected{};
    const bool has = object_ != nullptr && object_->get_accSelection(&selected) == S_OK && selected.vt == VT_I4;
    return has ? NameOf(selected.lVal) : Text();
  }
  [[nodiscard]] std::optional<POINT> Middle(const Text& text) const {
    for (long row = 1; row <= count_; ++row) {
      RECT at{};
      if (!InSight(row) || TextOf(row) != text) continue;
      if (FAILED(object_->accLocation(&at.left, &at.top, &at.right, &at.bottom, Part(row)))) continue;
      return POINT{at.left + at.right / 2, at.top + at.bottom / 2};
    }
    return {};
  }

 private:
  static VARIANT Part(long row) {
    VARIANT part{};
    part.vt = VT_I4;
    part.lVal = row;
    return part;
  }
  [[nodiscard]] bool InSight(long row) const {
    VARIANT state{};
    object_->get_accState(Part(row), &state);
    return state.vt == VT_I4 && (state.lVal & STATE_SYSTEM_OFFSCREEN) == 0;
  }
  [[nodiscard]] Text NameOf(long row) const {
    BSTR name = nullptr;
    object_->get_accName(Part(row), &name);
    Text text = name != nullptr ? Text(name) : Text();
    SysFreeString(name);
    return text;
  }
  [[nodiscard]] Text TextOf(long row) const {
    const Text name = NameOf(row);
    return name.substr(0, name.rfind(L", "));
  }

  IAccessible* object_ = nullptr;
  long count_ = 0;
};

class RealWorld : public World {
 public:
  explicit RealWorld() : recorder_(SystemRecorder()), before_(recorder_.Lines().size()) {
    folders_.push_back(std::make_unique<desktop::Folder>());
    if (UnderWine()) RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, RunKey, RunValue);
  }
  ~RealWorld() override {
    for (HWND window : {other_, front_}) {
      if (window != nullptr) DestroyWindow(window);
    }
    if (GetAsyncKeyState(VK_LBUTTON) < 0) input::LetGo(mouse_);  // a flow that failed in a drag
  }
  RealWorld(const RealWorld&) = delete;
  RealWorld& operator=(const RealWorld&) = delete;

  [[nodiscard]] std::wstring_view Name() const override { return L"real"; }
  void NeedDrive(wchar_t letter, std::wstring_view type) override {
    const UINT wanted = type == L"floppy"    ? DRIVE_REMOVABLE
                        : type == L"network" ? DRIVE_REMOTE
                        : type == L"fixed"   ? DRIVE_FIXED
                                             : DRIVE_CDROM;
    const Text root{letter, L':', L'\\'};
    if (!UnderWine() || GetDriveTypeW(root.c_str()) != wanted) throw Skip("needs a drive of another kind");
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
    wchar_t path[MAX_PATH];
    if (word == L"w") return Text(path, GetWindowsDirectoryW(path, MAX_PATH)) + L'\\';
    const std::pair<std::wstring_view, int> folders[] = {
        {L"Desktop", CSIDL_DESKTOPDIRECTORY}, {L"MyDocuments", CSIDL_PERSONAL}, {L"SendTo", CSIDL_SENDTO}};
    const auto* const found = std::ranges::find(folders, word, &std::pair<std::wstring_view, int>::first);
    return found != std::end(folders) ? Wide(SystemFolder(found->second)) : Text();
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
    if (!UnderWine() && path.starts_with(Place(L"w"))) throw Skip("writes into the Windows folder");
    const TrueFolders trueFolders;
    const Text folder = path.substr(0, path.rfind(L'\\'));
    if (folder.size() > 2) MakeFolder(folder);
    std::ofstream(std::filesystem::path(path), std::ios::binary) << bytes;
  }
  void MakeProgram(const Text& path) override {
    Write(path, BytesOf(Narrow(OwnPath().substr(0, OwnPath().rfind(L'\\'))) + SystemRecorderName()));
  }
  void MakeFolder(const Text& path) override { std::filesystem::create_directories(path); }
  void Remove(const Text& path) override {
    // What was started has to end before its file can go.
    std::error_code error;
    Await("the file to go", [&] { return std::filesystem::remove(path, error), !error; });
  }
  void Protect(const Text& path, bool readOnly) override {
    SetFileAttributesW(path.c_str(), readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
  }
  [[nodiscard]] std::optional<std::string> Read(const Text& path) override {
    return Exists(Narrow(path)) ? std::optional(BytesOf(Narrow(path))) : std::nullopt;
  }

  void Start() override {
    program_.reset();
    program_ = std::make_unique<Program>(*folders_.back());
    Await("the program to have the input", [this] { return HasInput() || !program_->Running(); });
  }
  void Press(form::Key key) override {
    AwaitInput();
    input::Press(static_cast<WORD>(key));
  }
  void PressControl(form::Key key) override {
    AwaitInput();
    input::Key(VK_CONTROL, 0, 0);
    input::Press(static_cast<WORD>(key));
    input::Key(VK_CONTROL, 0, KEYEVENTF_KEYUP);
  }
  void Type(const Text& text) override {
    AwaitInput();
    input::Type(Narrow(text));
  }
  void Paste(const Text& text) override {
    PutOnClipboard(text);
    PressControl(form::Key::V);
  }
  void Compose(bool /*begins*/, const Text& /*text*/) override { throw Failure("there is no input method here"); }
  void Click(const Text& control, const Text& entry, bool twice) override {
    Await("the control to be ready", [&] { return Find(control) != nullptr && window::IsEnabled(Find(control)); });
    HWND const window = Find(control);
    POINT at = window::Middle(window);
    if (!entry.empty() && window::ClassName(window) == "ComboBox") return Choose(window, entry);
    if (!entry.empty() && IsReadList(window)) {
      Await("the row", [&] {
        const auto row = ReadList(window).Middle(entry);
        if (row) at = *row;
        return row.has_value();
      });
    } else if (!entry.empty()) {
      at = EntryOf(window, window, entry);
    }
    AwaitInput();
    if (twice)
      input::DoubleClick(Spot(at));
    else
      input::Click(Spot(at));
  }
  void Turn(const Text& control, int rows) override {
    AwaitInput();
    input::Mouse(window::Middle(Find(control)));
    mouse_event(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(-rows / 3 * WHEEL_DELTA), 0);
  }
  void Leave() override {
    if (front_ == nullptr) {
      front_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE | SS_NOTIFY, 700, 500, 100, 100, nullptr,
                               nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    input::Click(front_);
    Await("the other program to be in front", [this] { return GetForegroundWindow() == front_; });
  }
  void Hold(const Text& control) override {
    AwaitInput();
    Await("the mark to go", [] { return FindWindowW(L"VantorMark", nullptr) == nullptr; });
    mouse_ = Spot(window::Middle(Find(control)));
    input::Hold(mouse_);
  }
  void MoveOver(const Text& window) override {
    if (other_ == nullptr) {
      other_ = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"STATIC", L"", WS_POPUP, 700, 300, 100, 100, nullptr,
                               nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    ShowWindow(other_, window == L"other" ? SW_SHOWNOACTIVATE : SW_HIDE);
    mouse_ = window::Middle(window == L"other" ? other_ : Find(window));
    input::Mouse({mouse_.x - 4, mouse_.y - 4});
    input::Mouse(mouse_);
    Await("the mark", [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; });
  }
  void Release() override {
    input::LetGo(mouse_);
    if (other_ != nullptr) ShowWindow(other_, SW_HIDE);
  }
  void Drag(int right, int down) override {
    const RECT exit = window::Bounds(Find(L"CommandExit"));
    {
      const MouseHeld held(*this, {exit.left - 2, (exit.top + exit.bottom) / 2});
      mouse_.x += 4;  // the first move begins the drag, which goes by where the mouse is then
      input::Mouse(mouse_);
      Await("the bar to be dragged", [this] { return (ThreadOfBar().flags & GUI_INMOVESIZE) != 0; });
      mouse_ = {mouse_.x + right, mouse_.y + down};
      input::Mouse(mouse_);
    }
    input::Mouse({mouse_.x, mouse_.y + 60});  // the hand goes on
  }
  void Drop(const Texts& /*paths*/) override { throw Failure("nothing can be dropped here"); }
  void Restore() override {
    OpenIcon(Bar());
    SetForegroundWindow(Bar());
    AwaitInput();
  }
  void Close() override { PostMessageW(Bar(), WM_CLOSE, 0, 0); }
  void Wait(int /*milliseconds*/) override {}
  void Break(const Text& /*call*/, const Text& /*outcome*/) override {
    throw Failure("Windows does not fail on request");
  }
  void SetScreen(int /*width*/, int /*height*/) override { throw Failure("the screen is as large as it is"); }

  [[nodiscard]] Text See(std::wstring_view what, const Text& name) override {
    const auto yes = [](bool condition) { return Text(condition ? L"yes" : L"no"); };
    if (what == L"running") return yes(program_ && program_->Running());
    if (what == L"run value") {
      const std::string value = RegistryText(HKEY_LOCAL_MACHINE, RunKey, RunValue);
      return value == "(none)" ? L"" : Wide(value);
    }
    if (what == L"title") return HasInput() ? Wide(window::Text(GetForegroundWindow())) : L"";
    if (what == L"focus") {
      HWND const focus = HasInput() ? window::Focus(GetForegroundWindow()) : nullptr;
      return GetWindowLongW(focus, GWL_ID) == win32::ControlId(name) ? name : Wide(window::ClassName(focus));
    }
    if (what == L"minimised") return yes(window::IsMinimised(Bar()));
    if (what == L"on top") return yes(window::IsTopMost(Bar()));
    if (what == L"place") {
      const RECT bar = window::Bounds(Bar());
      return std::to_wstring(bar.left) + L' ' + std::to_wstring(bar.top);
    }
    if (what == L"line") return Line(Find(L"TextMain"));
    HWND const window = Find(name);
    if (what == L"shown") return yes(window != nullptr);
    if (window == nullptr) return what == L"text" ? L"" : L"not shown";
    if (what == L"enabled") return yes(window::IsEnabled(window));
    if (what == L"ticked") return yes(SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
    if (what == L"entries") return Joined(IsReadList(window) ? ReadList(window).Rows() : Entries(window));
    if (what == L"text" && IsReadList(window)) return ReadList(window).Current();
    if (window::ClassName(window) == "ListBox") {
      const LRESULT selected = SendMessageW(window, LB_GETCURSEL, 0, 0);
      return selected == LB_ERR ? L"" : EntryText(window, static_cast<WPARAM>(selected));
    }
    return Wide(window::Text(window));
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
  [[nodiscard]] HWND Find(const Text& name) const {
    const std::int32_t id = win32::ControlId(name);
    HWND found = nullptr;
    if (!program_) return found;
    (void)program_->Find([&](HWND form) {
      for (HWND control : window::Controls(form)) {
        if (GetWindowLongW(control, GWL_ID) == id) found = control;
      }
      return found != nullptr;
    });
    return found;
  }
  /// The mouse button held down at a point, and let go wherever the mouse is then, also when a step fails.
  struct MouseHeld {
    MouseHeld(RealWorld& world, POINT at) : Of(world) {
      Of.mouse_ = at;
      input::Hold(at);
    }
    ~MouseHeld() { input::LetGo(Of.mouse_); }
    MouseHeld(const MouseHeld&) = delete;
    MouseHeld& operator=(const MouseHeld&) = delete;
    RealWorld& Of;
  };

  [[nodiscard]] GUITHREADINFO ThreadOfBar() const {
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(Bar(), nullptr), &thread);
    return thread;
  }
  [[nodiscard]] HWND Bar() const { return program_->Bar(); }
  [[nodiscard]] bool HasInput() const {
    return program_ && program_->Find([](HWND form) { return window::Focus(form) != nullptr; }) != nullptr;
  }
  void AwaitInput() const {
    Await("the program to have the input", [this] { return HasInput(); });
  }
  /// A point for the next click: two at one place would soon be a double click.
  POINT Spot(POINT at) {
    if (at.x == lastClick_.x && at.y == lastClick_.y) at.x -= 8;
    return lastClick_ = at;
  }
  static Text Line(HWND box) {
    Text text = Wide(window::Text(box));
    const auto selection = static_cast<DWORD>(SendMessageW(box, EM_GETSEL, 0, 0));
    const std::size_t begin = LOWORD(selection);
    const std::size_t end = HIWORD(selection);
    return begin < end && end <= text.size() ? text.insert(end, L"]").insert(begin, L"[") : text;
  }
  static bool IsReadList(HWND list) { return GetWindowLongW(list, GWL_ID) == win32::ControlId(L"ListMatches"); }
  static bool IsCombo(HWND list) { return window::ClassName(list) == "ComboBox"; }
  static Text EntryText(HWND list, WPARAM index) {
    const LRESULT length = SendMessageW(list, IsCombo(list) ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, index, 0);
    Text text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    SendMessageW(list, IsCombo(list) ? CB_GETLBTEXT : LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
  }
  static Texts Entries(HWND list) {
    Texts all;
    const LRESULT count = SendMessageW(list, IsCombo(list) ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) all.push_back(EntryText(list, static_cast<WPARAM>(i)));
    return all;
  }
  /// Where an entry is on the screen, once it is there: in `shown`, which is the list itself or what it drops down.
  static POINT EntryOf(HWND list, HWND shown, const Text& entry) {
    WPARAM index = 0;
    Await("the entry", [&] {
      const Texts all = Entries(list);
      const auto found = std::ranges::find(all, entry);
      index = static_cast<WPARAM>(found - all.begin());
      return found != all.end();
    });
    RECT item = {};
    SendMessageW(shown, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
    POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    ClientToScreen(shown, &middle);
    return middle;
  }
  /// Drops a combo box down and clicks on the entry.
  void Choose(HWND combo, const Text& entry) {
    AwaitInput();
    const RECT box = window::Bounds(combo);
    input::Click({box.right - 8, (box.top + box.bottom) / 2});
    HWND list = nullptr;
    Await("the list to drop down", [&] {
      COMBOBOXINFO info = {};
      info.cbSize = sizeof info;
      list = GetComboBoxInfo(combo, &info) && IsWindowVisible(info.hwndList) ? info.hwndList : nullptr;
      return list != nullptr;
    });
    input::Click(EntryOf(combo, list, entry));
    lastClick_ = {};
    Await("the list to close", [&] { return !IsWindowVisible(list); });
  }
  static void PutOnClipboard(const Text& text) {
    Await("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
    EmptyClipboard();
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    CopyMemory(GlobalLock(memory), text.c_str(), size);
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
  }

  Recorder& recorder_;
  std::size_t before_;  // what was recorded before this flow
  std::vector<std::unique_ptr<desktop::Folder>> folders_;
  std::unique_ptr<Program> program_;
  HWND other_ = nullptr;
  HWND front_ = nullptr;
  POINT mouse_{};
  POINT lastClick_{};
};

}  // namespace

std::unique_ptr<World> MakeWorld(Steps& /*steps*/) { return std::make_unique<RealWorld>(); }

}  // namespace vantor::flows
