#pragma once

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

/// The computer in memory with the headless desktop, on which a flow takes a few milliseconds.
class NativeWorld : public World {
 public:
  explicit NativeWorld(Steps& steps) : steps_(steps) {
    for (const auto* root : {L"D:", L"E:", L"N:"}) Computer.Disk.Remove(root + Text(L"\\Work\\Tool.EXE"));
    Computer.Disk.Remove(L"C:\\Work\\notes.txt");
    MakeProgram(Computer.Home + L"\\Vantor.exe");
    Computer.StartsAnything = false;
  }

  [[nodiscard]] std::wstring_view Name() const override { return L"native"; }
  void NeedDrive(wchar_t letter, std::wstring_view type) override {
    const int number = type == L"floppy" ? 1 : type == L"network" ? 3 : type == L"fixed" ? 2 : 4;
    Computer.Disk.Drives[letter] = {number, L"", type != L"empty"};
  }
  void SetHome(wchar_t letter) override {
    Computer.Home[0] = letter;
    MakeProgram(Computer.Home + L"\\Vantor.exe");
  }
  [[nodiscard]] Text Place(const Text& word) override {
    if (word == L"f") return Computer.Home;
    if (word == L"w") return Computer.Windows + L'\\';
    if (word == L"rest") return Computer.Home.substr(1);
    if (word == L"other") return L"C:\\Work\\Tool.EXE";
    return Computer.Specials[word];
  }

  [[nodiscard]] std::optional<std::string> InCodePage(const Text& text) override { return Computer.ToCodePage(text); }
  void Write(const Text& path, const std::string& bytes) override { Computer.Disk.AddFile(path, bytes); }
  void MakeProgram(const Text& path) override { Computer.Disk.AddFile(path, "program"); }
  void MakeFolder(const Text& path) override { Computer.Disk.AddFolder(path); }
  void Remove(const Text& path) override { Computer.Disk.Remove(path); }
  [[nodiscard]] std::optional<std::string> Read(const Text& path) override {
    return Computer.Disk.HasFile(path) ? std::optional(Computer.Disk.At(path).Bytes) : std::nullopt;
  }

