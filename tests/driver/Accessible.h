#pragma once

#include <windows.h>
// This needs the header before it.
#include <oleacc.h>

#include <stdexcept>
#include <string>

#include "win32/base/Com.h"

namespace vantor::desktop {

/// A window as seen by a screen reader. Its parts are numbered from 1; 0 is the window itself.
class Accessible {
 public:
  explicit Accessible(HWND window) {
    CoInitialize(nullptr);
    constexpr auto Client = static_cast<DWORD>(OBJID_CLIENT);
    if (FAILED(AccessibleObjectFromWindow(window, Client, IID_IAccessible, object_.PutVoid())))
      throw std::runtime_error("a window is not accessible");
  }

  [[nodiscard]] LONG Role(LONG part = 0) const { return Number(&IAccessible::get_accRole, part); }
  [[nodiscard]] LONG State(LONG part = 0) const { return Number(&IAccessible::get_accState, part); }
  [[nodiscard]] std::wstring Name(LONG part = 0) const { return Text(&IAccessible::get_accName, part); }
  [[nodiscard]] std::wstring Key() const { return Text(&IAccessible::get_accKeyboardShortcut, 0); }
  [[nodiscard]] std::wstring Value() const { return Text(&IAccessible::get_accValue, 0); }
  [[nodiscard]] LONG Count() const {
    LONG count = 0;
    object_->get_accChildCount(&count);
    return count;
  }
  /// The selected part; 0 for none.
  [[nodiscard]] LONG Selected() const {
    VARIANT selected{};
    return object_->get_accSelection(&selected) == S_OK && selected.vt == VT_I4 ? selected.lVal : 0;
  }
  [[nodiscard]] POINT Middle(LONG part) const {
    RECT at{};
    object_->accLocation(&at.left, &at.top, &at.right, &at.bottom, Part(part));
    return {at.left + at.right / 2, at.top + at.bottom / 2};
  }
  /// Performs the default action. Returns false if that fails.
  [[nodiscard]] bool Act() const { return object_->accDoDefaultAction(Part(0)) == S_OK; }

 private:
  static VARIANT Part(LONG number) {
    VARIANT part{};
    part.vt = VT_I4;
    part.lVal = number;
    return part;
  }
  std::wstring Text(HRESULT (STDMETHODCALLTYPE IAccessible::*question)(VARIANT, BSTR*), LONG part) const {
    win32::ComText text;
    (object_.Get()->*question)(Part(part), text.Put());
    return text ? text.Get() : L"";
  }
  LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*question)(VARIANT, VARIANT*), LONG part) const {
    VARIANT number{};
    (object_.Get()->*question)(Part(part), &number);
    return number.vt == VT_I4 ? number.lVal : -1;
  }

  win32::ComPointer<IAccessible> object_;
};

}  // namespace vantor::desktop
