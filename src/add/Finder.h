#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "service/Services.h"
#include "service/WindowPicker.h"

namespace vantor::add {

/// Finds the program behind a window: from the press on the finder's button to the release anywhere on the screen
/// it follows the window under the cursor, and then looks up that window's process.
class Finder {
 public:
  explicit Finder(const service::Services& services) : services_(services) {}
  ~Finder() { Cancel(); }
  Finder(const Finder&) = delete;
  Finder& operator=(const Finder&) = delete;

  /// Between press and release.
  [[nodiscard]] bool FinderActive() const { return finderActive_; }
  [[nodiscard]] service::WindowId FinderWindow() const { return finderWindow_; }
  /// Processes of the snapshot that lives from press to release.
  [[nodiscard]] int ProcessCount() const { return processCount_; }

  /// Begins; `button` is the window that gets the release. Does nothing while active.
  void Press(service::WindowId button);
  /// Looks where the cursor is. Throws std::overflow_error for a place beyond 16 bits.
  void Tick();
  /// Whether the release has been lost: the button is up and the mouse is someone else's.
  [[nodiscard]] bool LostRelease() const;
  /// Ends, and returns the path of the program whose window was under the cursor at the last tick; "" when that
  /// can't be found.
  [[nodiscard]] std::wstring Release();
  /// Ends with nothing found; nothing when not active.
  void Cancel();

 private:
  void TakeSnapshot();
  void EndDrag();
  void ReleaseMouse();
  void DropSnapshot();
  [[nodiscard]] std::wstring ExecutablePathOf(std::uint32_t processId) const;

  service::Services services_;
  bool finderActive_ = false;
  service::WindowId button_ = service::WindowId::None;
  service::ScreenPoint finderPoint_;
  service::WindowId finderWindow_ = service::WindowId::None;
  bool finderButtonDown_ = false;
  int processCount_ = 0;
  std::vector<std::wstring> processNames_;  // 1 to ProcessCount
  std::vector<std::uint32_t> processIds_;
};

}  // namespace vantor::add
