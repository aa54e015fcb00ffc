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

  /// True between press and release.
  [[nodiscard]] bool FinderActive() const { return finderActive_; }

  /// Starts the search; `button` is the window that will get the release. Does nothing while a search is active.
  void Press(service::WindowId button);
  /// Looks up the window under the cursor. Throws std::overflow_error for coordinates beyond 16 bits.
  void Tick();
  /// Whether the release has been missed: the button is up and another window has captured the mouse.
  [[nodiscard]] bool LostRelease() const;
  /// Ends the search and returns the path of the program whose window was under the cursor at the last tick; "" if
  /// it can't be found.
  [[nodiscard]] std::wstring Release();
  /// Ends the search without a result; does nothing if none is active.
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
