#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "form/Keys.h"

namespace vantor::flows {

using Text = std::wstring;
using Texts = std::vector<std::wstring>;

/// Why a flow does not go on: a line that nobody understands, or a step that can't be done.
struct Failure : std::runtime_error {
  using runtime_error::runtime_error;
};
/// Why a flow can't be played here.
struct Skip : std::runtime_error {
  using runtime_error::runtime_error;
};

/// A list's entries as flows write them.
inline Text Joined(const Texts& texts) {
  Text all;
  for (const Text& text : texts) all += (all.empty() ? L"" : L" | ") + text;
  return all;
}

/// A computer with the program on it, and a person who uses it. Controls go by their names, files by full paths.
class World {
 public:
  World() = default;
  virtual ~World() = default;
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  /// Hears each line of a flow before it is played; throws Skip for what this world had better not do, or can't show.
  virtual void Foresee(const Text& /*line*/) {}
  /// "native" or "real": what a line that makes sense in one world alone begins with.
  [[nodiscard]] virtual std::wstring_view Name() const = 0;
  /// A drive of this letter and type ("floppy", "network", "fixed", "cdrom", or "empty" for a
  /// cdrom without a disk) is there, with nothing on it; throws Skip if not.
  virtual void NeedDrive(wchar_t letter, std::wstring_view type) = 0;
  /// The program's folder lies on this drive; asked at most once, before all that needs the folder.
  virtual void SetHome(wchar_t letter) = 0;
  /// What a word in braces stands for: "f" for the program's folder, "w" for the Windows folder with its backslash,
  /// "other" for the path of another program that shows a window, and the special folders. "" for no such word.
  [[nodiscard]] virtual Text Place(const Text& word) = 0;

  /// The bytes of a text in the system's code page; none where that lacks a character.
  [[nodiscard]] virtual std::optional<std::string> InCodePage(const Text& text) = 0;

  // Files. Missing folders on their paths are created.
  virtual void Write(const Text& path, const std::string& bytes) = 0;
  virtual void MakeProgram(const Text& path) = 0;
  virtual void MakeFolder(const Text& path) = 0;
  virtual void Remove(const Text& path) = 0;
  [[nodiscard]] virtual std::optional<std::string> Read(const Text& path) = 0;

  // The user.
  virtual void Start() = 0;
  virtual void Press(form::Key key) = 0;
  virtual void PressControl(form::Key key) = 0;
  virtual void Type(const Text& text) = 0;
  virtual void Paste(const Text& text) = 0;
  /// An input method begins and types, or types and ends.
  virtual void Compose(bool begins, const Text& text) = 0;
  /// On an entry of a list, or in the control's middle for "".
  virtual void Click(const Text& control, const Text& entry, bool twice) = 0;
  /// Turns the wheel over a control by a multiple of 3 rows; down is positive.
  virtual void Turn(const Text& control, int rows) = 0;
  /// Another program comes to the front.
  virtual void Leave() = 0;
  /// The mouse button goes down on a control; then the mouse moves over a window: that of the other program
  /// ("other"), or the one with a control; then the button goes up.
  virtual void Hold(const Text& control) = 0;
  virtual void MoveOver(const Text& window) = 0;
  virtual void Release() = 0;
  /// Drags the bar by pixels.
  virtual void Drag(int right, int down) = 0;
  /// On the bar: files, or the address of a site.
  virtual void Drop(const Texts& /*paths*/) { throw Failure("only in memory"); }
  /// Brings the minimised bar back, and closes its window from outside.
  virtual void Restore() = 0;
  virtual void Close() = 0;
  /// Lets time pass. In the real world it passes by itself.
  virtual void Wait(int /*milliseconds*/) {}
  /// From now on calls of a service (all for ""), or writing to a drive ("C:"), fail as foreseen ("fails"), or as
  /// nobody expected ("throws").
  virtual void Break(const Text& /*call*/, const Text& /*outcome*/) { throw Failure("only in memory"); }
  virtual void SetScreen(int /*width*/, int /*height*/, int /*dotsPerInch*/) { throw Failure("only in memory"); }

  /// One thing that can be seen. Of a control: "text", "shown", "enabled", "ticked" (each "yes" or "no"), "entries"
  /// (joined by " | "). "focus" (a control's name), "line" (the bar's box with its selection in brackets), "title" (of
  /// the window that has the input), "place" (of the bar, in pixels), "minimised", "on top", "running", "run value".
  [[nodiscard]] virtual Text See(std::wstring_view what, const Text& control = {}) = 0;
  /// All that was started so far: "run COMMAND", "open TARGET" or "call NUMBER", without quotes.
  [[nodiscard]] virtual Texts Started() = 0;
  /// Whether a condition holds, now or, where things take their time, soon.
  virtual bool Becomes(const std::function<bool()>& condition) = 0;
};

/// What goes on with a flow, for a world in which a message keeps the step that opened it from ending.
class Steps {
 public:
  virtual ~Steps() = default;
  /// Plays the next steps until the condition holds.
  virtual void GoOnUntil(const std::function<bool()>& condition) = 0;

 protected:
  Steps() = default;
  Steps(const Steps&) = default;
  Steps& operator=(const Steps&) = default;
};

/// The world that this player is for.
std::unique_ptr<World> MakeWorld(Steps& steps);

}  // namespace vantor::flows
