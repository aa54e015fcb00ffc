#pragma once

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

#include <exception>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "win32/base/Handle.h"

namespace vantor::win32 {

/// An object could not be created, or a call failed. Never thrown out of a service.
class ComError final : public std::exception {
 public:
  explicit ComError(bool lacking) : lacking_(lacking) {}

  [[nodiscard]] const char* what() const noexcept override { return "COM call failed"; }
  /// Whether the object or the call is missing, so that nothing was attempted: then a plain Windows call can be used.
  [[nodiscard]] bool Lacking() const { return lacking_; }

 private:
  bool lacking_;
};

/// Throws ComError unless the call succeeded.
void Check(HRESULT result);
/// The same for creating an object, where any failure means that the object is missing.
void CheckMade(HRESULT result);

/// One thread's membership in COM, from the first Enter to the end of this object.
class Apartment {
 public:
  explicit Apartment(DWORD model = COINIT_APARTMENTTHREADED) : model_(model) {}
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  /// Only the first call does anything. It is no failure if the thread has already entered COM in another mode.
  void Enter();

 private:
  DWORD model_;
  bool entered_ = false;
  bool owed_ = false;  // whether this object has to leave COM
};

template <class Interface>
void ReleaseObject(Interface* object) {
  object->Release();
}

/// Owns one reference to an object.
template <class Interface>
class ComPointer : public Handle<Interface*, ReleaseObject<Interface>> {
 public:
  using Handle<Interface*, ReleaseObject<Interface>>::Handle;

  Interface* operator->() const { return this->Get(); }
  [[nodiscard]] void** PutVoid() { return reinterpret_cast<void**>(this->Put()); }
  /// One more reference to the same object.
  [[nodiscard]] ComPointer Share() const {
    this->Get()->AddRef();
    return ComPointer(this->Get());
  }
};

/// Owns a text that a call returned, or one that is created for a call.
using ComText = Handle<BSTR, SysFreeString>;

/// Throws std::bad_alloc.
[[nodiscard]] ComText MakeComText(std::wstring_view text);
[[nodiscard]] std::wstring ToText(BSTR text);

/// Owns one VARIANT. Moves only.
class Variant : public VARIANT {
 public:
  Variant() : VARIANT{} {}
  explicit Variant(std::wstring_view text);
  explicit Variant(int number);
  explicit Variant(short number);
  ~Variant() { VariantClear(this); }
  Variant(Variant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
  Variant& operator=(Variant&&) = delete;
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  /// The value as text or number; nothing if it can't be converted.
  [[nodiscard]] std::optional<std::wstring> Text() const;
  [[nodiscard]] std::optional<int> Number() const;

 private:
  /// The value converted to another type; empty if that is impossible.
  [[nodiscard]] Variant As(VARTYPE type) const;
};

/// An object whose members are looked up by name when they are called. Every failure is a ComError.
class LateBound {
 public:
  explicit LateBound(ComPointer<IDispatch> object) : object_(std::move(object)) {}
  /// Creates an object by the name of its class, such as "WScript.Shell".
  [[nodiscard]] static LateBound Create(const wchar_t* className);

  // The arguments are borrowed: they are slices of Variants that exist until the end of the call.
  using Arguments = std::initializer_list<VARIANT>;
  Variant Call(const wchar_t* name, Arguments arguments = {}) const;
  [[nodiscard]] Variant Get(const wchar_t* name, Arguments arguments = {}) const;
  /// The same for a member that is itself an object.
  [[nodiscard]] LateBound Object(const wchar_t* name, Arguments arguments = {}) const;
  void Put(const wchar_t* name, const Variant& value) const;

 private:
  Variant Invoke(const wchar_t* name, WORD kind, Arguments arguments) const;

  ComPointer<IDispatch> object_;
};

}  // namespace vantor::win32
