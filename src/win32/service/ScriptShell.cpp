#include "win32/service/ScriptShell.h"

#include <windows.h>

#include <commctrl.h>
#include <shlobj.h>

#include "text/Numbers.h"
#include "win32/base/PlainShell.h"
#include "win32/base/ProgramCommand.h"
#include "win32/base/ShellFunction.h"
#include "win32/base/SystemText.h"
#include "win32/service/Language.h"

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

/// The code of a hot key such as "CTRL+SHIFT+L", with the keys held in the high byte; 0 for any other combination.
WORD HotkeyCode(std::wstring_view hotkey) {
  constexpr std::wstring_view Held = L"CTRL+SHIFT+";
  const bool whole = hotkey.starts_with(Held) && hotkey.size() == Held.size() + 1;
  return static_cast<WORD>(whole ? (HOTKEYF_CONTROL | HOTKEYF_SHIFT) << 8 | hotkey.back() : 0);
}

/// Writes a shortcut by the object that the scripting shell uses itself, which takes every character. Throws ComError.
void WriteShortcutFile(const service::Shortcut& shortcut) {
  ComPointer<IShellLinkW> link;
  Check(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.PutVoid()));
  Check(link->SetPath(shortcut.TargetPath.c_str()));
  Check(link->SetShowCmd(shortcut.WindowStyle));
  Check(link->SetHotkey(HotkeyCode(shortcut.Hotkey)));
  Check(link->SetDescription(shortcut.Description.c_str()));
  Check(link->SetWorkingDirectory(shortcut.WorkingDirectory.c_str()));
  const std::size_t comma = shortcut.IconLocation.rfind(L',');
  const bool indexed = comma != std::wstring::npos;
  const int index =
      indexed ? text::ParseInt16(std::wstring_view(shortcut.IconLocation).substr(comma + 1)).value_or(0) : 0;
  Check(link->SetIconLocation(shortcut.IconLocation.substr(0, comma).c_str(), index));

  ComPointer<IPersistFile> file;
  Check(link->QueryInterface(IID_IPersistFile, file.PutVoid()));
  Check(file->Save(shortcut.File.c_str(), TRUE));
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
