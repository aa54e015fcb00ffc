#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#include "fake/Computer.h"
#include "flows/Words.h"
#include "form/Button.h"
#include "form/Headless.h"
#include "form/ListControl.h"
#include "form/RowList.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "start/Program.h"

namespace vantor::flows {

/// The computer in memory with the headless desktop, and a person who uses it: a flow takes a few milliseconds.
/// Controls go by their names, files by full paths. README.md says what the steps do; RealWorld.h has the same for
/// Windows, and a program has one of the two.
class World {
 public:
  /// What a line that makes sense in this world alone begins with.
  static constexpr std::wstring_view Name = L"native";

  /// A desktop whose user, while a message is open, goes on with the flow.
  class Desk : public form::Headless {
   public:
    explicit Desk(World& world) : world_(world) {}
    void RunModal(form::Form& form) override {
      world_.GoOnUntil([&] { return !form.Visible() || Ended(); });
      if (form.Visible()) End();  // the flow has failed meanwhile
    }
    using UserInterface::Forms;

   private:
    World& world_;
  };

  World() { SetHome(L"C"); }
  virtual ~World() = default;
  /// Goes on with the flow until the condition holds: a message keeps the step that opened it from ending.
  virtual void GoOnUntil(const std::function<bool()>& condition) = 0;

  /// Hears each step of a flow before the first is played; throws Skip for what had better not be done here.
  void Foresee(const Text& /*step*/) {}
  /// A drive of this type is there, with nothing on it; throws Skip if not.
  void NeedDrive(const Text& letter, const Text& type) {
    Computer.Disk.Drives[letter[0]] = {DriveType(type), L"", type != L"empty"};
  }
  /// The program's folder lies on this drive, of which nothing else is asked without a type.
  void SetHome(const Text& letter, const Text& type = {}) {
    if (!type.empty()) NeedDrive(letter, type);
    Computer.Home[0] = letter[0];
    MakeProgram(Computer.Home + L"\\Vantor.exe");
  }
  /// What a word in braces stands for; "" for no such word.
  [[nodiscard]] Text MeaningOf(const Text& word) {
    if (word == L"f") return Computer.Home;
    if (word == L"w") return Computer.Windows + L'\\';
    if (word == L"rest") return Computer.Home.substr(1);
    return word == L"other" ? L"C:\\Work\\Tool.EXE" : Computer.Specials[word];
  }

  /// The bytes of a text in the system's code page; none where that lacks a character.
  [[nodiscard]] std::optional<std::string> InCodePage(const Text& text) const { return Computer.ToCodePage(text); }
  // Missing folders on the paths are made.
  void Write(const Text& path, const std::string& bytes) { Computer.Disk.AddFile(path, bytes); }
  void MakeFile(const Text& path) { Write(path, ""); }
  void MakeProgram(const Text& path) { Write(path, "program"); }
  void MakeFolder(const Text& path) { Computer.Disk.AddFolder(path); }
  void Remove(const Text& path) { Computer.Disk.Remove(path); }
  [[nodiscard]] std::string Read(const Text& path) {
    return Computer.Disk.HasFile(path) ? Computer.Disk.At(path).Bytes : NoFile;
  }

