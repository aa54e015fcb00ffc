#pragma once

#include <doctest/doctest.h>

#include <string>
#include <string_view>
#include <vector>

#include "add/frmBrowse.h"
#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "list/frmChoose.h"
#include "message/frmMessage.h"

namespace vantor::add {

/// The browse box on a desktop, on a computer with a few drives; the bar is played by hooks.
struct Desk {
  fake::FakeServices Services;
  form::Headless Ui;
  start::Environment Environment;
  list::Settings Settings;
  message::MessageState MessageState;
  message::Messages Messages{Ui, MessageState};
  command::CommandState CommandState;
  command::Starters Starters{Services.Programs, Services.ScriptShell};
  list::ListFiles ListFiles{Services.All(), Environment, Settings};
  list::frmChoose Choose{Ui, ListFiles, Services.Language, Messages};
  frmBrowse Browse{Ui,
                   BrowseParts{Services.All(), Environment, Messages, Settings, Choose.List, CommandState, Starters}};
  int Added = 0;

  Desk() {
    Environment.ProgramFolder = L"C:\\Vantor\\";
    Environment.MediaDriveLetter = L"C";
    Services.Disk.AddDrive(L'D', 2);
    Services.Disk.AddDrive(L'E', 1, L"STICK");
    Services.Disk.AddDrive(L'N', 3);
    Services.Disk.AddDrive(L'R', 4).Ready = false;
    Services.Disk.AddFile(L"C:\\Tools\\Edit.EXE");
    Services.Disk.AddFile(L"C:\\Tools\\notes.txt");
    Services.Disk.AddFile(L"C:\\Tools\\Deep\\x.exe");
    for (const wchar_t letter : {L'D', L'E', L'N'}) {
      Services.Disk.AddFile(std::wstring(1, letter) + L":\\Work\\tool.exe");
    }
    Browse.Hooks.ClosePanel = [this] { Panel(command::NoIndex); };
    Browse.Hooks.OpenPanel = [this](int index) { Panel(static_cast<std::int16_t>(index)); };
    Browse.Hooks.ItemAdded = [this] { ++Added; };
  }

  void Panel(std::int16_t index) {
    CommandState.OpenPanelIndex = index;
    if (index == command::NoIndex)
      Browse.Close();
    else
      Browse.Open();
  }
  /// What the next message says, when it has come.
  void Expect(std::wstring& told) {
    told.clear();
    Ui.WhenModal([&told](form::Form& form) {
      told = dynamic_cast<message::frmMessage&>(form).LabelMessage.Caption();
      form.InputClose();
    });
  }
  void ChooseKind(AddKind kind) { Ui.Click(Browse.OptionBrowse[static_cast<std::size_t>(kind)]); }
  void Pick(std::wstring_view file) {
    const auto& files = Browse.FileWork.Entries();
    for (std::size_t i = 0; i < files.size(); ++i) {
      if (files[i] == file) Browse.FileWork.InputSelect(static_cast<int>(i));
    }
    REQUIRE(Browse.FileWork.Text() == file);
  }
  /// The group's items as "name=target" each.
  [[nodiscard]] std::vector<std::wstring> Items(list::LaunchGroup group) const {
    std::vector<std::wstring> items;
    const list::GroupBoxes& boxes = Choose.List.Of(group);
    items.reserve(static_cast<std::size_t>(boxes.Name.ListCount()));
    for (int i = 0; i < boxes.Name.ListCount(); ++i) items.push_back(boxes.Name.List(i) + L"=" + boxes.Path.List(i));
    return items;
  }
};

}  // namespace vantor::add
