#include "fuzz/Wanderer.h"

#include <algorithm>

#include "form/Button.h"
#include "form/ListControl.h"
#include "form/Static.h"

namespace vantor::fuzz {
namespace {

constexpr int DeepestMessages = 4;

constexpr std::wstring_view Words[] = {L"p=notepad",
                                       L"f=C:\\Tools\\notes.txt",
                                       L"d=C:\\",
                                       L"d.s",
                                       L"c.mouse",
                                       L"e.b",
                                       L"t=123",
                                       L"w-",
                                       L"p-",
                                       L"f-on",
                                       L"d-",
                                       L"c/abc",
                                       L"\r",
                                       L"\b",
                                       L"\x1b",
                                       L"C:\\Tools\\Edit.EXE",
                                       L"http://example.org",
                                       L"E:\\Tools\\x.exe",
                                       L"\"",
                                       L"\t\n",
                                       L"\u00e9\u0416\uffff"};

const std::string Item = "\"one\",\"C:\\Tools\\Edit.EXE\"\r\n\"two\",\"E:\\Tools\\x.exe\"\r\n";

bool HasControlCharacter(const std::wstring& text) {
  return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < L' ' || (c >= 0x7F && c < 0xA0); });
}

}  // namespace

std::wstring Wanderer::Text() {
  std::wstring text;
  for (std::size_t words = 1 + choices_.Below(2); words > 0; --words) {
    const std::size_t word = choices_.Below(std::size(Words) + 3);
    if (word < std::size(Words))
      text += Words[word];
    else if (word == std::size(Words))
      text += std::wstring(2000, L'x');
    else
      text += static_cast<wchar_t>(choices_.Byte());
  }
  return text;
}

void Wanderer::Act() {
  form::Form& form = *Forms[choices_.Below(Forms.size())];
  const std::vector<form::Control*>& controls = form.Controls();
  switch (choices_.Below(16)) {
    case 0:
    case 1:
      return Type(Text());
    case 2:
      return Press(static_cast<form::Key>(static_cast<int>(form::Key::F1) + static_cast<int>(choices_.Below(12))));
    case 3: {
      constexpr form::Key keys[] = {form::Key::Tab, form::Key::Enter, form::Key::Escape, form::Key::Up,
                                    form::Key::Down};
      return Press(keys[choices_.Below(std::size(keys))]);
    }
    case 4:
      return Advance(static_cast<int>(choices_.Below(30) * 100));
    case 5:
      return DragBy(form, static_cast<form::Twips>(choices_.Below(20000)) - 10000,
                    static_cast<form::Twips>(choices_.Below(20000)) - 10000);
    case 6:
      return form.InputWindowState(choices_.Below(2) == 0 ? form::WindowState::Normal : form::WindowState::Minimized);
    case 7:
      return form.InputDrop(
          {choices_.Below(2) == 0 ? std::vector<std::wstring>{Text(), Text()} : std::vector<std::wstring>{}, Text()});
    case 8:
      return ChangeWorld();
    case 9:
      if (choices_.Below(8) == 0) form.InputClose();
      return;
    default:
      if (!controls.empty()) ActOn(*controls[choices_.Below(controls.size())]);
  }
}

void Wanderer::ActOn(form::Control& control) {
  switch (choices_.Below(4)) {
    case 0:
      control.OwnerForm().InputFocus(&control);
      break;
    case 1:
      DoubleClick(control);
      break;
    default:
      Click(control);
      break;
  }
  if (auto* list = dynamic_cast<form::ListControl*>(&control)) {
    if (list->ListCount() > 0)
      list->InputSelect(static_cast<int>(choices_.Below(static_cast<std::size_t>(list->ListCount()))));
  } else if (auto* box = dynamic_cast<form::TextBox*>(&control)) {
    const bool composing = choices_.Below(8) == 0;
    if (composing) box->InputComposing(true);
    const std::wstring text = Text();
    box->InputEdited(text, static_cast<int>(choices_.Below(text.size() + 1)), 0);
    if (composing) box->InputComposing(false);
  } else if (auto* button = dynamic_cast<form::CommandButton*>(&control)) {
    if (choices_.Below(4) == 0) button->InputMouseDown(form::MouseButton::Left);
    if (choices_.Below(4) == 0) button->InputMouseUp(form::MouseButton::Left);
  }
}

