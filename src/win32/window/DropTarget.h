#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "form/Form.h"

struct IDataObject;

namespace vantor::win32 {

/// What a drag hands over, in the form that the program knows. Empty when it holds nothing of that kind.
[[nodiscard]] form::DroppedItems ItemsOf(IDataObject& data);

/// What a path dropped stands for: the target of a shortcut that has one on disk, else the path itself. Shows no
/// dialog and searches for nothing.
[[nodiscard]] std::wstring ShortcutTarget(const std::wstring& path);

/// The web address that a web link dropped as a file holds; "" when the path is no such file, or leads elsewhere.
[[nodiscard]] std::wstring WebAddressIn(const std::wstring& path);

/// Lets things be dropped on a window, for as long as this object lives.
class DropRegistration {
 public:
  /// `accepts` says whether the window takes anything now; `take` gets what was dropped, within the source's call,
  /// so it should put the work off.
  DropRegistration(HWND window, std::function<bool()> accepts, std::function<void(form::DroppedItems)> take);
  ~DropRegistration();
  DropRegistration(const DropRegistration&) = delete;
  DropRegistration& operator=(const DropRegistration&) = delete;

 private:
  HWND window_;
  bool joined_;  // whether leaving OLE is ours to do
};

}  // namespace vantor::win32