  void Start() {
    Program.reset();
    Desktop = std::make_unique<Desk>(*this);
    Desktop->Desktop = screen_;
    Desktop->CharacterWidth = Font.Width;
    Desktop->LineHeight = Font.Height;
    Program = std::make_unique<start::Program>(*Desktop, Computer.Services());
    Program->Main();
  }
  void Press(form::Key key) { Desktop->Press(key); }
  void PressControl(form::Key key) { Desktop->PressControl(key); }
  void Type(const Text& text) { Desktop->Type(text); }
  void Paste(const Text& text) {
    form::TextBox& box = FocusedBox();
    Text edited = box.Text();
    edited.replace(static_cast<std::size_t>(box.SelStart()), static_cast<std::size_t>(box.SelLength()), text);
    box.InputEdited(edited, box.SelStart() + static_cast<int>(text.size()), 0);
  }
  void Compose(const Text& text) {
    FocusedBox().InputComposing(true);
    Desktop->Type(text);
  }
  void EndComposing(const Text& text) {
    form::TextBox& box = FocusedBox();
    Desktop->Type(text);
    box.InputComposing(false);
  }
  /// In the control's middle, or on an entry of a list.
  void Click(const Text& name, const Text& entry = {}) {
    form::Control& control = Reachable(name);
    if (entry.empty()) return Desktop->Click(control);
    if (auto* rows = dynamic_cast<form::RowList*>(&control)) {
      for (int row = 0; row < rows->RowCount(); ++row) {
        if (rows->RowAt(row).Text == entry) return Desktop->ClickRow(*rows, row);
      }
      throw Failure("there is no such row");
    }
    auto& list = dynamic_cast<form::ListControl&>(control);
    const auto found = std::ranges::find(list.Entries(), entry);
    if (found == list.Entries().end()) throw Failure("there is no such entry");
    control.SetFocus();
    list.InputSelect(static_cast<int>(found - list.Entries().begin()));
  }
  void DoubleClick(const Text& name, const Text& entry) {
    if (!entry.empty()) Click(name, entry);
    Desktop->DoubleClick(Reachable(name));
  }
  void Turn(const Text& name, int rows) { Desktop->Wheel(Reachable(name), rows); }
  void Leave() { Desktop->Leave(); }
  void Hold(const Text& name) {
    Reachable(name).SetFocus();
    dynamic_cast<form::CommandButton&>(Reachable(name)).InputMouseDown(form::MouseButton::Left);
    held_ = name;
  }
  void MoveOver(const Text& window) {
    constexpr std::wstring_view known[] = {L"nothing", L"other", L"", L"system"};
    const auto* const found = std::ranges::find(known, window);
    Computer.UnderCursor = service::WindowId{found != std::end(known) ? static_cast<unsigned>(found - known) : 2U};
    Computer.Managed[2].ExecutablePath = Computer.Home + L"\\Vantor.exe";
    Desktop->Advance(100);
  }
  void Release() {
    if (form::Control* control = Find(held_)) {
      dynamic_cast<form::CommandButton&>(*control).InputMouseUp(form::MouseButton::Left);
    }
    if (Computer.Target || Computer.Marked != service::WindowId::None) throw Failure("the mark stays");
  }
  void Drag(int right, int down) { Desktop->DragBy(Program->frmMain, right * 15, down * 15); }
  void Drop(const Text& dropped) {
    const bool isAddress = dropped.find(L"://") != dropped.npos;
    Program->frmMain.InputDrop(isAddress ? form::DroppedItems{{}, dropped}
                                         : form::DroppedItems{Split(dropped, L" | "), {}});
  }
  void Restore() {
    Program->frmMain.InputWindowState(form::WindowState::Normal);
    Desktop->Advance(2000);
  }
  void Close() { Program->frmMain.InputClose(); }
  void Wait(int seconds) { Desktop->Advance(seconds * 1000); }
  void Fail(const Text& call) { Let(call, fake::Outcome::Fails); }
  void Throw(const Text& call) { Let(call, fake::Outcome::Throws); }
  /// Its width and height in pixels, and the dots per inch if they are not 96.
  void SetScreen(const Text& size) {
    const Texts numbers = Words(size);
    const double twips = numbers.size() > 2 ? 1440.0 / Number(numbers[2]) : 15;
    const auto length = [&](int pixels) { return static_cast<form::Twips>(pixels * twips); };
    const form::Twips right = length(Number(numbers.at(0)));
    const form::Twips bottom = length(Number(numbers.at(1)));
    screen_ = {{0, 0, right, bottom}, {0, length(28), right, bottom - length(28)}, twips, twips};  // under a taskbar
    if (!Desktop) return;
    Desktop->Desktop = screen_;
    for (form::Form* form : Desktop->Forms()) form->InputScreensChanged();
  }

  // What is seen: of the bar, or of the control that is named.

