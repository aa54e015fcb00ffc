#include "add/Finder.h"

#include <algorithm>
#include <stdexcept>

#include "add/clsActiveProcess.h"

namespace vantor::add {
namespace {

std::int32_t Within16Bits(std::int32_t coordinate) {
  if (coordinate < INT16_MIN || coordinate > INT16_MAX) throw std::overflow_error("the cursor is too far out");
  return coordinate;
}

}  // namespace

void Finder::Press(service::WindowId button) {
  if (finderActive_) return;
  TakeSnapshot();
  services_.WindowPicker.SetCapture(button);
  button_ = button;
  finderWindow_ = service::WindowId::None;
  finderButtonDown_ = true;
  services_.WindowPicker.ShowTarget(true);
  finderActive_ = true;
}

void Finder::Tick() {
  service::WindowPicker& picker = services_.WindowPicker;
  const service::ScreenPoint cursor = picker.GetCursorPos();
  finderPoint_ = {Within16Bits(cursor.X), Within16Bits(cursor.Y)};
  finderWindow_ = picker.WindowFromPoint(finderPoint_);
  finderButtonDown_ = picker.LeftButtonDown();
  picker.Mark(finderWindow_);
}

bool Finder::LostRelease() const {
  return finderActive_ && !finderButtonDown_ && services_.WindowPicker.GetCapture() != button_;
}

std::wstring Finder::Release() {
  EndDrag();
  const std::uint32_t processId = services_.WindowPicker.ProcessOfWindow(finderWindow_);
  ReleaseMouse();
  std::wstring path = ExecutablePathOf(processId);
  DropSnapshot();
  return path;
}

void Finder::Cancel() {
  if (!finderActive_) return;
  EndDrag();
  ReleaseMouse();
  DropSnapshot();
}

void Finder::TakeSnapshot() {
  clsActiveProcess active(services_.Processes, services_.Language);
  processCount_ = active.GetActiveProcess();
  processNames_.resize(static_cast<std::size_t>(processCount_) + 2);
  processIds_.resize(processNames_.size());
  for (int i = 1; i <= processCount_; ++i) {
    processNames_[static_cast<std::size_t>(i)] = active.szExeFile(i);
    processIds_[static_cast<std::size_t>(i)] = active.th32ProcessID(i);
  }
}

void Finder::EndDrag() {
  finderActive_ = false;
  services_.WindowPicker.Mark(service::WindowId::None);
  services_.WindowPicker.ShowTarget(false);
}

void Finder::ReleaseMouse() {
  if (services_.WindowPicker.GetCapture() == button_) services_.WindowPicker.ReleaseCapture();
}

void Finder::DropSnapshot() {
  processNames_.assign(1, {});
  processIds_.assign(1, 0);
  processCount_ = 0;
}

std::wstring Finder::ExecutablePathOf(std::uint32_t processId) const {
  const auto processes = services_.Processes.ManagedProcesses();
  if (!processes) return services_.Processes.ImageName(processId);
  // No process has the number 1.
  const auto found = std::find_if(processes->begin(), processes->end(), [&](const auto& process) {
    return process.ProcessId != 1 && process.ProcessId == processId;
  });
  return found == processes->end() ? std::wstring() : found->ExecutablePath.value_or(std::wstring());
}

}  // namespace vantor::add
