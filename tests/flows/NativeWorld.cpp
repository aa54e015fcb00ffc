// Flows on the computer in memory, with the headless desktop: each in a few milliseconds.

#include <algorithm>

#include "fake/Computer.h"
#include "flows/World.h"
#include "form/Button.h"
#include "form/Headless.h"
#include "form/ListControl.h"
#include "form/RowList.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "start/Program.h"
#include "text/Utf8.h"

namespace vantor::flows {
namespace {

Text Unquoted(std::wstring_view text) {
  Text plain(text);
  std::erase(plain, L'"');
  return plain;
}

/// A computer on which nothing starts that is not there.
class Machine : public fake::Computer {
 public:
  Machine() {
    Disk.AddFile(Windows + L"\\explorer.exe");
    Specials[L"Desktop"] = L"C:\\Desktop";
    Disk.AddFolder(L"C:\\Desktop");
    Managed.push_back({1, L"C:\\system.exe"});
  }

  Texts Starts;

  bool StartCommandLine(Text line) override {
    return IsThere(line) && fake::Computer::StartCommandLine(line) && Note(L"run ", line);
  }
  bool Run(Text target) override { return IsThere(target) && fake::Computer::Run(target) && Note(L"open ", target); }
  int ShellOpen(Text file) override {
    const int result = fake::Computer::ShellOpen(file);
    if (result > 32) Note(L"open ", file);
    return result;
  }
  int RequestMakeCall(Text number, Text application) override {
    const int result = fake::Computer::RequestMakeCall(number, application);
    if (result == 0) Note(L"call ", number);
    return result;
  }
  /// Window 3 is of process 1, which is none that could be started again.
  std::uint32_t ProcessOfWindow(service::WindowId window) override {
    return window == service::WindowId{3} ? 1 : fake::Computer::ProcessOfWindow(window);
  }
  bool SaveShortcut(const service::Shortcut& shortcut) override {
    return fake::Computer::SaveShortcut(shortcut) && Disk.Write(shortcut.File, "", false);
  }

 private:
  /// Of a full path the file, or a folder, must be there; of other names those that begin with "nosuch" are not.
  [[nodiscard]] bool IsThere(Text line) const {
    const std::wstring plain = Unquoted(line);
    if (plain.find(L":\\") != 1) return !plain.starts_with(L"nosuch");
    for (std::size_t length = plain.size(); length > 2; --length) {
      const std::wstring path = plain.substr(0, length);
      if (Disk.HasFile(path) || Disk.HasFolder(plain)) return true;
    }
    return false;
  }
  bool Note(Text how, Text what) {
    Starts.push_back(std::wstring(how) + Unquoted(what));
    return true;
  }
};

/// A desktop whose user, while a message is open, goes on with the flow.
class Desk : public form::Headless {
 public:
  explicit Desk(Steps& steps) : steps_(steps) {}

  void RunModal(form::Form& form) override {
    steps_.GoOnUntil([&] { return !form.Visible() || Ended(); });
    if (form.Visible()) End();  // the flow is over before the message is
  }

  using UserInterface::Forms;

 private:
  Steps& steps_;
};

class NativeWorld : public World {
 public:
  explicit NativeWorld(Steps& steps) : steps_(steps) {
    for (const auto* root : {L"D:", L"E:", L"N:"}) computer_.Disk.Remove(root + Text(L"\\Work\\Tool.EXE"));
    computer_.Disk.Remove(L"C:\\Work\\notes.txt");
    MakeProgram(computer_.Home + L"\\Vantor.exe");
  }

  [[nodiscard]] std::wstring_view Name() const override { return L"native"; }
  void NeedDrive(wchar_t letter, std::wstring_view type) override {
    const int number = type == L"floppy" ? 1 : type == L"network" ? 3 : type == L"fixed" ? 2 : 4;
    computer_.Disk.Drives[letter] = {number, L"", type != L"empty"};
  }
  void SetHome(wchar_t letter) override {
    computer_.Home[0] = letter;
    MakeProgram(computer_.Home + L"\\Vantor.exe");
  }
  [[nodiscard]] Text Place(const Text& word) override {
    if (word == L"f") return computer_.Home;
    if (word == L"w") return computer_.Windows + L'\\';
    if (word == L"rest") return computer_.Home.substr(1);
    if (word == L"other") return L"C:\\Work\\Tool.EXE";
    return computer_.Specials[word];
  }

