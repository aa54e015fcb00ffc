#pragma once

#include <windows.h>

#include <utility>

namespace vantor::win32 {

/// Owns a handle of any kind. Traits has `Type`, `static Type Invalid()` and `static void Close(Type)`.
template <class Traits>
class Handle {
 public:
  using Type = typename Traits::Type;

  Handle() = default;
  explicit Handle(Type handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(other.Release()) {}
  Handle& operator=(Handle&& other) noexcept {
    Reset(other.Release());
    return *this;
  }
  ~Handle() { Reset(); }

  [[nodiscard]] Type Get() const { return handle_; }
  explicit operator bool() const { return handle_ != Traits::Invalid(); }

  /// Gives up the handle without closing it.
  [[nodiscard]] Type Release() { return std::exchange(handle_, Traits::Invalid()); }
  /// Closes the current handle and takes ownership of another.
  void Reset(Type handle = Traits::Invalid()) {
    const Type old = std::exchange(handle_, handle);
    if (old != Traits::Invalid()) Traits::Close(old);
  }
  /// For functions that return a handle through a pointer. Closes the current handle.
  [[nodiscard]] Type* Put() {
    Reset();
    return &handle_;
  }

 private:
  Type handle_ = Traits::Invalid();
};

/// The base of the traits below for which null means no handle.
template <class T>
struct NullHandle {
  using Type = T;
  static Type Invalid() { return nullptr; }
};

/// A kernel object whose creation reports failure by null (events, processes).
struct KernelTraits : NullHandle<HANDLE> {
  static void Close(HANDLE handle) { CloseHandle(handle); }
};
/// A kernel object whose creation reports failure by INVALID_HANDLE_VALUE (files, snapshots).
struct FileTraits {
  using Type = HANDLE;
  static HANDLE Invalid() { return INVALID_HANDLE_VALUE; }
  static void Close(HANDLE handle) { CloseHandle(handle); }
};
struct FindTraits : FileTraits {
  static void Close(HANDLE handle) { FindClose(handle); }
};
struct KeyTraits : NullHandle<HKEY> {
  static void Close(HKEY key) { RegCloseKey(key); }
};
struct LibraryTraits : NullHandle<HMODULE> {
  static void Close(HMODULE library) { FreeLibrary(library); }
};
struct WindowTraits : NullHandle<HWND> {
  static void Close(HWND window) { DestroyWindow(window); }
};
struct MemoryDcTraits : NullHandle<HDC> {
  static void Close(HDC dc) { DeleteDC(dc); }
};
/// Brushes, fonts, bitmaps.
template <class T>
struct GdiTraits : NullHandle<T> {
  static void Close(T object) { DeleteObject(object); }
};

using KernelHandle = Handle<KernelTraits>;
using FileHandle = Handle<FileTraits>;
using FindHandle = Handle<FindTraits>;
using KeyHandle = Handle<KeyTraits>;
using LibraryHandle = Handle<LibraryTraits>;
using WindowHandle = Handle<WindowTraits>;
using MemoryDcHandle = Handle<MemoryDcTraits>;
using BrushHandle = Handle<GdiTraits<HBRUSH>>;
using FontHandle = Handle<GdiTraits<HFONT>>;
using BitmapHandle = Handle<GdiTraits<HBITMAP>>;

}  // namespace vantor::win32