  /// Each state with a comma before and behind it.
  [[nodiscard]] Text StatesOf(const Text& name) {
    const form::Control* const control = Find(name);
    const form::Form& form = control != nullptr ? control->OwnerForm() : Program->frmMain;
    Text states = Program->frmMain.Visible() && !Desktop->Ended() ? L"," : L",end,";
    states += Desktop->IsTopMost(form) ? L"on top," : L"not on top,";
    if (form.WindowState() == form::WindowState::Minimized) states += L"minimised,";
    if (control == nullptr && !name.empty() && !Exists(name)) throw Failure("no control has this name");
    if (control == nullptr) return states + L"hidden,";
    states += control->Enabled() ? L"shown,enabled," : L"shown,disabled,";
    if (Desktop->ActiveForm() == &form && form.ActiveControl() == control) states += L"focus,";
    if (const auto* choice = dynamic_cast<const form::ChoiceButton*>(control))
      states += choice->Value() ? L"ticked," : L"cleared,";
    return states;
  }
  [[nodiscard]] Text Title() { return Desktop->ActiveForm() != nullptr ? Desktop->ActiveForm()->Caption() : L""; }
  [[nodiscard]] Text Place() {
    const form::Rect place = Program->frmMain.Bounds();
    return std::to_wstring(place.Left / 15) + L' ' + std::to_wstring(place.Top / 15);
  }
  [[nodiscard]] Text Line() {
    const auto& box = dynamic_cast<const form::TextBox&>(*Find(L"TextMain"));
    Text line = box.Text();
    if (box.SelLength() == 0) return line;
    line.insert(static_cast<std::size_t>(box.SelStart()) + static_cast<std::size_t>(box.SelLength()), L"]");
    return line.insert(static_cast<std::size_t>(box.SelStart()), L"[");
  }
  [[nodiscard]] Text RunValue() {
    const Text value = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";
    return Computer.Registry[L"HKEY_LOCAL_MACHINE" + value] + Computer.Registry[L"HKEY_CURRENT_USER" + value];
  }
  [[nodiscard]] Text EntriesOf(const Text& name) {
    if (const auto* list = dynamic_cast<const form::ListControl*>(Find(name))) return Joined(list->Entries());
    const auto& list = dynamic_cast<const form::RowList&>(Reachable(name));
    Texts rows;
    for (int row = list.TopRow(); row < std::min(list.TopRow() + list.PageRows(), list.RowCount()); ++row)
      rows.push_back(list.RowAt(row).Text);
    return Joined(rows);
  }
  [[nodiscard]] Text TextOf(const Text& name) {
    const form::Control* const control = Find(name);
    if (const auto* rows = dynamic_cast<const form::RowList*>(control))
      return rows->CurrentRow() != -1 ? rows->SpokenRow(rows->CurrentRow()) : Text();
    if (const auto* box = dynamic_cast<const form::TextBox*>(control)) return box->Text();
    if (const auto* list = dynamic_cast<const form::ListControl*>(control)) return list->Text();
    if (const auto* label = dynamic_cast<const form::Label*>(control)) return label->Caption();
    if (const auto* frame = dynamic_cast<const form::Frame*>(control)) return frame->Caption();
    const auto* const button = dynamic_cast<const form::CommandButton*>(control);
    return button != nullptr ? button->Caption() : L"";
  }
  /// All that was started so far: "run COMMAND", "open TARGET" or "call NUMBER", without quotes.
  [[nodiscard]] Texts Started() const {
    Texts starts;
    for (Text asked : Computer.Asked) {
      std::erase(asked, L'"');
      if (asked.starts_with(L"shell ") || asked.starts_with(L"mail ")) asked.replace(0, asked.find(L' '), L"open");
      if (asked.starts_with(L"call ")) asked.resize(asked.find(L'|'));
      if (!asked.starts_with(L"title ")) starts.push_back(asked);
    }
    return starts;
  }
  /// Whether a condition holds, now or, where things take their time, soon.
  static bool Becomes(const std::function<bool()>& condition) { return condition(); }

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
  /// The control of a name that is on the screen; of two, that of the form before the other. Null when there is none.
  [[nodiscard]] form::Control* Find(const Text& name) const {
    form::Control* found = nullptr;
    for (form::Control* control : Shown()) {
      if (control->Name() == name) found = control;
    }
    return found;
  }

  fake::Computer Computer;
  form::Size Font{90, 195};       // a letter's, on average
  std::unique_ptr<Desk> Desktop;  // of the run that goes on
  std::unique_ptr<start::Program> Program;

 private:
  /// Whether a form has a control of this name. That of messages is only there while one is open.
  [[nodiscard]] bool Exists(const Text& name) const {
    return name == L"LabelMessage" || std::ranges::any_of(Desktop->Forms(), [&](const form::Form* form) {
             return std::ranges::any_of(form->Controls(), [&](const auto* control) { return control->Name() == name; });
           });
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
  /// From now on calls of a service (all for ""), or writing to a drive ("C:"), go wrong.
  void Let(const Text& call, fake::Outcome outcome) {
    for (auto& [letter, drive] : Computer.Disk.Drives) drive.WriteProtected = call == Text{letter, L':'};
    Computer.Let(Narrow(call), outcome);
  }

  form::Screen screen_ = form::Headless().Desktop;
  Text held_;
};

}  // namespace vantor::flows