  [[nodiscard]] std::optional<std::string> InCodePage(const Text& text) override { return computer_.ToCodePage(text); }
  void Write(const Text& path, const std::string& bytes) override { computer_.Disk.AddFile(path, bytes); }
  void MakeProgram(const Text& path) override { computer_.Disk.AddFile(path, "program"); }
  void MakeFolder(const Text& path) override { computer_.Disk.AddFolder(path); }
  void Remove(const Text& path) override { computer_.Disk.Remove(path); }
  void Protect(const Text& path, bool readOnly) override {
    if (path.size() <= 3)
      computer_.Disk.Drives.at(path.at(0)).WriteProtected = readOnly;
    else
      computer_.Disk.AddFile(path, computer_.Disk.Bytes(path)).Writable = !readOnly;
  }
  [[nodiscard]] std::optional<std::string> Read(const Text& path) override {
    return computer_.Disk.HasFile(path) ? std::optional(computer_.Disk.Bytes(path)) : std::nullopt;
  }

  void Start() override {
    program_.reset();
    desk_ = std::make_unique<Desk>(steps_);
    desk_->Desktop = screen_;
    program_ = std::make_unique<start::Program>(*desk_, computer_.Services());
    program_->Main();
  }
  void Press(form::Key key) override { desk_->Press(key); }
  void PressControl(form::Key key) override { desk_->PressControl(key); }
  void Type(const Text& text) override { desk_->Type(text); }
  void Paste(const Text& text) override {
    form::TextBox& box = FocusedBox();
    Text edited = box.Text();
    edited.replace(static_cast<std::size_t>(box.SelStart()), static_cast<std::size_t>(box.SelLength()), text);
    box.InputEdited(edited, box.SelStart() + static_cast<int>(text.size()), 0);
  }
  void Compose(bool begins, const Text& text) override {
    form::TextBox& box = FocusedBox();
    if (begins) box.InputComposing(true);
    desk_->Type(text);
    if (!begins) box.InputComposing(false);
  }
  void Click(const Text& name, const Text& entry, bool twice) override {
    form::Control& control = Reachable(name);
    if (auto* rows = dynamic_cast<form::RowList*>(&control)) {
      for (int row = 0; row < rows->RowCount(); ++row) {
        if (rows->RowAt(row).Text == entry) return desk_->ClickRow(*rows, row);
      }
      throw Failure("there is no such row");
    }
    if (!entry.empty()) {
      auto& list = dynamic_cast<form::ListControl&>(control);
      const auto found = std::ranges::find(list.Entries(), entry);
      if (found == list.Entries().end()) throw Failure("there is no such entry");
      control.SetFocus();
      list.InputSelect(static_cast<int>(found - list.Entries().begin()));
    } else if (!twice) {
      desk_->Click(control);
    }
    if (twice) desk_->DoubleClick(control);
  }
  void Turn(const Text& control, int rows) override { desk_->Wheel(Reachable(control), rows); }
  void Leave() override { desk_->Leave(); }
  void Hold(const Text& control) override {
    Reachable(control).SetFocus();
    dynamic_cast<form::CommandButton&>(Reachable(control)).InputMouseDown(form::MouseButton::Left);
    held_ = control;
  }
  void MoveOver(const Text& window) override {
    constexpr std::wstring_view known[] = {L"nothing", L"other", L"", L"system"};
    const auto* const found = std::ranges::find(known, window);
    computer_.UnderCursor = service::WindowId{found != std::end(known) ? static_cast<unsigned>(found - known) : 2U};
    computer_.Managed[2].ExecutablePath = computer_.Home + L"\\Vantor.exe";
    desk_->Advance(100);
  }
  void Release() override {
    if (form::Control* control = Find(held_)) {
      dynamic_cast<form::CommandButton&>(*control).InputMouseUp(form::MouseButton::Left);
    }
  }
  void Drag(int right, int down) override { desk_->DragBy(program_->frmMain, right * 15, down * 15); }
  void Drop(const Texts& paths) override {
    const bool isAddress = paths.at(0).find(L"://") != Text::npos;
    program_->frmMain.InputDrop(isAddress ? form::DroppedItems{{}, paths[0]} : form::DroppedItems{paths, {}});
  }
  void Restore() override {
    program_->frmMain.InputWindowState(form::WindowState::Normal);
    desk_->Advance(1000);
  }
  void Close() override { program_->frmMain.InputClose(); }
  void Wait(int milliseconds) override { desk_->Advance(milliseconds); }
  void Break(const Text& call, const Text& outcome) override {
    broken_.assign(call.begin(), call.end());
    computer_.Administrator = outcome == L"works" || call != L"HKEY_LOCAL_MACHINE";
    computer_.Let(broken_, outcome == L"fails"    ? fake::Outcome::Fails
                           : outcome == L"throws" ? fake::Outcome::Throws
                                                  : fake::Outcome::Works);
  }
  void SetScreen(int width, int height) override {
    screen_ = {{0, 0, width * 15, height * 15}, {0, 0, width * 15, height * 15 - 420}};
    if (!desk_) return;
    desk_->Desktop = screen_;
    for (form::Form* form : desk_->Forms()) form->InputScreensChanged();
  }

