#pragma once

#include <string>
#include <string_view>

namespace vantor::service {

struct Shortcut {
  std::wstring File;  // path of the .lnk file
  std::wstring TargetPath;
  int WindowStyle = 1;
  std::wstring Hotkey;        // such as "CTRL+SHIFT+L"
  std::wstring IconLocation;  // "path, index"
  std::wstring Description;
  std::wstring WorkingDirectory;
};

/// The object "WScript.Shell". Where it is missing or lacks the call, the plain Windows call does the same.
class ScriptShell {
 public:
  virtual ~ScriptShell() = default;

  /// Opens a target by the shell's default action, window style 1. The target is a command line: it is cut at its
  /// blanks unless they stand in double quotes, and its variables in percent signs are replaced. False when nothing was
  /// started.
  [[nodiscard]] virtual bool Run(std::wstring_view target) = 0;
  /// A text with its variables replaced as by Run.
  [[nodiscard]] virtual std::wstring ExpandVariables(std::wstring_view text) = 0;
  /// Opens a file, a folder or an address by the shell's default action exactly as it is named, by the plain Windows
  /// call. False when nothing was started.
  [[nodiscard]] virtual bool Open(std::wstring_view target) = 0;
  /// The path of a special folder by its name, such as "SendTo"; "" when it is unknown.
  [[nodiscard]] virtual std::wstring SpecialFolder(std::wstring_view name) = 0;

  /// A registry value by its full name ("HKEY_…\key\value") as text; "" when it can't be read.
  [[nodiscard]] virtual std::wstring RegistryRead(std::wstring_view name) = 0;
  /// Writes a string value; silent when it can't.
  virtual void RegistryWrite(std::wstring_view name, std::wstring_view value) = 0;
  virtual void RegistryDelete(std::wstring_view name) = 0;

  /// Writes a shortcut file, over an existing one. False when it could not be saved.
  [[nodiscard]] virtual bool SaveShortcut(const Shortcut& shortcut) = 0;

 protected:
  ScriptShell() = default;
  ScriptShell(const ScriptShell&) = default;
  ScriptShell& operator=(const ScriptShell&) = default;
};

}  // namespace vantor::service
