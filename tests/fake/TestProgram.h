#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fake/Computer.h"
#include "form/Headless.h"
#include "message/frmMessage.h"
#include "start/Program.h"

namespace vantor::test {

using Texts = std::vector<std::wstring>;

/// Of very many cases that differ little this is the step from one that is tried to the next: all are,
/// but with sanitizers, which take ten times as long, only a part.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int Stride = 7;
#else
inline constexpr int Stride = 1;
#endif

/// The items of a group, each as "name>target".
inline Texts ItemsOf(const list::GroupBoxes& boxes) {
  Texts items;
  for (int i = 0; i < boxes.Name.ListCount(); ++i) items.push_back(boxes.Name.List(i) + L">" + boxes.Path.List(i));
  return items;
}
inline Texts ItemsOf(const list::LaunchList& list) {
  Texts all;
  for (const list::LaunchGroup group : list::LaunchGroups) {
    for (std::wstring& item : ItemsOf(list.Of(group))) all.push_back(std::move(item));
  }
  return all;
}

/// One run of the whole program, before its start.
struct ProgramRun {
  explicit ProgramRun(fake::Computer& computer) : Program(Desktop, computer.Services()) {}

  void Add(list::LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    List.Of(group).AddItem({name, path});
  }

  form::Headless Desktop;
  start::Program Program;
  list::ListPage& Page = Program.ListPage;
  list::LaunchList& List = Page.List;
};

struct OwnComputer {
  fake::Computer Computer;
};

/// The program on its own computer, in fixed-disk mode on C:, where it has been used before.
struct TestProgram : OwnComputer, ProgramRun {
  bar::frmMain& Main = Program.frmMain;
  panel::frmChoose& Choose = Program.frmChoose;
  Texts Told;  // the texts of the messages

  explicit TestProgram(const std::string& place = "0\r\n0") : ProgramRun(Computer) {
    Computer.Disk.AddFile(L"C:\\Vantor\\Vantor\\Set.Orbel",
                          "2\r\n-1\r\n-1\r\n-1\r\n-1\r\n" + place + "\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n");
    Computer.Disk.AddFile(L"C:\\Vantor\\Vantor\\User.Orbel", "\"Ada\"\r\n");
  }
  /// Returns whether the bar is shown then.
  bool Start() {
    Program.Main();
    return Main.Visible() && !Desktop.Ended();
  }

  /// Types a line in place of the text in the box.
  void Type(std::wstring_view line) {
    Main.TextMain.SetText(L"");
    Main.TextMain.SetFocus();
    Desktop.Type(line);
  }
  /// The user reads the next message, does this, and closes it if it is still open.
  void Expect(std::function<void(message::frmMessage&)> act = {}) {
    Desktop.WhenModal([this, act = std::move(act)](form::Form& form) {
      auto& dialog = dynamic_cast<message::frmMessage&>(form);
      Told.push_back(dialog.LabelMessage.Caption());
      if (act) act(dialog);
      if (dialog.Visible()) dialog.InputClose();
    });
  }
  void ExpectTyping(std::wstring_view answer) {
    Expect([this, answer](auto& /*dialog*/) { Desktop.Type(answer); });
  }
};

/// The same, already started.
struct StartedProgram : TestProgram {
  explicit StartedProgram(const std::string& place = "0\r\n0") : TestProgram(place) { Start(); }
};

}  // namespace vantor::test
