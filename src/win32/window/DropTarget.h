#pragma once

#include <windows.h>

#include <functional>

#include "form/Form.h"

struct IDataObject;

namespace vantor::win32 {

/// The items that a drag contains, in the program's own form. Empty if there are none of an accepted kind.
[[nodiscard]] form::DroppedItems ItemsOf(IDataObject& data);

/// What a dropped path stands for: the target of a shortcut if that exists on disk, otherwise the path itself. Shows no
/// dialogs and searches for nothing.
[[nodiscard]] std::wstring ShortcutTarget(const std::wstring& path);

/// The web address in a link that was dropped as a file; "" if the path is not such a file or the address is not a web
/// address.
[[nodiscard]] std::wstring WebAddressIn(const std::wstring& path);

/// Accepts drops on a window as long as this object lives.
class DropRegistration {
 public:
  /// `accepts` says whether the window accepts drops now; `take` gets what was dropped. It is called while the source
  /// waits, so it should defer the work.
  DropRegistration(HWND window, std::function<bool()> accepts, std::function<void(form::DroppedItems)> take);
  ~DropRegistration();
  DropRegistration(const DropRegistration&) = delete;
  DropRegistration& operator=(const DropRegistration&) = delete;

 private:
  HWND window_;
  bool joined_;  // whether this object has to leave OLE
};

}  // namespace vantor::win32