void Wanderer::ChangeWorld() {
  auto& disk = world_.Disk;
  switch (choices_.Below(7)) {
    case 0:
      disk.Drive(L'E').Ready = !disk.Drive(L'E').Ready;
      return;
    case 1:
      disk.Drive(L'C').WriteProtected = !disk.Drive(L'C').WriteProtected;
      return;
    case 2:
      return disk.Remove(L"C:\\Tools\\Edit.EXE");
    case 3:
      world_.WindowPicker.ButtonDown = !world_.WindowPicker.ButtonDown;
      return;
    case 4:
      world_.WindowPicker.UnderCursor = static_cast<service::WindowId>(choices_.Below(4));
      return;
    case 5:
      world_.WindowPicker.Cursor = {static_cast<int>(choices_.Below(60000)) - 10000, static_cast<int>(choices_.Byte())};
      return;
    default:
      Desktop.Bounds.Width = 12000 + static_cast<form::Twips>(choices_.Below(20000));
  }
}

void Wanderer::RunModal(form::Form& form) {
  Forms.push_back(&form);
  ++modalDepth_;
  for (int acts = 0; form.Visible() && !Ended() && choices_.Left() && acts < 20 && modalDepth_ < DeepestMessages;
       ++acts) {
    Act();
  }
  if (form.Visible() && !Ended()) form.InputClose();
  if (form.Visible() && !Ended()) Press(form::Key::Enter);
  Require(!form.Visible() || Ended(), "a message can be closed");
  --modalDepth_;
  std::erase(Forms, &form);
}

Wandering::Wandering(Choices& choices) : Decisions(choices) {
  fake::FakeDisk& disk = World.Disk;
  disk.AddDrive(L'E', 1, L"STICK");
  disk.AddDrive(L'R', 4).Ready = false;
  for (const auto* path : {L"C:\\Tools\\Edit.EXE", L"C:\\Tools\\notes.txt", L"E:\\Tools\\x.exe"}) disk.AddFile(path);
  World.Processes.AddEntry(7, "edit.exe");
  World.Processes.Managed = {{7, L"C:\\Tools\\Edit.EXE"}, {8, std::nullopt}};
  World.WindowPicker.Owners = {{service::WindowId{1}, 7}, {service::WindowId{2}, 9}};

  const unsigned flags = choices.Byte();
  if ((flags & 1) != 0) World.System.Program = L"E:\\Tools";
  const std::wstring data = World.System.Program + L"\\Vantor\\";
  if ((flags & 2) != 0) {
    disk.AddFile(data + L"Set.Orbel", "7\r\n1\r\n-1\r\n1\r\n1\r\n0\r\n0\r\n\"C:\\Tools\"\r\n1\r\n-1\r\n0\r\n");
    disk.AddFile(data + L"User.Orbel", "\"Ada\"\r\n");
    disk.AddFile(data + L"MediaSet.Orbel", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
    for (const auto* name : {L"ListFile", L"ListProg", L"ListWeb", L"MachineFile", L"MachineProg"})
      disk.AddFile(data + name + L".Orbel", Item);
  }
  if ((flags & 4) != 0) disk.AddFile(data + L"Machine.Orbel", "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
  if ((flags & 8) != 0) {
    Rate = choices.Byte() / 4;
    Random = choices.Byte() + 1;
  }
  MayThrow = (flags & 16) != 0;
  if ((flags & 32) != 0) disk.AddFile(data + L"Saving.Orbel", "\"Saving\"\r\n");
  Desktop.Forms = {&Program.frmMain, &Program.frmBrowse, &Program.frmChoose};
}

fake::Outcome Wandering::Choose() {
  if (Rate == 0) return fake::Outcome::Works;
  Random = Random * 1664525U + 1013904223U;
  if ((Random >> 24) >= Rate) return fake::Outcome::Works;
  return MayThrow && ((Random >> 16) & 1) != 0 ? fake::Outcome::Throws : fake::Outcome::Fails;
}

void Wandering::Run() {
  Do([this] { Program.Main(); });
  while (Decisions.Left() && !Desktop.Ended()) Do([this] { Desktop.Act(); });
  End();
}

void Wandering::CheckState() {
  for (const list::LaunchGroup group : list::LaunchGroups) {
    const list::GroupBoxes& boxes = Program.frmChoose.List.Of(group);
    Require(boxes.Name.ListCount() == boxes.Path.ListCount(), "names and targets stay paired");
  }
  const int open = Program.CommandState.OpenPanelIndex;
  Require(open >= command::NoIndex && open < static_cast<int>(bar::menu::Count), "the open panel is one of the panels");
  Require(Desktop.Ended() || Program.MessageState.MessageBody.empty(), "a message leaves nothing behind");
  Require(World.FileSystem.OpenObjects == 0, "every object is released");
  for (const auto* started : {&World.Programs.CommandLines, &World.ScriptShell.Runs, &World.Programs.ShellOpened}) {
    for (const std::wstring& target : *started)
      Require(!HasControlCharacter(target), "a target has no control character");
  }
}

void Wandering::End() {
  Rate = 0;
  if (!Desktop.Ended()) Do([this] { Program.frmMain.InputClose(); });
  Require(Desktop.Ended(), "the program ends");
}

}  // namespace vantor::fuzz