  void Start() override {
    Program.reset();
    Desktop = std::make_unique<Desk>(steps_);
    Desktop->Desktop = screen_;
    Desktop->CharacterWidth = Font.Width;
    Desktop->LineHeight = Font.Height;
    Program = std::make_unique<start::Program>(*Desktop, Computer.Services());
    Program->Main();
  }
  void Press(form::Key key) override { Desktop->Press(key); }
  void PressControl(form::Key key) override { Desktop->PressControl(key); }
  void Type(const Text& text) override { Desktop->Type(text); }
  void Paste(const Text& text) override {
    form::TextBox& box = FocusedBox();
    Text edited = box.Text();
    edited.replace(static_cast<std::size_t>(box.SelStart()), static_cast<std::size_t>(box.SelLength()), text);
    box.InputEdited(edited, box.SelStart() + static_cast<int>(text.size()), 0);
  }
  void Compose(bool begins, const Text& text) override {
    form::TextBox& box = FocusedBox();
    if (begins) box.InputComposing(true);
    Desktop->Type(text);
    if (!begins) box.InputComposing(false);
  }
  void Click(const Text& name, const Text& entry, bool twice) override {
    form::Control& control = Reachable(name);
    if (auto* rows = dynamic_cast<form::RowList*>(&control)) {
      for (int row = 0; row < rows->RowCount(); ++row) {
        if (rows->RowAt(row).Text == entry) return Desktop->ClickRow(*rows, row);
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
      Desktop->Click(control);
    }
    if (twice) Desktop->DoubleClick(control);
  }
  void Turn(const Text& control, int rows) override { Desktop->Wheel(Reachable(control), rows); }
  void Leave() override { Desktop->Leave(); }
  void Hold(const Text& control) override {
    Reachable(control).SetFocus();
    dynamic_cast<form::CommandButton&>(Reachable(control)).InputMouseDown(form::MouseButton::Left);
    held_ = control;
  }
  void MoveOver(const Text& window) override {
    constexpr std::wstring_view known[] = {L"nothing", L"other", L"", L"system"};
    const auto* const found = std::ranges::find(known, window);
    Computer.UnderCursor = service::WindowId{found != std::end(known) ? static_cast<unsigned>(found - known) : 2U};
    Computer.Managed[2].ExecutablePath = Computer.Home + L"\\Vantor.exe";
    Desktop->Advance(100);
  }
  void Release() override {
    if (form::Control* control = Find(held_)) {
      dynamic_cast<form::CommandButton&>(*control).InputMouseUp(form::MouseButton::Left);
    }
  }
  void Drag(int right, int down) override { Desktop->DragBy(Program->frmMain, right * 15, down * 15); }
  void Drop(const Texts& paths) override {
    const bool isAddress = paths.at(0).find(L"://") != Text::npos;
    Program->frmMain.InputDrop(isAddress ? form::DroppedItems{{}, paths[0]} : form::DroppedItems{paths, {}});
  }
  void Restore() override {
    Program->frmMain.InputWindowState(form::WindowState::Normal);
    Desktop->Advance(2000);
  }
  void Close() override { Program->frmMain.InputClose(); }
  void Wait(int milliseconds) override { Desktop->Advance(milliseconds); }
  void Break(const Text& call, const Text& outcome) override {
    for (auto& [letter, drive] : Computer.Disk.Drives) drive.WriteProtected = call == Text{letter, L':'};
    broken_.assign(call.begin(), call.end());
    Computer.Let(broken_, outcome == L"fails"    ? fake::Outcome::Fails
                          : outcome == L"throws" ? fake::Outcome::Throws
                                                 : fake::Outcome::Works);
  }
  void SetScreen(int width, int height, int dotsPerInch) override {
    const double twips = 1440.0 / dotsPerInch;
    const auto pixels = [&](int count) { return static_cast<form::Twips>(count * twips); };
    screen_ = {{0, 0, pixels(width), pixels(height)}, {}, twips, twips};
    screen_.WorkArea = {0, pixels(28), pixels(width), pixels(height - 28)};  // under a taskbar
    if (!Desktop) return;
    Desktop->Desktop = screen_;
    for (form::Form* form : Desktop->Forms()) form->InputScreensChanged();
  }

  [[nodiscard]] Text See(std::wstring_view what, const Text& name) override {
    const auto yes = [](bool condition) { return Text(condition ? L"yes" : L"no"); };
    if (what == L"running") return yes(Program && Program->frmMain.Visible() && !Desktop->Ended());
    if (what == L"run value") return RunValue(L"HKEY_LOCAL_MACHINE") + RunValue(L"HKEY_CURRENT_USER");
    const form::Form* const active = Desktop->ActiveForm();
    const form::Form& bar = Program->frmMain;
    if (what == L"title") return active != nullptr ? active->Caption() : Text();
    if (what == L"focus") {
      const bool has = active != nullptr && active->ActiveControl() != nullptr;
      return has ? active->ActiveControl()->Name() : Text();
    }
    if (what == L"minimised") return yes(bar.WindowState() == form::WindowState::Minimized);
    if (what == L"on top") return yes(Desktop->IsTopMost(name.empty() ? bar : Reachable(name).OwnerForm()));
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
  [[nodiscard]] Texts Started() override {
    Texts starts;
    for (Text asked : Computer.Asked) {
      std::erase(asked, L'"');
      if (asked.starts_with(L"shell ") || asked.starts_with(L"mail ")) asked.replace(0, asked.find(L' '), L"open");
      if (asked.starts_with(L"call ")) asked.resize(asked.find(L'|'));
      if (!asked.starts_with(L"title ")) starts.push_back(asked);
    }
    return starts;
  }
  bool Becomes(const std::function<bool()>& condition) override { return condition(); }

  /// The controls that are on the screen, those of the foremost form last.
  [[nodiscard]] std::vector<form::Control*> Shown() const {
    std::vector<form::Control*> all;
    for (const form::Form* form : Desktop->Forms()) {
      if (!form->Visible()) continue;
      for (form::Control* control : form->Controls()) {
        const form::Control* shown = control;
        while (shown != nullptr && shown->Visible()) shown = shown->Container();
        if (shown == nullptr) all.push_back(control);
      }
    }
    return all;
  }

  fake::Computer Computer;
  form::Size Font{90, 195};       // a letter's, on average
  std::unique_ptr<Desk> Desktop;  // of the run that goes on
  std::unique_ptr<start::Program> Program;

 private:
  Text RunValue(const Text& root) {
    return Computer.Registry[root + L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher"];
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
    for (form::Control* control : Shown()) {
      if (control->Name() == name) found = control;
    }
    return found;
  }
  [[nodiscard]] form::TextBox& FocusedBox() const {
    const form::Form* const form = Desktop->ActiveForm();
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
  form::Screen screen_ = form::Headless().Desktop;
  Text held_;
  std::string broken_;  // the call that fails
};

}  // namespace vantor::flows
