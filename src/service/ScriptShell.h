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

/// The object "WScript.Shell". If it or one of its calls is missing, plain Windows calls do the same.
class ScriptShell {
 public:
  virtual ~ScriptShell() = default;

  /// Opens a target with the shell's default action, window style 1. The target is a command line: it is split at
  /// blanks outside double quotes, and variables in percent signs are replaced. Returns false if nothing was started.
  [[nodiscard]] virtual bool Run(std::wstring_view target) = 0;
  /// The text with its variables replaced, as Run does it.
  [[nodiscard]] virtual std::wstring ExpandVariables(std::wstring_view text) = 0;
  /// Opens exactly the named file, folder or address with the shell's default action, by the plain Windows call.
  /// Returns false if nothing was started.
  [[nodiscard]] virtual bool Open(std::wstring_view target) = 0;
  /// The path of a special folder by its name, such as "SendTo"; "" if it is unknown.
  [[nodiscard]] virtual std::wstring SpecialFolder(std::wstring_view name) = 0;

  /// A registry value by its full name ("HKEY_…\key\value") as text; "" if it can't be read.
  [[nodiscard]] virtual std::wstring RegistryRead(std::wstring_view name) = 0;
  /// Writes a string value. Fails silently.
  virtual void RegistryWrite(std::wstring_view name, std::wstring_view value) = 0;
  virtual void RegistryDelete(std::wstring_view name) = 0;

  /// Writes a shortcut file, replacing an existing one. Returns false if it could not be saved.
  [[nodiscard]] virtual bool SaveShortcut(const Shortcut& shortcut) = 0;
};

}  // namespace vantor::service
