#pragma once

#include <map>
#include <vector>

#include "service/WindowPicker.h"

namespace vantor::fake {

/// A desktop with one window under the cursor.
class FakeWindowPicker : public service::WindowPicker {
 public:
  service::ScreenPoint Cursor;
  service::WindowId UnderCursor = service::WindowId::None;
  bool ButtonDown = true;
  std::map<service::WindowId, std::uint32_t> Owners;  // process of each window

  service::WindowId Captured = service::WindowId::None;
  int Captures = 0;
  bool Target = false;
  std::vector<service::WindowId> Marks;  // each change

  void SetCapture(service::WindowId window) override {
    Captured = window;
    ++Captures;
  }
  service::WindowId GetCapture() override { return Captured; }
  void ReleaseCapture() override {
    Captured = service::WindowId::None;
    --Captures;
  }
  service::ScreenPoint GetCursorPos() override { return Cursor; }
  service::WindowId WindowFromPoint(service::ScreenPoint /*point*/) override { return UnderCursor; }
  bool LeftButtonDown() override { return ButtonDown; }
  std::uint32_t ProcessOfWindow(service::WindowId window) override {
    const auto found = Owners.find(window);
    return found == Owners.end() ? 0 : found->second;
  }
  void ShowTarget(bool target) override { Target = target; }
  void Mark(service::WindowId window) override {
    if (Marks.empty() || Marks.back() != window) Marks.push_back(window);
  }
};

}  // namespace vantor::fake
