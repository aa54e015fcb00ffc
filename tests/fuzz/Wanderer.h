#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "fake/TestProgram.h"
#include "fuzz/Targets.h"

namespace vantor::fuzz {

inline constexpr int DeepestMessages = 4;

/// Lines, or parts of them.
inline constexpr std::wstring_view Words[] = {L"p=notepad",
                                              L"d.s",
                                              L"e.b",
                                              L"t=123",
                                              L"w-",
                                              L"p-",
                                              L"f-on",
                                              L"c/abc",
                                              L"\r",
                                              L"\b",
                                              L"\x1b",
                                              L"\t\n",
                                              L"\"",
                                              L"\u00e9\u0416\uffff",
                                              L"C:\\Work\\Tool.EXE",
                                              L"E:\\Work\\Tool.EXE",
                                              L"http://example.org"};

/// A user who does anything, in any order.
class Wanderer : public form::Headless {
 public:
  Wanderer(Choices& choices, fake::Computer& computer) : choices_(choices), computer_(computer) {}

  std::vector<form::Form*> Forms;

  /// One thing that a user can do, to whatever form.
  void Act() {
    form::Form& form = *Forms[choices_.Below(Forms.size())];
    const std::vector<form::Control*>& controls = form.Controls();
    constexpr form::Key keys[] = {form::Key::Tab,  form::Key::Enter,  form::Key::Escape,  form::Key::Up,
                                  form::Key::Down, form::Key::PageUp, form::Key::PageDown};
    switch (choices_.Below(16)) {
      case 0:
      case 1:
        return Type(Text().substr(0, 100));  // more than that is pasted, below
      case 2:
        return Press(static_cast<form::Key>(static_cast<int>(form::Key::F1) + static_cast<int>(choices_.Below(12))));
      case 3:
        return Press(keys[choices_.Below(std::size(keys))]);
      case 4:
        return Advance(static_cast<int>(choices_.Below(30) * 100));
      case 5: {
        const auto right = static_cast<form::Twips>(choices_.Below(20000)) - 10000;
        return DragBy(form, right, static_cast<form::Twips>(choices_.Below(20000)) - 10000);
      }
      case 6:
        return form.InputWindowState(choices_.Below(2) == 0 ? form::WindowState::Normal : form::WindowState::Minimized);
      case 7: {
        const std::wstring text = Text();
        return form.InputDrop({std::vector<std::wstring>(choices_.Below(3), text), text});
      }
      case 8:
        return ChangeWorld();
      case 9:
        if (choices_.Below(8) == 0) form.InputClose();
        return;
      default:
        if (!controls.empty()) ActOn(*controls[choices_.Below(controls.size())]);
    }
  }

  void RunModal(form::Form& form) override {
    const auto open = [&] { return form.Visible() && !Ended(); };
    Forms.push_back(&form);
    ++modalDepth_;
    for (int acts = 0; open() && choices_.Left() && acts < 20 && modalDepth_ < DeepestMessages; ++acts) Act();
    if (open()) form.InputClose();
    if (open()) Press(form::Key::Enter);
    Require(!open(), "a message can be closed");
    --modalDepth_;
    std::erase(Forms, &form);
  }

