#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "FakeDataFiles.h"
#include "FakeDisk.h"
#include "FakeFileSystem.h"
#include "FakeLanguage.h"
#include "FakeProcesses.h"
#include "FakeWindowPicker.h"
#include "service/Services.h"

namespace vantor::fake {

class FakeManagement : public service::Management {
 public:
  std::optional<service::DiskIdentity> Identity = service::DiskIdentity{3, L"1A2B3C4D", 80023715840.0};
  bool Refuses = false;
  int Reads = 0;

  std::optional<service::DiskIdentity> ReadDiskIdentity() override {
    ++Reads;
    if (Refuses) throw std::runtime_error("refused");
    return Identity;
  }
};

class FakePrograms : public service::Programs {
 public:
  bool StartSucceeds = true;
  int ShellOpenResult = 33;
  int CallResult = 0;
  std::vector<std::wstring> CommandLines;
  std::vector<std::wstring> ShellOpened;
  std::vector<std::wstring> Calls;  // "number|application name"

  bool StartCommandLine(std::wstring_view commandLine) override {
    CommandLines.emplace_back(commandLine);
    return StartSucceeds;
  }
  int ShellOpen(std::wstring_view file) override {
    ShellOpened.emplace_back(file);
    return ShellOpenResult;
  }
  int RequestMakeCall(std::wstring_view number, std::wstring_view applicationName) override {
    Calls.push_back(std::wstring(number) + L"|" + std::wstring(applicationName));
    return CallResult;
  }
};

class FakeScriptShell : public service::ScriptShell {
 public:
  bool RunSucceeds = true;
  bool SaveSucceeds = true;
  std::vector<std::wstring> Runs;
  std::map<std::wstring, std::wstring, std::less<>> SpecialFolders{{L"MyDocuments", L"C:\\Documents"}};
  std::map<std::wstring, std::wstring, std::less<>> Registry;
  std::vector<std::wstring> RegistryCalls;  // "write name=value", "delete name"
  std::vector<service::Shortcut> Shortcuts;

  bool Run(std::wstring_view target) override {
    Runs.emplace_back(target);
    return RunSucceeds;
  }
  std::wstring SpecialFolder(std::wstring_view name) override {
    const auto found = SpecialFolders.find(name);
    return found == SpecialFolders.end() ? L"" : found->second;
  }
  std::wstring RegistryRead(std::wstring_view name) override {
    const auto found = Registry.find(name);
    return found == Registry.end() ? L"" : found->second;
  }
  void RegistryWrite(std::wstring_view name, std::wstring_view value) override {
    Registry[std::wstring(name)] = value;
    RegistryCalls.push_back(L"write " + std::wstring(name) + L"=" + std::wstring(value));
  }
  void RegistryDelete(std::wstring_view name) override {
    Registry.erase(std::wstring(name));
    RegistryCalls.push_back(L"delete " + std::wstring(name));
  }
  bool SaveShortcut(const service::Shortcut& shortcut) override {
    if (SaveSucceeds) Shortcuts.push_back(shortcut);
    return SaveSucceeds;
  }
};

class FakeSystem : public service::System {
 public:
  std::wstring Windows = L"C:\\WINDOWS";
  std::wstring Program = L"C:\\Vantor";
  bool Previous = false;
  bool PreviousHasWindow = true;
  std::vector<std::wstring> Calls;  // "title …", "activate …"

  std::wstring WindowsDirectory() override { return Windows; }
  std::wstring ProgramFolder() override { return Program; }
  bool PreviousInstance() override { return Previous; }
  void SetTitle(std::wstring_view title) override { Calls.push_back(L"title " + std::wstring(title)); }
  bool ActivateInstance(std::wstring_view title) override {
    Calls.push_back(L"activate " + std::wstring(title));
    return PreviousHasWindow;
  }
};

/// One of each, as a program gets them. The program's folder is C:\Vantor, there from the start.
struct FakeServices {
  FakeServices() { Disk.AddFolder(System.Program); }

  FakeDisk Disk;
  FakeDataFiles DataFiles{Disk};
  FakeFileSystem FileSystem{Disk};
  FakeLanguage Language;
  FakeManagement Management;
  FakePrograms Programs;
  FakeScriptShell ScriptShell;
  FakeSystem System;
  FakeProcesses Processes;
  FakeWindowPicker WindowPicker;

  [[nodiscard]] service::Services All() {
    return {DataFiles, FileSystem, Language, Management, Programs, ScriptShell, System, Processes, WindowPicker};
  }
};

}  // namespace vantor::fake
