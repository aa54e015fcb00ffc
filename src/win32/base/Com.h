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

/// An object could not be made, or refused a call. Never leaves the service that it happened in.
class ComError final : public std::exception {
 public:
  explicit ComError(bool lacking) : lacking_(lacking) {}

  [[nodiscard]] const char* what() const noexcept override { return "COM call failed"; }
  /// Whether the object is missing or has no such call, and so never tried: the time for the plain Windows call.
  [[nodiscard]] bool Lacking() const { return lacking_; }

 private:
  bool lacking_;
};

/// Throws ComError unless the call succeeded.
void Check(HRESULT result);
/// The same for the making of an object, where any failure means that the object is missing.
void CheckMade(HRESULT result);

/// One thread's membership in COM, from the first Enter to the end of this object.
class Apartment {
 public:
  explicit Apartment(DWORD model = COINIT_APARTMENTTHREADED) : model_(model) {}
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  /// Only the first call does anything. A thread that someone else entered in another mode is as good.
  void Enter();

 private:
  DWORD model_;
  bool entered_ = false;
  bool owed_ = false;  // whether leaving is ours to do
};

template <class Interface>
struct ReferenceTraits : NullHandle<Interface*> {
  static void Close(Interface* object) { object->Release(); }
};

/// Owns one reference to an object.
template <class Interface>
class ComPointer : public Handle<ReferenceTraits<Interface>> {
 public:
  using Handle<ReferenceTraits<Interface>>::Handle;

  Interface* operator->() const { return this->Get(); }
  [[nodiscard]] void** PutVoid() { return reinterpret_cast<void**>(this->Put()); }
  /// One more reference to the same object.
  [[nodiscard]] ComPointer Share() const {
    this->Get()->AddRef();
    return ComPointer(this->Get());
  }
};

struct TextTraits : NullHandle<BSTR> {
  static void Close(BSTR text) { SysFreeString(text); }
};
/// Owns the text that a call returned, or one that is made for a call.
using ComText = Handle<TextTraits>;

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

  /// The value as text or number; nothing when it can't be seen as one.
  [[nodiscard]] std::optional<std::wstring> Text() const;
  [[nodiscard]] std::optional<int> Number() const;

 private:
  /// The value in another type; empty when it has none there.
  [[nodiscard]] Variant As(VARTYPE type) const;
};

/// An object whose members are found by name at the time of the call. Every failure is a ComError.
class LateBound {
 public:
  explicit LateBound(ComPointer<IDispatch> object) : object_(std::move(object)) {}
  /// A new object of a class known by name, such as "WScript.Shell".
  [[nodiscard]] static LateBound Create(const wchar_t* className);

  // The arguments are borrowed: slices of Variants that live to the end of the call.
  using Arguments = std::initializer_list<VARIANT>;
  Variant Call(const wchar_t* name, Arguments arguments = {}) const;
  [[nodiscard]] Variant Get(const wchar_t* name, Arguments arguments = {}) const;
  /// The same for a member that is an object itself.
  [[nodiscard]] LateBound Object(const wchar_t* name, Arguments arguments = {}) const;
  void Put(const wchar_t* name, const Variant& value) const;

 private:
  Variant Invoke(const wchar_t* name, WORD kind, Arguments arguments) const;

  ComPointer<IDispatch> object_;
};

}  // namespace vantor::win32