 private:
  void ActOn(form::Control& control) {
    switch (choices_.Below(4)) {
      case 0:
        control.OwnerForm().InputFocus(&control);
        break;
      case 1:
        DoubleClick(control);
        break;
      default:
        Click(control);
    }
    if (auto* rows = dynamic_cast<form::RowList*>(&control)) {
      Wheel(*rows, static_cast<int>(choices_.Byte()) - 128);
      ClickRow(*rows, static_cast<int>(choices_.Below(4)));
    } else if (auto* list = dynamic_cast<form::ListControl*>(&control)) {
      const auto count = static_cast<std::size_t>(list->ListCount());
      if (count > 0) list->InputSelect(static_cast<int>(choices_.Below(count)));
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

  void ChangeWorld() {
    const auto toggle = [](bool& flag) { flag = !flag; };
    switch (choices_.Below(7)) {
      case 0:
        return toggle(computer_.Disk.Drives[L'E'].Ready);
      case 1:
        return toggle(computer_.Disk.Drives[L'C'].WriteProtected);
      case 2:
        return computer_.Disk.Remove(L"C:\\Work\\Tool.EXE");
      case 3:
        return toggle(computer_.ButtonDown);
      case 4:
        computer_.UnderCursor = static_cast<service::WindowId>(choices_.Below(4));
        return;
      case 5:
        computer_.Cursor = {static_cast<int>(choices_.Below(60000)) - 10000, static_cast<int>(choices_.Byte())};
        return;
      default:
        Desktop.Bounds.Width = 12000 + static_cast<form::Twips>(choices_.Below(20000));
    }
  }

  std::wstring Text() {
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

  Choices& choices_;
  fake::Computer& computer_;
  int modalDepth_ = 0;
};

/// The program, at a place and with data files and services that the first bytes choose.
struct Wandering {
  explicit Wandering(Choices& choices) : Decisions(choices) {
    fake::FakeDisk& disk = Computer.Disk;
    const unsigned flags = choices.Byte();
    if ((flags & 1) != 0) Computer.Home = L"E:\\Work";
    const auto add = [&](std::wstring_view name, std::string_view bytes) {
      disk.AddFile((Computer.Home + L"\\Vantor\\").append(name).append(L".Orbel"), bytes);
    };
    if ((flags & 2) != 0) {
      add(L"Set", "7\r\n1\r\n-1\r\n1\r\n1\r\n0\r\n0\r\n\"C:\\Work\"\r\n1\r\n-1\r\n0\r\n");
      add(L"User", "\"Ada\"\r\n");
      add(L"MediaSet", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
      for (const auto* name : {L"ListFile", L"ListProg", L"ListWeb", L"MachineFile", L"MachineProg"})
        add(name, "\"one\",\"C:\\Work\\Tool.EXE\"\r\n\"two\",\"E:\\Work\\Tool.EXE\"\r\n");
    }
    if ((flags & 4) != 0) add(L"Machine", "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
    if ((flags & 8) != 0) {
      const unsigned rate = choices.Byte() / 4;  // so many calls of 256 go wrong
      const bool mayThrow = (flags & 16) != 0;
      Computer.Decide = [rate, mayThrow, random = choices.Byte() + 1](std::string_view /*call*/) mutable {
        random = random * 1664525U + 1013904223U;
        if ((random >> 24) >= rate) return fake::Outcome::Works;
        return mayThrow && ((random >> 16) & 1) != 0 ? fake::Outcome::Throws : fake::Outcome::Fails;
      };
    }
    if ((flags & 32) != 0) add(L"Saving", "\"Saving\"\r\n");
    Desktop.Forms = {&Program.frmMatches, &Program.frmMain, &Program.frmBrowse, &Program.frmChoose};
  }

  /// Starts, does what the bytes say, and ends. Requires what must hold whatever happens.
  void Run() {
    Do([this] { Program.Main(); });
    while (Decisions.Left() && !Desktop.Ended()) Do([this] { Desktop.Act(); });
    End();
  }

  /// Something that the user or the system does; no exception may leave it.
  template <class Action>
  void Do(Action action) {
    try {
      action();
    } catch (...) {
      Require(false, "no exception leaves the program");
    }
    CheckState();
  }
  void CheckState() {
    for (const list::LaunchGroup group : list::LaunchGroups) {
      const list::GroupBoxes& boxes = Program.ListPage.List.Of(group);
      Require(boxes.Name.ListCount() == boxes.Path.ListCount(), "names and targets stay paired");
    }
    const int open = Program.CommandState.OpenPanelIndex;
    Require(open >= command::NoIndex && open < static_cast<int>(panel::menu::Count),
            "the open panel is one of the panels");
    Require(!Program.frmMatches.Visible() || Desktop.Ended() ||
                (Program.frmMain.TextMain.HasFocus() && Program.frmMain.Active() && open == command::NoIndex),
            "what fits is listed only while the line is used");
    Require(Desktop.Ended() || Program.MessageState.MessageBody.empty(), "a message leaves nothing behind");
    Require(Computer.Held == 0, "every object is released");
    for (const std::wstring& target : Computer.Asked) {
      const auto isControl = [](wchar_t c) { return c < L' ' || (c >= 0x7F && c < 0xA0); };
      Require(std::none_of(target.begin(), target.end(), isControl), "a target has no control character");
    }
  }

  void End() {
    Computer.Decide = {};
    if (!Desktop.Ended()) Do([this] { Program.frmMain.InputClose(); });
    Require(Desktop.Ended(), "the program ends");
  }

  Choices& Decisions;
  fake::Computer Computer;
  Wanderer Desktop{Decisions, Computer};
  start::Program Program{Desktop, Computer.Services()};
};

}  // namespace vantor::fuzz