  [[nodiscard]] Text See(std::wstring_view what, const Text& name) override {
    const auto yes = [](bool condition) { return Text(condition ? L"yes" : L"no"); };
    if (what == L"running") return yes(program_ && program_->frmMain.Visible() && !desk_->Ended());
    if (what == L"run value") return RunValue(L"HKEY_LOCAL_MACHINE") + RunValue(L"HKEY_CURRENT_USER");
    const form::Form* const active = desk_->ActiveForm();
    const form::Form& bar = program_->frmMain;
    if (what == L"title") return active != nullptr ? active->Caption() : Text();
    if (what == L"focus") {
      const bool has = active != nullptr && active->ActiveControl() != nullptr;
      return has ? active->ActiveControl()->Name() : Text();
    }
    if (what == L"minimised") return yes(bar.WindowState() == form::WindowState::Minimized);
    if (what == L"on top") return yes(bar.TopMost());
    if (what == L"place")
      return std::to_wstring(bar.Bounds().Left / 15) + L' ' + std::to_wstring(bar.Bounds().Top / 15);
    if (what == L"line") return Line(dynamic_cast<const form::TextBox&>(*Find(L"TextMain")));
    const form::Control* const control = Find(name);
    if (what == L"shown") return yes(control != nullptr);
    if (control == nullptr) return what == L"text" ? L"" : L"not shown";
    if (what == L"enabled") return yes(control->Enabled());
    if (what == L"ticked") return yes(dynamic_cast<const form::ChoiceButton&>(*control).Value());
    if (what == L"entries") {
      const auto* const rows = dynamic_cast<const form::RowList*>(control);
      return Joined(rows != nullptr ? InSight(*rows) : dynamic_cast<const form::ListControl&>(*control).Entries());
    }
    return TextOf(*control);
  }
  [[nodiscard]] Texts Started() override { return computer_.Starts; }
  bool Becomes(const std::function<bool()>& condition) override { return condition(); }

 private:
  Text RunValue(const Text& root) {
    return computer_.Registry[root + L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher"];
  }

  static Text Line(const form::TextBox& box) {
    Text line = box.Text();
    if (box.SelLength() == 0) return line;
    line.insert(static_cast<std::size_t>(box.SelStart()) + static_cast<std::size_t>(box.SelLength()), L"]");
    return line.insert(static_cast<std::size_t>(box.SelStart()), L"[");
  }
  static Texts InSight(const form::RowList& list) {
    Texts rows;
    for (int row = list.TopRow(); row < std::min(list.TopRow() + list.PageRows(), list.RowCount()); ++row)
      rows.push_back(list.RowAt(row).Text);
    return rows;
  }
  static Text TextOf(const form::Control& control) {
    if (const auto* rows = dynamic_cast<const form::RowList*>(&control))
      return rows->CurrentRow() != -1 ? rows->SpokenRow(rows->CurrentRow()) : Text();
    if (const auto* box = dynamic_cast<const form::TextBox*>(&control)) return box->Text();
    if (const auto* list = dynamic_cast<const form::ListControl*>(&control)) return list->Text();
    if (const auto* label = dynamic_cast<const form::Label*>(&control)) return label->Caption();
    if (const auto* frame = dynamic_cast<const form::Frame*>(&control)) return frame->Caption();
    if (const auto* button = dynamic_cast<const form::CommandButton*>(&control)) return button->Caption();
    return dynamic_cast<const form::ChoiceButton&>(control).Caption();
  }
  /// The control of a name that is on the screen; of two, that of the form before the other. Null when there is none.
  [[nodiscard]] form::Control* Find(const Text& name) const {
    form::Control* found = nullptr;
    for (const form::Form* form : desk_->Forms()) {
      if (!form->Visible()) continue;
      for (form::Control* control : form->Controls()) {
        const form::Control* shown = control;
        while (shown != nullptr && shown->Visible()) shown = shown->Container();
        if (control->Name() == name && shown == nullptr) found = control;
      }
    }
    return found;
  }
  [[nodiscard]] form::TextBox& FocusedBox() const {
    const form::Form* const form = desk_->ActiveForm();
    auto* const box = form != nullptr ? dynamic_cast<form::TextBox*>(form->ActiveControl()) : nullptr;
    if (box == nullptr || !box->AcceptsInput()) throw Failure("there is nothing to type into");
    return *box;
  }
  [[nodiscard]] form::Control& Reachable(const Text& name) const {
    form::Control* const control = Find(name);
    if (control == nullptr) throw Failure("no such control is shown");
    if (!control->AcceptsInput()) throw Failure("the control takes no input");
    return *control;
  }

  Steps& steps_;
  Machine computer_;
  form::Screen screen_ = form::Headless().Desktop;
  std::unique_ptr<Desk> desk_;
  std::unique_ptr<start::Program> program_;
  Text held_;
  std::string broken_;  // the call that fails
};

}  // namespace

std::unique_ptr<World> MakeWorld(Steps& steps) { return std::make_unique<NativeWorld>(steps); }

}  // namespace vantor::flows
