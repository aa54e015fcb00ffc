#include "win32/service/ScriptShell.h"

#include <windows.h>

#include "win32/base/ProgramCommand.h"
#include "win32/base/ShellFunction.h"
#include "win32/base/SystemText.h"
#include "win32/service/Language.h"
#include "win32/service/PlainShell.h"

namespace vantor::win32 {

namespace {

constexpr short NormalWindow = 1;

const std::wstring& FileOf(const ProgramCommand& command) {
  return command.Path.empty() ? command.Program : command.Path;
}

bool PlainRun(std::wstring_view target) {
  const ProgramCommand parts = ParseProgramCommand(target);
  return OpenByShell(FileOf(parts), parts.Arguments);
}

/// Whether the scripting object, which uses the code page, preserves all texts of a shortcut.
bool FitsCodePage(const service::Shortcut& shortcut) {
  const std::wstring all =
      shortcut.File + shortcut.TargetPath + shortcut.IconLocation + shortcut.Description + shortcut.WorkingDirectory;
  return Language().ToCodePage(all).has_value();
}

}  // namespace

bool ScriptShell::Run(std::wstring_view target) {
  if (!FitsShell(target)) return false;
  // The program that opens it may be running already and has to come to the front.
  AllowSetForegroundWindow(ASFW_ANY);
  try {
    const LateBound shell = Make();
    const auto folder =
        FolderForShell(On64BitWindows() ? FileOf(ParseProgramCommand(ExpandVariables(target))) : std::wstring());
    const Variant result = shell.Call(L"Run", {Variant(target), Variant(NormalWindow)});
    // Without waiting there is no exit code: anything but 0 is an error that was not raised.
    return result.Number().value_or(0) == 0;
  } catch (const ComError& error) {
    // After a failed attempt, a second method might start it a second time.
    return error.Lacking() && PlainRun(target);
  }
}

std::wstring ScriptShell::ExpandVariables(std::wstring_view text) {
  std::wstring given(text);
  std::wstring expanded = SystemText([&](wchar_t* buffer, DWORD size) {
    const DWORD needed = ExpandEnvironmentStringsW(given.c_str(), buffer, size);  // including the terminating null
    return needed == 0 || needed > size ? needed : needed - 1;
  });
  return expanded.empty() ? given : expanded;
}

bool ScriptShell::Open(std::wstring_view target) {
  apartment_.Enter();
  AllowSetForegroundWindow(ASFW_ANY);
  return OpenByShell(std::wstring(target), {});
}

std::wstring ScriptShell::SpecialFolder(std::wstring_view name) {
  try {
    return Make().Object(L"SpecialFolders").Get(L"Item", {Variant(name)}).Text().value_or(L"");
  } catch (const ComError& error) {
    return error.Lacking() ? PlainSpecialFolder(name) : std::wstring();
  }
}

std::wstring ScriptShell::RegistryRead(std::wstring_view name) {
  try {
    return Make().Call(L"RegRead", {Variant(name)}).Text().value_or(L"");
  } catch (const ComError& error) {
    return error.Lacking() ? PlainRegistryRead(name) : std::wstring();
  }
}

void ScriptShell::RegistryWrite(std::wstring_view name, std::wstring_view value) {
  try {
    Make().Call(L"RegWrite", {Variant(name), Variant(value)});
  } catch (const ComError& error) {
    if (error.Lacking()) PlainRegistryWrite(name, value);
  }
}

void ScriptShell::RegistryDelete(std::wstring_view name) {
  try {
    Make().Call(L"RegDelete", {Variant(name)});
  } catch (const ComError& error) {
    if (error.Lacking()) PlainRegistryDelete(name);
  }
}

bool ScriptShell::SaveShortcut(const service::Shortcut& shortcut) {
  apartment_.Enter();
  try {
    if (FitsCodePage(shortcut)) {
      SaveByObject(shortcut);
      return true;
    }
  } catch (const ComError&) {
    // It is written again below; saving a shortcut twice does no harm.
  }
  try {
    WriteShortcutFile(shortcut);
    return true;
  } catch (const ComError&) {
    return false;
  }
}

LateBound ScriptShell::Make() {
  apartment_.Enter();
  return LateBound::Create(L"WScript.Shell");
}

void ScriptShell::SaveByObject(const service::Shortcut& shortcut) {
  const LateBound link = Make().Object(L"CreateShortcut", {Variant(shortcut.File)});
  link.Put(L"TargetPath", Variant(shortcut.TargetPath));
  link.Put(L"WindowStyle", Variant(shortcut.WindowStyle));
  link.Put(L"Hotkey", Variant(shortcut.Hotkey));
  link.Put(L"IconLocation", Variant(shortcut.IconLocation));
  link.Put(L"Description", Variant(shortcut.Description));
  link.Put(L"WorkingDirectory", Variant(shortcut.WorkingDirectory));
  link.Call(L"Save");
}

}  // namespace vantor::win32
