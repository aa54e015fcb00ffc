#pragma once

#include <windows.h>

#include <cstdint>
#include <utility>

namespace vantor::win32 {

/// Owns a handle of any kind, which the function Close frees. Invalid is the value, as a number, that means no handle.
template <class Type, auto Close, std::intptr_t Invalid = 0>
class Handle {
 public:
  Handle() = default;
  explicit Handle(Type handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(other.Release()) {}
  Handle& operator=(Handle&& other) noexcept {
    Reset(other.Release());
    return *this;
  }
  ~Handle() { Reset(); }

  [[nodiscard]] Type Get() const { return handle_; }
  explicit operator bool() const { return handle_ != None(); }

  /// Gives up the handle without closing it.
  [[nodiscard]] Type Release() { return std::exchange(handle_, None()); }
  /// Closes the current handle and takes ownership of another.
  void Reset(Type handle = None()) {
    const Type old = std::exchange(handle_, handle);
    if (old != None()) Close(old);
  }
  /// For functions that return a handle through a pointer. Closes the current handle.
  [[nodiscard]] Type* Put() {
    Reset();
    return &handle_;
  }

 private:
  static Type None() { return reinterpret_cast<Type>(Invalid); }

  Type handle_ = None();
};

/// A kernel object whose creation reports failure by null (events, processes).
using KernelHandle = Handle<HANDLE, CloseHandle>;
/// A kernel object whose creation reports failure by INVALID_HANDLE_VALUE (files, snapshots).
using FileHandle = Handle<HANDLE, CloseHandle, -1>;
using FindHandle = Handle<HANDLE, FindClose, -1>;
using KeyHandle = Handle<HKEY, RegCloseKey>;
using LibraryHandle = Handle<HMODULE, FreeLibrary>;
using WindowHandle = Handle<HWND, DestroyWindow>;
using MemoryDcHandle = Handle<HDC, DeleteDC>;
using BrushHandle = Handle<HBRUSH, DeleteObject>;
using FontHandle = Handle<HFONT, DeleteObject>;
using BitmapHandle = Handle<HBITMAP, DeleteObject>;

}  // namespace vantor::win32
